#include "base/mdCodePage.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

namespace {

QByteArray everyByte()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += char(byte);
    return bytes;
}

} // namespace

TEST(CodePage, EveryByteSurvivesAReadAndAWrite)
{
    const QString text = mdFromCodePage(everyByte());
    ASSERT_EQ(256, text.size());
    EXPECT_EQ(everyByte(), mdToCodePage(text));
}

TEST(CodePage, GivesTheSameTextInUtf8WhereverItStopsBeingPlain)
{
    for (int size = 0; size < 40; ++size) {
        const QByteArray plain(size, 'a');
        EXPECT_EQ(plain, mdUtf8FromCodePage(plain));
        EXPECT_EQ(QString::fromLatin1(plain), mdFromCodePage(plain));
        for (int at = 0; at < size; ++at)
            for (const char upper : {'\x80', '\xa3', '\xff'}) {
                QByteArray bytes = plain;
                bytes[at] = upper;
                QString text = QString::fromLatin1(plain);
                text[at] = mdFromCodePage(uchar(upper));
                EXPECT_EQ(text, mdFromCodePage(bytes));
                EXPECT_EQ(text.toUtf8(), mdUtf8FromCodePage(bytes));
            }
    }
}

TEST(CodePage, EveryByteIsACharacterOfItsOwn)
{
    const QString text = mdFromCodePage(everyByte());
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(byte, text.indexOf(text[byte]));
        EXPECT_EQ(text[byte], mdFromCodePage(uchar(byte)));
    }
}

TEST(CodePage, KnowsTheCharactersOfTheUpperBytes)
{
    EXPECT_EQ(QString::fromUtf8("\u20ac\u2018\u2019\u201c\u201d\u2013\u2122\u0178"),
        mdFromCodePage("\x80\x91\x92\x93\x94\x96\x99\x9f"));
    EXPECT_EQ(QString::fromUtf8("\u00a3\u00e9\u00ff"), mdFromCodePage("\xa3\xe9\xff"));
}

TEST(CodePage, UndefinedBytesAreTheControlCharactersOfTheirNumber)
{
    for (const int byte : {0x81, 0x8d, 0x8f, 0x90, 0x9d})
        EXPECT_EQ(QChar(char16_t(byte)), mdFromCodePage(uchar(byte)));
}

TEST(CodePage, ACharacterOutsideThePageBecomesAQuestionMark)
{
    EXPECT_EQ(QByteArray("a?b"), mdToCodePage(QString::fromUtf8("a\u0141b")));
    // The control character of 0x80 is not in the page, since its byte is the euro sign.
    EXPECT_EQ(QByteArray("?"), mdToCodePage(QStringView(u"\x80")));
    // One for each UTF-16 unit: the text keeps its length.
    EXPECT_EQ(QByteArray("??"), mdToCodePage(QString::fromUtf8("\U0001F600")));
}

TEST(CodePage, ACharacterIsInThePageWhereItSurvives)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString character = QChar(char16_t(code));
        EXPECT_EQ(mdFromCodePage(mdToCodePage(character)) == character, mdInCodePage(character[0])) << code;
    }
}
