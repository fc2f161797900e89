// How values are stored in their elements, and how they are read.

#include "base/mdCodePage.h"
#include "formdata/mdRecordInWords.h"
#include "tests/formdata/clsFormTest.h"

#include <limits>

namespace {

using Error = clsRunTimeError;

/// The claim's `VAT` as read from a content, or the error number as text.
std::string booleanRead(const char *content)
{
    clsZR3Form form;
    setContentOf(form.XMLNode(), "vat", content);
    bool value = false;
    const int error = errorOf([&] { value = form.VAT(); });
    return error ? std::to_string(error) : value ? "True" : "False";
}

std::string longRead(const char *content)
{
    clsZR3Form form;
    setContentOf(form.XMLNode(), "defaultfeeearnerlistindex", content);
    int value = 0;
    const int error = errorOf([&] { value = form.DefaultFeeEarnerListIndex(); });
    return error ? "error " + std::to_string(error) : std::to_string(value);
}

} // namespace

TEST(BooleanValue, ReadsTheWordsInAnyCaseAndNumbers)
{
    for (const char *content :
        {"True", "true", "TRUE", "tRuE", "1", "-1", "2", "0.5", "+1", "007", "1,000", " 1 ", "0.0001"})
        EXPECT_EQ("True", booleanRead(content)) << content;
    for (const char *content : {"False", "false", "FALSE", "fAlSe", "0", "-0", "0.0", "0000", "+0"})
        EXPECT_EQ("False", booleanRead(content)) << content;
}

TEST(BooleanValue, ANumberTooSmallForPenceIsStillNotZero)
{
    EXPECT_EQ("True", booleanRead("0.00001"));
    EXPECT_EQ("False", booleanRead("0.00000"));
}

TEST(BooleanValue, AnyOtherTextIsTheTypeError)
{
    for (const char *content :
        {"", "Yes", "No", "T", "Truee", "wahr", "1a", "a1", "True%20", "Tru%65", "1.2.3", "-", "."})
        EXPECT_EQ("13", booleanRead(content)) << content;
}

TEST(BooleanValue, IsWrittenAsOneOfTheTwoWords)
{
    clsZR3Form form;
    setContentOf(form.XMLNode(), "vat", "-1");
    form.VAT = true;
    EXPECT_EQ("True", contentOf(form.XMLNode(), "vat"));
    form.VAT = false;
    EXPECT_EQ("False", contentOf(form.XMLNode(), "vat"));
}

TEST(LongValue, ReadsTheNumberAtTheStartRoundedToTheNearestEven)
{
    const std::pair<const char *, const char *> rows[] = {
        {"", "0"},
        {"0", "0"},
        {"7", "7"},
        {"-7", "-7"},
        {"  12", "12"},
        {"12abc", "12"},
        {"abc", "0"},
        {"1 2", "12"},
        {"2.5", "2"},
        {"3.5", "4"},
        {"2.51", "3"},
        {"-2.5", "-2"},
        {"1,000", "1"},
        {"1e3", "1"},
        {"2147483647", "2147483647"},
        {"-2147483648", "-2147483648"},
        {"2147483647.4", "2147483647"},
    };
    for (const auto &[content, value] : rows)
        EXPECT_EQ(value, longRead(content)) << content;
}

TEST(LongValue, BeyondThirtyTwoBitsIsTheOverflowError)
{
    for (const char *content : {"2147483648", "-2147483649", "2147483647.5", "99999999999999999999"})
        EXPECT_EQ("error 6", longRead(content)) << content;
}

TEST(LongValue, IsWrittenAsADecimalNumber)
{
    clsZR3Form form;
    form.DefaultFeeEarnerListIndex = std::numeric_limits<int>::min();
    EXPECT_EQ("-2147483648", contentOf(form.XMLNode(), "defaultfeeearnerlistindex"));
    form.DefaultFeeEarnerListIndex = 0;
    EXPECT_EQ("0", contentOf(form.XMLNode(), "defaultfeeearnerlistindex"));
}

TEST(TextValueOfElement, ATemplateDefaultChangesOnDiskWhenItIsSetAgain)
{
    clsZR3Form form;
    const QString before = form.XMLOutput();
    EXPECT_EQ("17.50", contentOf(form.XMLNode(), "vatrate"));
    form.VATRate = form.VATRate();
    EXPECT_EQ("17%2E50", contentOf(form.XMLNode(), "vatrate"));
    EXPECT_NE(before, form.XMLOutput());
    const QString once = form.XMLOutput();
    form.VATRate = form.VATRate();
    EXPECT_EQ(once, form.XMLOutput());
    EXPECT_EQ(QStringLiteral("17.50"), form.VATRate());
}

TEST(TextValueOfElement, SeveralLinesAreOneEncodedLine)
{
    clsZR3Form form;
    form.LateSubmission.Explanation = QStringLiteral("one\r\ntwo\nthree");
    EXPECT_EQ("one%0D%0Atwo%0Athree", contentOf(form.LateSubmission.XMLNode(), "explanation"));
    EXPECT_EQ(QStringLiteral("one\r\ntwo\nthree"), form.LateSubmission.Explanation());
}

TEST(TextValueOfElement, EveryCharacterOfTheCodePageSurvivesButTheTwoProblemCharacters)
{
    clsZR3Form form;
    QString all;
    QString read;
    for (int byte = 0; byte < 256; ++byte) {
        all += mdFromCodePage(uchar(byte));
        read += byte == 9 ? QChar(u' ') : byte == 180 ? QChar(u'\'') : mdFromCodePage(uchar(byte));
    }
    form.Notes = all;
    EXPECT_EQ(read, form.Notes());
}

TEST(TextValueOfElement, AnEmptyTextEmptiesTheElement)
{
    clsZR3Form form;
    const QString before = form.XMLOutput();
    form.Notes = QStringLiteral("x");
    form.Notes = QString();
    EXPECT_EQ(before, form.XMLOutput());
    EXPECT_TRUE(form.XMLOutput().contains(QStringLiteral("<notes/>")));
}

TEST(Property, AMissingElementIsTheObjectErrorAndNothingIsWritten)
{
    clsZR3Form form;
    form.XMLNode().remove_child("vatrate");
    form.XMLNode().remove_child("vat");
    form.XMLNode().remove_child("defaultfeeearnerlistindex");
    const QString before = form.XMLOutput();
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.VATRate(); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.VAT(); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.DefaultFeeEarnerListIndex(); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.VATRate = QStringLiteral("1"); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.VAT = true; }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.DefaultFeeEarnerListIndex = 1; }));
    EXPECT_EQ(before, form.XMLOutput());
}

TEST(Property, ASectionWithoutItsElementCanNotBeUsed)
{
    clsZR3ClientDetails section;
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { section.Surname(); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { section.Surname = QStringLiteral("x"); }));
    EXPECT_EQ(QString(), section.XMLOutput());
}

TEST(Property, TheTypeOfCaseOfAScheduleItemHasNoElement)
{
    clsZR3Form form;
    const auto item = form.AddScheduleOfTimeItem();
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { item->TypeOfCase(); }));
}

TEST(Property, AnElementIsFoundByItsParentAndNeverByAWalkOfTheDocument)
{
    clsZR3Form form;
    // `vat` is a boolean of the claim and of a counsel, and an amount of a disbursement.
    const auto counsel = form.AddCounsel();
    const auto disbursement = form.AddDisbursement();
    form.VAT = false;
    counsel->VAT = true;
    disbursement->VAT = QStringLiteral("17.50");
    EXPECT_FALSE(form.VAT());
    EXPECT_TRUE(counsel->VAT());
    EXPECT_EQ(QStringLiteral("17.50"), disbursement->VAT());
    // `counsel` is a list, an item of it, and a boolean of two other items.
    const auto item = form.AddScheduleOfTimeItem();
    item->Counsel = true;
    EXPECT_FALSE(disbursement->Counsel());
    EXPECT_EQ(1u, form.CounselCollection().size());
    // Three dates are in two sections each.
    form.CaseInformation.IssueOfProceedingsDate = QStringLiteral("01/02/03");
    EXPECT_EQ(QString(), form.OutcomeOfCase.IssueOfProceedingsDate());
}

TEST(Property, YesAndNoAreIndependent)
{
    clsZR3Form form;
    EXPECT_FALSE(form.PreviousAdvice.LegalHelpYes());
    EXPECT_FALSE(form.PreviousAdvice.LegalHelpNo());
    form.PreviousAdvice.LegalHelpYes = true;
    form.PreviousAdvice.LegalHelpNo = true;
    EXPECT_TRUE(form.PreviousAdvice.LegalHelpYes());
    EXPECT_TRUE(form.PreviousAdvice.LegalHelpNo());
}

TEST(Property, MoreThanOneCertificateIsAText)
{
    clsZR3Form form;
    form.ClientDetails.MoreThan1Certificate = QStringLiteral("Yes, and ABC/123");
    EXPECT_EQ(QStringLiteral("Yes, and ABC/123"), form.ClientDetails.MoreThan1Certificate());
}

// The record and property named in an error

TEST(Values, AnErrorNamesTheRecordAndTheProperty)
{
    clsZR3Form form;
    addToEachList(form);
    const auto causeOf = [](auto read) {
        try {
            read();
        } catch (const Error &error) {
            return error.cause();
        }
        return QString();
    };
    setContentOf(form.XMLNode(), "includepage3", "maybe");
    EXPECT_EQ(QStringLiteral("The claim: the tick Include Page 3 holds \"maybe\", which is neither True nor False"),
        causeOf([&] { form.IncludePage3(); }));
    setContentOf(form.OutcomeOfCase.XMLNode(), "wastedcostsorderyes", "");
    EXPECT_EQ(
        QStringLiteral("Outcome of Case: the tick Wasted Costs Order Yes holds \"\", which is neither True nor False"),
        causeOf([&] { form.OutcomeOfCase.WastedCostsOrderYes(); }));
    setContentOf(form.FeeEarner(1)->XMLNode(), "lettersin", "99999999999");
    EXPECT_EQ(QStringLiteral("Fee earner 1: Letters In holds \"99999999999\", which is too large a number"),
        causeOf([&] { form.FeeEarner(1)->LettersIn(); }));
    form.FeeEarner(1)->Reference = QStringLiteral("OQ");
    EXPECT_EQ(QStringLiteral("Fee earner OQ: Letters In holds \"99999999999\", which is too large a number"),
        causeOf([&] { form.FeeEarner(1)->LettersIn(); }));
    setContentOf(form.Counsel(1)->XMLNode(), "vat", "x");
    form.Counsel(1)->Name = QStringLiteral("Oak & Ash");
    EXPECT_EQ(QStringLiteral("Counsel Oak & Ash: the tick VAT holds \"x\", which is neither True nor False"),
        causeOf([&] { form.Counsel(1)->VAT(); }));
    EXPECT_EQ(QString(), causeOf([&] { throw Error(Error::ObjectNotSet); }));
}

TEST(Values, APropertyIsToldInWords)
{
    const std::pair<const char *, const char *> rows[] = {{"NetAmount", "Net Amount"}, {"VAT", "VAT"},
        {"VATAmount", "VAT Amount"}, {"VATForFAS", "VAT For FAS"}, {"dDate", "Date"}, {"TTime", "Time"},
        {"IncludePage13", "Include Page 13"}, {"PrivateLawcourtFamilyProceeding", "Private Lawcourt Family Proceeding"},
        {"MoreThan1Certificate", "More Than 1 Certificate"}, {"FDR", "FDR"}};
    for (const auto &[name, words] : rows)
        EXPECT_EQ(QString::fromLatin1(words), mdPropertyInWords(QString::fromLatin1(name)));
}

TEST(Values, ACauseStaysWithItsError)
{
    const Error plain(Error::TypeMismatch);
    EXPECT_EQ(QString(), plain.cause());
    const Error told = plain.because(QStringLiteral("here"));
    EXPECT_EQ(QStringLiteral("here"), told.cause());
    EXPECT_EQ(QStringLiteral("here"), told.because(QStringLiteral("there")).cause()) << "the nearer one stays";
    EXPECT_EQ(plain.number(), told.number());
    EXPECT_EQ(plain.description(), told.description());
    EXPECT_STREQ("Run-time error '13': Type mismatch", told.what());
}
