#pragma once

#include <QSettings>
#include <QString>

namespace lanterra {

/// The addresses of outside hosts, from the readable file hosts.ini of the program's folder:
///
///     [Counter]
///     First=http://www.lanterra.example/counter?first
///     Later=http://www.lanterra.example/counter
///
/// An address with a semicolon stands in double quotes. Each part of the program asks for the sections and
/// keys of its own. The file is only read.
class Hosts {
public:
    /// `programFolder` with or without a separator at its end. A missing file has no addresses.
    explicit Hosts(const QString &programFolder);

    /// Empty for an address that is missing or left empty. The request to such a host is not made.
    QString Address(const QString &section, const QString &key) const;

private:
    QSettings file;
};

} // namespace lanterra
