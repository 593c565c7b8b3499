#pragma once

#include <QString>

namespace lanterra {

/// A piece of markup. A text only becomes markup through Text, which escapes it, so that what came from
/// outside can't be put into a page unescaped by mistake.
class Html {
public:
    Html() = default;

    static Html Text(const QString &text) { return Html(text.toHtmlEscaped()); }
    /// Markup of the program's own.
    static Html Raw(const QString &ownMarkup) { return Html(ownMarkup); }

    Html &operator+=(const Html &other) {
        markup += other.markup;
        return *this;
    }

    const QString &Markup() const { return markup; }

private:
    explicit Html(QString ownMarkup) : markup(std::move(ownMarkup)) {}

    QString markup;
};

} // namespace lanterra
