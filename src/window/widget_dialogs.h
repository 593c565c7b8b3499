#pragma once

#include "ports/dialogs.h"

namespace lanterra {

/// Message boxes, the input box and file dialogs as windows above the one that is active.
class WidgetDialogs final : public Dialogs {
public:
    BoxAnswer Show(const MessageBox &box) override;
    QString Ask(const InputBox &box) override;
    std::optional<QString> OpenFile(const FileDialog &dialog) override;
    std::optional<QString> SaveFile(const FileDialog &dialog) override;
};

} // namespace lanterra
