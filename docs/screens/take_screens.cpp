// Takes a picture of every window of the program with a claim, each in a file: take_screens CLAIM FOLDER. The windows
// are the program's real ones, drawn without a display; only the claim and the time are invented.

#include "base/mdClock.h"
#include "base/mdProgramFolder.h"
#include "commands/mdJournalFile.h"
#include "controls/frmMessageBox.h"
#include "controls/mdApplyTheme.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oDecimalBox.h"
#include "controls/oHeaderBar.h"
#include "costing/comparing/mdChangesInWords.h"
#include "costing/comparing/mdCompareClaims.h"
#include "costing/tables/clsCodeWords.h"
#include "editors/clsPasteList.h"
#include "editors/frmPasteItems.h"
#include "editors/frmScreen.h"
#include "editors/mdEditCodeWords.h"
#include "editors/mdEditCostsLimit.h"
#include "editors/mdEditedForm.h"
#include "editors/mdScreens.h"
#include "editors/mdSections.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdClaimSetup.h"
#include "formdata/mdCostsLimit.h"
#include "formdata/mdGlobals.h"
#include "preview/oFormPages.h"
#include "preview/oPreviewGrid.h"
#include "preview/oWhySheet.h"
#include "shell/clsWindowUserInterface.h"
#include "shell/frmAbout.h"
#include "shell/frmCompare.h"
#include "shell/frmExportToWord.h"
#include "shell/frmFolderOfClaims.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/mdComparison.h"
#include "shell/oSectionList.h"
#include "wordexport/mdOfficeProgram.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>

namespace {

constexpr int EnhancedItem = 7;

class clsPictures {
public:
    explicit clsPictures(const QString &folder)
        : m_folder(folder)
    { }

    /// Shows the window until it is drawn, and saves a picture of it or of a part.
    void take(QWidget &window, const QString &name, const std::function<QRect()> &part = {})
    {
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            fail(name, "does not come up");
        QTest::qWait(50);
        const QRect shown = part ? part() : window.rect();
        if (!window.grab(shown).save(QStringLiteral("%1/%2.png").arg(m_folder, name)))
            fail(name, "can't be written");
    }
    bool complete() const { return m_complete; }

private:
    void fail(const QString &name, const char *why)
    {
        std::fprintf(stderr, "%s %s.\n", qPrintable(name), why);
        m_complete = false;
    }

    QString m_folder;
    bool m_complete = true;
};

/// A picture of each page of a screen, or of a screen without pages.
void takeScreen(clsPictures &pictures, QDialog &screen)
{
    screen.resize(screen.sizeHint());
    auto *switcher = screen.findChild<oContentSwitcher *>();
    pictures.take(screen, screen.objectName());
    for (int page = 2; switcher && page <= switcher->Pages(); ++page) {
        switcher->SwitchTo(page);
        pictures.take(screen, QStringLiteral("%1-%2").arg(screen.objectName()).arg(page));
    }
    screen.close();
}

void takeSections(clsPictures &pictures, frmMain &main)
{
    for (const QString &section : mdSectionTexts())
        if (const std::unique_ptr<QDialog> screen {mdCreateScreen(section, &main)})
            takeScreen(pictures, *screen);
}

/// The items for the item editors: the first of each list in the claim.
struct clsEditor {
    const clsScreen &(*table)();
    std::shared_ptr<clsXMLRecord> (*item)();
};
// clang-format off
constexpr clsEditor Editors[] = {
    {ScreenFeeEarnerGroupEdit,       [] { return std::shared_ptr<clsXMLRecord>(Form->FeeEarnerGroup(1)); }},
    {ScreenFeeEarnerEdit,            [] { return std::shared_ptr<clsXMLRecord>(Form->FeeEarner(1)); }},
    {ScreenCounselEdit,              [] { return std::shared_ptr<clsXMLRecord>(Form->Counsel(1)); }},
    {ScreenEnhancementEdit,          [] { return std::shared_ptr<clsXMLRecord>(Form->Enhancement(1)); }},
    {ScreenScheduleOfTimeItemEdit,   [] { return std::shared_ptr<clsXMLRecord>(Form->ScheduleOfTimeItem(1)); }},
    {ScreenDisbursementEdit,         [] { return std::shared_ptr<clsXMLRecord>(Form->Disbursement(1)); }},
    {ScreenExpertInvoiceEdit,        [] { return std::shared_ptr<clsXMLRecord>(Form->ExpertInvoice(1)); }},
    {ScreenJointInstructionEdit,     [] { return std::shared_ptr<clsXMLRecord>(Form->JointInstruction(1)); }},
    {ScreenFASItemEdit,              [] { return std::shared_ptr<clsXMLRecord>(Form->FASItem(1)); }},
    {ScreenCorrespondences,          [] { return std::shared_ptr<clsXMLRecord>(Form->FeeEarner(1)); }},
    {ScreenReplacementEdit,          [] { return std::shared_ptr<clsXMLRecord>(Preferences->Replacement(1)); }},
    {ScreenPreferencesRateSetEdit,   [] { return std::shared_ptr<clsXMLRecord>(Preferences->RateSet(1)); }},
};
// clang-format on

/// A few abbreviations and rate sets, as a firm would have.
void fillPreferences()
{
    for (const auto &[input, output] : {std::pair("att", "Attending"), std::pair("dft", "Drafting"),
             std::pair("oas", "the other side's solicitors"), std::pair("wrt", "with regard to")}) {
        const auto replacement = Preferences->AddReplacement();
        replacement->InputText = QString::fromUtf8(input);
        replacement->OutputText = QString::fromUtf8(output);
    }
    for (const auto &[name, hourly, item] : {std::tuple("Preparation, county court", "47.25", "4.05"),
             std::tuple("Preparation, High Court", "51.35", "4.15"), std::tuple("Care proceedings", "63.90", "4.25")}) {
        const auto set = Preferences->AddRateSet();
        set->Name = QString::fromUtf8(name);
        for (const QStringView rate : {u"HourlyRate", u"AdvocacyRate", u"CounselRate", u"TravelAndWaitingRate"})
            set->field(rate)->writeText(QString::fromUtf8(hourly));
        for (const QStringView rate : {u"CallsRate", u"LettersOutRate", u"LettersInRate"})
            set->field(rate)->writeText(QString::fromUtf8(item));
    }
}

void takeEditors(clsPictures &pictures, frmMain &main)
{
    for (const clsEditor &row : Editors) {
        const std::shared_ptr<clsXMLRecord> item = row.item();
        frmScreen screen(row.table(), &main);
        screen.Initialise(item.get());
        takeScreen(pictures, screen);
    }
}

/// The claim's firm and people, as "Firm and Team" for new claims.
void takeFirm(clsPictures &pictures, frmMain &main)
{
    clsZR3Form firm;
    mdCopySetup(*Form, firm);
    const clsEditedFormScope edited(firm);
    frmScreen screen(ScreenFirmAndTeam(), &main);
    screen.Initialise();
    screen.Box<oCheckBox>("chkVAT").setChecked(firm.VAT());
    screen.Box<oDecimalBox>("txtVATRate").setText(firm.VATRate());
    screen.Box<oCheckBox>("chkFillNewClaims").setChecked(true);
    screen.resize(screen.sizeHint());
    pictures.take(screen, screen.objectName());
    screen.Switcher().SwitchTo(2);
    pictures.take(screen, screen.objectName() + QStringLiteral("-2"));
    screen.close();
}

void takePreferences(clsPictures &pictures, frmMain &main)
{
    frmScreen screen(ScreenPreferences(), &main);
    screen.Initialise();
    takeScreen(pictures, screen);
}

void takeBoxes(clsPictures &pictures, frmMain &main)
{
    frmMessageBox question(&main);
    question.Initialise(QStringLiteral("Save changes to this form before closing?"), QStringLiteral("Save?"),
        clsUserInterface::YesNoCancel, 1, 0);
    pictures.take(question, QStringLiteral("frmMessageBox"));
    question.close();
    frmAbout about(true, &main);
    pictures.take(about, QStringLiteral("frmAbout"));
    about.close();
    frmExportToWord exportToWord(&main);
    pictures.take(exportToWord, QStringLiteral("frmExportToWord"));
    exportToWord.close();
}

/// The sheet over the preview, for item 7, which has an enhancement.
void takeWhy(clsPictures &pictures, frmMain &main)
{
    auto *grid = main.findChild<oPreviewGrid *>();
    const int row = grid->RowOf(
        {clsPreviewOrigin::ScheduleItem, Form->ScheduleOfTimeItemsForExportCollection()[EnhancedItem - 1]->OrderID()});
    grid->setFocus();
    grid->MarkRow(row);
    main.WhyThisFigure();
    pictures.take(main, QStringLiteral("frmMain-why"));
    main.findChild<oWhySheet *>()->Close();
    grid->MarkRow(0);
}

/// Shows the dialog with a limit that is nearly reached.
void takeCostsLimit(clsPictures &pictures, frmMain &main)
{
    QTimer::singleShot(300, &main, [&] {
        QWidget *screen = QApplication::activeModalWidget();
        screen->findChild<QLineEdit *>()->setText(QStringLiteral("12000.00"));
        pictures.take(*screen, screen->objectName());
        static_cast<QDialog *>(screen)->done(QDialog::Rejected);
    });
    mdEditCostsLimit(&main);
}

/// The table in the guide, with its two wrong cells.
void takePasteItems(clsPictures &pictures, frmMain &main)
{
    frmPasteItems window(mdPasteSchedule(),
        QStringLiteral("Date\tWho\tCode\tHours\tDetails\n"
                       "17/09/25\tMO\tACL\t0:36\tAttending client by telephone on the repairs\n"
                       "18/09/25\tOQ\tDBL\t1:10\tPreparing the landlord's repair history\n"
                       "30/09/25\tJPR\tAEX\t0:30\tAttending the surveyor by telephone\n"
                       "31/09/25\tMO\tACL\t0:24\tAttending client on the application\n"),
        {QStringLiteral("Paste Items"), QStringLiteral("the clipboard"), {}}, &main);
    window.resize(window.sizeHint().width(), window.sizeHint().height() * 2 / 3);
    pictures.take(window, window.objectName());
}

/// The window for editing the firm's words for the codes.
void takeCodeWords(clsPictures &pictures, frmMain &main)
{
    clsCodeWords words;
    for (const auto &[code, said] :
        {std::pair("ACL", "Attending client"), {"ACT", "Attending court"}, {"DBL", "Preparing the bundle"},
            {"HDI", "Directions hearing"}, {"HFN", "Final hearing"}, {"REX", "Expert's report"}})
        words.set(QString::fromLatin1(code), QString::fromLatin1(said));
    QTimer::singleShot(300, &main, [&] {
        QWidget *screen = QApplication::activeModalWidget();
        pictures.take(*screen, screen->objectName());
        static_cast<QDialog *>(screen)->done(QDialog::Rejected);
    });
    mdEditCodeWords(&main, words);
}

/// The sign at a box whose text will be printed smaller.
void takePrintSign(clsPictures &pictures, frmMain &main)
{
    const QString address = Form->DebtorsDetails.Address();
    Form->DebtorsDetails.Address = QStringLiteral("Flat 3B\r\nThe Laurels\r\nMill Lane\r\nBow\r\nLondon\r\nE3 4AA");
    const std::unique_ptr<QDialog> screen {mdCreateScreen(QStringLiteral("Debtor's Details"), &main)};
    pictures.take(*screen, QStringLiteral("print-sign"), [&screen] {
        constexpr int Around = 6;
        constexpr int ForCaption = 150;
        constexpr int ForCount = 48;
        const auto *box = screen->findChild<QWidget *>(QStringLiteral("txtAddress"));
        return QRect(box->mapTo(screen.get(), QPoint()), box->size())
            .adjusted(-ForCaption, -Around, ForCount, Around)
            .intersected(screen->rect());
    });
    screen->close();
    Form->DebtorsDetails.Address = address;
}

/// The office program draws the pages; without it the existing picture is kept.
void takeFormPages(clsPictures &pictures, frmMain &main)
{
    constexpr int LongestWait = 60'000;
    if (mdOfficeProgram().isEmpty())
        return;
    main.FormPages();
    const auto *pages = main.findChild<oFormPages *>();
    if (QTest::qWaitFor([pages] { return pages->HasPages(); }, LongestWait))
        pictures.take(main, QStringLiteral("frmMain-pages"));
}

/// With a few errors, which later pictures don't show.
void takeCheck(clsPictures &pictures, frmMain &main)
{
    Form->ScheduleOfTimeItemByOrderID(2)->dDate = QStringLiteral("25/08/27");
    Form->ScheduleOfTimeItemByOrderID(4)->TTime = QStringLiteral("00:00");
    Form->CaseInformation.EmergencyCertificateDate = QString();
    Form->CaseInformation.SubstantiveCertificateDate = QStringLiteral("20/02/22");
    Form->CaseInformation.DateOfFinalWorkDate = QStringLiteral("20/11/24");
    Form->RenderScheduleOfTimeItemsForExport();
    Form->OutcomeOfCase.WastedCostsOrderYes = false;
    Form->OutcomeOfCase.WastedCostsOrderNo = false;
    main.PreviewScheduleOfTime();
    main.CheckClaim();
    pictures.take(main, QStringLiteral("frmMain-check"));
    main.CloseCheck();
}

/// With the same errors.
void takeSectionList(clsPictures &pictures, frmMain &main)
{
    main.SectionList();
    main.findChild<oSectionList *>()->Choose(QStringLiteral("Schedule of Time"));
    pictures.take(main, QStringLiteral("frmMain-sections"));
    main.SectionList();
}

/// The bar below the header, with a claim left by an earlier run.
void takeNotice(clsPictures &pictures, frmMain &main)
{
    clsJournalHead head = NewJournalHead();
    head.claim = QStringLiteral("/home/costs/Claims/2026/Okafor possession.zr3");
    if (!MakeJournalFolder())
        return;
    WriteJournal(
        JournalFolder() + QStringLiteral("/left") + QLatin1String(JournalEnd), JournalBytes(head, "<vzrform/>"));
    const QSize before = main.size();
    main.resize(before.width(), 320);
    main.PreviewScheduleOfTime();
    main.Activate();
    pictures.take(main, QStringLiteral("frmMain-notice"));
    RemoveJournal(JournalFolder() + QStringLiteral("/left") + QLatin1String(JournalEnd));
    main.Activate();
    main.resize(before);
}

/// The differences between the claim's file and its recovery copy.
void takeCompare(clsPictures &pictures, frmMain &main)
{
    clsZR3Form before;
    clsZR3Form after;
    const QByteArray text = Form->XMLOutput().toUtf8();
    if (!before.LoadText(text) || !after.LoadText(text))
        return;
    after.OutcomeOfCase.WastedCostsOrderNo = true;
    after.ClientDetails.Surname = QStringLiteral("Hartwell-Jones");
    after.Disbursement(1)->Amount = QStringLiteral("64.00");
    after.DeleteScheduleOfTimeItem(2);
    frmCompare window({QStringLiteral("On disk"), QStringLiteral("Recovery copy"), {},
                          mdChangesInWords(mdCompareClaims(before, after), before, after)},
        &main);
    pictures.take(window, QStringLiteral("frmCompare"));
}

/// The samples under names of invented clients, as a firm would have them.
void takeFolder(clsPictures &pictures, const QString &samples, frmMain &main)
{
    const QTemporaryDir folder;
    const QString claims = folder.filePath(QStringLiteral("Claims/2026"));
    QDir().mkpath(claims);
    for (const auto &[sample, name] : {std::pair("care-typical", "Abbot care order LA-20388"),
             {"carried-counter", "Bexley possession LA-20402"}, {"advocacy-only", "Carrow injunction LA-20371"},
             {"joint-only", "Dunmore disrepair LA-20395"}, {"exactly-full", "Fenn judicial review LA-20411"},
             {"housing-typical", "Hartwell disrepair LA-20417"}, {"older-file", "Iqbal homelessness LA-20420"},
             {"many-sheets", "Kendrick possession LA-20405"}, {"many-sheets-1a", "Lomax finance LA-20379"}})
        QFile::copy(QStringLiteral("%1/%2.zr3").arg(samples, QLatin1String(sample)),
            QStringLiteral("%1/%2.zr3").arg(claims, QLatin1String(name)));
    QFile broken(claims + QStringLiteral("/Jessop care order LA-20398.zr3"));
    if (broken.open(QIODevice::WriteOnly))
        broken.write("<zr3form>");
    broken.close();
    QDateTime changed(QDate(2026, 11, 2), QTime(9, 15));
    for (const QFileInfo &file : QDir(claims).entryInfoList(QDir::Files)) {
        QFile claim(file.filePath());
        claim.open(QIODevice::ReadWrite);
        claim.setFileTime(changed, QFileDevice::FileModificationTime);
        changed = changed.addSecs(169'620);
    }
    frmFolderOfClaims window(claims, &main);
    window.resize(1366, 560);
    window.show();
    QTest::qWait(2000);
    auto *table = window.findChild<QTableView *>();
    for (const int row : {3, 5, 7})
        table->selectionModel()->select(
            table->model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    // The pictures must not show this machine's paths.
    auto *header = window.findChild<oHeaderBar *>();
    header->setSubCaption(QString(header->SubCaption()).replace(claims, QStringLiteral("/home/costs/Claims/2026")));
    pictures.take(window, window.objectName());
}

bool takeAll(const QString &claim, const QString &folder)
{
    clsPictures pictures(folder);
    frmSplash splash;
    pictures.take(splash, QStringLiteral("frmSplash"));
    splash.hide();
    frmMain main;
    main.Load(claim);
    // Replaces the paths of the machine that takes the pictures.
    Form->path = QStringLiteral("/home/costs/Claims/2026/Hartwell disrepair LA-20417.zr3");
    Form->ExportPath = QStringLiteral("/home");
    main.setWindowState(Qt::WindowNoState);
    main.resize(1366, 740);
    main.show();
    main.PreviewScheduleOfTime();
    mdSetCostsLimit(*Form, QStringLiteral("12000.00"));
    main.Activate();
    QTest::qWait(200); // until the totals are shown
    pictures.take(main, QStringLiteral("frmMain"));
    takeWhy(pictures, main);
    takeSections(pictures, main);
    takePrintSign(pictures, main);
    fillPreferences();
    takeEditors(pictures, main);
    takePreferences(pictures, main);
    takeFirm(pictures, main);
    takeBoxes(pictures, main);
    takeNotice(pictures, main);
    takeCompare(pictures, main);
    takeCostsLimit(pictures, main);
    takeCodeWords(pictures, main);
    takePasteItems(pictures, main);
    main.PreviewAdditionalInformation();
    pictures.take(main, QStringLiteral("frmMain-notes"));
    takeFormPages(pictures, main);
    takeCheck(pictures, main);
    takeSectionList(pictures, main);
    takeFolder(pictures, QFileInfo(claim).path(), main);
    return pictures.complete();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: take_screens CLAIM FOLDER\n", stderr);
        return 2;
    }
    SetProgramFolder(QStringLiteral(ZR3_PROGRAM_FOLDER));
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZR3_SCREEN);
    // Without a window manager the platform plugin would log a warning for each window.
    qputenv("QT_LOGGING_RULES", "default.warning=false;default.info=false;default.debug=false");
    QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    mdApplyTheme(application);
    clsWindowUserInterface user;
    const clsUserInterfaceScope scope(user);
    const bool complete = takeAll(QFile::decodeName(argv[1]), QFile::decodeName(argv[2]));
    Form.reset();
    Preferences.reset();
    return complete ? 0 : 1;
}
