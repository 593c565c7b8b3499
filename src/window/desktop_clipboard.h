#pragma once

#include "ports/clipboard.h"

namespace lanterra {

/// The clipboard of the desktop that the window is on.
class DesktopClipboard final : public Clipboard {
public:
    void Clear() override;
    void SetText(const QString &text) override;
};

} // namespace lanterra
