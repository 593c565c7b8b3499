#include "cli/command_line.h"
#include "platform/ini_settings_store.h"
#include "platform/qt_event_queue.h"
#include "platform/socket_http_client.h"
#include "platform/system_clock.h"

#include <QCoreApplication>

using namespace lanterra;

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QtEventQueue queue;
    const SystemClock clock;
    IniSettingsStore settings(IniSettingsStore::DefaultPath());
    Console console;
    const SystemDoors doors{queue, clock, settings, [] { return std::make_unique<SocketHttpClient>(); }};
    return CommandLine(console, doors).Run(QCoreApplication::arguments());
}
