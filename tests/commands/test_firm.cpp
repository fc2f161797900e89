// The firm as it is kept for new claims: its table, its file, and the claims that begin with it.

#include "base/mdStateFolder.h"
#include "commands/clsFirm.h"
#include "commands/mdFirmFile.h"
#include "commands/mdFirmOffer.h"
#include "commands/mdFirmTable.h"
#include "tests/commands/clsDocumentTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <QElapsedTimer>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray Header = "Kind,Reference,Name,Group,VAT,VAT Rate,Hourly Rate,Fill New Claims\r\n";

class FirmFile : public clsDocumentTest {
protected:
    QString file() const { return path("program/Databases/Firm.csv"); }
    QString aside() const { return path("program/Databases/Firm.csv.broken"); }
    void putFirm(const QByteArray &lines) const { put(file(), Header + lines); }
    /// Why a table can't be read.
    static QString trouble(const QByteArray &lines)
    {
        clsFirm firm;
        return mdReadFirmCsv(Header + lines, firm);
    }
};

/// A text for each property, some with what a table has to guard.
QString textFor(const char *property, int number)
{
    const QString names[] = {QStringLiteral("A, \"B\"; C"), QStringLiteral("=1+1"), QStringLiteral("'=x"),
        QStringLiteral("\u00c6\u20ac\u03a9"), QStringLiteral("two\r\nlines"), QStringLiteral("-")};
    return QString::fromLatin1(property) + QString::number(number) + names[number % 6];
}

bool isAmount(const char *property)
{
    return QByteArray(property).endsWith("Rate");
}

/// Gives each of a record's properties a value of its own, but for those that the lists keep.
void fill(clsXMLRecord &record, int &number)
{
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const char *name = place.property->name;
        clsXMLField &field = *record.field(QString::fromLatin1(name));
        if (place.property->kind == clsXMLKind::Boolean)
            field.writeBoolean(++number % 2 == 0);
        else if (isAmount(name))
            field.writeText(QString::number(++number) + QStringLiteral(".25"));
        else if (place.property->kind == clsXMLKind::Text && !QByteArray(name).endsWith("UniqueID"))
            field.writeText(textFor(name, ++number));
    }
}

std::unique_ptr<clsFirm> filledFirm()
{
    auto firm = std::make_unique<clsFirm>();
    int number = 0;
    firm->fillsNewClaims = true;
    firm->form.VAT = true;
    firm->form.VATRate = QStringLiteral("20.00");
    fill(firm->form.SolicitorDetails, number);
    firm->form.SolicitorDetails.CaseReference = QString();
    for (int i = 0; i < 3; ++i) {
        fill(*firm->form.AddFeeEarnerGroup(), number);
        fill(*firm->form.AddCounsel(), number);
    }
    for (int i = 0; i < 4; ++i) {
        const auto feeEarner = firm->form.AddFeeEarner();
        fill(*feeEarner, number);
        feeEarner->GroupUniqueID = firm->form.FeeEarnerGroup(i % 3 + 1)->UniqueID();
    }
    return firm;
}

/// All values of a record, without its identities.
QStringList valuesOf(const clsXMLRecord &record)
{
    QStringList values;
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        if (!name.endsWith(QLatin1String("UniqueID")))
            values << name + u'=' + record.field(name)->readText();
    }
    return values;
}

QStringList valuesOf(const clsZR3Form &form)
{
    QStringList values {form.VATRate(), form.VAT() ? QStringLiteral("VAT") : QString()};
    values << valuesOf(form.SolicitorDetails);
    for (const auto &group : form.FeeEarnerGroupsCollection())
        values << valuesOf(*group);
    for (const auto &feeEarner : form.FeeEarnersCollection())
        values << valuesOf(*feeEarner) << QString::number(feeEarner->Group()->Index);
    for (const auto &counsel : form.CounselCollection())
        values << valuesOf(*counsel);
    return values;
}

} // namespace

// The table

TEST_F(FirmFile, EachFieldComesBackFromItsTable)
{
    const auto firm = filledFirm();
    const QByteArray table = mdFirmAsCsv(*firm);
    clsFirm read;
    ASSERT_EQ(QString(), mdReadFirmCsv(table, read));
    EXPECT_EQ(valuesOf(firm->form), valuesOf(read.form));
    EXPECT_EQ(2 + 7 + 3 * 13 + 4 * 6 + 3 * 4, valuesOf(read.form).size());
    EXPECT_TRUE(read.fillsNewClaims);
    EXPECT_EQ(table, mdFirmAsCsv(read));
}

TEST_F(FirmFile, TheTableIsInTheOrderOfTheLists)
{
    clsFirm firm;
    for (const char *name : {"B", "A"})
        firm.form.AddCounsel()->Name = QString::fromLatin1(name);
    firm.form.Counsel(1)->OrderID = 2;
    firm.form.Counsel(2)->OrderID = 1;
    clsFirm read;
    ASSERT_EQ(QString(), mdReadFirmCsv(mdFirmAsCsv(firm), read));
    EXPECT_EQ(QStringLiteral("A"), read.form.Counsel(1)->Name());
    EXPECT_EQ(1, read.form.Counsel(1)->OrderID());
}

TEST_F(FirmFile, TwoGroupsOfOneReferenceAreToldApart)
{
    clsFirm firm;
    for (const char *name : {"Senior", "Junior"}) {
        const auto group = firm.form.AddFeeEarnerGroup();
        group->Reference = QStringLiteral("A");
        group->Name = QString::fromLatin1(name);
    }
    for (const int place : {2, 1}) {
        const auto feeEarner = firm.form.AddFeeEarner();
        feeEarner->Reference = QString::number(place);
        feeEarner->GroupUniqueID = firm.form.FeeEarnerGroup(place)->UniqueID();
    }
    clsFirm read;
    ASSERT_EQ(QString(), mdReadFirmCsv(mdFirmAsCsv(firm), read));
    EXPECT_EQ(QStringLiteral("Junior"), read.form.FeeEarner(1)->Group()->Name());
    EXPECT_EQ(QStringLiteral("Senior"), read.form.FeeEarner(2)->Group()->Name());
}

TEST_F(FirmFile, ATableByHandMayLeaveOutWhatItLikes)
{
    for (const QByteArray &table : {
             QByteArray("kind,REFERENCE,name,group,hourly_rate\nFee earner,HFN,,A,\ngroup,A,Grade A,,78\n"),
             QByteArray("Kind;Reference;Name;Group;Hourly Rate\r\nfeeearner;HFN;;A\r\nGroup;A;Grade A;;78.00\r\n"),
             QByteArray("\xEF\xBB\xBFKind\tReference\tName\tGroup\tHourly Rate\nFee Earner\tHFN\t\tA\n"
                        "Group\tA\tGrade A\t\t78"),
         }) {
        clsFirm firm;
        firm.form.VATRate = QStringLiteral("20.00");
        ASSERT_EQ(QString(), mdReadFirmCsv(table, firm)) << table.constData();
        EXPECT_EQ(QStringLiteral("78.00"), firm.form.FeeEarnerGroup(1)->HourlyRate());
        EXPECT_EQ(QStringLiteral("0.00"), firm.form.FeeEarnerGroup(1)->CallsRate());
        EXPECT_EQ(QStringLiteral("Grade A"), firm.form.FeeEarner(1)->Group()->Name());
        EXPECT_EQ(QStringLiteral("20.00"), firm.form.VATRate());
        EXPECT_FALSE(firm.fillsNewClaims);
    }
}

TEST_F(FirmFile, AnOlderCodePageIsRead)
{
    clsFirm firm;
    ASSERT_EQ(QString(), mdReadFirmCsv("Kind,Name\r\nCounsel,Ren\xE9 \x80\r\n", firm));
    EXPECT_EQ(QStringLiteral("Ren\u00e9 \u20ac"), firm.form.Counsel(1)->Name());
}

TEST_F(FirmFile, WhatThisVersionDoesNotKnowIsKept)
{
    clsFirm firm;
    ASSERT_EQ(QString(),
        mdReadFirmCsv("Office,Kind,Reference,Name,Star\r\nLeeds,Firm,,Hartwell,1\r\n,Group,A,Grade A,2\r\n"
                      "York,Group,B,Grade B,3\r\n",
            firm));
    firm.form.DeleteFeeEarnerGroup(1);
    firm.form.FeeEarnerGroup(1)->Name = QStringLiteral("Other");
    clsFirm read;
    const QByteArray table = mdFirmAsCsv(firm);
    ASSERT_EQ(QString(), mdReadFirmCsv(table, read)) << table.constData();
    EXPECT_EQ(QStringList({QStringLiteral("Office"), QStringLiteral("Star")}), read.otherColumns);
    EXPECT_EQ(QStringList({QStringLiteral("Leeds"), QStringLiteral("1")}), read.otherCells.value(QString()));
    EXPECT_EQ(QStringList({QStringLiteral("York"), QStringLiteral("3")}),
        read.otherCells.value(read.form.FeeEarnerGroup(1)->UniqueID()));
}

TEST_F(FirmFile, WhatCannotBeReadIsToldWithItsLine)
{
    struct clsCase {
        const char *lines;
        const char *why;
    };
    for (const clsCase &row : {
             clsCase {"Group,A,Grade A,,,,1,\r\nGroup,B,Grade B,,,,abc,\r\n", " in line 3: \"abc\" is no amount"},
             clsCase {
                 "Group,A,Grade A,,,,\"1,250\",\r\n", " in line 2: \"1,250\" has a comma, which amounts don't take"},
             clsCase {"Group,,Grade A,,,,1,\r\n", " in line 2: there is no reference"},
             clsCase {"Group,A,,,,,1,\r\n", " in line 2: there is no name"},
             clsCase {"Counsel,,,,,,,\r\n", " in line 2: there is no name"},
             clsCase {"Fee Earner,HFN,,B,,,,\r\nGroup,A,Grade A,,,,1,\r\n", " in line 2: there is no group \"B\""},
             clsCase {"Fee Earner,HFN,,,,,,\r\n", " in line 2: there is no group \"\""},
             clsCase {"Firm,,Hartwell,,perhaps,,,\r\n", " in line 2: \"perhaps\" is neither yes nor no"},
             clsCase {"Firm,,Hartwell,,,,,often\r\n", " in line 2: \"often\" is neither yes nor no"},
             clsCase {"Firm,,Hartwell,,,x,,\r\n", " in line 2: \"x\" is no amount"},
             clsCase {"Firm,,Hartwell,,,,,\r\nFirm,,Other,,,,,\r\n", " in line 3: there is a second firm"},
             clsCase {"\r\nPartner,P,,,,,,\r\n", " in line 3: there is no kind \"Partner\""},
             clsCase {"Firm,,Hartwell,,,,,,,,,x\r\n", " in line 2: it has more cells than the header"},
             clsCase {"Firm,,\"Hartwell,,,,,\r\n", ": The quotes that open in line 2 are not closed"},
         })
        EXPECT_EQ(QString::fromLatin1(row.why), trouble(row.lines)) << row.lines;
    clsFirm firm;
    EXPECT_EQ(QStringLiteral(": it has no column Kind"), mdReadFirmCsv("", firm));
    EXPECT_EQ(QStringLiteral(": it has no column Kind"), mdReadFirmCsv("Name\r\nHartwell\r\n", firm));
    EXPECT_EQ(QStringLiteral(": two of its columns are called Name"), mdReadFirmCsv("Kind,Name,NAME\r\n", firm));
}

TEST_F(FirmFile, ADamagedTableIsToldOrReadAsItIsWritten)
{
    const QByteArray whole = mdFirmAsCsv(*filledFirm());
    int read = 0, told = 0;
    for (qsizetype at = 0; at < whole.size(); at += 5)
        for (const QByteArray &damage : {QByteArray(), QByteArray("\""), QByteArray(","), QByteArray("\r\n"),
                 QByteArray("'="), QByteArray("\xFF"), QByteArray(1, '\0')}) {
            QByteArray damaged = whole;
            damaged.replace(at, 1, damage);
            clsFirm firm;
            if (!mdReadFirmCsv(damaged, firm).isEmpty()) {
                ++told;
                continue;
            }
            ++read;
            const QByteArray written = mdFirmAsCsv(firm);
            clsFirm again;
            ASSERT_EQ(QString(), mdReadFirmCsv(written, again)) << written.constData();
            ASSERT_EQ(written, mdFirmAsCsv(again)) << at;
        }
    EXPECT_LT(100, read);
    EXPECT_LT(100, told);
}

TEST_F(FirmFile, TenThousandPeopleAreReadInASecond)
{
    QByteArray lines = "Group,A,Grade A,,,,78,\r\n";
    for (int i = 0; i < 10000; ++i)
        lines += "Fee Earner,F" + QByteArray::number(i) + ",,A,,,,\r\n";
    putFirm("Firm,,Hartwell,,,,,yes\r\n" + lines);
    QElapsedTimer timer;
    timer.start();
    NewForm(true);
    EXPECT_GT(5000, timer.elapsed()); // a second without sanitizers
    EXPECT_EQ(10000u, Form->FeeEarnersCollection().size());
    EXPECT_EQ(QStringLiteral("F9999"), Form->FeeEarnerByOrderID(10000)->Reference());
}

// The file

TEST_F(FirmFile, IsKeptAndReadAgain)
{
    EXPECT_FALSE(mdHasFirm());
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    EXPECT_TRUE(mdHasFirm());
    EXPECT_EQ(mdFirmAsCsv(*firm), bytesOf(file()));
    EXPECT_EQ(QStringList(QStringLiteral("Saved. The next new claim begins with these")), user.lines);
    const auto read = mdReadFirm();
    ASSERT_TRUE(read);
    EXPECT_EQ(valuesOf(firm->form), valuesOf(read->form));
    read->fillsNewClaims = false;
    user.lines.clear();
    ASSERT_TRUE(mdWriteFirm(*read));
    EXPECT_EQ(QStringList(QStringLiteral("Saved. New claims are not filled with these")), user.lines);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringList({QStringLiteral("Firm.csv"), QStringLiteral("Preferences Database.vzp")}),
        QDir(path("program/Databases")).entryList(QDir::Files, QDir::Name));
}

TEST_F(FirmFile, WithoutAFileTheFirmHasTheVATOfANewClaim)
{
    Preferences->DefaultVATRate = QStringLiteral("19.00");
    const auto firm = mdReadFirm();
    ASSERT_TRUE(firm);
    EXPECT_TRUE(firm->form.VAT());
    EXPECT_EQ(QStringLiteral("19.00"), firm->form.VATRate());
    EXPECT_FALSE(firm->fillsNewClaims);
    EXPECT_TRUE(user.lines.isEmpty());
}

TEST_F(FirmFile, ThoseWhoReadThePreferencesReadTheFirm)
{
    const QByteArray preferences = QFile::encodeName(path("program/Databases/Preferences Database.vzp"));
    ASSERT_EQ(0, chmod(preferences.constData(), 0660));
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    struct stat status = {};
    ASSERT_EQ(0, stat(QFile::encodeName(file()).constData(), &status));
    EXPECT_EQ(0660u, status.st_mode & 0777u);
    ASSERT_EQ(0, chmod(QFile::encodeName(file()).constData(), 0640));
    ASSERT_TRUE(mdWriteFirm(*firm));
    ASSERT_EQ(0, stat(QFile::encodeName(file()).constData(), &status));
    EXPECT_EQ(0640u, status.st_mode & 0777u);
}

TEST_F(FirmFile, ABrokenFileIsSetAsideAndToldInOneLine)
{
    putFirm("Firm,,Hartwell,,,,,yes\r\nGroup,A,Grade A,,,,abc,\r\n");
    const QByteArray before = bytesOf(file());
    NewForm(true);
    EXPECT_EQ(QStringList(QStringLiteral(
                  "Firm.csv is broken in line 3: \"abc\" is no amount. It was set aside as Firm.csv.broken")),
        user.lines);
    EXPECT_EQ(before, bytesOf(aside()));
    EXPECT_FALSE(exists(file()));
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
    EXPECT_EQ(QString(), Form->SolicitorDetails.NameOfFirm());
    EXPECT_TRUE(user.messages.empty());
    user.lines.clear();
    NewForm(true);
    EXPECT_TRUE(user.lines.isEmpty()) << "it is told once";
}

TEST_F(FirmFile, AFullDiskLosesNothing)
{
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    const QByteArray before = bytesOf(file());
    firm->form.SolicitorDetails.NameOfFirm = QStringLiteral("Other");
    for (const clsFileStep step : {clsFileStep::OpenToWrite, clsFileStep::Write, clsFileStep::SyncFile,
             clsFileStep::Close, clsFileStep::Rename}) {
        user.messages.clear();
        FileSystem().faultPoint = [step](clsFileStep now, const QString &) {
            return clsFileFault {now == step ? ENOSPC : 0, -1};
        };
        EXPECT_FALSE(mdWriteFirm(*firm)) << int(step);
        FileSystem().faultPoint = nullptr;
        expectOneBox("File Not Saved", saveBox(file(), "61 - Disk full"));
        EXPECT_EQ(before, bytesOf(file()));
        EXPECT_FALSE(exists(file() + QStringLiteral(".new")));
    }
    EXPECT_TRUE(mdWriteFirm(*firm));
    EXPECT_EQ(mdFirmAsCsv(*firm), bytesOf(file()));
}

TEST_F(FirmFile, AFolderThatTakesNothingIsToldInOneBox)
{
    putFirm("Firm,,Hartwell,,,,,yes\r\nbad\r\n");
    ASSERT_EQ(0, chmod(QFile::encodeName(folder.path()).constData(), 0755));
    ASSERT_EQ(0, chmod(QFile::encodeName(path("program")).constData(), 0755));
    ASSERT_EQ(0, chmod(QFile::encodeName(path("program/Databases")).constData(), 0555));
    ASSERT_EQ(0, chmod(QFile::encodeName(file()).constData(), 0644));
    const int result = resultAsOrdinaryUser([this] {
        NewForm(true);
        const bool isTold = user.lines
            == QStringList(QStringLiteral("Firm.csv is broken in line 3: there is no kind \"bad\". It is not used"));
        clsFirm firm;
        firm.bytes = bytesOf(file());
        const bool isKept = mdWriteFirm(firm);
        return (isTold ? 1 : 0) + (!isKept && user.messages.size() == 1 ? 2 : 0);
    });
    EXPECT_EQ(3, result);
    EXPECT_TRUE(exists(file()));
    ASSERT_EQ(0, chmod(QFile::encodeName(path("program/Databases")).constData(), 0755));
}

TEST_F(FirmFile, AFileThatCannotBeReadIsNotWrittenOver)
{
    putFirm("Firm,,Hartwell,,,,,yes\r\n");
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return clsFileFault {step == clsFileStep::OpenToRead ? EACCES : 0, -1};
    };
    EXPECT_FALSE(mdReadFirm());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
    EXPECT_TRUE(user.lines.isEmpty());
    NewForm(true);
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(QStringList(QStringLiteral("Firm.csv could not be read: Permission denied")), user.lines);
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_TRUE(exists(file()));
}

TEST_F(FirmFile, WhatAnotherUserHasKeptMeanwhileIsSetAside)
{
    auto first = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*first));
    const auto mine = mdReadFirm();
    const auto theirs = mdReadFirm();
    theirs->form.SolicitorDetails.NameOfFirm = QStringLiteral("Theirs");
    ASSERT_TRUE(mdWriteFirm(*theirs));
    user.lines.clear();
    mine->form.SolicitorDetails.NameOfFirm = QStringLiteral("Mine");
    ASSERT_TRUE(mdWriteFirm(*mine));
    EXPECT_EQ(QStringList(QStringLiteral("Saved. What another user had put into Firm.csv was set aside")), user.lines);
    const QDir asides(StateFolder() + QStringLiteral("/Set Aside"));
    const QStringList kept = asides.entryList(QDir::Files);
    ASSERT_EQ(1, kept.size());
    EXPECT_TRUE(kept[0].startsWith(QLatin1String("Firm ")) && kept[0].endsWith(QLatin1String(".csv")));
    EXPECT_EQ(mdFirmAsCsv(*theirs), bytesOf(asides.filePath(kept[0])));
    EXPECT_TRUE(bytesOf(file()).contains("Mine"));
}

// New claims

TEST_F(FirmFile, ANewClaimIsFilledAndClean)
{
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    NewForm(false);
    EXPECT_EQ(valuesOf(firm->form), valuesOf(*Form));
    EXPECT_EQ(QStringLiteral("20.00"), Form->VATRate());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_EQ(Form->XMLOutput(), CleanXML);
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_TRUE(ConfirmClose());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("ID11"), Form->GenerateUniqueID()) << "three groups, three counsel, four fee earners";
    Document().history.run([] {
        Form->Notes = QStringLiteral("x");
        return QStringLiteral("Notes");
    });
    Document().history.undo();
    EXPECT_FALSE(Document().history.canUndo()) << "what the claim began with is no step";
    EXPECT_EQ(3u, Form->FeeEarnerGroupsCollection().size());
}

TEST_F(FirmFile, AFilledClaimStaysWholeWhenItsFormChanges)
{
    ASSERT_TRUE(mdWriteFirm(*filledFirm()));
    NewForm(false);
    for (const char *type : {"Claim1A", "Claim1"}) {
        Form->FormType = QString::fromLatin1(type);
        ASSERT_TRUE(Form->SaveXML(path("claims/a.zr3")));
        clsZR3Form again;
        ASSERT_TRUE(again.LoadXML(path("claims/a.zr3")));
        EXPECT_EQ(4u, again.FeeEarnersCollection().size());
        // A claim is stored in its code page: what that lacks is a question mark in any claim.
        EXPECT_EQ(valuesOf(*Form).size(), valuesOf(again).size());
    }
}

TEST_F(FirmFile, WithoutTheTickANewClaimIsAsEver)
{
    NewForm(false);
    const QString before = Form->XMLOutput();
    auto firm = filledFirm();
    firm->fillsNewClaims = false;
    ASSERT_TRUE(mdWriteFirm(*firm));
    NewForm(false);
    EXPECT_EQ(before, Form->XMLOutput());
}

TEST_F(FirmFile, IsOfferedUntilItIsAnsweredOrThere)
{
    EXPECT_TRUE(mdFirmIsToBeOffered());
    putFirm("");
    EXPECT_FALSE(mdFirmIsToBeOffered());
    QFile::remove(file());
    EXPECT_TRUE(mdFirmIsToBeOffered());
    mdFirmOfferAnswered();
    EXPECT_FALSE(mdFirmIsToBeOffered());
}
