#include "cli/console.h"

#include "support/code_page.h"

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

constexpr int usualColumns = 80;

bool IsControl(QChar character) { return character.category() == QChar::Other_Control; }

} // namespace

QString WithoutControls(QString text) {
    for (QChar &character : text) {
        if (IsControl(character))
            character = u'?';
    }
    return text;
}

Console::Console() {
    lost = !output.open(stdout, QIODevice::WriteOnly) || !error.open(stderr, QIODevice::WriteOnly);
}

void Console::Write(QFile &stream, const QByteArray &bytes) {
    lost = stream.write(bytes) != bytes.size() || lost;
}

void Console::Print(const QString &line) { Write(output, WithoutControls(line).toUtf8() + '\n'); }

void Console::PrintText(const QString &text) {
    for (const QString &line : text.trimmed().split(u'\n'))
        Print(line);
}

void Console::PrintJson(const QString &json) {
    QString escaped;
    for (const QChar character : json) {
        if (IsControl(character) && character != u'\n')
            escaped += u"\\u%1"_s.arg(int{character.unicode()}, 4, 16, QChar(u'0'));
        else
            escaped += character;
    }
    Write(output, escaped.toUtf8());
}

void Console::PrintJson(const QJsonDocument &document) { PrintJson(QString::fromUtf8(document.toJson())); }

void Console::PrintBytes(const QByteArray &bytes) {
    if (!isatty(STDOUT_FILENO)) {
        Write(output, bytes);
        return;
    }
    QStringList lines = CodePage::Decode(bytes).replace("\r\n"_L1, "\n"_L1).split(u'\n');
    for (QString &line : lines)
        line = WithoutControls(line);
    Write(output, lines.join(u'\n').toUtf8());
}

void Console::Tell(const QString &sentence) { TellLine(u"lanterra-cli: "_s + sentence); }

void Console::TellLine(const QString &line) {
    output.flush();
    Write(error, WithoutControls(line).toUtf8() + '\n');
    error.flush();
}

bool Console::CanDraw() const {
    const QByteArray terminal = qgetenv("TERM");
    return isatty(STDERR_FILENO) && !terminal.isEmpty() && terminal != "dumb";
}

int Console::Columns() const {
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usualColumns;
}

bool Console::HasColour() const { return qEnvironmentVariableIsEmpty("NO_COLOR"); }

void Console::Draw(const QString &drawing) {
    Write(error, drawing.toUtf8());
    error.flush();
}

bool Console::Finish() {
    lost = !output.flush() || !error.flush() || lost;
    return !lost;
}

} // namespace lanterra
