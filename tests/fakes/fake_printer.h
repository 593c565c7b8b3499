#pragma once

#include "ports/printer.h"

#include <QStringList>

namespace lanterra {

/// Keeps each printed document.
class FakePrinter final : public Printer {
public:
    void PrintText(const QString &text) override { documents.append(text); }

    QStringList documents;
};

} // namespace lanterra
