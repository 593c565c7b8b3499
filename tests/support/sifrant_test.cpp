#include "support/sifrant.h"
#include "tests/qt_printing.h"

#include <gtest/gtest.h>

using namespace lanterra;

namespace {

QByteArray AllCodes(qsizetype count) {
    QByteArray text;
    for (qsizetype i = 0; i < count; ++i)
        text += static_cast<char>(i * 7);
    return text;
}

TEST(SifrantTest, EveryLengthComesBackOutOfPrintableCharacters) {
    Sifrant cipher;
    QByteArray key = "plavac";
    for (const qsizetype length : {0, 1, 2, 3, 4, 5, 6, 255, 256, 1000}) {
        const QByteArray text = AllCodes(length);
        const QByteArray enciphered = cipher.Sifriraj(text, key);
        EXPECT_EQ(enciphered.size(), length + (length + 2) / 3);
        for (const char character : enciphered)
            EXPECT_TRUE(character >= 59 && character <= 122);
        EXPECT_EQ(cipher.DeSifriraj(enciphered, key), text);
    }
}

// What is installed was enciphered once and must be read for ever.
TEST(SifrantTest, TheGeneratorNeverChanges) {
    Sifrant cipher;
    QByteArray key = "plavac";
    EXPECT_EQ(cipher.Sifriraj("Harbour lights, 7 a.m. \xE9", key), "YWHlXuvt[oy=`ZnK^Hk^VmXcLPcbn]e?");
    EXPECT_EQ(cipher.Sifriraj("Harbour lights"), "[A[ffDGZF<Nle`FuT[C");
}

TEST(SifrantTest, AnEmptyKeyIsReplacedInTheCallersVariable) {
    Sifrant cipher;
    QByteArray key;
    const QByteArray enciphered = cipher.Sifriraj("text", key);
    EXPECT_EQ(key, "tideline-quarry-lantern");
    EXPECT_EQ(cipher.DeSifriraj(enciphered), "text");
}

} // namespace
