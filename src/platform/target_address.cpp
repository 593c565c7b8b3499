#include "platform/target_address.h"

#include <QHostAddress>
#include <QUrl>
#include <algorithm>

namespace lanterra {

using namespace Qt::StringLiterals;

namespace {

// RFC 1035, 2.3.4
constexpr qsizetype longestLabel = 63;
constexpr qsizetype longestName = 253;

// The underscore is no letter of host names, yet names with it are in use.
bool IsHostCharacter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'-' || c == u'_';
}

bool IsLabel(QStringView label) {
    return !label.isEmpty() && label.size() <= longestLabel &&
           std::all_of(label.begin(), label.end(), IsHostCharacter);
}

bool IsAscii(const QString &text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

QString InBrackets(const QString &host) { return host.contains(u':') ? u'[' + host + u']' : host; }

quint16 OwnPort(bool secure) { return secure ? 443 : 80; }

// Splits "host:port" behind the closing bracket of an IPv6 address.
bool SplitPort(const QString &authority, QString &host, quint16 &port) {
    const qsizetype colon = authority.lastIndexOf(u':');
    host = authority;
    if (colon < 0 || colon < authority.lastIndexOf(u']'))
        return true;
    host = authority.left(colon);
    const QString digits = authority.mid(colon + 1);
    if (digits.isEmpty())
        return true;
    bool isNumber = false;
    const uint number = digits.toUInt(&isNumber);
    port = static_cast<quint16>(number);
    return isNumber && digits.front().isDigit() && number >= 1 && number <= 65535;
}

std::optional<TargetAddress> Refuse(QString &problem, const QString &reason) {
    problem = reason;
    return {};
}

// Path and query; a query directly behind the host gets the slash that the request line needs.
QString ResourceOf(const QString &behindHost) {
    const QString resource = behindHost.section(u'#', 0, 0);
    return resource.startsWith(u'/') ? resource : u'/' + resource;
}

} // namespace

QString TargetAddress::HostName() const { return port == OwnPort(secure) ? InBrackets(host) : HostAndPort(); }

QString TargetAddress::HostAndPort() const { return InBrackets(host) + u':' + QString::number(port); }

QString AsciiHost(const QString &name) {
    const QString bare = name.startsWith(u'[') && name.endsWith(u']') ? name.mid(1, name.size() - 2) : name;
    if (bare.contains(u':'))
        return QHostAddress(bare).protocol() == QHostAddress::IPv6Protocol ? bare.toLower() : QString();
    QString host = (IsAscii(bare) ? bare : QString::fromLatin1(QUrl::toAce(bare))).toLower();
    if (host.endsWith(u'.'))
        host.chop(1); // the root's dot has no place in a certificate's name
    const QList<QStringView> labels = QStringView(host).split(u'.');
    const bool good = host.size() <= longestName && std::all_of(labels.begin(), labels.end(), IsLabel);
    return good ? host : QString();
}

std::optional<TargetAddress> ParseTarget(const QString &text, QString &problem) {
    const QString address = text.trimmed();
    const QString scheme = address.section(u"://"_s, 0, 0).toLower();
    if (!address.contains(u"://"_s) || (scheme != u"http" && scheme != u"https"))
        return Refuse(problem, u"The address doesn't begin with http:// or https://"_s);
    const QString rest = address.mid(scheme.size() + 3);
    const auto end = std::find_if(rest.begin(), rest.end(), [](QChar c) { return u"/?#\\"_s.contains(c); });
    const QString authority = rest.left(end - rest.begin());

    TargetAddress target;
    target.secure = scheme == u"https";
    target.port = OwnPort(target.secure);
    target.resource = ResourceOf(rest.mid(authority.size()));
    QString host;
    if (!SplitPort(authority.mid(authority.lastIndexOf(u'@') + 1), host, target.port))
        return Refuse(problem, u"The port of the address is not valid"_s);
    target.host = AsciiHost(host);
    if (target.host.isEmpty())
        return Refuse(problem, u"The host name of the address is not valid"_s);
    return target;
}

} // namespace lanterra
