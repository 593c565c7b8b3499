#pragma once

#include "controls/control.h"

#include <QStringList>

namespace lanterra {

/// A row of panels with a short text each.
class StatusBar : public Control {
    Q_OBJECT

public:
    /// `panels` is their number, all empty at first.
    explicit StatusBar(int panels) { texts.resize(panels); }

    int PanelCount() const { return static_cast<int>(texts.size()); }

    /// Empty outside the bar.
    QString PanelText(int panel) const { return texts.value(panel); }

    /// A panel outside the bar, counted from 0, is passed over.
    void SetPanelText(int panel, const QString &text) {
        if (panel < 0 || panel >= texts.size() || texts[panel] == text)
            return;
        texts[panel] = text;
        emit PanelTextChanged(panel, text);
    }

signals:
    void PanelTextChanged(int panel, const QString &text);

private:
    QStringList texts;
};

} // namespace lanterra
