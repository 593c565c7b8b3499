#pragma once

#include <QApplication>
#include <QDBusVariant>
#include <QObject>

namespace lanterra {

/// Which colours the program wears.
enum class ColourScheme { FollowDesktop, Light, Dark };

/// The program's look: one palette for light and one for dark desktops, and a style sheet that takes all its
/// colours from the palette. It follows the desktop's choice while the program runs.
class Theme : public QObject {
    Q_OBJECT

public:
    /// Dresses the application at once. The desktop's choice is that of its settings portal
    /// (org.freedesktop.appearance, color-scheme: 1 is dark); without a portal it is told by the brightness
    /// of the palette that Qt took from the desktop. `application` must outlive this.
    Theme(QApplication &application, ColourScheme colourScheme);

private:
    Q_SLOT void PortalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
    void FollowPortal();
    void Wear(bool dark);

    QApplication &app;
};

} // namespace lanterra
