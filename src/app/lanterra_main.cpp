#include "app/window_program.h"
#include "platform/interrupt.h"
#include "project/site_version.h"
#include "settings/program_folder.h"
#include "window/theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <algorithm>
#include <array>
#include <cstdio>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

constexpr int wrongUse = 2; ///< exit code

void Print(FILE *stream, const QString &line) { std::fprintf(stream, "%s\n", qUtf8Printable(line)); }

bool HasDisplay() {
    constexpr std::array displays{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(displays.begin(), displays.end(),
                       [](const char *name) { return !qEnvironmentVariableIsEmpty(name); });
}

ColourScheme SchemeOf(const QString &name) {
    if (name == "light"_L1)
        return ColourScheme::Light;
    return name == "dark"_L1 ? ColourScheme::Dark : ColourScheme::FollowDesktop;
}

void AddOptions(QCommandLineParser &parser) {
    parser.setApplicationDescription(u"Submits web pages to search engines, directories and link lists."_s);
    parser.addPositionalArgument(u"PROJECT.rts"_s,
                                 u"project to open; the last one is loaded instead if that option is on"_s,
                                 u"[PROJECT.rts]"_s);
    parser.addOption({{u"h"_s, u"help"_s}, u"show this help"_s});
    parser.addOption({{u"v"_s, u"version"_s}, u"show the version"_s});
    parser.addOption({u"home"_s, u"folder of the site database, the projects and the help"_s, u"DIR"_s});
    parser.addOption({u"colours"_s, u"light or dark; without it as the desktop"_s, u"SCHEME"_s});
}

int RunWindow(int argc, char **argv, const QCommandLineParser &parser) {
    Interrupt interrupt; // before a thread of the windows could take the signals
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"lanterra"_s);
    QApplication::setDesktopFileName(u"lanterra"_s);
    QIcon icon(u":/icons/lanterra.svg"_s);
    icon.addFile(u":/icons/lanterra-small.svg"_s, QSize(16, 16)); // without the details that blur there
    QApplication::setWindowIcon(icon);
    QApplication::setQuitOnLastWindowClosed(false); // the end has an order of its own
    interrupt.Watch();
    const Theme theme(application, SchemeOf(parser.value(u"colours"_s)));
    const ProgramFolder folder(ProgramFolder::Places::OfSystem(parser.value(u"home"_s)));
    folder.Prepare(SiteDatabaseVersion);
    WindowProgram program(folder.Path());
    QObject::connect(&interrupt, &Interrupt::Pressed, &program, &WindowProgram::End);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &program, &WindowProgram::End,
                     Qt::DirectConnection);
    program.Run(parser.positionalArguments().value(0));
    return EXIT_SUCCESS;
}

/// What is wrong with the arguments; empty if nothing is.
QString WrongUse(QCommandLineParser &parser, const QStringList &arguments) {
    if (!parser.parse(arguments))
        return parser.errorText();
    const QString colours = parser.value(u"colours"_s);
    if (!colours.isEmpty() && SchemeOf(colours) == ColourScheme::FollowDesktop)
        return u"--colours takes light or dark, not '%1'."_s.arg(colours);
    return parser.positionalArguments().size() > 1 ? u"One project at most."_s : QString();
}

} // namespace

// Help and version need no display, so the arguments are read before the application is made.
int main(int argc, char **argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QCommandLineParser parser;
    AddOptions(parser);
    if (const QString wrong = WrongUse(parser, arguments); !wrong.isEmpty()) {
        Print(stderr, u"lanterra: %1 Help: lanterra --help"_s.arg(wrong));
        return wrongUse;
    }
    if (parser.isSet(u"version"_s)) {
        Print(stdout, u"lanterra " LANTERRA_VERSION ""_s);
        return EXIT_SUCCESS;
    }
    if (parser.isSet(u"help"_s)) {
        const QCoreApplication application(argc, argv); // the help names the program as it was called
        Print(stdout, parser.helpText());
        return EXIT_SUCCESS;
    }
    if (!HasDisplay()) {
        Print(stderr, u"lanterra: There is no display. Without one, use lanterra-cli."_s);
        return EXIT_FAILURE;
    }
    return RunWindow(argc, argv, parser);
}
