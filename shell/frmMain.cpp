#include "shell/frmMain.h"

#include "base/mdLog.h"
#include "commands/mdAutoDeleteBackups.h"
#include "commands/mdFileHandling.h"
#include "controls/mdLargestWindow.h"
#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oFooterBar.h"
#include "controls/oHeaderBar.h"
#include "controls/oNoticeBar.h"
#include "controls/oTabBar.h"
#include "controls/oTimeSpentBox.h"
#include "controls/oTotalsStrip.h"
#include "editors/mdSections.h"
#include "editors/mdShowPreferences.h"
#include "editors/mdUnloadAndDummyTabClick.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "preview/mdPreview.h"
#include "preview/oFormPages.h"
#include "preview/oPageView.h"
#include "preview/oPreviewGrid.h"
#include "preview/oPreviewSheet.h"
#include "shell/clsCheckState.h"
#include "shell/clsFormPages.h"
#include "shell/clsJournalKeeper.h"
#include "shell/clsLongWork.h"
#include "shell/clsStripFiller.h"
#include "shell/clsWhyOpener.h"
#include "shell/mdMainMenu.h"
#include "shell/mdOpenPanels.h"
#include "shell/oApplication.h"
#include "shell/oCheckPanel.h"
#include "shell/oPreviewArea.h"
#include "shell/oSectionPanel.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStackedLayout>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int AutoBackupMilliseconds = 10000;
constexpr int ReplacementsPage = 2;
constexpr int FrameHeight = 40; ///< for the desktop's window frame, whose size is known only after the window is shown
constexpr int LowWindow = 620;
constexpr int LongestGrowth = 1000; ///< in milliseconds

} // namespace

frmMain::frmMain(QWidget *parent)
    : QMainWindow(parent)
    , createScreen(mdCreateScreen)
    , oHeader(new oHeaderBar)
    , m_noticeBar(new oNoticeBar)
    , tbSection(new oTabBar)
    , tbSubSection(new oTabBar)
    , pctPreview(new oPreviewSheet)
    , sgPreview(pctPreview->Grid())
    , m_formPages(new oFormPages)
    , m_previews(new QStackedLayout)
    , m_pages(new clsFormPages(*m_formPages, this))
    , m_strip(new oTotalsStrip)
    , m_stripFiller(new clsStripFiller(*m_strip, this))
    , m_why(nullptr)
    , m_check(new clsCheckState(this))
    , oFooter(new oFooterBar)
    , tmrAutoBackup(new QTimer(this))
    , m_journal(new clsJournalKeeper(*m_noticeBar,
          {[this] { SaveAs(); }, [this](const std::function<void()> &open) { openInstead(open); },
              [this](const clsComparison &comparison) { compare(comparison); }},
          this))
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Velmor ZR3"));
    setAcceptDrops(true);
    build();
    connect(tbSection, &oTabBar::Click, this, &frmMain::tbSection_Click);
    connect(tbSubSection, &oTabBar::Click, this, &frmMain::tbSubSection_Click);
    connect(tmrAutoBackup, &QTimer::timeout, this, &frmMain::tmrAutoBackup_Timer);
    auto *previewMenu = menuBar()->findChild<QMenu *>(QStringLiteral("mnuPreview"));
    connect(sgPreview, &oPreviewGrid::RightClick, previewMenu,
        [previewMenu](const QPoint &place) { previewMenu->popup(place); });
    // Queued, to run after the chosen entry.
    connect(previewMenu, &QMenu::aboutToHide, sgPreview, &oPreviewGrid::ForgetPointedRow, Qt::QueuedConnection);
    connect(oFooter, &oFooterBar::OfferTaken, this, &frmMain::BringBack);
    connect(m_why, &clsWhyOpener::PlaceChosen, this, &frmMain::OpenPlace);
    connect(m_stripFiller, &clsStripFiller::Renewed, m_why, &clsWhyOpener::TakeDrawnState);
    SetOpenSection([this](const QString &text) { tbSubSection_Click(-1, text); });
    // Called from a box on any open screen, and shown over that screen.
    SetEditReplacements([] { mdShowPreferences(QApplication::activeWindow(), ReplacementsPage); });
    connect(m_formPages->View(), &oPageView::BoxChosen, this, &frmMain::OpenField);
    connect(m_formPages, &oFormPages::ExportAsPdf, this, &frmMain::ExportAsPdf);
    // The stopwatch stops whenever another claim replaces this one.
    const auto stopTimer = [this] {
        oFooter->TimeSpentTimer()->StopTimer();
        m_pages->Forget();
        m_stripFiller->Forget();
        m_check->Forget();
    };
    SetFormDisplay({[this] { Activate(); }, mdClearPreview, stopTimer});
}

frmMain::~frmMain()
{
    SetFormDisplay({});
    SetEditReplacements({});
    SetOpenSection({});
    PreviewGrid = nullptr;
    TimeSpentBox = nullptr;
}

void frmMain::build()
{
    oHeader->setObjectName(QStringLiteral("oHeader"));
    oHeader->setDocument(true);
    tbSection->setObjectName(QStringLiteral("tbSection"));
    tbSection->setRow(oTabBar::Row::Tabs);
    tbSubSection->setObjectName(QStringLiteral("tbSubSection"));
    tbSubSection->setRow(oTabBar::Row::Buttons);
    m_noticeBar->setObjectName(QStringLiteral("oNoticeBar"));
    m_strip->setObjectName(QStringLiteral("oTotalsStrip"));
    oFooter->setObjectName(QStringLiteral("oFooter"));
    tmrAutoBackup->setObjectName(QStringLiteral("tmrAutoBackup"));
    tmrAutoBackup->setInterval(AutoBackupMilliseconds);

    auto *centre = new QWidget;
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(oHeader);
    layout->addWidget(m_noticeBar);
    m_previews->addWidget(pctPreview);
    m_previews->addWidget(m_formPages);
    buildSections();
    buildCheck();
    auto *right = new QVBoxLayout;
    right->addWidget(tbSection);
    right->addWidget(tbSubSection);
    right->addWidget(m_area, 1);
    auto *middle = new QHBoxLayout;
    middle->addWidget(m_sections);
    middle->addLayout(right, 1);
    layout->addLayout(middle, 1);
    layout->addWidget(m_strip);
    layout->addWidget(oFooter);
    setCentralWidget(centre);
    m_why = new clsWhyOpener(*m_strip, *sgPreview, *centre, this);
    mdBuildMainMenu(*this);
    auto *sections = findChild<QAction *>(QStringLiteral("mnuSectionList"));
    sections->setCheckable(true);
    sections->setIcon(QIcon()); // the tick uses its place
}

void frmMain::Load(const QString &claimPath)
{
    placeRestored();
    setWindowState(Qt::WindowMaximized);
    // The preview takes its column widths from the sheet, and is drawn before the window is shown.
    const QSize room = screen()->availableSize();
    openCheck(mdIsPanelLeftOpen(m_checkPanel->objectName()));
    openSections(mdIsPanelLeftOpen(m_sections->objectName()));
    fitSections(room.width());
    m_area->resize(room.width() - m_sections->shownWidth(), room.height());
    pctPreview->resize(m_area->previewWidth(room.width()), m_area->height());
    QResizeEvent placed(pctPreview->size(), QSize());
    QCoreApplication::sendEvent(pctPreview, &placed);
    Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    PreviewGrid = sgPreview;
    TimeSpentBox = oFooter->TimeSpentTimer();
    mdAutoDeleteBackups();
    if (claimPath.isEmpty()) {
        New();
    } else {
        OpenFormFile(claimPath);
        UpdateInfo();
        PreviewScheduleOfTime();
    }
    buildTabs();
    tmrAutoBackup->start();
    m_journal->begin();
    if (claimPath.isEmpty())
        offerFirm();
    m_loaded = true;
}

void frmMain::placeRestored()
{
    const QRect room = screen()->availableGeometry();
    const QSize frame(0, FrameHeight);
    QRect restored(QPoint(), mdLargestWindow(*screen()).boundedTo(room.size() - frame) + frame);
    restored.moveCenter(room.center());
    resize(restored.size() - frame);
    move(restored.topLeft());
}

void frmMain::whileModal(const std::function<void()> &show)
{
    {
        const QScopedValueRollback<bool> modal(m_modal, true);
        show();
    }
    Activate();
}

void frmMain::UpdateInfo()
{
    if (!Form)
        return;
    const QString path = Document().filePath();
    QString title = path.isEmpty() ? QStringLiteral("New ZR3 File") : path;
    if (FormIsDirty())
        title += u'*';
    if (oHeader->Caption() != title)
        oHeader->setCaption(title);
    if (windowTitle() != QLatin1String("Velmor ZR3"))
        setWindowTitle(QStringLiteral("Velmor ZR3"));
    oFooter->TimeSpentTimer()->setTimeSpent(Form->TimeSpent());
    oHeader->setChip(Form->FormType());
    setWindowFilePath(path);
    offerNotStored();
}

void frmMain::Activate()
{
    if (oApplication::ending() || m_redrawing)
        return;
    WriteLog(objectName() + QStringLiteral(" Opened"));
    UpdateInfo();
    m_journal->refresh();
    // Unmarks the clicked tab, so that it can be clicked again.
    tbSubSection->SwitchTo(0);
    refreshPreview();
    m_stripFiller->Renew();
    renewCheck();
    m_activationDone = !isActiveWindow();
}

void frmMain::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (std::exchange(m_wasShown, true))
        return;
    QTimer::singleShot(0, this, [this] {
        // Many desktops maximise a window only after it is shown; some never do.
        m_grows = isMaximized() && size() == normalGeometry().size();
        if (!m_grows)
            return drawForShownWidth();
        QTimer::singleShot(LongestGrowth, this, [this] {
            if (m_grows)
                drawForShownWidth();
        });
    });
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_strip->setLow(height() < Theme::scaled(LowWindow));
    fitSections(width());
    m_why->Close();
    if (std::exchange(m_grows, false))
        QTimer::singleShot(0, this, &frmMain::drawForShownWidth);
}

void frmMain::drawForShownWidth()
{
    m_grows = false;
    // The desktop may have given the window another size than requested, so that the first drawing doesn't fit. Not
    // during work that processes events: the claim may be half loaded.
    if (m_loaded && !showsFormPages() && !m_drawingFollows && !clsLongWork::isRunning()
        && m_drawnWidth != sgPreview->width())
        drawPreview(m_previewKind);
}

bool frmMain::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() != QEvent::WindowActivate || !m_loaded || m_modal)
        return handled;
    // Another program may have been in front since the routine ran, and the claim may have changed.
    if (!std::exchange(m_activationDone, false)) {
        Activate();
        return handled;
    }
    UpdateInfo();
    m_journal->refresh();
    return handled;
}

void frmMain::redraw(void (*routine)(clsPreviewKind))
{
    if (m_redrawing || oApplication::ending())
        return;
    const QScopedValueRollback<bool> redrawing(m_redrawing, true);
    const clsLongWork work;
    m_drawnWidth = sgPreview->width();
    m_why->Close();
    routine(m_previewKind);
    m_why->TellDrawn();
    m_stripFiller->Renew();
    tintDrawn();
}

bool frmMain::showsFormPages() const
{
    return m_previews->currentWidget() == m_formPages;
}

void frmMain::returnToGrid()
{
    if (!showsFormPages())
        return;
    const bool focus = m_formPages->isAncestorOf(focusWidget());
    m_previews->setCurrentWidget(pctPreview);
    if (focus)
        sgPreview->setFocus();
}

void frmMain::FormPages()
{
    m_previews->setCurrentWidget(m_formPages);
    m_formPages->TakeFocus();
    m_pages->Show();
}

void frmMain::drawPreview(clsPreviewKind kind)
{
    returnToGrid();
    m_previewKind = kind;
    redraw(mdDrawPreview);
}

void frmMain::refreshPreview()
{
    // The grid is drawn when it is shown again.
    if (showsFormPages()) {
        if (!m_drawingFollows && Form && Preferences)
            m_pages->Activate(Preferences->AutoRefreshPreview());
        return;
    }
    if (!m_drawingFollows && Form && Preferences && Preferences->AutoRefreshPreview())
        redraw(mdRefreshPreview);
}

void frmMain::ShowTurned()
{
    UpdateInfo();
    if (showsFormPages())
        refreshPreview();
    else if (Form)
        redraw(mdRedrawPreview);
    m_stripFiller->Renew();
    renewCheck();
}
