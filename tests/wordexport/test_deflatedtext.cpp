// A text that is compressed while it grows.

#include "tests/support/mdTestPrinting.h"
#include "wordexport/document/clsDeflatedText.h"

#include <gtest/gtest.h>

namespace {

/// Similar rows, like those of a document, each with a different number.
QByteArray rows(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += "<row n=\"" + QByteArray::number(i * 7919 % 100'003) + "\"><cell/><cell/></row>";
    return text;
}

clsDeflatedText::Packed packed(const QByteArray &text, qsizetype pieceSize)
{
    clsDeflatedText growing;
    for (qsizetype at = 0; at < text.size(); at += pieceSize)
        growing.append(QByteArrayView(text).sliced(at, std::min(pieceSize, text.size() - at)));
    return growing.packedWith({});
}

} // namespace

TEST(DeflatedText, IsTheSameInWhateverPiecesItComes)
{
    const QByteArray text = rows(20'000);
    const clsDeflatedText::Packed whole = packed(text, text.size());
    EXPECT_LT(whole.bytes.size(), text.size() / 4);
    for (const qsizetype size : {1, 257, 8192, 65'537}) {
        const clsDeflatedText::Packed inPieces = packed(text, size);
        EXPECT_TRUE(whole.bytes == inPieces.bytes) << size;
        EXPECT_EQ(whole.crc, inPieces.crc) << size;
        EXPECT_EQ(text.size(), inPieces.size) << size;
    }
}

TEST(DeflatedText, ComesBackWhole)
{
    for (const QByteArray &text : {QByteArray(), QByteArray("a"), rows(1), rows(5000), QByteArray(100'000, '\0')})
        EXPECT_TRUE(text == packed(text, 1000).text());
}

TEST(DeflatedText, GrowsOnAfterItWasPackedWithAnEnd)
{
    clsDeflatedText growing;
    growing.append("one");
    EXPECT_EQ(QByteArray("one and the end"), growing.packedWith(" and the end").text());
    growing.append(", two");
    EXPECT_EQ(QByteArray("one, two."), growing.packedWith(".").text());
    EXPECT_EQ(QByteArray("one, two"), growing.packedWith({}).text());
}

TEST(DeflatedText, KnowsTheSumOfItsText)
{
    // The check value published with this checksum's algorithm.
    EXPECT_EQ(0xCBF43926, packed("123456789", 4).crc);
}
