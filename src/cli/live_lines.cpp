#include "cli/live_lines.h"

#include "cli/console.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace lanterra {

namespace {

constexpr auto pace = 50ms;
constexpr int barWidth = 30;

// Commands to the terminal, from ECMA-48.
const QString eraseLineEnd = u"\x1B[K"_s;
const QString eraseBelow = u"\x1B[J"_s;
const QString greenColour = u"\x1B[32m"_s;
const QString usualColour = u"\x1B[0m"_s;

} // namespace

LiveLines::LiveLines(Console &standardStreams, Source linesNow, QString goodWord)
    : console(standardStreams), source(std::move(linesNow)), greenWord(std::move(goodWord)) {
    redraw.setSingleShot(true);
    redraw.setInterval(pace);
    connect(&redraw, &QTimer::timeout, this, &LiveLines::Redraw);
}

LiveLines::~LiveLines() {
    if (drawnLines > 0)
        console.Draw(UpToFirstLine() + eraseBelow);
}

void LiveLines::Schedule() {
    if (console.CanDraw() && !redraw.isActive())
        redraw.start();
}

void LiveLines::Redraw() {
    QString drawing;
    const QStringList lines = source();
    for (const QString &line : lines) // a longer line would wrap and spoil the way back up
        drawing += WithoutControls(line).left(console.Columns() - 1) + eraseLineEnd + u'\n';
    if (console.HasColour())
        drawing.replace(greenWord, greenColour + greenWord + usualColour);
    console.Draw(UpToFirstLine() + drawing);
    drawnLines = lines.size();
}

QString LiveLines::UpToFirstLine() const {
    return drawnLines > 0 ? u"\x1B[%1A\r"_s.arg(drawnLines) : QString();
}

QString Bar(double fraction) {
    const int filled = static_cast<int>(fraction * barWidth);
    return u'[' + QString(filled, u'#') + QString(barWidth - filled, u'.') + u']';
}

} // namespace lanterra
