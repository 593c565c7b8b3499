#include "support/file_names.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr QStringView cleanedCharacters = u"~`!@#$%^&*()+=|\\{}[]:;'<>,?/\"\t\r\n";
constexpr QStringView forbiddenCharacters = u"/\\:*?\"<>|";

/// The letter X parts the items, so an item can't hold it. An empty item would match everywhere and is none.
QStringList ItemsOf(const QString &list) {
    if (list.isEmpty())
        return cleanedCharacters.toString().split(QString(), Qt::SkipEmptyParts);
    return list.split(u'X', Qt::SkipEmptyParts, Qt::CaseInsensitive);
}

} // namespace

bool FileExists(const QString &path, bool directory) {
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        return false;
    if (directory)
        return info.isDir();
    return !info.isDir() && !path.endsWith(QDir::separator()) && !path.endsWith(u'/');
}

QString GetFileName(const QString &text, QChar separator, bool stripExtension) {
    QString name = text.sliced(text.lastIndexOf(separator) + 1);
    if (!stripExtension)
        return name;
    // A name without a dot leaves nothing: callers rely on it to see that there was no extension.
    return name.first(std::max<qsizetype>(name.lastIndexOf(u'.'), 0));
}

QString ShortenPath(const QString &path, int maximum, QChar separator) {
    const QString name = GetFileName(path, separator, false);
    qsizetype kept = path.size() - name.size();
    while (kept > 0 && (path[kept - 1] != separator || kept + name.size() + 4 >= maximum))
        --kept;
    return path.first(kept) + u"..."_s + separator + name;
}

QString RemoveChars(const QString &text, const QString &replacement, const QString &list) {
    QString result = text;
    for (const QString &item : ItemsOf(list))
        result.replace(item, replacement, Qt::CaseInsensitive);
    return result;
}

QString PathToFileUrl(const QString &path) {
    QString address = path;
    address.replace(u'\\', u'/');
    if (address.contains("file:///"_L1, Qt::CaseInsensitive))
        return address;
    const auto start = std::find_if(address.cbegin(), address.cend(), [](QChar c) { return c != u'/'; });
    return u"file:///"_s + address.sliced(start - address.cbegin());
}

bool CanBeFileName(const QString &name) {
    if (name.isEmpty() || name == u"." || name == u".." || !name.isValidUtf16())
        return false;
    return std::none_of(name.cbegin(), name.cend(), [](QChar character) {
        return forbiddenCharacters.contains(character) || character.category() == QChar::Other_Control;
    });
}

bool IsSameFile(const QString &first, const QString &second) {
    std::error_code error;
    return std::filesystem::equivalent(QFileInfo(first).filesystemFilePath(),
                                       QFileInfo(second).filesystemFilePath(), error);
}

FileIdentity IdentityOf(const QString &path) {
    struct stat status {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_dev, status.st_ino};
}

} // namespace lanterra
