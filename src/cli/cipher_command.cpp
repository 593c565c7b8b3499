#include "cli/commands.h"
#include "support/code_page.h"
#include "support/sifrant.h"

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

bool IsEnciphered(const QByteArray &text) {
    const bool printable = std::all_of(text.begin(), text.end(), [](char c) { return c >= 59 && c <= 122; });
    return printable && text.size() % 4 != 1;
}

// Editors and echo end a text with a line end, which no enciphered text holds.
QByteArray WithoutLineEnd(QByteArray text) {
    if (text.endsWith('\n'))
        text.chop(text.endsWith("\r\n") ? 2 : 1);
    return text;
}

Outcome RunCipher(const CommandCall &call) {
    const QString task = call.arguments.first();
    if (task != "encipher"_L1 && task != "decipher"_L1)
        return Outcome::WrongUse(u"Give encipher or decipher, not '%1'."_s.arg(task));
    const QString typedKey = call.options.value(u"key"_s);
    QByteArray key = CodePage::Encode(typedKey);
    if (CodePage::Decode(key) != typedKey)
        return Outcome::WrongUse(u"The key holds characters outside windows-1252."_s);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return Outcome::Failed(u"Standard input can't be read."_s);
    const QByteArray text = input.readAll();
    if (input.error() != QFileDevice::NoError)
        return Outcome::Failed(u"Standard input can't be read: %1."_s.arg(input.errorString()));
    Sifrant cipher;
    if (task == "encipher"_L1) {
        call.console.PrintBytes(cipher.Sifriraj(text, key));
        return {};
    }
    if (!IsEnciphered(WithoutLineEnd(text)))
        return Outcome::Failed(u"Standard input is no enciphered text."_s);
    call.console.PrintBytes(cipher.DeSifriraj(WithoutLineEnd(text), key));
    return {};
}

} // namespace

Command CipherCommand() {
    return {.name = u"cipher"_s,
            .usage = u"(encipher | decipher) [--key KEY]"_s,
            .summary = u"encipher or decipher standard input"_s,
            .options = {{u"key"_s, u"the key; without it, or empty, the program's own"_s, u"KEY"_s}},
            .mostArguments = 1,
            .run = RunCipher};
}

} // namespace lanterra
