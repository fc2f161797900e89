#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"
#include "wordexport/clsMSWord.h"

// clang-format off
// These are tables, to be read row for row.

// The pages of Claim 1 as tables: which placeholder shows which property, in what order and class, and whether the real
// templates hold exactly what the export fills in.

namespace {

enum Class { Text, Tick, Money };

struct Row {
    const char *placeholder;
    const char *property; ///< "Section.Property", or a property of the claim itself
    Class fill;
};

struct Page {
    int number;
    std::vector<Row> rows;
};

const Page Pages[] = {
    {1,
     {
         {"{1}", "CostsAssessedByLSC", Tick},
         {"{2}", "CostsAssessedByCourt", Tick},
         {"{9}", "ExceptionalCaseFunding", Tick},
         {"{10}", "MentalHealth", Tick},
         {"{11}", "VHCC", Tick},
         {"{stagenumber}", "StageNumber", Text},
         {"{typeofcase}", "TypeOfCase", Text},
         {"{casereferencenumber}", "ClientDetails.CaseReferenceNumber", Text},
         {"{title}", "ClientDetails.Title", Text},
         {"{firstname}", "ClientDetails.FirstName", Text},
         {"{surname}", "ClientDetails.Surname", Text},
         {"{dateofbirth}", "ClientDetails.DateOfBirth", Text},
         {"{morethan1certificate}", "ClientDetails.MoreThan1Certificate", Text},
         {"{accountnumber}", "SolicitorDetails.AccountNumber", Text},
         {"{rollnumber}", "SolicitorDetails.RollNumber", Text},
         {"{nameoffirm}", "SolicitorDetails.NameOfFirm", Text},
         {"{casereference}", "SolicitorDetails.CaseReference", Text},
         {"{contactnameforenquiries}", "SolicitorDetails.ContactNameForEnquiries", Text},
         {"{telephoneforenquiries}", "SolicitorDetails.TelephoneForEnquiries", Text},
         {"{emailforenquiries}", "SolicitorDetails.EmailForEnquiries", Text},
         {"{3}", "PreviousAdvice.LegalHelpYes", Tick},
         {"{4}", "PreviousAdvice.LegalHelpNo", Tick},
         {"{datelegalhelpformsigned}", "PreviousAdvice.DateLegalHelpFormSigned", Text},
         {"{totalcostsincurred}", "PreviousAdvice.TotalCostsIncurred", Money},
         {"{5}", "PreviousAdvice.InclusiveOfAllSolicitorsYes", Tick},
         {"{6}", "PreviousAdvice.InclusiveOfAllSolicitorsNo", Tick},
         {"{inclusiveofallsolicitorsreasons}", "PreviousAdvice.InclusiveOfAllSolicitorsReasons", Text},
         {"{7}", "PreviousAdvice.FurtherClaimsYes", Tick},
         {"{8}", "PreviousAdvice.FurtherClaimsNo", Tick},
         {"{or}", nullptr, Text},
     }},
    {2,
     {
         {"{issueofproceedingsdate}", "CaseInformation.IssueOfProceedingsDate", Text},
         {"{dateoffinalworkdate}", "CaseInformation.DateOfFinalWorkDate", Text},
         {"{nameofcourt}", "CaseInformation.NameOfCourt", Text},
         {"{emergencycertificatedate}", "CaseInformation.EmergencyCertificateDate", Text},
         {"{substantivecertificatedate}", "CaseInformation.SubstantiveCertificateDate", Text},
         {"{g}", nullptr, Text},
         {"{h}", nullptr, Text},
         {"{i}", nullptr, Text},
         {"{j}", nullptr, Text},
         {"{k}", nullptr, Text},
         {"{l}", "OutcomeOfCase.Costs", Tick},
         {"{m}", "OutcomeOfCase.Damages", Tick},
         {"{n}", "OutcomeOfCase.Property", Tick},
         {"{q}", "OutcomeOfCase.WastedCostsOrderYes", Tick},
         {"{r}", "OutcomeOfCase.WastedCostsOrderNo", Tick},
         {"{date}", "LateSubmission.dDate", Text},
         {"{explanation}", "LateSubmission.Explanation", Text},
         {"{or}", nullptr, Text},
     }},
    {3,
     {
         {"{detailsofcase}", "DetailsOfWork.DetailsOfCase", Text},
         {"{detailsofenhancement}", "DetailsOfWork.DetailsOfEnhancement", Text},
         {"{or}", nullptr, Text},
     }},
    {4,
     {
         {"{or}", nullptr, Text},
         {"{ctotal}", nullptr, Money},
         {"{1}", "CounselOutstandingClaims.OutstandingClaimsYes", Tick},
         {"{2}", "CounselOutstandingClaims.OutstandingClaimsNo", Tick},
     }},
    {5,
     {
         {"{actm}", nullptr, Text},
         {"{dtm}", nullptr, Text},
         {"{htm}", nullptr, Text},
         {"{ttm}", nullptr, Text},
         {"{wtm}", nullptr, Text},
         {"{actl}", nullptr, Money},
         {"{dtl}", nullptr, Money},
         {"{htl}", nullptr, Money},
         {"{ttl}", nullptr, Money},
         {"{wtl}", nullptr, Money},
         {"{total}", nullptr, Money},
         {"{or}", nullptr, Text},
     }},
    {6,
     {
         {"{or}", nullptr, Text}, // by the additional information
         {"{or}", nullptr, Text}, // after the experts' grid
         {"{1}", "ExpertsMeetMOJStandardYes", Tick},
         {"{2}", "ExpertsMeetMOJStandardNo", Tick},
         {"{expertsmeetmojstandardreasons}", "ExpertsMeetMOJStandardReasons", Text},
         {"{exnet}", nullptr, Money},
         {"{exvat}", nullptr, Money},
         {"{extot}", nullptr, Money},
     }},
    {7,
     {
         {"{or}", nullptr, Text},
         {"{nettotal}", nullptr, Money},
         {"{vattotal}", nullptr, Money},
         {"{dibstotal}", nullptr, Money},
     }},
    {8,
     {
         {"{loir1}", nullptr, Money},   {"{lo1}", nullptr, Text},      {"{loenh1}", nullptr, Money},
         {"{lototal1}", nullptr, Money}, {"{loir2}", nullptr, Money},   {"{lo2}", nullptr, Text},
         {"{loenh2}", nullptr, Money},  {"{lototal2}", nullptr, Money}, {"{liir1}", nullptr, Money},
         {"{li1}", nullptr, Text},      {"{lienh1}", nullptr, Money},  {"{litotal1}", nullptr, Money},
         {"{liir2}", nullptr, Money},   {"{li2}", nullptr, Text},      {"{lienh2}", nullptr, Money},
         {"{litotal2}", nullptr, Money}, {"{tcir1}", nullptr, Money},   {"{tc1}", nullptr, Text},
         {"{tcenh1}", nullptr, Money},  {"{tctotal1}", nullptr, Money}, {"{tcir2}", nullptr, Money},
         {"{tc2}", nullptr, Text},      {"{tcenh2}", nullptr, Money},  {"{tctotal2}", nullptr, Money},
         {"{cmtotal}", nullptr, Money}, {"{npc}", nullptr, Money},     {"{nex}", nullptr, Money},
         {"{ndibs}", nullptr, Money},   {"{ntotal}", nullptr, Money},  {"{vpc}", nullptr, Money},
         {"{vex}", nullptr, Money},     {"{vdibs}", nullptr, Money},   {"{vtotal}", nullptr, Money},
         {"{grandtotal}", nullptr, Money}, {"{counsel}", nullptr, Text}, {"{ncf}", nullptr, Money},
         {"{vcf}", nullptr, Money},     {"{cftotal}", nullptr, Money}, {"{csl1}", nullptr, Text},
         {"{cslamt1}", nullptr, Money}, {"{csl2}", nullptr, Text},     {"{cslamt2}", nullptr, Money},
         {"{csl3}", nullptr, Text},     {"{cslamt3}", nullptr, Money}, {"{csl4}", nullptr, Text},
         {"{cslamt4}", nullptr, Money}, {"{csl5}", nullptr, Text},     {"{cslamt5}", nullptr, Money},
         {"{csl6}", nullptr, Text},     {"{cslamt6}", nullptr, Money}, {"{or}", nullptr, Text},
     }},
    {9,
     {
         {"{precertcosts}", "DetailsOfCostsAwarded.PreCertificateCosts", Money},
         {"{duringcertlsc}", "DetailsOfCostsAwarded.DuringCertificateCostsLSC", Money},
         {"{duringcertmr}", "DetailsOfCostsAwarded.DuringCertificateCostsMarketRates", Money},
         {"{1}", "DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsYes", Tick},
         {"{2}", "DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsNo", Tick},
         {"{lhipccamount}", "DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsAmount", Money},
         {"{interest}", "DetailsOfCostsAwarded.InterestOnAllCosts", Money},
         {"{dateinterestcommenced}", "DetailsOfCostsAwarded.DateInterestCommenced", Text},
         {"{interestbreakdown}", "DetailsOfCostsAwarded.InterestBreakdown", Text},
         {"{rcvrdtodate}", "DetailsOfCostsAwarded.AmountRecoveredToDate", Money},
         {"{dateorderserved}", "DetailsOfCostsAwarded.DateOrderServed", Text},
         {"{addressofservice}", "DetailsOfCostsAwarded.AddressOfService", Text},
         {"{3}", "DetailsOfCostsAwarded.LeaveYes", Tick},
         {"{4}", "DetailsOfCostsAwarded.LeaveNo", Tick},
         {"{5}", "DetailsOfCostsAwarded.DeterminationYes", Tick},
         {"{6}", "DetailsOfCostsAwarded.DeterminationNo", Tick},
         {"{detmamount}", "DetailsOfCostsAwarded.DeterminationAmount", Money},
         {"{7}", "DetailsOfCostsAwarded.OfferByDebtorYes", Tick},
         {"{8}", "DetailsOfCostsAwarded.OfferByDebtorNo", Tick},
         {"{offerbydebtordetails}", "DetailsOfCostsAwarded.OfferByDebtorDetails", Text},
         {"{value}", "DetailsOfMonies.Value", Money},
         {"{dmrcvrdtodate}", "DetailsOfMonies.AmountRecovered", Money},
     }},
    {10,
     {
         {"{title}", "DebtorsDetails.Title", Text},
         {"{initials}", "DebtorsDetails.Initials", Text},
         {"{surnameororganisation}", "DebtorsDetails.SurnameOrOrganisation", Text},
         {"{firstname}", "DebtorsDetails.FirstName", Text},
         {"{dateofbirth}", "DebtorsDetails.DateOfBirth", Text},
         {"{nationalinsurancenumber}", "DebtorsDetails.NationalInsuranceNumber", Text},
         {"{address}", "DebtorsDetails.Address", Text},
         {"{phonework}", "DebtorsDetails.PhoneWork", Text},
         {"{phonehome}", "DebtorsDetails.PhoneHome", Text},
         {"{mobile}", "DebtorsDetails.Mobile", Text},
         {"{fax}", "DebtorsDetails.Fax", Text},
         {"{email}", "DebtorsDetails.Email", Text},
         {"{solicitorsfirmname}", "DebtorsDetails.SolicitorsFirmName", Text},
         {"{1}", "DebtorsDetails.Employed", Tick},
         {"{2}", "DebtorsDetails.SelfEmployed", Tick},
         {"{3}", "DebtorsDetails.UnEmployed", Tick},
         {"{job}", "DebtorsDetails.Job", Text},
         {"{employersname}", "DebtorsDetails.EmployersName", Text},
         {"{employersaddress}", "DebtorsDetails.EmployersAddress", Text},
         {"{assets}", "DebtorsDetails.Assets", Text},
         {"{debtorsincome}", "DebtorsDetails.DebtorsIncome", Money},
         {"{4}", "DebtorsDetails.DebtorCLSFundedYes", Tick},
         {"{5}", "DebtorsDetails.DebtorCLSFundedNo", Tick},
         {"{casereference}", "DebtorsDetails.CaseReference", Text},
         {"{information}", "DebtorsDetails.Information", Text},
         {"{or}", nullptr, Text},
     }},
};

class Tables : public clsExportTest {
protected:
    clsXMLField *fieldOf(const char *property)
    {
        const QString name = QString::fromLatin1(property);
        const QString section = name.section(u'.', 0, -2);
        const QString last = name.section(u'.', -1);
        if (section.isEmpty())
            return form.field(last);
        const std::pair<const char *, clsXMLRecord *> sections[] = {
            {"ClientDetails", &form.ClientDetails},
            {"SolicitorDetails", &form.SolicitorDetails},
            {"PreviousAdvice", &form.PreviousAdvice},
            {"CaseInformation", &form.CaseInformation},
            {"OutcomeOfCase", &form.OutcomeOfCase},
            {"LateSubmission", &form.LateSubmission},
            {"DetailsOfWork", &form.DetailsOfWork},
            {"CounselOutstandingClaims", &form.CounselOutstandingClaims},
            {"DetailsOfMonies", &form.DetailsOfMonies},
            {"DetailsOfCostsAwarded", &form.DetailsOfCostsAwarded},
            {"DebtorsDetails", &form.DebtorsDetails},
        };
        for (const auto &[known, record] : sections)
            if (section == QLatin1String(known))
                return record->field(last);
        return nullptr;
    }
    static QString first(const Page &page) { return QStringLiteral("%1(1)").arg(page.number); }
    static QString templateOf(const Page &page)
    {
        return QStringLiteral("%1/Claim1 P%2.doc").arg(TestTemplates).arg(page.number);
    }
};

TEST_F(Tables, PlaceholdersAreFilledInInTheOrderOfTheTables)
{
    ASSERT_TRUE(exportClaim());
    for (const Page &page : Pages) {
        QStringList expected;
        for (const Row &row : page.rows)
            expected << QString::fromLatin1(row.placeholder);
        EXPECT_EQ(expected, recorder->placeholders(first(page))) << page.number;
        EXPECT_EQ(QStringLiteral("Claim1 P%1").arg(page.number), recorder->templateOf(first(page)));
    }
}

TEST_F(Tables, EachPlaceholderShowsItsPropertyInItsClass)
{
    // Every property gets a value that no other has: a text with its own name in it, an amount with its own number.
    int number = 0;
    for (const Page &page : Pages) {
        for (const Row &row : page.rows) {
            if (!row.property)
                continue;
            clsXMLField *const field = fieldOf(row.property);
            ASSERT_TRUE(field) << row.property;
            ++number;
            if (row.fill == Text)
                field->writeText(QStringLiteral("Value 1234.5 of ") + QString::fromLatin1(row.property));
            else if (row.fill == Money)
                field->writeText(QStringLiteral("12%1.5").arg(number, 2, 10, QLatin1Char('0')));
        }
    }
    ASSERT_TRUE(exportClaim());
    number = 0;
    for (const Page &page : Pages) {
        for (const Row &row : page.rows) {
            if (!row.property)
                continue;
            ++number;
            const QString found = recorder->replacements(first(page), QString::fromLatin1(row.placeholder)).join(u'|');
            if (row.fill == Text) {
                EXPECT_EQ(QStringLiteral("Value 1234.5 of ") + QString::fromLatin1(row.property), found);
            } else if (row.fill == Money) {
                EXPECT_EQ(QStringLiteral("1,2%1.50").arg(number, 2, 10, QLatin1Char('0')), found) << row.property;
            }
        }
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Tables, EachTickBoxShowsItsBoolean)
{
    // Each box has a number of its own, and each export ticks those with one of its binary digits set: together the
    // exports spell out which boolean stands behind which box.
    std::vector<std::pair<const Page *, const Row *>> boxes;
    for (const Page &page : Pages)
        for (const Row &row : page.rows)
            if (row.fill == Tick)
                boxes.emplace_back(&page, &row);
    ASSERT_EQ(33u, boxes.size());
    std::vector<unsigned> spelt(boxes.size());
    for (unsigned digit = 1; digit <= 32; digit *= 2) {
        for (unsigned i = 0; i < boxes.size(); ++i)
            fieldOf(boxes[i].second->property)->writeBoolean(((i + 1) & digit) != 0);
        ASSERT_TRUE(exportClaim());
        for (unsigned i = 0; i < boxes.size(); ++i) {
            const auto &[page, row] = boxes[i];
            const QString found = recorder->replacements(first(*page), QString::fromLatin1(row->placeholder)).join(u'|');
            ASSERT_TRUE(found == QStringLiteral("\u00FE") || found == QStringLiteral("\u00A8")) << qPrintable(found);
            if (found == QStringLiteral("\u00FE"))
                spelt[i] |= digit;
        }
    }
    for (unsigned i = 0; i < boxes.size(); ++i)
        EXPECT_EQ(i + 1, spelt[i]) << boxes[i].second->property;
}

TEST_F(Tables, EachTemplateHoldsThePlaceholdersOfItsPageAndNoOthers)
{
    for (const Page &page : Pages) {
        QStringList expected;
        for (const Row &row : page.rows)
            expected << QString::fromLatin1(row.placeholder);
        expected.removeDuplicates(); // a page that is marked twice has one mark
        expected.sort();
        QStringList found = mdPlaceholdersIn(templateOf(page));
        found.sort();
        EXPECT_EQ(expected, found) << page.number;
    }
}

TEST_F(Tables, EachContinuationTemplateHoldsItsPlaceholderAndTheMark)
{
    const struct {
        const char *name;
        QStringList placeholders;
    } templatesOfSheets[] = {
        {"Claim1 P2 Late Submission Cont", {QStringLiteral("{explanation}"), QStringLiteral("{or}")}},
        {"Claim1 P3 Case Details Cont", {QStringLiteral("{detailsofcase}"), QStringLiteral("{or}")}},
        {"Claim1 P3 Enhancement Cont", {QStringLiteral("{detailsofenhancement}"), QStringLiteral("{or}")}},
        {"Claim1 P3 Panel Membership Cont", {QStringLiteral("{or}")}},
        {"Claim1 P4 Counsels Fees Cont", {QStringLiteral("{or}")}},
        {"Claim1 P6 Additional Info Cont", {QStringLiteral("{or}")}},
        {"Claim1 P6 Expert Dibs Cont", {QStringLiteral("{or}")}},
        {"Claim1 P6 Expert Dibs Standards Cont", {QStringLiteral("{expertsmeetmojstandardreasons}"), QStringLiteral("{or}")}},
        {"Claim1 P7 Expert Dibs Joint Instruction Cont", {QStringLiteral("{or}")}},
        {"Claim1 P7 Other Dibs Cont", {QStringLiteral("{or}")}},
    };
    for (const auto &sheet : templatesOfSheets) {
        QStringList found = mdPlaceholdersIn(QStringLiteral("%1/%2.doc").arg(TestTemplates, QString::fromLatin1(sheet.name)));
        found.sort();
        EXPECT_EQ(sheet.placeholders, found) << sheet.name;
    }
    EXPECT_EQ(20, int(std::size(templatesOfSheets) + std::size(Pages)));
}

/// A grid in a real template, filled with the operations that the export uses.
struct TemplateGrid {
    const char *name;
    int offset;
    int rows;
    int cells;
    int earlierOffset; ///< a grid above it on the sheet, filled first; 0 for none
    int earlierRows;
    int notes; ///< lines of additional information typed first
};

const TemplateGrid TemplateGrids[] = {
    {"Claim1 P4", 9, 32, 4, 0, 0, 0},
    {"Claim1 P4 Counsels Fees Cont", 3, 38, 4, 0, 0, 0},
    {"Claim1 P5", 5, 33, 13, 0, 0, 0},
    {"Claim1 P6", 20, 11, 12, 0, 0, 0},
    {"Claim1 P6", 29, 11, 12, 0, 0, 9},
    {"Claim1 P6 Expert Dibs Cont", 4, 32, 12, 0, 0, 0},
    {"Claim1 P7", 6, 14, 5, 0, 0, 0},
    {"Claim1 P7", 25, 12, 4, 0, 0, 0},
    {"Claim1 P7", 25, 12, 4, 6, 14, 0},
    {"Claim1 P7 Expert Dibs Joint Instruction Cont", 5, 30, 5, 0, 0, 0},
    {"Claim1 P7 Other Dibs Cont", 3, 32, 4, 0, 0, 0},
};

class RealTemplate : public clsExportTest, public testing::WithParamInterface<TemplateGrid> {
protected:
    static QString cellText(int row, int cell) { return QStringLiteral("r%1c%2 ").arg(row).arg(cell); }
    static void fill(clsMSWord &word, int offset, int rows, int cells)
    {
        word.MoveCursorDown(offset);
        for (int row = 1; row <= rows; ++row) {
            for (int cell = 1; cell <= cells; ++cell) {
                word.SetText(cellText(row, cell), false, false, true, false);
                if (cell < cells)
                    word.MoveCursorRight(1);
            }
            word.MoveSursorToNextLine();
        }
    }
};

TEST_P(RealTemplate, EachCellLandsInItsPlace)
{
    const TemplateGrid &grid = GetParam();
    const QString sheet = path(QStringLiteral("sheet.doc"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("%1/%2.doc").arg(TestTemplates, QString::fromLatin1(grid.name)), sheet));
    clsMSWord word;
    if (grid.notes) {
        word.OpenDocument(sheet);
        word.MoveCursorDown(3);
        word.MoveCursorToStartOfRow();
        for (int i = 0; i < grid.notes; ++i)
            word.NextLine();
        word.SaveAndClose();
    }
    if (grid.earlierRows) {
        word.OpenDocument(sheet);
        word.MoveCursorDown(grid.earlierOffset);
        for (int i = 0; i < grid.earlierRows; ++i) {
            word.SetText(QStringLiteral("earlier"), false, false, true, false);
            word.MoveSursorToNextLine();
        }
        word.SaveAndClose();
    }
    word.OpenDocument(sheet);
    fill(word, grid.offset, grid.rows, grid.cells);
    word.SaveAndClose();
    word.Quit();
    EXPECT_TRUE(user.messages.empty());

    const clsDocumentTree document(sheet);
    const pugi::xpath_node found = document.body.select_node(".//w:tr[w:tc[1]//w:t[starts-with(., 'r1c1 ')]]");
    ASSERT_TRUE(found) << "the first row was not found in a table's first cell";
    pugi::xml_node row = found.node();
    // Right above stands the row with the heads of the columns.
    const pugi::xml_node heads = row.previous_sibling("w:tr");
    ASSERT_TRUE(heads);
    EXPECT_FALSE(mdTextBelow(heads).isEmpty());
    EXPECT_FALSE(mdTextBelow(heads).contains(QLatin1String("earlier")));
    for (int number = 1; number <= grid.rows; ++number, row = row.next_sibling("w:tr")) {
        ASSERT_TRUE(row) << "row " << number << " is in no row of the table";
        int cell = 0;
        for (const pugi::xml_node &tc : row.children("w:tc"))
            EXPECT_EQ(cellText(number, ++cell), mdTextBelow(tc));
        EXPECT_EQ(grid.cells, cell);
    }
    // Beyond the grid nothing was typed.
    EXPECT_FALSE(mdTextBelow(row).contains(QLatin1String("r1c")));
}

INSTANTIATE_TEST_SUITE_P(, RealTemplate, testing::ValuesIn(TemplateGrids), [](const auto &grid) {
    return QStringLiteral("%1_%2%3%4")
        .arg(QString::fromLatin1(grid.param.name).remove(u' '))
        .arg(grid.param.offset)
        .arg(QLatin1String(grid.param.notes ? "_below_notes" : ""), QLatin1String(grid.param.earlierRows ? "_second" : ""))
        .toStdString();
});

} // namespace
