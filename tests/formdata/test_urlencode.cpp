#include "base/mdCodePage.h"
#include "formdata/mdURLEncode.h"
#include "formdata/mdXMLControl.h"
#include "formdata/mdXMLReplaceProblemCharacters.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

QString decoded(const char *encoded)
{
    return URLDecode(QString::fromLatin1(encoded));
}

} // namespace

TEST(URLEncode, EveryByteHasItsFormAndComesBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        const QString text(mdFromCodePage(uchar(byte)));
        char expected[4];
        if ((byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'))
            std::snprintf(expected, sizeof expected, "%c", byte);
        else if (byte == 32)
            std::snprintf(expected, sizeof expected, "+");
        else
            std::snprintf(expected, sizeof expected, "%%%02X", unsigned(byte));
        EXPECT_EQ(QByteArray(expected), URLEncode(text)) << byte;
        EXPECT_EQ(text, decoded(expected)) << byte;
    }
}

TEST(URLEncode, EncodesTheWorkedExamples)
{
    EXPECT_EQ("", URLEncode(u""));
    EXPECT_EQ("17%2E50", URLEncode(u"17.50"));
    EXPECT_EQ("00%3A00", URLEncode(u"00:00"));
    EXPECT_EQ("a%0D%0Ab", URLEncode(u"a\r\nb"));
    EXPECT_EQ("%A3", URLEncode(u"\u00a3"));
    EXPECT_EQ("%0A", URLEncode(u"\n"));
    EXPECT_EQ("%FF", URLEncode(u"\u00ff"));
    EXPECT_EQ("+++", URLEncode(u"   "));
    EXPECT_EQ("%2E%2D%5F%2F%2B%25", URLEncode(u".-_/+%"));
    EXPECT_EQ("%80", URLEncode(u"\u20ac")); // the euro sign's byte in the code page
}

TEST(URLEncode, ACharacterOutsideTheCodePageBecomesAQuestionMark)
{
    EXPECT_EQ("%3F", URLEncode(u"\u0416"));
    EXPECT_EQ("a%3Fb", URLEncode(u"a\u4e2db"));
}

TEST(URLEncode, UsesNothingThatXmlWouldEscape)
{
    QString all;
    for (int byte = 0; byte < 256; ++byte)
        all += mdFromCodePage(uchar(byte));
    for (const char c : URLEncode(all))
        EXPECT_TRUE((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '+' || c == '%')
            << c;
}

TEST(URLDecode, KeepsAPlusOfTheTextApartFromABlank)
{
    EXPECT_EQ(QStringLiteral("A B+C"), decoded("A+B%2BC"));
    EXPECT_EQ(QString(), decoded(""));
    EXPECT_EQ(QStringLiteral("   "), decoded("+++"));
}

TEST(URLDecode, CopiesPlainPunctuationAsTemplatesHoldIt)
{
    EXPECT_EQ(QStringLiteral("0.00"), decoded("0.00"));
    EXPECT_EQ(QStringLiteral("00:00"), decoded("00:00"));
    EXPECT_EQ(QStringLiteral("a-b_c/d&e<f>"), decoded("a-b_c/d&e<f>"));
    EXPECT_EQ(QStringLiteral("\u20ac\u00e9"), URLDecode(u"\u20ac\u00e9"));
}

TEST(URLDecode, TakesDigitsOfEitherCase)
{
    EXPECT_EQ(QStringLiteral("\u00ab\u00ab\u00ab"), decoded("%ab%AB%aB"));
}

TEST(URLDecode, APairThatIsNotWhollyHexadecimalIsTheCharacterZero)
{
    const QChar zero(0);
    for (const char *encoded : {"%GG", "%1G", "%G1", "%  ", "%+1", "%-1", "%.5", "%%4"})
        EXPECT_EQ(QString(zero), decoded(encoded)) << encoded;
    // The pair is skipped as a whole, even if its second character would begin another.
    EXPECT_EQ(QString(zero) + QStringLiteral("1"), decoded("%%41"));
    EXPECT_EQ(QStringLiteral("a") + zero + QStringLiteral("b"), decoded("a%zzb"));
    EXPECT_EQ(QString(zero), URLDecode(u"%\uff11\uff11")); // digits, but not ASCII ones
}

TEST(URLDecode, ASingleDigitAtTheVeryEndIsReadAsItStands)
{
    EXPECT_EQ(QString(QChar(5)), decoded("%5"));
    EXPECT_EQ(QString(QChar(15)), decoded("%f"));
    EXPECT_EQ(QString(QChar(0)), decoded("%g"));
    EXPECT_EQ(QStringLiteral("a") + QChar(0), decoded("a%"));
}

TEST(ReplaceProblemCharacters, TreatsTheAcuteAccentAndTheTabOnly)
{
    EXPECT_EQ(QStringLiteral("it's a b"), ReplaceProblemCharacters(QStringLiteral("it\u00b4s\ta\tb")));
    QString others;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != 180 && byte != 9)
            others += mdFromCodePage(uchar(byte));
    EXPECT_EQ(others, ReplaceProblemCharacters(others));
}

TEST(XMLEncodeText, ReplacesBeforeItEncodesAndTheReaderDoesNot)
{
    EXPECT_EQ("%27+", XMLEncodeText(QStringLiteral("\u00b4\t")));
    EXPECT_EQ(QStringLiteral("\u00b4\t"), XMLDecodeText("%B4%09"));
}

TEST(XMLDecodeText, ReadsContentInUtf8)
{
    EXPECT_EQ(QStringLiteral("\u20ac 5"), XMLDecodeText("\xe2\x82\xac+5"));
    EXPECT_EQ(QStringLiteral("17.50"), XMLDecodeText("17.50"));
    EXPECT_EQ(QStringLiteral("17.50"), XMLDecodeText("17%2E50"));
    EXPECT_EQ(QString(), XMLDecodeText(""));
}
