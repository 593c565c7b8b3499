#include "project/site_template.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr auto separator = " & "_L1;
constexpr auto categoryWord = "CCCAAATTT"_L1;

/// Takes one piece after the other off the front of a template.
class TemplateReader {
public:
    explicit TemplateReader(QStringView text) : rest(text) {}

    QString Refusal() {
        QString refusal = LiteralRefusal();
        while (refusal.isEmpty() && !rest.isEmpty())
            refusal = NextRefusal();
        return refusal;
    }

private:
    QString LiteralRefusal() {
        const qsizetype end = rest.indexOf(u'"', 1);
        if (!rest.startsWith(u'"'))
            return u"A quoted text is missing before: %1"_s.arg(rest);
        if (end < 0)
            return u"A quote is not closed: %1"_s.arg(rest);
        const QStringView content = rest.sliced(1, end - 1);
        if (content.startsWith(separator))
            return u"A quoted text begins with \" & \": %1"_s.arg(rest);
        rest = rest.sliced(end + 1);
        return {};
    }

    QString NextRefusal() {
        if (!rest.startsWith(separator))
            return u"\" & \" is missing before: %1"_s.arg(rest);
        rest = rest.sliced(separator.size());
        return rest.startsWith(u'"') ? LiteralRefusal() : WordRefusal();
    }

    QString WordRefusal() {
        const qsizetype end = rest.indexOf(u' ');
        const QString word = (end < 0 ? rest : rest.first(end)).toString();
        if (!words.contains(word, Qt::CaseInsensitive))
            return u"Unknown placeholder: %1"_s.arg(word);
        rest = rest.sliced(word.size());
        if (rest.isEmpty())
            return {};
        if (!rest.startsWith(separator))
            return u"\" & \" is missing behind: %1"_s.arg(word);
        rest = rest.sliced(separator.size());
        return LiteralRefusal();
    }

    QStringView rest;
    QStringList words = TemplateWords();
};

} // namespace

QStringList TemplateWords() {
    QFile file(u":/project/template_words.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

QString TemplateRefusal(const QString &text) {
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    if (std::any_of(text.cbegin(), text.cend(), isControl))
        return u"The template holds a control character."_s;
    return TemplateReader(text).Refusal();
}

bool AsksForCategory(const QString &text) {
    return text.contains("\" & "_L1 + categoryWord, Qt::CaseInsensitive);
}

} // namespace lanterra
