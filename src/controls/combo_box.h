#pragma once

#include "controls/text_box.h"

#include <QStringList>

namespace lanterra {

/// A text box with a fixed list of offers. Its text need not be one of them.
class ComboBox : public TextBox {
    Q_OBJECT

public:
    explicit ComboBox(QStringList offers) : entries(std::move(offers)) {}

    const QStringList &Entries() const { return entries; }

private:
    QStringList entries;
};

} // namespace lanterra
