#pragma once

#include "park/html.h"

#include <QHash>
#include <QString>
#include <initializer_list>
#include <utility>

namespace lanterra {

/// The named pieces of the practice web's pages, read once from a resource.
///
/// The file: a line "@@ name" begins a piece, which goes on to the next such line; "{{slot}}" stands for a
/// value.
class HtmlTemplates {
public:
    using Values = std::initializer_list<std::pair<QStringView, Html>>;

    /// A file that can't be read gives no pieces.
    explicit HtmlTemplates(const QString &path);

    /// The piece with its slots filled; a slot without a value becomes empty, and so does an unknown piece.
    Html Fill(const QString &piece, Values values = {}) const;

private:
    QHash<QString, QString> pieces;
};

} // namespace lanterra
