#include "window/theme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFile>
#include <QPalette>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString portalSettings = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString schemeKey = u"color-scheme"_s;
constexpr uint portalDark = 1;
constexpr int portalPatience = 300; ///< ms; a portal that doesn't answer must not hold the start

/// The colours of one scheme, by what they are used for.
struct Colours {
    QColor window, base, raised, text, fadedText, line, accent, onAccent, link, alert, quiet;
};

const Colours lightColours{"#f4f6f6", "#ffffff", "#ffffff", "#1f2a2e", "#66747a", "#d3dadb",
                           "#2f7d6d", "#ffffff", "#1c6a8f", "#c00000", "#404040"};
const Colours darkColours{"#1f2526", "#171c1d", "#2a3233", "#e4eaea", "#93a2a4", "#3c4749",
                          "#3f9a87", "#ffffff", "#7cc0dd", "#ff7b6b", "#c8cfd0"};

QPalette PaletteOf(const Colours &colours) {
    QPalette palette(colours.text, colours.raised, colours.base, colours.line, colours.line, colours.text,
                     colours.alert, colours.base, colours.window);
    palette.setColor(QPalette::AlternateBase, colours.window);
    palette.setColor(QPalette::Midlight, colours.line);
    palette.setColor(QPalette::Shadow, colours.fadedText); // the style sheet knows no placeholder colour
    palette.setColor(QPalette::Highlight, colours.accent);
    palette.setColor(QPalette::HighlightedText, colours.onAccent);
    palette.setColor(QPalette::PlaceholderText, colours.fadedText);
    palette.setColor(QPalette::ToolTipBase, colours.raised);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.fadedText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.line);
    return palette;
}

bool IsDark(const QPalette &palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

Theme::Theme(QApplication &application, ColourScheme colourScheme) : app(application) {
    const bool desktopIsDark = IsDark(QApplication::palette());
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    Wear(colourScheme == ColourScheme::FollowDesktop ? desktopIsDark : colourScheme == ColourScheme::Dark);
    if (colourScheme == ColourScheme::FollowDesktop)
        FollowPortal();
}

void Theme::FollowPortal() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // The bus finds the slot's parameters by the names of their types, and this one has none before it is
    // registered: the connection would fail. A slot is known by its signature without blanks.
    qRegisterMetaType<QDBusVariant>("QDBusVariant");
    // clang-format off
    bus.connect(portalService, portalPath, portalSettings, u"SettingChanged"_s, this,
                SLOT(PortalSettingChanged(QString,QString,QDBusVariant)));
    // clang-format on
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, portalSettings, u"Read"_s);
    question << appearance << schemeKey;
    const QDBusReply<QDBusVariant> answer = bus.call(question, QDBus::Block, portalPatience);
    if (answer.isValid())
        PortalSettingChanged(appearance, schemeKey, answer.value());
}

void Theme::PortalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value) {
    if (group != appearance || key != schemeKey)
        return;
    QVariant scheme = value.variant();
    if (scheme.canConvert<QDBusVariant>()) // "Read" wraps its value twice
        scheme = scheme.value<QDBusVariant>().variant();
    Wear(scheme.toUInt() == portalDark);
}

void Theme::Wear(bool dark) {
    const Colours &colours = dark ? darkColours : lightColours;
    QApplication::setPalette(PaletteOf(colours));
    // The sheet is set again so that its palette() colours are looked up anew. The palette has no role for
    // the quiet text of the toolbar.
    QFile sheet(u":/window/style.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(sheet.readAll()).replace("@quiet"_L1, colours.quiet.name()));
}

} // namespace lanterra
