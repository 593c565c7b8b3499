#pragma once

#include <QStringList>
#include <QTimer>
#include <functional>

namespace lanterra {

class Console;

/// Lines drawn in place on standard error while something goes on. Silent where standard error is no
/// terminal. The drawing is wiped when this ends.
class LiveLines final : public QObject {
    Q_OBJECT

public:
    using Source = std::function<QStringList()>;

    /// `linesNow` gives the same number of lines each time; `goodWord` is shown in green. Console and what
    /// the source uses must outlive this.
    LiveLines(Console &standardStreams, Source linesNow, QString goodWord);
    ~LiveLines() override;
    Q_DISABLE_COPY_MOVE(LiveLines)

    /// Draws soon; changes that come together are drawn once.
    void Schedule();

private:
    void Redraw();
    QString UpToFirstLine() const;

    Console &console;
    Source source;
    QString greenWord;
    QTimer redraw;
    qsizetype drawnLines = 0;
};

/// A bar of thirty characters of which `fraction`, 0 to 1, is filled.
QString Bar(double fraction);

} // namespace lanterra
