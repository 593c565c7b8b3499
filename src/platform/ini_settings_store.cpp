#include "platform/ini_settings_store.h"

#include "support/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

// The file, in UTF-8:
//
//     file  = { line LF }
//     line  = "[" section "]" | key "=" value | anything else, which is passed over
//     value = '"' { character | escape } '"' | text
//     escape = "\n" | "\r" | '\' character
//
// Values are written in quotes, so that a blank at their end can be seen, and read without them too.

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

QString Quoted(QString value) {
    value.replace(u'\\', u"\\\\"_s)
        .replace(u'"', u"\\\""_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\r', u"\\r"_s);
    return u'"' + value + u'"';
}

QChar Unescaped(QChar character) {
    if (character == u'n')
        return u'\n';
    return character == u'r' ? QChar(u'\r') : character;
}

QString Unquoted(QStringView value) {
    if (value.size() < 2 || !value.startsWith(u'"') || !value.endsWith(u'"'))
        return value.toString();
    const QStringView inner = value.sliced(1).chopped(1);
    QString text;
    for (qsizetype i = 0; i < inner.size(); ++i) {
        if (inner[i] == u'\\' && i + 1 < inner.size())
            text += Unescaped(inner[++i]);
        else
            text += inner[i];
    }
    return text;
}

SettingsTexts Parsed(const QString &text) {
    SettingsTexts values;
    QString section;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const QStringView trimmed = line.trimmed();
        const qsizetype equals = trimmed.indexOf(u'=');
        if (trimmed.startsWith(u'[') && trimmed.endsWith(u']')) {
            section = trimmed.sliced(1).chopped(1).toString();
        } else if (equals > 0) {
            const QString key = trimmed.first(equals).trimmed().toString();
            values[{section, key}] = Unquoted(trimmed.sliced(equals + 1).trimmed());
        }
    }
    return values;
}

QString Printed(const SettingsTexts &values) {
    QString text;
    std::optional<QString> section;
    for (const auto &[name, value] : values) {
        if (section != name.first)
            text += u'[' + name.first + u"]\n"_s;
        section = name.first;
        text += name.second + u'=' + Quoted(value) + u'\n';
    }
    return text;
}

} // namespace

QString IniSettingsStore::DefaultPath() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return folder.filePath(u"Lanterra.ini"_s);
}

QString IniSettingsStore::Get(const QString &section, const QString &key) const {
    const SettingsTexts values = Read().value_or(SettingsTexts());
    const auto found = values.find({section, key});
    return found == values.end() ? QString() : found->second;
}

bool IniSettingsStore::SetAll(const QList<StoredSetting> &texts) {
    auto values = Read();
    if (!values)
        return false;
    for (const StoredSetting &text : texts)
        (*values)[{text.section, text.key}] = text.value;
    return Write(*values);
}

bool IniSettingsStore::DeleteSection(const QString &section) {
    auto values = Read();
    if (!values)
        return false;
    const auto erased =
        std::erase_if(*values, [&](const auto &entry) { return entry.first.first == section; });
    return erased == 0 || Write(*values);
}

std::optional<SettingsTexts> IniSettingsStore::Read() const {
    QFile file(path);
    if (!file.exists())
        return SettingsTexts();
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    if (file.error() != QFileDevice::NoError)
        return {};
    return Parsed(text);
}

bool IniSettingsStore::Write(const SettingsTexts &texts) const {
    return QDir().mkpath(QFileInfo(path).path()) && WriteWholeFile(path, Printed(texts).toUtf8());
}

} // namespace lanterra
