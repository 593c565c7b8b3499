#pragma once

#include <QIcon>
#include <QWidget>

namespace lanterra {

/// The icon of that name, drawn from the program's SVG files in the text colour of the palette that is in
/// force when it is painted, so that it follows a change between a light and a dark desktop by itself. An
/// unknown name gives an icon that draws nothing.
QIcon ThemedIcon(const QString &name);

/// Gives every button and action of a form the icon that its property "iconName" names in the .ui file.
void ApplyIcons(QWidget &form);

} // namespace lanterra
