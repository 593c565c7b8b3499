#pragma once

#include "shell/program.h"
#include "tests/fakes/fake_dialogs.h"
#include "tests/fakes/fake_http_client.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/fakes/recording_doors.h"
#include "tests/fakes/scripted_event_queue.h"

namespace lanterra {

/// A fake of every door of a program, in front of which they must stand because they outlive it:
///
///     FakeDoors doors;
///     Program program(doors.All(), folder);
///
/// Link lanterra_shell. A fixture that works the fakes a lot derives from it, for shorter names.
class FakeDoors {
public:
    /// The doors of a new program, whose clients take the place of those of the last one.
    Doors All() {
        clients.clear();
        return With(queue, clock, settings, [this] {
            auto client = std::make_unique<FakeHttpClient>();
            clients.push_back(client.get());
            return client;
        });
    }
    /// With real doors, or others of your own, where a fake won't do.
    Doors With(EventQueue &events, const Clock &time, SettingsStore &store,
               ChannelBank::ClientFactory makeClient) {
        return {events, time, dialogs, forms, documents, printer, clipboard, store, std::move(makeClient)};
    }

    FakeClock clock;
    ScriptedEventQueue queue{clock};
    FakeDialogs dialogs;
    FakeForms forms;
    FakeDocumentOpener documents;
    FakePrinter printer;
    FakeClipboard clipboard;
    FakeSettingsStore settings;
    std::vector<FakeHttpClient *> clients; ///< in the order in which the program has made them
};

} // namespace lanterra
