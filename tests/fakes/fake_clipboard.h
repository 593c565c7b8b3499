#pragma once

#include "ports/clipboard.h"

namespace lanterra {

/// A clipboard that holds what some other program has put there until it is changed.
class FakeClipboard final : public Clipboard {
public:
    void Clear() override { text.clear(); }
    void SetText(const QString &newText) override { text = newText; }

    QString text = QStringLiteral("of another program");
};

} // namespace lanterra
