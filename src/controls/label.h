#pragma once

#include "controls/control.h"

#include <QString>

namespace lanterra {

/// A text that the program shows and a person can't change.
class Label : public Control {
    Q_OBJECT

public:
    const QString &Caption() const { return caption; }
    void SetCaption(const QString &text);

signals:
    void CaptionChanged(const QString &text);

private:
    QString caption;
};

} // namespace lanterra
