#include "park/html_templates.h"

#include "park/slot_text.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace lanterra {

HtmlTemplates::HtmlTemplates(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QString *piece = nullptr;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        if (line.startsWith(u"@@ "_s))
            piece = &pieces[line.mid(3).trimmed()];
        else if (piece != nullptr)
            *piece += line;
    }
}

Html HtmlTemplates::Fill(const QString &piece, Values values) const {
    return Html::Raw(FillSlots(pieces.value(piece), [values](QStringView name) {
        const auto found = std::find_if(values.begin(), values.end(),
                                        [name](const auto &value) { return value.first == name; });
        return found == values.end() ? QString() : found->second.Markup();
    }));
}

} // namespace lanterra
