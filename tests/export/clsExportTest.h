#pragma once

#include "base/clsRunTimeError.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "tests/export/clsSheetRecorder.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/clsExport.h"
#include "wordexport/mdExportDriver.h"
#include "wordexport/mdExportTempFolder.h"
#include "wordexport/mdExportWordCombineDocuments.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// The built page templates.
inline const QString TestTemplates = QStringLiteral(ZR3_TEMPLATES);

/// Base of tests that export a claim to a temporary folder, with a scripted user and a record of everything sent to the
/// word processor. The claim starts empty, with the defaults of a new one.
class clsExportTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        ASSERT_TRUE(QFileInfo::exists(TestTemplates + QStringLiteral("/Claim1 P1.doc")))
            << "the templates are made by the build; none are in " << qPrintable(TestTemplates);
        form.ExportPath = folder.path();
    }
    void TearDown() override
    {
        SetLogSwitch(nullptr);
        SetProgramFolder(QString());
    }

    /// Exports the claim; returns the result of its form type's driver.
    bool exportClaim()
    {
        run = std::make_unique<clsExport>(clsExport {.form = form, .templatesFolder = templates});
        run->stopsAtLostSheet = stopsAtLostSheet;
        run->keepsSheets = keepsSheets;
        recorder = std::make_unique<clsSheetRecorder>(*run, templates);
        const clsMSWordObserverScope scope(*recorder);
        return mdExportDriver(form.FormType())(*run);
    }

    void includeOnly(std::initializer_list<int> pages)
    {
        for (int page = 1; page <= 13; ++page)
            form.field(QStringLiteral("IncludePage%1").arg(page))
                ->writeBoolean(std::find(pages.begin(), pages.end(), page) != pages.end());
    }

    /// The fee earner of all items: "AB", at 60 pounds an hour.
    QString feeEarner()
    {
        if (!m_feeEarner.isEmpty())
            return m_feeEarner;
        const auto group = form.AddFeeEarnerGroup();
        for (const char *rate : {"HourlyRate", "AdvocacyRate", "CounselRate", "TravelAndWaitingRate"})
            group->field(QString::fromLatin1(rate))->writeText(QStringLiteral("60.00"));
        group->EnhancementRate = QStringLiteral("0.00");
        const auto earner = form.AddFeeEarner();
        earner->Reference = QStringLiteral("AB");
        earner->GroupUniqueID = group->UniqueID();
        return m_feeEarner = earner->UniqueID();
    }
    std::shared_ptr<clsZR3ScheduleOfTimeItem> addItem(const QString &description = {})
    {
        const QString earner = feeEarner();
        auto item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = earner;
        item->dDate = QStringLiteral("03/02/26");
        item->Code = QStringLiteral("DPL");
        item->TTime = QStringLiteral("01:30");
        item->Description = description;
        return item;
    }
    void addItems(int count)
    {
        for (int i = 0; i < count; ++i)
            addItem();
    }
    QString addCounsel(const QString &account, const QString &name)
    {
        const auto counsel = form.AddCounsel();
        counsel->AccountNumber = account;
        counsel->Name = name;
        return counsel->UniqueID();
    }
    std::shared_ptr<clsZR3Disbursement> addFee(const QString &counsel, const QString &amount = QStringLiteral("100.00"),
        const QString &vat = QStringLiteral("20.00"))
    {
        auto fee = form.AddDisbursement();
        fee->Counsel = true;
        fee->CounselUniqueID = counsel;
        fee->DateOfWork = QStringLiteral("04/02/26");
        fee->Amount = amount;
        fee->VAT = vat;
        form.SeparateCounselAndNonCounselDisbursements();
        return fee;
    }
    std::shared_ptr<clsZR3Disbursement> addDisbursement(const QString &description,
        const QString &amount = QStringLiteral("10.00"), const QString &vat = QStringLiteral("2.00"))
    {
        auto disbursement = form.AddDisbursement();
        disbursement->Counsel = false;
        disbursement->Description = description;
        disbursement->Amount = amount;
        disbursement->VAT = vat;
        form.SeparateCounselAndNonCounselDisbursements();
        return disbursement;
    }

public:
    // Fillers of the grids' rows.

    void addFees(int count)
    {
        const QString counsel = addCounsel(QStringLiteral("7A"), QStringLiteral("A. Barrister"));
        for (int i = 0; i < count; ++i)
            addFee(counsel);
    }
    void addDisbursements(int count)
    {
        for (int i = 1; i <= count; ++i)
            addDisbursement(QStringLiteral("Other %1").arg(i));
    }
    void addExperts(int count)
    {
        for (int i = 1; i <= count; ++i) {
            const auto expert = form.AddExpertInvoice();
            expert->ExpertGroup = QStringLiteral("Expert %1").arg(i);
            expert->NetAmount = QStringLiteral("50.00");
            expert->VATAmount = QStringLiteral("10.00");
        }
    }
    void addJointInstructions(int count)
    {
        for (int i = 1; i <= count; ++i)
            form.AddJointInstruction()->ExpertType = QStringLiteral("Joint %1").arg(i);
    }
    void addHearings(int count)
    {
        for (int i = 1; i <= count; ++i)
            addHearing()->LevelOfCourt = QStringLiteral("Judge %1").arg(i);
    }

protected:
    /// A hearing of three units at 100.00 and nothing else.
    std::shared_ptr<clsZR3FASItem> addHearing()
    {
        const auto item = form.AddFASItem();
        item->dDate = QStringLiteral("05/02/26");
        item->HearingUnits = 3;
        item->RateForUnits = QStringLiteral("100.00");
        for (const char *amount : {"CourtBundlePayment", "SettlementFee", "ExceptionalTravel", "VATForFAS"})
            item->field(QString::fromLatin1(amount))->writeText(QStringLiteral("0.00"));
        return item;
    }

    // What was written to a sheet, which is named as "7(1)".

    QString mark(const QByteArray &sheet) const { return value(sheet, "{or}"); }
    /// All texts that replaced a placeholder, in order.
    QString value(const QByteArray &sheet, const char *placeholder) const
    {
        return recorder->replacements(QString::fromLatin1(sheet), QString::fromLatin1(placeholder)).join(u'|');
    }
    QStringList row(const QByteArray &sheet, int number) const
    {
        return recorder->rows(QString::fromLatin1(sheet)).value(number - 1);
    }
    qsizetype rowCount(const QByteArray &sheet) const { return recorder->rows(QString::fromLatin1(sheet)).size(); }
    QStringList lines(const QByteArray &sheet) const { return recorder->linesOf(QString::fromLatin1(sheet)); }
    QString templateOf(const QByteArray &sheet) const { return recorder->templateOf(QString::fromLatin1(sheet)); }
    static QStringList names(const char *all) { return QString::fromLatin1(all).split(u' '); }

    /// The reported steps, as "Exporting Page 1 1/11".
    QStringList steps() const
    {
        QStringList told;
        for (const auto &step : user.progress)
            told << QStringLiteral("%1 %2/%3").arg(step.text).arg(step.value).arg(step.maximum);
        return told;
    }

    void switchLogOn()
    {
        QDir(folder.path()).mkpath(QStringLiteral("program/Logs"));
        SetProgramFolder(path(QStringLiteral("program")));
        put(LogPath(), {});
        SetLogSwitch([] { return true; });
    }
    /// The log without its dates and times.
    QStringList logLines() const
    {
        QStringList lines;
        for (const QString &line :
            QString::fromLatin1(bytesOf(LogPath())).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts))
            lines << line.section(QStringLiteral(" : "), 1);
        return lines;
    }

    QString path(const QString &relative) const { return folder.filePath(relative); }
    QString finished() const { return path(form.FormType() + QStringLiteral(".doc")); }
    QString temporary() const { return path(QStringLiteral("~ZR3Temp")); }
    static QByteArray bytesOf(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArrayLiteral("(no file)");
    }
    static void put(const QString &file, const QByteArray &bytes)
    {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly)) << qPrintable(file);
        ASSERT_EQ(bytes.size(), out.write(bytes));
    }
    /// A text of that many characters: words of four letters separated by spaces, without a space at the end.
    static QString words(int length)
    {
        QString text = QStringLiteral("word ").repeated(length / 5 + 1).left(length);
        if (text.endsWith(u' '))
            text.back() = u'x';
        return text;
    }
    /// A description that is split into that many lines: words of 59 letters, each of which fills a line.
    static QString note(int lines)
    {
        QStringList words;
        for (int i = 0; i < lines; ++i)
            words << QString(59, u'n');
        return words.join(u' ');
    }

    QTemporaryDir folder;
    clsScriptedUserInterface user;
    clsZR3Form form;
    QString templates = TestTemplates;
    bool stopsAtLostSheet = false;
    bool keepsSheets = false;
    std::unique_ptr<clsExport> run;
    std::unique_ptr<clsSheetRecorder> recorder;
    QString m_feeEarner;

private:
    clsUserInterfaceScope m_scope {user};
};
