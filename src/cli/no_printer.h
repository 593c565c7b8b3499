#pragma once

#include "ports/printer.h"

namespace lanterra {

/// Prints nothing: no command prints.
class NoPrinter final : public Printer {
public:
    void PrintText(const QString &) override {}
};

} // namespace lanterra
