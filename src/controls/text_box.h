#pragma once

#include "controls/control.h"

#include <QString>

namespace lanterra {

/// A text that a person can type, with a selection.
class TextBox : public Control {
    Q_OBJECT

public:
    const QString &Text() const { return text; }
    void SetText(const QString &newText);

    /// The selection in UTF-16 units from the start of the text. The face clips it to the text.
    qsizetype SelStart() const { return selStart; }
    qsizetype SelLength() const { return selLength; }
    void Select(qsizetype start, qsizetype length);
    void SelectAll() { Select(0, text.size()); }

signals:
    /// Only when the text really differs, whoever changed it.
    void TextChanged(const QString &text);
    void SelectionChanged(qsizetype start, qsizetype length);

private:
    QString text;
    qsizetype selStart = 0;
    qsizetype selLength = 0;
};

} // namespace lanterra
