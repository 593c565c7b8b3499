#include "window/icons.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr auto iconNameProperty = "iconName";
// Colours of the files.
constexpr QByteArrayView strokeColour = "#5c6670"; ///< where the text colour takes its place
constexpr QByteArrayView accentColour = "#2f7d6d"; ///< where that of the palette does

class ThemedIconEngine final : public QIconEngine {
public:
    ThemedIconEngine(const QString &iconName, QPalette::ColorRole colourRole)
        : name(iconName), role(colourRole) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer renderer(Drawing(Colour(mode)));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        if (mode == QIcon::Disabled)
            painter->setOpacity(disabledOpacity);
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        const QString key =
            u"%1/%2x%3/%4/%5"_s.arg(name, QString::number(size.width()), QString::number(size.height()),
                                    Colour(mode).name(), QString::number(mode));
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect({}, size), mode, state);
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QIconEngine *clone() const override { return new ThemedIconEngine(*this); }

private:
    static constexpr qreal disabledOpacity = 0.4;

    QColor Colour(QIcon::Mode mode) const {
        return QGuiApplication::palette().color(mode == QIcon::Selected ? QPalette::HighlightedText : role);
    }

    QByteArray Drawing(const QColor &colour) const {
        QFile file(u":/icons/"_s + name + u".svg"_s);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        // On the accent colour itself nothing may be drawn in it.
        const QPalette palette = QGuiApplication::palette();
        const QColor accent = role == QPalette::HighlightedText ? colour : palette.color(QPalette::Highlight);
        QByteArray drawing = file.readAll();
        drawing.replace(strokeColour, colour.name().toLatin1());
        drawing.replace(accentColour, accent.name().toLatin1());
        return drawing;
    }

    QString name;
    QPalette::ColorRole role;
};

} // namespace

QIcon ThemedIcon(const QString &name, QPalette::ColorRole role) {
    return QIcon(new ThemedIconEngine(name, role));
}

void ApplyIcon(QAbstractButton &button) {
    const bool onAccent = button.property("primary").toBool() || button.property("marked").toBool();
    if (const QString name = button.property(iconNameProperty).toString(); !name.isEmpty())
        button.setIcon(ThemedIcon(name, onAccent ? QPalette::HighlightedText : QPalette::WindowText));
}

void ApplyIcons(QWidget &form) {
    for (auto *button : form.findChildren<QAbstractButton *>())
        ApplyIcon(*button);
    for (auto *action : form.findChildren<QAction *>()) {
        if (const QString name = action->property(iconNameProperty).toString(); !name.isEmpty())
            action->setIcon(ThemedIcon(name));
    }
}

} // namespace lanterra
