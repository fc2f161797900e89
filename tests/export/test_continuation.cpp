#include "tests/export/clsExportTest.h"

// Long texts: what stays on the page, what goes to continuation sheets, and how they refer to each other.

namespace {

const QString Mark = QStringLiteral("{or}");

struct LongField {
    const char *formType;
    int page;
    const char *placeholder;
    void (*set)(clsZR3Form &form, const QString &text);
    int limit;
    int cutLength;
    const char *continuationTemplate;
    /// The marks on the page's own sheet if the text fits and if it overruns.
    const char *markWithout = " ";
    const char *markWith = "(1)";
};

void PrintTo(const LongField &field, std::ostream *out)
{
    *out << field.placeholder;
}

// clang-format off
const LongField LongFields[] = {
    {"Claim1", 2, "{explanation}", [](clsZR3Form &form, const QString &text) { form.LateSubmission.Explanation = text; },
        400, 3000, "Claim1 P2 Late Submission Cont"},
    {"Claim1", 3, "{detailsofcase}", [](clsZR3Form &form, const QString &text) { form.DetailsOfWork.DetailsOfCase = text; },
        770, 2750, "Claim1 P3 Case Details Cont"},
    {"Claim1", 3, "{detailsofenhancement}", [](clsZR3Form &form, const QString &text) { form.DetailsOfWork.DetailsOfEnhancement = text; },
        710, 2620, "Claim1 P3 Enhancement Cont"},
    // This page is marked by its notes and again after its grid, both before the text.
    {"Claim1", 6, "{expertsmeetmojstandardreasons}", [](clsZR3Form &form, const QString &text) { form.ExpertsMeetMOJStandardReasons = text; },
        100, 2750, "Claim1 P6 Expert Dibs Standards Cont", " | ", " | "},
    {"Claim1A", 3, "{detailsofcase}", [](clsZR3Form &form, const QString &text) { form.NatureOfProceedings.DetailsOfCase = text; },
        570, 2750, "Claim1A P3 NoP Cont"},
    {"Claim1A", 4, "{workatalllevelsreasons}", [](clsZR3Form &form, const QString &text) { form.ActualCostsIncurred.PrivateLawWorkAtAllLevelsReasons = text; },
        100, 2750, "Claim1A P4 Reasons For Not Undertaking Work At All Levels Cont"},
    // Here too the mark comes after the grid and before the text.
    {"Claim1A", 6, "{expertsmeetmojstandardreasons}", [](clsZR3Form &form, const QString &text) { form.ExpertsMeetMOJStandardReasons = text; },
        250, 2750, "Claim1A P6 Expert Dibs Standards Cont", " ", " "},
    {"Claim1A", 9, "{detailsofcase}", [](clsZR3Form &form, const QString &text) { form.DetailsOfWork.DetailsOfCase = text; },
        770, 2750, "Claim1A P9 Case Details Cont"},
};
// clang-format on

class Continuation : public clsExportTest {
protected:
    static QString sheet(int page, int number) { return QStringLiteral("%1(%2)").arg(page).arg(number); }
    QStringList on(const QString &name, const char *placeholder) const
    {
        return recorder->replacements(name, QString::fromLatin1(placeholder));
    }
    QString mark(const QString &name) const { return recorder->replacements(name, Mark).join(u'|'); }
};

class EachLongField : public Continuation, public testing::WithParamInterface<LongField> {
protected:
    void exportWith(const QString &text)
    {
        form.FormType = QString::fromLatin1(GetParam().formType);
        includeOnly({1, GetParam().page});
        GetParam().set(form, text);
        ASSERT_TRUE(exportClaim());
    }
    QString first() const { return sheet(GetParam().page, 1); }
    QString further(int number) const { return sheet(GetParam().page, number); }
    QStringList texts(const QString &name) const { return on(name, GetParam().placeholder); }
};

TEST_P(EachLongField, OfTheLimitsLengthStaysOnThePage)
{
    const QString text = words(GetParam().limit);
    ASSERT_EQ(GetParam().limit, text.size());
    exportWith(text);
    EXPECT_EQ(2, run->ExportFileCollection.size());
    EXPECT_EQ(QStringList {text}, texts(first()));
    EXPECT_EQ(QString::fromLatin1(GetParam().markWithout), mark(first()));
}

TEST_P(EachLongField, OfOneMoreGoesWholeToASheet)
{
    const QString text = words(GetParam().limit + 1);
    exportWith(text);
    EXPECT_EQ(3, run->ExportFileCollection.size());
    EXPECT_EQ(QStringList {QStringLiteral("See Page %1 (2)").arg(GetParam().page)}, texts(first()));
    EXPECT_EQ(QString::fromLatin1(GetParam().markWith), mark(first()));
    EXPECT_EQ(QString::fromLatin1(GetParam().continuationTemplate), recorder->templateOf(further(2)));
    const QStringList lines = {
        QStringLiteral("open"),
        QStringLiteral("replace %1 %2").arg(QString::fromLatin1(GetParam().placeholder), text),
        QStringLiteral("replace {or} (2)"),
    };
    EXPECT_EQ(lines, recorder->linesOf(further(2)));
}

TEST_P(EachLongField, JustShortOfTheCutLengthFillsOneSheet)
{
    // With the space after its last word it has exactly the cut length, which is not longer.
    const QString text = words(GetParam().cutLength - 1);
    exportWith(text);
    EXPECT_EQ(3, run->ExportFileCollection.size());
    EXPECT_EQ(QStringList {text}, texts(further(2)));
}

TEST_P(EachLongField, WhoseLastWordTipsTheCutLengthLeavesAnEmptyLastSheet)
{
    const QString text = words(GetParam().cutLength);
    exportWith(text);
    EXPECT_EQ(4, run->ExportFileCollection.size());
    EXPECT_EQ(QStringList {text}, texts(further(2)));
    EXPECT_EQ(QStringList {QStringLiteral(" ")}, texts(further(3)));
    EXPECT_EQ(QStringLiteral("(3)"), mark(further(3)));
    EXPECT_EQ(QStringList {QStringLiteral("See Page %1 (2)").arg(GetParam().page)}, texts(first()));
}

TEST_P(EachLongField, WithoutBlanksIsOnePieceOfItsWholeLength)
{
    const QString text(GetParam().cutLength + 500, u'x');
    exportWith(text);
    EXPECT_EQ(QStringList {text}, texts(further(2)));
    // This word tips the line, so an empty last piece follows it.
    EXPECT_EQ(QStringList {QStringLiteral(" ")}, texts(further(3)));
    EXPECT_EQ(4, run->ExportFileCollection.size());
}

TEST_P(EachLongField, OverrunsItsSheetByUpToOneWord)
{
    // Every word with its space is ten characters, so the cut is after the first word beyond the cut length.
    const int words = GetParam().cutLength / 10 + 1;
    const QString full = QStringLiteral("ninechars ").repeated(words).trimmed();
    exportWith(full + QStringLiteral(" tail"));
    EXPECT_EQ(QStringList {full}, texts(further(2)));
    EXPECT_EQ(QStringList {QStringLiteral("tail")}, texts(further(3)));
    EXPECT_EQ(4, run->ExportFileCollection.size());
}

TEST_P(EachLongField, KeepsRunsOfBlanksInsideAPiece)
{
    exportWith(QStringLiteral("  two   blanks ") + QString(GetParam().limit, u'x'));
    EXPECT_EQ(QStringList {QStringLiteral("two   blanks ") + QString(GetParam().limit, u'x')}, texts(further(2)));
}

TEST_P(EachLongField, KeepsItsLineEndsWhichAreNoPlaceToCut)
{
    const QString body(GetParam().limit, u'x');
    exportWith(QStringLiteral("one\r\ntwo ") + body);
    EXPECT_EQ(QStringList {QStringLiteral("one\u000Btwo ") + body}, texts(further(2)));
    // A line end counts as two characters.
    exportWith(QString(GetParam().limit - 2, u'x') + QStringLiteral("\r\n"));
    EXPECT_EQ(QStringList {QString(GetParam().limit - 2, u'x') + QStringLiteral("\u000B")}, texts(first()));
    exportWith(QString(GetParam().limit - 1, u'x') + QStringLiteral("\r\n"));
    EXPECT_EQ(QStringList {QStringLiteral("See Page %1 (2)").arg(GetParam().page)}, texts(first()));
}

INSTANTIATE_TEST_SUITE_P(, EachLongField, testing::ValuesIn(LongFields), [](const auto &field) {
    return QStringLiteral("%1_page_%2_%3")
        .arg(QString::fromLatin1(field.param.formType))
        .arg(field.param.page)
        .arg(QString::fromLatin1(field.param.placeholder).remove(u'{').remove(u'}'))
        .toStdString();
});

TEST_F(Continuation, TheSecondLongTextOfAPageRefersToItsOwnFirstSheet)
{
    includeOnly({1, 3});
    form.DetailsOfWork.DetailsOfCase = words(4000);
    form.DetailsOfWork.DetailsOfEnhancement = words(711);
    ASSERT_TRUE(exportClaim());
    const QStringList order = {QStringLiteral("1(1)"), QStringLiteral("3(1)"), QStringLiteral("3(2)"),
        QStringLiteral("3(3)"), QStringLiteral("3(4)")};
    EXPECT_EQ(order, recorder->order());
    EXPECT_EQ(QStringList {QStringLiteral("See Page 3 (2)")}, on(sheet(3, 1), "{detailsofcase}"));
    EXPECT_EQ(QStringList {QStringLiteral("See Page 3 (4)")}, on(sheet(3, 1), "{detailsofenhancement}"));
    EXPECT_EQ(QStringLiteral("Claim1 P3 Enhancement Cont"), recorder->templateOf(sheet(3, 4)));
    EXPECT_EQ(QStringLiteral("(4)"), mark(sheet(3, 4)));
}

TEST_F(Continuation, ThePanelSheetHoldsFixedTextAndNothingRefersToIt)
{
    includeOnly({1, 3});
    form.IncludePanelMembershipContSheet = true;
    form.DetailsOfWork.DetailsOfCase = QStringLiteral("Short");
    ASSERT_TRUE(exportClaim());
    const QStringList order = {QStringLiteral("1(1)"), QStringLiteral("3(1)"), QStringLiteral("3(2)")};
    EXPECT_EQ(order, recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1 P3 Panel Membership Cont"), recorder->templateOf(sheet(3, 2)));
    const QStringList panel = {QStringLiteral("open"), QStringLiteral("replace {or} (2)")};
    EXPECT_EQ(panel, recorder->linesOf(sheet(3, 2)));
    const QStringList page = {QStringLiteral("open"), QStringLiteral("replace {detailsofcase} Short"),
        QStringLiteral("replace {detailsofenhancement}  "), QStringLiteral("replace {or} (1)")};
    EXPECT_EQ(page, recorder->linesOf(sheet(3, 1)));
}

TEST_F(Continuation, ThePanelSheetOfTheOtherFormFollowsItsPage9)
{
    form.FormType = QStringLiteral("Claim1A");
    includeOnly({1, 3, 9});
    form.IncludePanelMembershipContSheet = true;
    form.DetailsOfWork.DetailsOfCase = words(771);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 3(1) 9(1) 9(2) 9(3)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1A P9 Case Details Cont"), recorder->templateOf(sheet(9, 2)));
    EXPECT_EQ(QStringLiteral("Claim1A P9 Panel Membership Cont"), recorder->templateOf(sheet(9, 3)));
    const QStringList panel = {QStringLiteral("open"), QStringLiteral("replace {or} (3)")};
    EXPECT_EQ(panel, recorder->linesOf(sheet(9, 3)));
    const QStringList page = {QStringLiteral("open"), QStringLiteral("replace {detailsofcase} See Page 9 (2)"),
        QStringLiteral("replace {or} (1)")};
    EXPECT_EQ(page, recorder->linesOf(sheet(9, 1)));
}

TEST_F(Continuation, NoPanelSheetWithoutPage3)
{
    includeOnly({1, 2});
    form.IncludePanelMembershipContSheet = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(2, run->ExportFileCollection.size());
}

TEST_F(Continuation, SheetsFollowTheirPageInTheOrderInWhichTheyWereMade)
{
    includeOnly({1, 3, 4});
    form.DetailsOfWork.DetailsOfCase = words(4000);
    form.DetailsOfWork.DetailsOfEnhancement = words(4000);
    form.IncludePanelMembershipContSheet = true;
    ASSERT_TRUE(exportClaim());
    const QStringList order
        = {QStringLiteral("1(1)"), QStringLiteral("3(1)"), QStringLiteral("3(2)"), QStringLiteral("3(3)"),
            QStringLiteral("3(4)"), QStringLiteral("3(5)"), QStringLiteral("3(6)"), QStringLiteral("4(1)")};
    EXPECT_EQ(order, recorder->order());
    const QStringList templatesInOrder = {
        QStringLiteral("Claim1 P1"),
        QStringLiteral("Claim1 P3"),
        QStringLiteral("Claim1 P3 Case Details Cont"),
        QStringLiteral("Claim1 P3 Case Details Cont"),
        QStringLiteral("Claim1 P3 Enhancement Cont"),
        QStringLiteral("Claim1 P3 Enhancement Cont"),
        QStringLiteral("Claim1 P3 Panel Membership Cont"),
        QStringLiteral("Claim1 P4"),
    };
    QStringList found;
    for (const QString &name : order)
        found << recorder->templateOf(name);
    EXPECT_EQ(templatesInOrder, found);
    QStringList joined;
    for (const QString &name : order)
        joined << name + QStringLiteral(".doc");
    EXPECT_EQ(joined, recorder->combinedOrder());
}

TEST_F(Continuation, ATextOfZeroNeverPrints)
{
    includeOnly({1, 3});
    form.DetailsOfWork.DetailsOfCase = QStringLiteral("0");
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringList {QStringLiteral(" ")}, on(sheet(3, 1), "{detailsofcase}"));
}

} // namespace
