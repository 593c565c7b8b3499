#pragma once

#include <QString>

namespace lanterra {

/// The printer that the desktop prints on by default.
class Printer {
public:
    virtual ~Printer() = default;

    /// Prints the text as one document and ends it, without a dialog, a heading or a page layout. Lines end
    /// in LF. Without a printer, or if printing fails, nothing happens and nobody is told.
    virtual void PrintText(const QString &text) = 0;
};

} // namespace lanterra
