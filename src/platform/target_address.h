#pragma once

#include <QString>
#include <optional>

namespace lanterra {

/// Where a request goes: the parts of an http or https address.
struct TargetAddress {
    bool secure = false; ///< https
    QString host; ///< lower case, other scripts in their ASCII form; an IPv6 address without its brackets
    quint16 port = 80;
    QString resource; ///< path and query as typed, "/" in front; without the fragment

    /// The host, an IPv6 address in brackets, with the port if it isn't the scheme's own.
    QString HostName() const;

    /// As HostName, but always with the port.
    QString HostAndPort() const;
};

/// Takes an address apart. Blanks around it, a user name in front of the host and odd characters behind the
/// host are tolerated. Nothing if it names no http or https host or a port outside 1 to 65535; `problem` is
/// then a sentence that says so.
std::optional<TargetAddress> ParseTarget(const QString &text, QString &problem);

/// The form of a host name that goes to the resolver: lower case, other scripts in their ASCII form, an IPv6
/// address without its brackets. Empty for what can't be a host: a label of more than 63 characters, blanks,
/// punctuation.
QString AsciiHost(const QString &name);

} // namespace lanterra
