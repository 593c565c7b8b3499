#pragma once

#include <QString>
#include <optional>

namespace lanterra {

/// What the maker says of the newest version, from a small text file on the network.
///
/// The file: lines NAME=VALUE in any order, blanks around both passed over; other lines and unknown names
/// mean nothing.
///
///     Product=Zephyrine Lanterra
///     Version=2.15
///     Page=https://www.lanterra.example/download/
///     Note=Reports are written faster.
struct VersionFile {
    QString version; ///< numbers with dots
    QString page;    ///< tells more; begins with http:// or https://, or is empty
    QString note;    ///< one line; may be empty

    bool IsNewerThan(const QString &otherVersion) const;
};

/// Nothing if the text names another product, as any other page that a network puts in the way does, or has
/// no version. A page that is no web address is left out.
std::optional<VersionFile> ReadVersionFile(const QString &text, const QString &product);

} // namespace lanterra
