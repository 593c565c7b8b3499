#include "fuzz/promise.h"
#include "project/site_source_build.h"
#include "shell/program.h"
#include "support/whole_file.h"
#include "tests/fakes/fake_clipboard.h"
#include "tests/fakes/fake_dialogs.h"
#include "tests/fakes/fake_document_opener.h"
#include "tests/fakes/fake_forms.h"
#include "tests/fakes/fake_http_client.h"
#include "tests/fakes/fake_printer.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/fakes/scripted_event_queue.h"

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
    FakeClock clock;
    ScriptedEventQueue queue{clock};
    FakeDialogs dialogs;
    FakeForms forms;
    FakeDocumentOpener documents;
    FakePrinter printer;
    FakeClipboard clipboard;
    FakeSettingsStore settings;
    Program program{{queue, clock, dialogs, forms, documents, printer, clipboard, settings,
                     [] { return std::make_unique<FakeHttpClient>(); }},
                    folder.path()};
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
