#include "fuzz/promise.h"
#include "project/site_source_build.h"
#include "support/whole_file.h"
#include "tests/fakes/fake_doors.h"

#include <QDir>
#include <QTemporaryDir>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// A program on fakes, in a folder without a master, with one project file.
class Desk {
public:
    explicit Desk(const QByteArray &bytes) { WriteWholeFile(file, bytes); }

    QByteArray Bytes() const {
        QFile reader(file);
        return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray();
    }
    bool HoldsOneFile() const {
        return QDir(folder.path()).entryList(QDir::Files) == QStringList{u"p.rts"_s};
    }

    QTemporaryDir folder;
    const QString file = folder.filePath(u"p.rts"_s);
    FakeDoors doors;
    Program program{doors.All(), folder.path()};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QByteArray bytes = QByteArrayView(data, static_cast<qsizetype>(size)).toByteArray();
    Desk desk(bytes);
    desk.program.files.OpenProject(desk.file);
    Promise(desk.Bytes() == bytes && desk.HoldsOneFile(), "loading writes nothing");
    const bool refused = desk.program.project.lists.List1.ListCount() == 0;
    desk.program.files.SaveProject({});
    desk.program.project.database.Unbind();
    Promise(!refused || desk.Bytes() == bytes, "a file without sites is not saved over");
    Promise(desk.HoldsOneFile(), "a closed project has no side files");
    ReadSiteDatabase(desk.file);
    return 0;
}
