#pragma once

#include "support/seeded_random.h"

#include <QByteArray>

namespace lanterra {

/// The text cipher: turns 8-bit characters into printable ones and back, under a key. It keeps constants and
/// the engine file out of plain sight; it protects nothing from a person who looks for it.
///
/// Enciphering XORs each character with a byte of a generator that the key has seeded, and then stretches
/// three characters to four:
///
///     three of them     59 + the low 6 bits of one character each
///     the fourth        59 + the high 2 bits of all three, the first one's on top
///
/// A rest of one or two characters gets a fourth one, too. So n characters become n + (n + 2) / 3, with codes
/// from 59 to 122. The key seeds the generator character by character, c being the code:
///
///     Mix(Reseed(-1));  for each c:  Mix(Reseed(-Next() * c)), the product in single precision
class Sifrant {
public:
    /// Stores the key and seeds the generator. An empty key seeds it, too; only the two calls below have a
    /// default.
    void SetKey(const QByteArray &newKey);

    /// The text being worked on, in whatever state it is.
    const QByteArray &Text() const { return text; }
    void SetText(const QByteArray &newText) { text = newText; }

    /// Enciphers. An empty key is replaced by the default key in the caller's variable.
    QByteArray Sifriraj(const QByteArray &plainText, QByteArray &givenKey);
    /// Deciphers what Sifriraj gave for the same key, which is treated as there. Any other text gives some
    /// text.
    QByteArray DeSifriraj(const QByteArray &cipherText, QByteArray &givenKey);

    /// The same under the default key.
    QByteArray Sifriraj(const QByteArray &plainText);
    QByteArray DeSifriraj(const QByteArray &cipherText);

    /// Unpacks Text, four characters to three. Of 4k + 1 characters, which Sifriraj never gives, the last one
    /// is lost.
    void Shrink();

private:
    void Begin(const QByteArray &newText, QByteArray &givenKey);
    void InitRandom();
    void XorStream();
    void Stretch();

    QByteArray key;
    QByteArray text;
    SeededRandom random;
};

} // namespace lanterra
