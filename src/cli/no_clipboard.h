#pragma once

#include "ports/clipboard.h"

namespace lanterra {

/// Keeps nothing: no command copies.
class NoClipboard final : public Clipboard {
public:
    void Clear() override {}
    void SetText(const QString &) override {}
};

} // namespace lanterra
