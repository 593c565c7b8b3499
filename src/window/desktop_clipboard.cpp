#include "window/desktop_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lanterra {

void DesktopClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

void DesktopClipboard::SetText(const QString &text) { QGuiApplication::clipboard()->setText(text); }

} // namespace lanterra
