#include "park/park_options.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int longestLatency = 600'000; // ten minutes

/// The option's value as a number from 0 to `maximum`. Otherwise the options become a wrong use.
int NumberOption(const QCommandLineParser &parser, const QString &name, int maximum, ParkOptions &options) {
    const QString text = parser.value(name);
    bool valid = false;
    const int number = text.toInt(&valid);
    if (valid && number >= 0 && number <= maximum)
        return number;
    options.task = ParkOptions::Task::WrongUse;
    options.text = u"--%1 takes a number from 0 to %2, not \"%3\""_s.arg(name).arg(maximum).arg(text);
    return 0;
}

std::optional<quint16> PortOption(const QCommandLineParser &parser, const QString &name,
                                  ParkOptions &options) {
    if (!parser.isSet(name))
        return {};
    return static_cast<quint16>(NumberOption(parser, name, 65535, options));
}

ParkOptions Message(ParkOptions::Task task, const QString &text) {
    ParkOptions options;
    options.task = task;
    options.text = text;
    return options;
}

} // namespace

ParkOptions ReadParkOptions(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Serves a small practice web on this computer only: search engines, directories and link lists\n"
        "to submit pages to, a page that shows what they received, and servers that misbehave.\n"
        "Open the address that it prints in a browser; Ctrl-C ends it."_s);
    parser.addOptions(
        {{{u"h"_s, u"help"_s}, u"Shows this help."_s},
         {{u"v"_s, u"version"_s}, u"Shows the version."_s},
         {u"port"_s, u"Listens on port N (8571); 0 takes a free one."_s, u"N"_s, u"8571"_s},
         {u"latency"_s, u"Delays the first byte of every answer by MS milliseconds."_s, u"MS"_s, u"0"_s},
         {u"log"_s, u"Appends one line a request to FILE."_s, u"FILE"_s},
         {u"tls-port"_s, u"Serves TLS on port N and those behind it, in the ways of --list."_s, u"N"_s},
         {u"proxy-port"_s, u"Offers proxies on port N and those behind it, in the ways of --list."_s, u"N"_s},
         {u"certificates"_s, u"Keeps the certificates of --tls-port in FOLDER."_s, u"FOLDER"_s},
         {u"list"_s, u"Lists the behaviours and the ways to them, and ends."_s}});
    if (!parser.parse(arguments) || !parser.positionalArguments().isEmpty()) {
        const QStringList extra = parser.positionalArguments();
        return Message(ParkOptions::Task::WrongUse, parser.errorText().isEmpty()
                                                        ? u"Unexpected argument '%1'."_s.arg(extra.first())
                                                        : parser.errorText());
    }
    if (parser.isSet(u"help"_s))
        return Message(ParkOptions::Task::Help, parser.helpText());
    if (parser.isSet(u"version"_s))
        return Message(ParkOptions::Task::Version, u"lanterra-park " LANTERRA_VERSION "\n"_s);
    ParkOptions options;
    if (parser.isSet(u"list"_s))
        options.task = ParkOptions::Task::List;
    options.logPath = parser.value(u"log"_s);
    options.port = static_cast<quint16>(NumberOption(parser, u"port"_s, 65535, options));
    options.latency = NumberOption(parser, u"latency"_s, longestLatency, options);
    options.tlsPort = PortOption(parser, u"tls-port"_s, options);
    options.proxyPort = PortOption(parser, u"proxy-port"_s, options);
    options.certificateFolder = parser.value(u"certificates"_s);
    return options;
}

} // namespace lanterra
