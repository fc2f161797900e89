// The forecast of an export.

#include "tests/export/clsExportTest.h"
#include "wordexport/mdForecast.h"
#include "wordexport/mdForecastReport.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

namespace {

/// Collects the document layer's reports on the texts of each saved sheet.
class clsFittedObserver final : public clsMSWordObserver {
public:
    void opened(const QString &path) override { m_sheet = QFileInfo(path).completeBaseName(); }
    void fitted(const std::vector<clsFittedText> &texts) override
    {
        if (m_sheet == QLatin1String("Joined"))
            return;
        for (const clsFittedText &text : texts)
            told << QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
                        .arg(m_sheet, text.placeholder)
                        .arg(text.row)
                        .arg(text.column)
                        .arg(text.halfPoints)
                        .arg(text.printedHalfPoints)
                        .arg(text.lines)
                        .arg(int(text.state));
    }

    QStringList told;

private:
    QString m_sheet;
};

class Forecast : public clsExportTest {
protected:
    clsForecast forecast() const { return mdForecast(form, templates); }

    static QStringList namesIn(const clsForecast &forecast)
    {
        QStringList names;
        for (const clsForecast::Sheet &sheet : forecast.Sheets)
            names << sheet.Name;
        return names;
    }
    static QStringList boxesIn(const clsForecast &forecast)
    {
        QStringList boxes;
        for (const clsForecast::Box &box : forecast.Boxes)
            boxes << QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
                         .arg(box.Sheet, box.Placeholder)
                         .arg(box.Row)
                         .arg(box.Column)
                         .arg(2 * box.Size)
                         .arg(2 * box.PrintedSize)
                         .arg(box.Lines)
                         .arg(int(box.State));
        return boxes;
    }
    /// Everything in the export's folder, including hidden files.
    QStringList everythingIn() const
    {
        QStringList found;
        QDirIterator each(folder.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (each.hasNext())
            found << each.next();
        return found;
    }

    /// Exports the claim and compares the forecast with the files in the folder and the reports.
    void expectAsExported(const clsForecast &told)
    {
        keepsSheets = true;
        clsFittedObserver observer;
        clsExport exported {.form = form, .templatesFolder = templates};
        exported.keepsSheets = true;
        {
            const clsMSWordObserverScope scope(observer);
            ASSERT_TRUE(mdExportDriver(form.FormType())(exported));
        }
        QStringList order;
        for (const QString &file : exported.ExportFileCollection) {
            EXPECT_TRUE(QFileInfo::exists(file)) << qPrintable(file);
            order << QFileInfo(file).completeBaseName();
        }
        EXPECT_EQ(order, namesIn(told));
        QStringList boxes = boxesIn(told);
        QStringList fitted = observer.told;
        // The texts of a sheet that is overwritten are lost; a sheet that is opened again reports in a different order.
        boxes.sort();
        fitted.sort();
        EXPECT_EQ(fitted, boxes);
    }

    /// A text of that many words, sometimes with a line break.
    static QString text(QRandomGenerator &random, int words)
    {
        QString text;
        for (int i = 0; i < words; ++i)
            text += QString(random.bounded(1, 14), u'n') + (random.bounded(6) == 0 ? "\r\n" : " ");
        return text.trimmed();
    }
    void makeUp(int seed)
    {
        QRandomGenerator random {quint32(seed)};
        form.FormType = seed % 2 == 0 ? QStringLiteral("Claim1") : QStringLiteral("Claim1A");
        addItems(random.bounded(80));
        for (int i = random.bounded(12); i > 0; --i)
            addItem(words(random.bounded(1, 400)));
        addFees(random.bounded(50));
        addExperts(random.bounded(50));
        addJointInstructions(random.bounded(34));
        for (int i = random.bounded(30); i > 0; --i)
            addDisbursement(text(random, random.bounded(1, 12)));
        addHearings(random.bounded(30));
        form.DetailsOfWork.DetailsOfCase = text(random, random.bounded(300));
        form.DetailsOfCostsAwarded.AddressOfService = text(random, random.bounded(12));
        form.DebtorsDetails.Address = text(random, random.bounded(12));
        form.DebtorsDetails.Information = text(random, random.bounded(120));
        form.LateSubmission.Explanation = text(random, random.bounded(90));
        form.IncludePanelMembershipContSheet = random.bounded(2) == 1;
    }
};

} // namespace

TEST_F(Forecast, TellsTheSheetsOfEverySampleInTheirOrder)
{
    const QStringList samples = QDir(mdSampleFolder()).entryList({QStringLiteral("*.zr3")}, QDir::Files);
    ASSERT_EQ(15, samples.size());
    for (const QString &sample : samples) {
        SCOPED_TRACE(qPrintable(sample));
        const QJsonObject account = QJsonDocument::fromJson(
            bytesOf(mdSamplePath(QFileInfo(sample).completeBaseName() + QStringLiteral(".sheets.json"))))
                                        .object();
        clsZR3Form claim;
        ASSERT_TRUE(claim.LoadXML(mdSamplePath(sample)));
        const clsForecast told = mdForecast(claim, templates);
        QStringList order;
        for (const QJsonValue name : account[QLatin1String("CombinedOrder")].toArray())
            order << name.toString().chopped(4); // .doc
        ASSERT_FALSE(order.isEmpty());
        EXPECT_EQ(order, namesIn(told));
        EXPECT_EQ(order.size(), told.SheetCount());
        EXPECT_EQ(order.size(), told.PaperPages());
        QHash<QString, QString> templateOf;
        for (const QJsonValue sheet : account[QLatin1String("Sheets")].toArray())
            templateOf[sheet[QLatin1String("Name")].toString()] = sheet[QLatin1String("Template")].toString();
        for (const clsForecast::Sheet &sheet : told.Sheets) {
            EXPECT_EQ(templateOf.value(sheet.Name), sheet.Template);
            EXPECT_TRUE(sheet.Name.startsWith(QString::number(sheet.Page) + u'('));
        }
        EXPECT_FALSE(told.Fails);
        EXPECT_TRUE(told.Messages.empty());
    }
}

TEST_F(Forecast, TellsWhatAnExportOfMadeUpClaimsGives)
{
    for (int seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        form.takeCopyOf(clsZR3Form());
        m_feeEarner.clear();
        form.ExportPath = folder.path();
        makeUp(seed);
        const clsForecast told = forecast();
        expectAsExported(told);
    }
}

TEST_F(Forecast, LeavesTheClaimByteForByteAndTheFolderEmpty)
{
    makeUp(3);
    const auto item = addItem();
    item->SOTItemNumber = 1700; // which an export renumbers
    switchLogOn();
    const QStringList folderBefore = everythingIn();
    const QString before = form.XMLOutput();
    const clsForecast told = forecast();
    EXPECT_GT(told.SheetCount(), 10);
    EXPECT_TRUE(before == form.XMLOutput());
    EXPECT_EQ(1700, item->SOTItemNumber);
    EXPECT_EQ(folderBefore, everythingIn());
    EXPECT_EQ(QStringList(), logLines());
    EXPECT_TRUE(user.progress.empty());
    EXPECT_TRUE(exportClaim());
    EXPECT_NE(1700, item->SOTItemNumber);
}

TEST_F(Forecast, NeedsNoExportFolder)
{
    form.ExportPath = QStringLiteral("/no/such/folder");
    const clsForecast told = forecast();
    EXPECT_FALSE(told.Fails);
    EXPECT_EQ(QStringLiteral("1(1)"), namesIn(told).value(0));
}

TEST_F(Forecast, AnEmptyClaimHasOneSheetForEachPage)
{
    EXPECT_EQ(names("1(1) 2(1) 3(1) 4(1) 5(1) 6(1) 7(1) 8(1) 9(1) 10(1)"), namesIn(forecast()));
    EXPECT_EQ(10, forecast().PaperPages());
    EXPECT_TRUE(forecast().Boxes.empty());
}

TEST_F(Forecast, TenThousandItemsTakeThirtyThreeToASheet)
{
    includeOnly({1, 5});
    addItems(10'000);
    const clsForecast told = forecast();
    EXPECT_EQ(1 + 304, told.SheetCount()); // 303 full sheets and one item
    EXPECT_EQ(QStringLiteral("5(304)"), told.Sheets.back().Name);
}

TEST_F(Forecast, ASheetThatStandsTwiceIsToldTwice)
{
    includeOnly({1, 7});
    addJointInstructions(15);
    addDisbursements(13);
    EXPECT_EQ(names("1(1) 7(1) 7(2) 7(2)"), namesIn(forecast()));
}

TEST_F(Forecast, TellsTheBoxAndThePropertyBehindIt)
{
    includeOnly({1, 3, 9, 10});
    // The box holds two lines at its normal size.
    form.DebtorsDetails.Address = QStringLiteral("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8");
    QString lines = QStringLiteral("a");
    for (int i = 0; i < 59; ++i)
        lines += QStringLiteral("\r\na");
    form.DetailsOfWork.DetailsOfCase = lines;
    const clsForecast told = forecast();
    ASSERT_EQ(2U, told.Boxes.size());
    const clsForecast::Box &work = told.Boxes[0];
    EXPECT_EQ(QStringLiteral("3(1)"), work.Sheet);
    EXPECT_EQ(QStringLiteral("{detailsofcase}"), work.Placeholder);
    EXPECT_EQ(QStringLiteral("DetailsOfWork.DetailsOfCase"), work.Property);
    EXPECT_EQ(0, work.Row);
    EXPECT_EQ(0, work.Column);
    EXPECT_EQ(10, work.Size);
    EXPECT_EQ(6, work.PrintedSize);
    EXPECT_EQ(60, work.Lines);
    EXPECT_EQ(clsForecast::Box::RunsOn, work.State);
    const clsForecast::Box &address = told.Boxes[1];
    EXPECT_EQ(QStringLiteral("10(1)"), address.Sheet);
    EXPECT_EQ(QStringLiteral("{address}"), address.Placeholder);
    EXPECT_EQ(QStringLiteral("DebtorsDetails.Address"), address.Property);
    EXPECT_EQ(8, address.Lines);
    EXPECT_EQ(4, told.SheetCount());
    EXPECT_EQ(5, told.PaperPages()); // page 3 runs on, page 10 has room for a row that grows
}

TEST_F(Forecast, TellsTheCellOfAGrid)
{
    includeOnly({1, 7});
    addDisbursements(13);
    const auto disbursement = form.NonCounselDisbursement(13);
    disbursement->Description = QStringLiteral("one\r\ntwo\r\nthree\r\nfour");
    const clsForecast told = forecast();
    ASSERT_EQ(1U, told.Boxes.size());
    EXPECT_EQ(QStringLiteral("7(2)"), told.Boxes[0].Sheet);
    EXPECT_EQ(QString(), told.Boxes[0].Placeholder);
    EXPECT_EQ(QStringLiteral("Description"), told.Boxes[0].Property);
    EXPECT_EQ(1, told.Boxes[0].Row);
    EXPECT_EQ(1, told.Boxes[0].Column);
    EXPECT_EQ(4, told.Boxes[0].Lines);
}

TEST_F(Forecast, EveryFieldOfAPageIsKnownByItsProperty)
{
    // For each sheet all placeholders of fields, whether the text fits or not.
    for (const char *formType : {"Claim1", "Claim1A"}) {
        form.FormType = QString::fromLatin1(formType);
        ASSERT_TRUE(exportClaim());
        for (auto field = run->fields.begin(); field != run->fields.end(); ++field) {
            const QStringList parts = field.value().split(u'.');
            ASSERT_LE(parts.size(), 2) << qPrintable(field.value());
            const QString element = parts.join(u'/').toLower();
            EXPECT_FALSE(form.XMLNode().first_element_by_path(element.toLatin1().constData()).empty())
                << qPrintable(field.value());
        }
        EXPECT_GT(run->fields.size(), 90);
    }
}

TEST_F(Forecast, AnErrorOfAFigureIsTheExports)
{
    addItem()->FeeEarnerUniqueID = QStringLiteral("ID999");
    const clsForecast told = forecast();
    EXPECT_TRUE(told.Fails);
    EXPECT_TRUE(told.Sheets.empty());
    ASSERT_TRUE(told.Error);
    std::optional<clsRunTimeError> exported;
    try {
        exportClaim();
    } catch (const clsRunTimeError &error) {
        exported = error;
    }
    ASSERT_TRUE(exported);
    EXPECT_EQ(exported->number(), told.Error->number());
    EXPECT_EQ(exported->cause(), told.Error->cause());
    EXPECT_FALSE(told.Error->cause().isEmpty());
}

TEST_F(Forecast, AMessageThatStopsTheExportIsToldByNoBox)
{
    addItem(note(49));
    const clsForecast told = forecast();
    EXPECT_TRUE(told.Fails);
    EXPECT_TRUE(user.messages.empty());
    ASSERT_EQ(1U, told.Messages.size());
    EXPECT_EQ(QStringLiteral("Additional Information"), told.Messages[0].Title);
    EXPECT_TRUE(told.Messages[0].Text.startsWith(QStringLiteral("Item 1 has a description of 49 lines.")));
}

TEST_F(Forecast, AFormTypeWithoutPagesFails)
{
    form.FormType = QStringLiteral("Claim2");
    const clsForecast told = forecast();
    EXPECT_TRUE(told.Fails);
    ASSERT_EQ(1U, told.Messages.size());
    EXPECT_EQ(QStringLiteral("There are no pages for the form type \"Claim2\" of this claim."), told.Messages[0].Text);
}

TEST_F(Forecast, AMissingTemplateFails)
{
    templates = folder.path();
    EXPECT_TRUE(forecast().Fails);
    EXPECT_TRUE(forecast().Error);
}

TEST_F(Forecast, TheReportsTellTheSame)
{
    clsForecast told;
    told.Sheets = {{1, QStringLiteral("1(1)"), QStringLiteral("Claim1 P1"), 1},
        {3, QStringLiteral("3(1)"), QStringLiteral("Claim1 P3"), 2}};
    told.Boxes = {{QStringLiteral("3(1)"), QStringLiteral("{detailsofcase}"),
                      QStringLiteral("DetailsOfWork.DetailsOfCase"), 0, 0, 10, 6, 60, clsForecast::Box::RunsOn},
        {QStringLiteral("7(2)"), QString(), QStringLiteral("Description"), 3, 1, 8.5, 7, 1, clsForecast::Box::Smaller},
        {QStringLiteral("7(2)"), QString(), QString(), 3, 2, 8, 8, 2, clsForecast::Box::Cut}};
    EXPECT_EQ(
        "{\n"
        " \"Sheets\": [\n"
        "  {\n   \"Page\": 1,\n   \"Sheet\": \"1(1)\",\n   \"Template\": \"Claim1 P1\",\n   \"PaperPages\": 1\n  },\n"
        "  {\n   \"Page\": 3,\n   \"Sheet\": \"3(1)\",\n   \"Template\": \"Claim1 P3\",\n   \"PaperPages\": 2\n  }\n"
        " ],\n"
        " \"SheetCount\": 2,\n"
        " \"PaperPages\": 3,\n"
        " \"Boxes\": [\n"
        "  {\n   \"Sheet\": \"3(1)\",\n   \"Placeholder\": \"{detailsofcase}\",\n"
        "   \"Property\": \"DetailsOfWork.DetailsOfCase\",\n   \"Row\": 0,\n   \"Column\": 0,\n   \"Size\": 10,\n"
        "   \"PrintedSize\": 6,\n   \"Lines\": 60,\n   \"State\": \"runs on\"\n  },\n"
        "  {\n   \"Sheet\": \"7(2)\",\n   \"Placeholder\": \"\",\n"
        "   \"Property\": \"Description\",\n   \"Row\": 3,\n   \"Column\": 1,\n   \"Size\": 8.5,\n"
        "   \"PrintedSize\": 7,\n   \"Lines\": 1,\n   \"State\": \"smaller\"\n  },\n"
        "  {\n   \"Sheet\": \"7(2)\",\n   \"Placeholder\": \"\",\n"
        "   \"Property\": \"\",\n   \"Row\": 3,\n   \"Column\": 2,\n   \"Size\": 8,\n"
        "   \"PrintedSize\": 8,\n   \"Lines\": 2,\n   \"State\": \"cut\"\n  }\n"
        " ]\n"
        "}\n",
        mdForecastAsJson(told));
    EXPECT_EQ(QStringLiteral("Sheet     Pages  Template\r\n"
                             "1(1)          1  Claim1 P1\r\n"
                             "3(1)          2  Claim1 P3\r\n"
                             "2 sheets, 3 paper pages\r\n"
                             "\r\n"
                             "Not printed at its own size\r\n"
                             "3(1)      DetailsOfWork.DetailsOfCase: 60 lines, 6 points instead of 10, runs on\r\n"
                             "7(2)      row 3, column 1 (Description): 1 line, 7 points instead of 8.5\r\n"
                             "7(2)      row 3, column 2: 2 lines, cut\r\n"),
        mdForecastAsTable(told));
}
