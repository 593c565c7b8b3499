// Enciphers readable sources for the build:
//
//   lanterra_encipher values IN OUT      each line NAME=TEXT becomes NAME= and the enciphered text; comments
//                                        (#) and empty lines are left out
//   lanterra_encipher lines KEY IN OUT   the whole file, each line with CR LF behind it, under the key

#include "support/sifrant.h"

#include <QFile>
#include <cstdio>

using namespace lanterra;
using namespace Qt::StringLiterals;

namespace {

QByteArrayList ReadLines(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArrayList lines = file.readAll().split('\n');
    if (lines.last().isEmpty()) // behind the last line end
        lines.removeLast();
    return lines;
}

/// Empty if a line has no name, or one with blanks.
QByteArray EncipheredValues(const QByteArrayList &lines) {
    Sifrant cipher;
    QByteArray result;
    for (const QByteArray &line : lines) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QByteArray name = line.left(line.indexOf('='));
        if (name.isEmpty() || name.contains(' ') || name == line)
            return {};
        result += name + '=' + cipher.Sifriraj(line.mid(name.size() + 1)) + '\n';
    }
    return result;
}

QByteArray EncipheredLines(const QByteArrayList &lines, QByteArray key) {
    QByteArray text;
    for (const QByteArray &line : lines)
        text += line + "\r\n";
    return Sifrant().Sifriraj(text, key);
}

} // namespace

int main(int argc, char **argv) {
    const QByteArrayList arguments(argv + 1, argv + argc);
    const bool values = arguments.size() == 3 && arguments[0] == "values";
    if (!values && !(arguments.size() == 4 && arguments[0] == "lines")) {
        std::fputs("usage: lanterra_encipher (values | lines KEY) IN OUT\n", stderr);
        return 2;
    }
    const QByteArrayList lines = ReadLines(QFile::decodeName(arguments[arguments.size() - 2]));
    const QByteArray bytes = values ? EncipheredValues(lines) : EncipheredLines(lines, arguments[1]);
    QFile output(QFile::decodeName(arguments.last()));
    const bool written = !bytes.isEmpty() && output.open(QIODevice::WriteOnly) &&
                         output.write(bytes) == bytes.size() && output.flush();
    if (!written)
        std::fprintf(stderr, "lanterra_encipher: %s was not made\n", arguments.last().constData());
    return written ? 0 : 1;
}
