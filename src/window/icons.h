#pragma once

#include <QIcon>
#include <QPalette>
#include <QWidget>

class QAbstractButton;

namespace lanterra {

/// The icon of that name, drawn from the program's SVG files in a colour of the palette that is in
/// force when it is painted, so that it follows a change between a light and a dark desktop by itself. An
/// unknown name gives an icon that draws nothing.
QIcon ThemedIcon(const QString &name, QPalette::ColorRole role = QPalette::WindowText);

/// Gives a button the icon that its property "iconName" names; one with the property "primary" or "marked"
/// stands on the accent colour and gets it in the text colour of that.
void ApplyIcon(QAbstractButton &button);

/// Gives every button and action of a form the icon that its property "iconName" names in the .ui file.
void ApplyIcons(QWidget &form);

} // namespace lanterra
