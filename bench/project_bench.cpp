// Times what a person waits for in the project's file: collecting the requests of a run, saving and loading,
// and the page of ready-filled forms, beside the cost of one flush of the same disk.

#include "tests/fakes/fake_doors.h"
#include "tests/fakes/site_database_builder.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <unistd.h>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// A project of `count` sites, all of them selected, in a folder of the current one.
class OpenProject {
public:
    explicit OpenProject(int count) {
        SiteDatabaseBuilder master;
        for (int i = 0; i < count; ++i)
            master.Site(u"Site %1."_s.arg(i))
                .Query(u"\"url=\" & txtUrlText & \"&title=\" & txtTitleText & \"&text=\" & txtDescText & "
                       u"\"&keys=\" & AllKeywords & \"&mail=\" & txtEmailText & \"&name=\" & txtNameText"_s);
        master.Write(folder.filePath(u"ng.dll"_s));
        program = std::make_unique<Program>(doors.All(), folder.path());
        program->files.CreateProject(folder.filePath(u"bench.rts"_s));
        program->project.record.txtDesc.SetText(u"A text of a usual length, with marks & blanks."_s);
        program->project.lists.List1.SetAllSelected(true);
    }

    QTemporaryDir folder{u"./bench-XXXXXX"_s};
    FakeDoors doors;
    std::unique_ptr<Program> program;
};

void Collect(benchmark::State &state) {
    OpenProject open(static_cast<int>(state.range(0)));
    open.program->files.SaveProject(QString());
    for (auto _ : state)
        open.program->collector.CollectSubmissionData(); // which saves the project first
}

void Save(benchmark::State &state) {
    OpenProject open(static_cast<int>(state.range(0)));
    for (auto _ : state)
        open.program->files.SaveProject(QString());
}

void Load(benchmark::State &state) {
    OpenProject open(static_cast<int>(state.range(0)));
    open.program->files.SaveProject(QString());
    for (auto _ : state)
        open.program->files.LoadProject();
}

void WriteSemiPage(benchmark::State &state) {
    const OpenProject open(1);
    for (auto _ : state)
        open.program->semiPage.WriteSemiPage();
}

void DiskFlush(benchmark::State &state) {
    QTemporaryDir folder(u"./bench-XXXXXX"_s);
    QFile file(folder.filePath(u"flush"_s));
    file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const QByteArray page(4096, 'x');
    for (auto _ : state) {
        file.seek(0);
        file.write(page);
        fsync(file.handle());
    }
}

BENCHMARK(DiskFlush)->Unit(benchmark::kMillisecond);
BENCHMARK(Collect)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(Save)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteSemiPage)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
