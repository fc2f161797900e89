#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"
#include "tests/support/mdOrdinaryUser.h"
#include "wordexport/document/mdCheckDocument.h"
#include "wordexport/document/mdWordXml.h"
#include "wordexport/mdExportWordClaim1.h"
#include "wordexport/mdShippedTemplates.h"

#include <QDate>

#include <functional>

// The driver of an export: which pages are printed, what is reported, and what a failure leaves.

namespace {

class Driver : public clsExportTest {
protected:
    /// Copies all templates to a folder where they can be damaged.
    void copyTemplates()
    {
        templates = path(QStringLiteral("templates"));
        ASSERT_TRUE(QDir().mkpath(templates));
        for (const QString &file : QDir(TestTemplates).entryList({QStringLiteral("*.doc")}))
            ASSERT_TRUE(QFile::copy(TestTemplates + u'/' + file, templates + u'/' + file));
    }
    /// Changes one part of a template.
    void spoil(const char *name, const char *part, const std::function<QByteArray(const QByteArray &)> &spoilt)
    {
        const QString file = templates + u'/' + QLatin1String(name);
        clsZipPackage zip = clsZipPackage::fromFile(file);
        const int index = zip.indexOf(QLatin1String(part));
        ASSERT_GE(index, 0) << part;
        const QByteArray before = zip.bytes(index);
        zip.setBytes(index, spoilt(before));
        ASSERT_NE(before, zip.bytes(index)) << part;
        put(file, zip.toBytes(clsZipPackage::Deflated));
    }
    /// The message of the error that ends an export; empty if there is none.
    QString wordsOfError()
    {
        try {
            exportClaim();
        } catch (const clsRunTimeError &error) {
            EXPECT_EQ(clsRunTimeError::InvalidFileFormat, error.number());
            return error.description();
        }
        return {};
    }
    /// The cause of the error that ends an export; empty if there is none.
    QString causeOfExport()
    {
        try {
            exportClaim();
        } catch (const clsRunTimeError &error) {
            return error.cause();
        }
        return {};
    }
    static QByteArray mainPartOf(const QString &file)
    {
        clsWordPackage package = clsWordPackage::fromFile(file);
        return package.currentBytes(package.mainPart());
    }
};

const QStringList FirstSheets = {
    QStringLiteral("1(1)"),
    QStringLiteral("2(1)"),
    QStringLiteral("3(1)"),
    QStringLiteral("4(1)"),
    QStringLiteral("5(1)"),
    QStringLiteral("6(1)"),
    QStringLiteral("7(1)"),
    QStringLiteral("8(1)"),
    QStringLiteral("9(1)"),
    QStringLiteral("10(1)"),
};

TEST_F(Driver, AnEmptyClaimGivesOneSheetForEachPage)
{
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(FirstSheets, recorder->order());
    EXPECT_EQ(finished(), mdFinishedDocumentPath(form.ExportPath(), form.FormType()));
    EXPECT_TRUE(QFileInfo::exists(finished()));
    EXPECT_EQ(1, user.progressCleared);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Driver, OnlyPage1Included)
{
    includeOnly({1});
    keepsSheets = true;
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(QStringList {QStringLiteral("1(1)")}, recorder->order());
    EXPECT_EQ(QStringList {QStringLiteral("1(1).doc")}, recorder->combinedOrder());
    // The backspace at the start of the document has no effect.
    EXPECT_EQ(1, recorder->backSpaces);
    EXPECT_EQ(mainPartOf(temporary() + QStringLiteral("/1(1).doc")), mainPartOf(finished()));
}

TEST_F(Driver, EachPageCanBeLeftOut)
{
    for (int left = 2; left <= 10; ++left) {
        includeOnly({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        form.field(QStringLiteral("IncludePage%1").arg(left))->writeBoolean(false);
        EXPECT_TRUE(exportClaim());
        QStringList expected = FirstSheets;
        expected.removeAt(left - 1);
        EXPECT_EQ(expected, recorder->order()) << left;
    }
}

TEST_F(Driver, PagesBeyondTheTenthMakeNoDifference)
{
    includeOnly({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(FirstSheets, recorder->order());
}

TEST_F(Driver, ProgressCountsToElevenWhetherOrNotAPageIsIncluded)
{
    includeOnly({1, 4});
    addFees(2);
    addItem(QStringLiteral("Not printed: its pages are left out"));
    EXPECT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("Exporting Page 1 1/11"),
        QStringLiteral("Exporting Page 2 2/11"),
        QStringLiteral("Exporting Page 3 3/11"),
        QStringLiteral("Exporting Page 4 4/11"),
        QStringLiteral("Exporting Page 4 1/2"),
        QStringLiteral("Exporting Page 4 2/2"),
        QStringLiteral("Exporting Page 5 5/11"),
        QStringLiteral("Exporting Page 6 6/11"),
        QStringLiteral("Exporting Page 7 7/11"),
        QStringLiteral("Exporting Page 8 8/11"),
        QStringLiteral("Exporting Page 9 9/11"),
        QStringLiteral("Exporting Page 10 10/11"),
        QStringLiteral("Combining Documents 2/2"),
    };
    EXPECT_EQ(expected, steps());
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(Driver, ProgressOfRowsAndContinuationSheets)
{
    includeOnly({1, 3, 5, 7});
    form.DetailsOfWork.DetailsOfCase = words(3000);
    addItems(2);
    addJointInstructions(1);
    addDisbursements(2);
    EXPECT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("Exporting Page 1 1/11"),
        QStringLiteral("Exporting Page 2 2/11"),
        QStringLiteral("Exporting Page 3 3/11"),
        QStringLiteral("Exporting Page 3 Continuation Sheet 2 1/2"),
        QStringLiteral("Exporting Page 3 Continuation Sheet 3 2/2"),
        QStringLiteral("Exporting Page 4 4/11"),
        QStringLiteral("Exporting Page 5 5/11"),
        QStringLiteral("Exporting Page 5 1/2"),
        QStringLiteral("Exporting Page 5 2/2"),
        QStringLiteral("Exporting Page 6 6/11"),
        QStringLiteral("Exporting Page 7 7/11"),
        QStringLiteral("Exporting Page 7 1/1"),
        QStringLiteral("Exporting Page 7 1/2"),
        QStringLiteral("Exporting Page 7 2/2"),
        QStringLiteral("Exporting Page 8 8/11"),
        QStringLiteral("Exporting Page 9 9/11"),
        QStringLiteral("Exporting Page 10 10/11"),
        QStringLiteral("Combining Documents 2/6"),
        QStringLiteral("Combining Documents 3/6"),
        QStringLiteral("Combining Documents 4/6"),
        QStringLiteral("Combining Documents 5/6"),
        QStringLiteral("Combining Documents 6/6"),
    };
    EXPECT_EQ(expected, steps());
}

TEST_F(Driver, LogsEachStep)
{
    switchLogOn();
    includeOnly({1, 3});
    form.IncludePanelMembershipContSheet = true;
    EXPECT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("Begin Export Word Claim1"),
        QStringLiteral("Begin Create Export Temp Folder"),
        QStringLiteral("Begin Clear Export Temp Folder"),
        QStringLiteral("End Clear Export Temp Folder"),
        QStringLiteral("End Create Export Temp Folder"),
        QStringLiteral("Begin Export Word Claim1 Page 1"),
        QStringLiteral("Begin Export Copy Template"),
        QStringLiteral("End Export Copy Template"),
        QStringLiteral("End Export Word Claim1 Page 1"),
        // A page that is left out has no end line.
        QStringLiteral("Begin Export Word Claim1 Page 2"),
        QStringLiteral("Begin Export Word Claim1 Page 3"),
        QStringLiteral("Begin Export Copy Template"),
        QStringLiteral("End Export Copy Template"),
        QStringLiteral("Begin Export Word Panel Membership Overrun"),
        QStringLiteral("Begin Export Copy Template"),
        QStringLiteral("End Export Copy Template"),
        // The panel sheet logs its page's end line, so that line appears twice.
        QStringLiteral("End Export Word Claim1 Page 3"),
        QStringLiteral("End Export Word Claim1 Page 3"),
        QStringLiteral("Begin Export Word Claim1 Page 4"),
        QStringLiteral("Begin Export Word Claim1 Page 5"),
        QStringLiteral("Begin Export Word Claim1 Page 6"),
        QStringLiteral("Begin Export Word Claim1 Page 7"),
        QStringLiteral("Begin Export Word Claim1 Page 8"),
        QStringLiteral("Begin Export Word Claim1 Page 9"),
        QStringLiteral("Begin Export Word Claim1 Page 10"),
        QStringLiteral("Begin Export Word Combine Documents"),
        QStringLiteral("End Export Word Combine Documents"),
        QStringLiteral("Begin Clear Export Temp Folder"),
        QStringLiteral("End Clear Export Temp Folder"),
        QStringLiteral("End Export Word Claim1"),
    };
    EXPECT_EQ(expected, logLines());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Driver, TheListsAreBuiltAnewForEachExport)
{
    includeOnly({1, 5});
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(0, recorder->countOf(QStringLiteral("5(1)"), QStringLiteral("cell")));
    addItems(1);
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1"), recorder->rows(QStringLiteral("5(1)")).value(0).value(0));
}

TEST_F(Driver, LeftoversInTheTemporaryFolderAreSweptBeforeTheFirstSheet)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("~ZR3Temp")));
    put(temporary() + QStringLiteral("/2(1).doc"), "of an export that died");
    put(temporary() + QStringLiteral("/anything.txt"), "else");
    includeOnly({1});
    keepsSheets = true;
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(QStringList {QStringLiteral("1(1).doc")}, QDir(temporary()).entryList(QDir::Files | QDir::Hidden));
}

TEST_F(Driver, OnlyTheFinishedDocumentIsLeft)
{
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(QStringList {QStringLiteral("Claim1.doc")},
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST_F(Driver, AnOlderDocumentIsReplaced)
{
    put(finished(), "the older one");
    EXPECT_TRUE(exportClaim());
    EXPECT_TRUE(bytesOf(finished()).startsWith("PK"));
}

TEST_F(Driver, TheFinishedDocumentIsNamedAfterTheFormType)
{
    EXPECT_EQ(path(QStringLiteral("Claim1.doc")), mdFinishedDocumentPath(form.ExportPath(), form.FormType()));
    form.FormType = QStringLiteral("Claim1A");
    EXPECT_EQ(path(QStringLiteral("Claim1A.doc")), mdFinishedDocumentPath(form.ExportPath(), form.FormType()));
}

TEST_F(Driver, TheFirstSheetIsTakenForGranted)
{
    put(finished(), "as it was");
    includeOnly({2, 3});
    EXPECT_EQ(clsRunTimeError::FileNotFound, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
    EXPECT_TRUE(QFileInfo::exists(temporary() + QStringLiteral("/2(1).doc"))) << "the sheets stay behind";
}

TEST_F(Driver, AMissingTemplateEndsTheExportAndLeavesTheDocumentAsItWas)
{
    copyTemplates();
    ASSERT_TRUE(QFile::remove(templates + QStringLiteral("/Claim1 P3.doc")));
    put(finished(), "as it was");
    EXPECT_EQ(clsRunTimeError::FileNotFound, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
    const QStringList left = {QStringLiteral("1(1).doc"), QStringLiteral("2(1).doc")};
    EXPECT_EQ(left, QDir(temporary()).entryList(QDir::Files | QDir::Hidden)) << "the temporary folder stays behind";

    // The next export clears it.
    templates = TestTemplates;
    EXPECT_TRUE(exportClaim());
    EXPECT_FALSE(QFileInfo::exists(temporary()));
    EXPECT_TRUE(bytesOf(finished()).startsWith("PK"));
}

TEST_F(Driver, ATemplateThatIsNotNeededMayBeMissing)
{
    copyTemplates();
    ASSERT_TRUE(QFile::remove(templates + QStringLiteral("/Claim1 P3 Panel Membership Cont.doc")));
    EXPECT_TRUE(exportClaim());
    form.IncludePanelMembershipContSheet = true;
    EXPECT_EQ(clsRunTimeError::FileNotFound, errorOf([&] { exportClaim(); }));
}

TEST_F(Driver, ADamagedTemplateEndsTheExportAndLeavesTheDocumentAsItWas)
{
    copyTemplates();
    put(finished(), "as it was");
    put(templates + QStringLiteral("/Claim1 P4.doc"), "no document");
    EXPECT_NE(0, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
}

TEST_F(Driver, TheTemplatesOfTheBuildAreSoundAndKnown)
{
    const QFileInfoList files = QDir(TestTemplates).entryInfoList({QStringLiteral("*.doc")});
    ASSERT_EQ(46, files.size());
    for (const QFileInfo &file : files) {
        EXPECT_TRUE(mdIsShippedTemplate(bytesOf(file.filePath()))) << qPrintable(file.fileName());
        clsWordPackage package = clsWordPackage::fromFile(file.filePath());
        EXPECT_EQ(0, errorOf([&] { mdCheckDocument(package); })) << qPrintable(file.fileName());
    }
}

TEST_F(Driver, ATemplateThatIsNotWellFormedEndsTheExportAndIsNamed)
{
    struct Row {
        const char *part;
        QByteArray (*spoilt)(const QByteArray &);
    };
    const Row rows[] = {
        {"word/settings.xml", [](const QByteArray &) { return QByteArray(); }},
        {"word/settings.xml", [](const QByteArray &xml) { return xml.left(xml.size() / 2); }},
        {"docProps/core.xml", [](const QByteArray &) { return QByteArray(); }},
        {"docProps/core.xml", [](const QByteArray &xml) { return xml.left(xml.size() / 2); }},
        {"word/styles.xml", [](const QByteArray &xml) { return xml + "more"; }},
        {"word/document.xml",
            [](const QByteArray &xml) { return QByteArray(xml).replace("<w:body", "<w:body w:a=\"\" w:a=\"\""); }},
        {"word/document.xml",
            [](const QByteArray &xml) { return QByteArray(xml).replace("{ctotal}", "\x01{ctotal}"); }},
        {"word/document.xml",
            [](const QByteArray &xml) { return QByteArray(xml).replace("{ctotal}", "\xFF{ctotal}"); }},
        {"word/document.xml", [](const QByteArray &xml) { return QByteArray(xml).replace("{ctotal}", "&b;{ctotal}"); }},
        {"word/document.xml",
            [](const QByteArray &xml) { return QByteArray(xml).replace("<w:body>", "<w:body><x:y/>"); }},
        {"_rels/.rels", [](const QByteArray &xml) { return xml + "<!-- -- -->"; }},
        {"[Content_Types].xml", [](const QByteArray &xml) { return xml + '\0'; }},
    };
    put(finished(), "as it was");
    for (const Row &row : rows) {
        copyTemplates();
        spoil("Claim1 P4.doc", row.part, row.spoilt);
        EXPECT_EQ(QStringLiteral("The document Claim1 P4.doc is damaged: its part %1 can't be read.").arg(row.part),
            wordsOfError());
        EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
        EXPECT_TRUE(user.messages.empty());
        QDir(templates).removeRecursively();
    }
}

TEST_F(Driver, ATemplateThatRefersToNothingEndsTheExportAndIsNamed)
{
    const QString words = QStringLiteral(
        "The document Claim1 P4.doc is damaged: its part word/document.xml refers to a part that is missing.");
    copyTemplates();
    spoil("Claim1 P4.doc", "word/_rels/document.xml.rels",
        [](const QByteArray &xml) { return QByteArray(xml).replace("settings.xml", "fittings.xml"); });
    EXPECT_EQ(words, wordsOfError());
    QDir(templates).removeRecursively();

    copyTemplates();
    spoil("Claim1 P4.doc", "word/document.xml", [](const QByteArray &xml) {
        return QByteArray(xml).replace("<w:body>",
            QByteArray("<w:body><w:p><w:r><w:object xmlns:q=\"") + WordXml::RelationshipNamespace
                + "\" q:id=\"rId99\"/></w:r></w:p>");
    });
    EXPECT_EQ(words, wordsOfError());
    EXPECT_FALSE(QFileInfo::exists(finished()));
}

TEST_F(Driver, ATemplateThatAFirmHasChangedIsTaken)
{
    copyTemplates();
    spoil("Claim1 P1.doc", "word/document.xml",
        [](const QByteArray &xml) { return QByteArray(xml).replace("<w:body>", "<w:body><w:p/><!-- ours -->"); });
    includeOnly({1});
    EXPECT_TRUE(exportClaim());
    EXPECT_TRUE(mainPartOf(finished()).contains("<!-- ours -->"));
}

TEST_F(Driver, ATemplateThatCannotBeJoinedIsNamedAndNotItsCopy)
{
    copyTemplates();
    spoil("Claim1 P8.doc", "word/document.xml", [](const QByteArray &xml) {
        return QByteArray(xml).replace("<w:body>", "<w:body><w:p><w:r><w:footnoteReference w:id=\"2\"/></w:r></w:p>");
    });
    includeOnly({1, 8});
    EXPECT_TRUE(exportClaim());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_TRUE(user.messages[0].text.contains(QLatin1String("The document Claim1 P8.doc holds footnotes")))
        << qPrintable(user.messages[0].text);
}

TEST_F(Driver, ATemporaryFolderThatCannotBeMadeEndsTheExport)
{
    put(temporary(), "a file in the way");
    EXPECT_EQ(clsRunTimeError::PathFileAccess, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QStringLiteral("The sheets can't be written to the folder ") + folder.path(), causeOfExport());
    EXPECT_EQ(QByteArray("a file in the way"), bytesOf(temporary()));
    EXPECT_FALSE(QFileInfo::exists(finished()));

    form.ExportPath = path(QStringLiteral("no such folder"));
    EXPECT_NE(0, errorOf([&] { exportClaim(); }));
}

TEST_F(Driver, NobodyElsesFilesAreSwept)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("letters")));
    put(path(QStringLiteral("letters/dear.txt")), "sir");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("letters")), temporary()));
    EXPECT_NE(0, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("sir"), bytesOf(path(QStringLiteral("letters/dear.txt"))));
}

TEST_F(Driver, AFolderUnderTheFinishedNameIsAnErrorAndStays)
{
    ASSERT_TRUE(QDir().mkpath(finished()));
    includeOnly({1});
    EXPECT_NE(0, errorOf([&] { exportClaim(); }));
    EXPECT_TRUE(QFileInfo(finished()).isDir());
    EXPECT_EQ(QStringLiteral("The document can't be written: ") + finished(), causeOfExport());
}

TEST_F(Driver, AWriteProtectedDocumentStays)
{
    copyTemplates(); // where every user can read them
    includeOnly({1});
    put(finished(), "as it was");
    const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup
        | QFile::ReadOther | QFile::WriteOther;
    const auto search = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(folder.path(), everybody | search));
    const auto exported = [&] { return errorOf([&] { exportClaim(); }); };
    ASSERT_TRUE(QFile::setPermissions(finished(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    EXPECT_EQ(clsRunTimeError::PermissionDenied, resultAsOrdinaryUser(exported));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
    // Only the document's protection prevented the export.
    ASSERT_TRUE(QFile::setPermissions(finished(), everybody));
    EXPECT_EQ(0, resultAsOrdinaryUser(exported));
    EXPECT_TRUE(bytesOf(finished()).startsWith("PK"));
}

TEST_F(Driver, WhoMayReadADocumentStaysAsItWas)
{
    put(finished(), "private");
    ASSERT_TRUE(QFile::setPermissions(finished(), QFile::ReadOwner | QFile::WriteOwner));
    includeOnly({1});
    EXPECT_TRUE(exportClaim());
    EXPECT_TRUE(bytesOf(finished()).startsWith("PK"));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(finished()) & others);
}

TEST_F(Driver, WhereTheFinishedNameIsALinkItsDocumentIsReplaced)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("shared")));
    put(path(QStringLiteral("shared/real.doc")), "as it was");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("shared/real.doc")), finished()));
    includeOnly({1});
    EXPECT_TRUE(exportClaim());
    EXPECT_TRUE(QFileInfo(finished()).isSymLink());
    EXPECT_TRUE(bytesOf(path(QStringLiteral("shared/real.doc"))).startsWith("PK"));
}

TEST_F(Driver, AFailureOnAPageIsToldOnceAndTheExportGoesOn)
{
    includeOnly({1, 9});
    form.PreviousAdvice.TotalCostsIncurred = QStringLiteral("about ten pounds");
    form.DetailsOfCostsAwarded.PreCertificateCosts = QStringLiteral("first of its page");
    form.DetailsOfCostsAwarded.InterestOnAllCosts = QStringLiteral("second of its page: not told");
    EXPECT_TRUE(exportClaim());

    ASSERT_EQ(2u, user.messages.size()) << "one for each page's word processor";
    EXPECT_EQ(QStringLiteral("Word Automation Error"), user.messages[0].title);
    EXPECT_EQ(
        QStringLiteral("An error has occured during Word automation. If the problem persists please contact Velmor "
                       "technical support via stating the following details:\r\n"
                       "\r\n"
                       "Error Number: 13\r\n"
                       "Error Description: Type mismatch\r\n"
                       "Subroutine: SetText"),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_EQ(0, user.messages[0].icon);
    // These placeholders remain in the document; all others are replaced.
    const QStringList left
        = {QStringLiteral("{totalcostsincurred}"), QStringLiteral("{precertcosts}"), QStringLiteral("{interest}")};
    EXPECT_EQ(left, mdPlaceholdersIn(finished()));
}

/// Deletes a sheet's file when the sheets are being joined.
class clsSheetThief : public clsMSWordObserver {
public:
    explicit clsSheetThief(const QString &sheet)
        : m_sheet(sheet)
    { }
    void opened(const QString &path) override
    {
        if (path.endsWith(QLatin1String("Joined.doc")))
            QFile::remove(m_sheet);
    }

private:
    QString m_sheet;
};

TEST_F(Driver, ALostSheetIsToldAndTheRestIsJoined)
{
    includeOnly({1, 8, 9});
    clsExport lossy {.form = form, .templatesFolder = templates};
    clsSheetThief thief(temporary() + QStringLiteral("/8(1).doc"));
    const clsMSWordObserverScope scope(thief);
    EXPECT_TRUE(mdExportWordClaim1(lossy));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_TRUE(user.messages[0].text.endsWith(QLatin1String("Subroutine: InsertFileAtEnd")))
        << qPrintable(user.messages[0].text);
    const QString text = mdDocumentText(finished());
    EXPECT_TRUE(text.contains(QLatin1String("Costs awarded")));
    EXPECT_FALSE(text.contains(QLatin1String("Letters and calls")));
}

TEST_F(Driver, ALostSheetStopsAnExportThatAsksForThat)
{
    includeOnly({1, 8, 9});
    put(finished(), "as it was");
    clsExport careful {.form = form, .templatesFolder = templates};
    careful.stopsAtLostSheet = true;
    clsSheetThief thief(temporary() + QStringLiteral("/8(1).doc"));
    const clsMSWordObserverScope scope(thief);
    EXPECT_FALSE(mdExportWordClaim1(careful));
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
}

/// Creates a folder in place of the joined document when it is about to be saved.
class clsSaveBlocker : public clsMSWordObserver {
public:
    explicit clsSaveBlocker(const QString &joined)
        : m_joined(joined)
    { }
    void backSpace() override { blocked = QFile::remove(m_joined) && QDir().mkpath(m_joined); }

    bool blocked = false;

private:
    QString m_joined;
};

TEST_F(Driver, AJoinedDocumentThatCanNotBeSavedIsNeverGivenTheFinishedName)
{
    includeOnly({1, 8});
    for (const bool stops : {false, true})
        for (const bool older : {false, true}) {
            SCOPED_TRACE(testing::Message() << stops << older);
            user.messages.clear();
            QDir(temporary()).removeRecursively();
            if (older)
                put(finished(), "as it was");
            clsExport exporting {.form = form, .templatesFolder = templates};
            exporting.stopsAtLostSheet = stops;
            clsSaveBlocker blocker(temporary() + QStringLiteral("/Joined.doc"));
            const clsMSWordObserverScope scope(blocker);
            EXPECT_FALSE(mdExportWordClaim1(exporting));
            EXPECT_TRUE(blocker.blocked);
            ASSERT_EQ(1u, user.messages.size());
            EXPECT_TRUE(user.messages[0].text.endsWith(QLatin1String("Subroutine: SaveAndClose")));
            EXPECT_EQ(older ? QByteArray("as it was") : QByteArray("(no file)"), bytesOf(finished()));
            QFile::remove(finished());
        }
}

TEST_F(Driver, AFolderAmongTheSheetsStopsTheExportBeforeAnythingIsSwept)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("~ZR3Temp/letters")));
    for (const char *name : {"/a.txt", "/m.txt", "/z.txt", "/letters/dear.txt"})
        put(temporary() + QLatin1String(name), name);
    const auto before = QFile::permissions(temporary());
    EXPECT_EQ(clsRunTimeError::PathFileAccess, errorOf([&] { exportClaim(); }));
    for (const char *name : {"/a.txt", "/m.txt", "/z.txt", "/letters/dear.txt"})
        EXPECT_EQ(QByteArray(name), bytesOf(temporary() + QLatin1String(name)));
    EXPECT_EQ(before, QFile::permissions(temporary()));
    EXPECT_FALSE(QFileInfo::exists(finished()));
}

} // namespace
