#include "submission/request_template.h"

#include "fuzz/promise.h"
#include "project/site_template.h"
#include "support/url_encode.h"

#include <QHash>
#include <algorithm>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

/// The input is the template, a line break, the category, and the texts of the boxes, a line each.
struct Input {
    explicit Input(const QString &text)
        : query(text.section(u'\n', 0, 0)), category(UrlEncode(text.section(u'\n', 1, 1))) {
        const QStringList texts = text.section(u'\n', 2).split(u'\n');
        qsizetype next = 0;
        for (const ProjectRecord::TextField &field : record.TextFields()) {
            if (field.box != &record.Combo2)
                field.box->SetText(texts[next++ % texts.size()]);
        }
    }

    QString query;
    QString category;
    ProjectRecord record;
};

QString ExpansionOf(const Input &input, const QString &query) {
    return RequestTemplate(input.record).Expand(query, [&input] { return input.category; });
}

/// Each piece of a template in its language stands for itself: a literal for its content, a word for what a
/// template of that word alone gives.
QString PieceByPiece(const Input &input) {
    QString result;
    QStringView rest(input.query);
    while (!rest.isEmpty()) {
        const bool isLiteral = rest.startsWith(u'"');
        const qsizetype end =
            isLiteral ? rest.indexOf(u'"', 1) + 1 : std::max(rest.indexOf(u' '), qsizetype{0});
        const QStringView piece = end > 0 ? rest.first(end) : rest;
        result += isLiteral ? piece.sliced(1).chopped(1).toString()
                            : ExpansionOf(input, u"\"\" & "_s + piece.toString());
        rest = rest.sliced(piece.size());
        if (rest.startsWith(u" & "))
            rest = rest.sliced(3);
    }
    return result;
}

bool HoldsAnyWord(const QString &query) {
    const QStringList words = TemplateWords();
    return std::any_of(words.cbegin(), words.cend(),
                       [&](const QString &word) { return query.contains(word, Qt::CaseInsensitive); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const Input input(QString::fromUtf8(QByteArrayView(data, static_cast<qsizetype>(size))));
    const QString expanded = ExpansionOf(input, input.query);
    Promise(!expanded.contains(u'"'), "no quote is left");
    if (TemplateRefusal(input.query).isEmpty())
        Promise(expanded == PieceByPiece(input), "pieces don't touch each other");
    if (!HoldsAnyWord(input.query))
        Promise(expanded == QString(input.query).remove(u"\" & \""_s).remove(u'"'), "unknown words stay");
    return 0;
}
