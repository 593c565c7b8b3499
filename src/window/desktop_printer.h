#pragma once

#include "ports/printer.h"

namespace lanterra {

/// The desktop's default printer. Prints in a font of fixed width, so that columns stay columns.
class DesktopPrinter final : public Printer {
public:
    void PrintText(const QString &text) override;
};

} // namespace lanterra
