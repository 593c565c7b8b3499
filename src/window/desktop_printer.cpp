#include "window/desktop_printer.h"

#include <QFontDatabase>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

namespace lanterra {

void DesktopPrinter::PrintText(const QString &text) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) // a QPrinter without one would write a PDF file somewhere
        return;
    QPrinter printer(info);
    QTextDocument document;
    document.setDefaultFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    document.setPlainText(text);
    document.print(&printer);
}

} // namespace lanterra
