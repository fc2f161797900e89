#include "base/mdGetVersionInfo.h"
#include "commands/mdFileHandling.h"
#include "controls/mdTheme.h"
#include "controls/oTimeSpentBox.h"
#include "preview/oPreviewGrid.h"
#include "shell/clsLongWork.h"
#include "tests/window/clsMainWindowTest.h"

#include <QAbstractButton>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

namespace {

class MainWindow : public clsMainWindowTest {
protected:
    oPreviewGrid &preview() const { return control<oPreviewGrid>(*window, "sgPreview"); }
    QString previewText() const
    {
        QString text;
        for (int i = 1; i <= preview().Rows(); ++i)
            for (int j = 1; j <= preview().Columns(); ++j)
                text += preview().Text(i, j) + u'\t';
        return text;
    }
    void drop(const QList<QUrl> &urls) const
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({20, 300}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent dropped({20, 300}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &dropped);
        QTest::qWait(10);
    }
    /// Types a time into the stopwatch's box and stays in it.
    void typeTime(const char *time) const
    {
        auto *box = TimeSpentBox->findChildren<QLineEdit *>().first();
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::fromLatin1(time));
        ASSERT_EQ(box, QApplication::focusWidget());
    }
    static QString addItem()
    {
        const auto group = Form->AddFeeEarnerGroup();
        for (const char *rate : {"HourlyRate", "AdvocacyRate", "CounselRate", "TravelAndWaitingRate"})
            group->field(QString::fromLatin1(rate))->writeText(QStringLiteral("60.00"));
        group->EnhancementRate = QStringLiteral("0.00");
        const auto earner = Form->AddFeeEarner();
        earner->GroupUniqueID = group->UniqueID();
        const auto item = Form->AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = earner->UniqueID();
        item->OrderID = 1;
        item->Code = QStringLiteral("ASI");
        item->TTime = QStringLiteral("07:37");
        return item->TTime();
    }
};

} // namespace

TEST_F(MainWindow, ANewClaimIsANewFileWithoutTheMark)
{
    start();
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    EXPECT_EQ(QStringLiteral("Velmor ZR3"), window->windowTitle());
    EXPECT_EQ(GetVersionInfo(), Form->Version());
    EXPECT_EQ(QStringLiteral("Claim1"), control<oHeaderBar>(*window, "oHeader").Chip());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(MainWindow, LoadSetsTheGlobals)
{
    ASSERT_EQ(nullptr, Preferences);
    start();
    EXPECT_NE(nullptr, Preferences);
    EXPECT_EQ(&preview(), PreviewGrid);
    EXPECT_EQ(window->footer()->TimeSpentTimer(), TimeSpentBox);
    window.reset();
    EXPECT_EQ(nullptr, PreviewGrid);
    EXPECT_EQ(nullptr, TimeSpentBox);
}

TEST_F(MainWindow, AsksToBeMaximised)
{
    frmMain main;
    main.Load({});
    EXPECT_TRUE(main.windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(MainWindow, OpensTheClaimOfTheCommandLineAndShowsItsBill)
{
    const QString claim = sample("housing-typical.zr3");
    start(claim);
    // It is not where it was saved, so it counts as changed.
    EXPECT_EQ(claim + u'*', header());
    EXPECT_GT(preview().Rows(), 10);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(MainWindow, AFileThatIsNoClaimIsToldAndANewOneBegins)
{
    start(path("claims/none.zr3"));
    EXPECT_FALSE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    EXPECT_EQ(4, tabs("tbSubSection").size());
}

TEST_F(MainWindow, AfterASaveTheFullPathStandsWithoutTheMark)
{
    start(sample("empty.zr3"));
    EXPECT_TRUE(header().endsWith(u'*'));
    entry("mnuSave").trigger();
    EXPECT_EQ(path("claims/empty.zr3"), header());
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    // At the next update, not at the change itself.
    EXPECT_EQ(path("claims/empty.zr3"), header());
    window->Activate();
    EXPECT_EQ(path("claims/empty.zr3*"), header());
}

TEST_F(MainWindow, SaveAsTakesThePathThatIsGiven)
{
    start();
    user.files = {path("claims/new one.zr3")};
    entry("mnuSaveAs").trigger();
    EXPECT_EQ(path("claims/new one.zr3"), header());
    EXPECT_TRUE(QFile::exists(path("claims/new one.zr3")));
    EXPECT_EQ(QStringLiteral("Velmor ZR3"), window->windowTitle());
    EXPECT_EQ(path("claims/new one.zr3"), window->windowFilePath());
}

TEST_F(MainWindow, OpenAsksAndShowsTheBillOfTheNewClaim)
{
    start();
    user.files = {sample("housing-typical.zr3")};
    entry("mnuOpen").trigger();
    EXPECT_EQ(path("claims/housing-typical.zr3*"), header());
    EXPECT_GT(preview().Rows(), 10);
}

TEST_F(MainWindow, NewWithAChangedClaimAsksFirst)
{
    start();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    user.answers = {clsUserInterface::Cancel};
    entry("mnuNew").trigger();
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_EQ(QString(), Form->ClientDetails.Surname());
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
}

TEST_F(MainWindow, ShowsTheTimeSpent)
{
    start();
    Form->TimeSpent = QStringLiteral("03:25");
    window->UpdateInfo();
    EXPECT_EQ(QStringLiteral("03:25"), TimeSpentBox->TimeSpent());
}

TEST_F(MainWindow, ATypedTimeGoesToTheClaimBeforeAndNotIntoTheNext)
{
    const QString other = sample("empty.zr3");
    start(other);
    const QString ofOther = Form->TimeSpent();
    NewForm(true);
    const QString ofNew = Form->TimeSpent();
    const struct {
        std::function<void()> run;
        QString time;
    } commands[] = {
        {[this] { entry("mnuNew").trigger(); }, ofNew},
        {[&] {
             user.files = {other};
             entry("mnuOpen").trigger();
         },
            ofOther},
        {[&] { drop({QUrl::fromLocalFile(other)}); }, ofOther},
    };
    for (const auto &command : commands) {
        NewForm(true);
        user.messages.clear();
        typeTime("90");
        user.answers = {clsUserInterface::Cancel};
        command.run();
        EXPECT_EQ(QStringLiteral("01:30"), Form->TimeSpent());
        typeTime("45");
        user.answers = {clsUserInterface::No};
        command.run();
        EXPECT_EQ(2u, user.messages.size()) << "the typed time is a change";
        EXPECT_EQ(command.time, Form->TimeSpent());
        EXPECT_EQ(command.time, TimeSpentBox->TimeSpent());
        row("tbSection").findChildren<oTabBarButton *>().first()->setFocus();
        EXPECT_EQ(command.time, Form->TimeSpent());
    }
}

TEST_F(MainWindow, ATimeThatDoesNotFitHoldsTheClaim)
{
    start();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    user.answers = {clsUserInterface::No};
    typeTime("soon");
    entry("mnuNew").trigger();
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    EXPECT_EQ(QStringLiteral("soon"), TimeSpentBox->TimeSpent());
    // But it doesn't prevent closing the program.
    EXPECT_TRUE(window->close());
}

TEST_F(MainWindow, SavingWritesTheTypedTime)
{
    const QString claim = savedClaim();
    typeTime("90");
    entry("mnuSave").trigger();
    EXPECT_EQ(claim, header());
    OpenFormFile(claim);
    EXPECT_EQ(QStringLiteral("01:30"), Form->TimeSpent());
    typeTime("45");
    user.files = {path("claims/other.zr3")};
    entry("mnuSaveAs").trigger();
    OpenFormFile(path("claims/other.zr3"));
    EXPECT_EQ(QStringLiteral("00:45"), Form->TimeSpent());
}

TEST_F(MainWindow, ClosingAsksAboutATypedTime)
{
    start();
    typeTime("90");
    user.answers = {clsUserInterface::Cancel};
    EXPECT_FALSE(window->close());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Save?"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("01:30"), Form->TimeSpent());
}

TEST_F(MainWindow, AnActivationAfterTheRoutineRanBehindAnotherProgramShowsTheMark)
{
    start();
    QApplication::setActiveWindow(nullptr);
    window->Activate();
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    QApplication::setActiveWindow(window.get());
    EXPECT_EQ(QStringLiteral("New ZR3 File*"), header());
}

TEST_F(MainWindow, EveryActivationByTheDesktopRunsTheRoutine)
{
    start();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    QEvent away(QEvent::WindowDeactivate), back(QEvent::WindowActivate);
    QCoreApplication::sendEvent(window.get(), &away);
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    QCoreApplication::sendEvent(window.get(), &back);
    EXPECT_EQ(QStringLiteral("New ZR3 File*"), header());
}

TEST_F(MainWindow, TheRoutineRefreshesThePreviewWhereThePreferencesAskForIt)
{
    writePreferences({"AutoRefreshPreview"});
    start();
    const QString time = addItem();
    EXPECT_FALSE(previewText().contains(time));
    window->Activate();
    EXPECT_TRUE(previewText().contains(time));
}

TEST_F(MainWindow, WithoutThePreferenceTheOldPreviewStandsUntilAnEntryIsPicked)
{
    start();
    ASSERT_FALSE(Preferences->AutoRefreshPreview());
    const QString time = addItem();
    window->Activate();
    EXPECT_FALSE(previewText().contains(time));
    entry("mnuPreviewScheduleOfTime").trigger();
    EXPECT_TRUE(previewText().contains(time));
}

TEST_F(MainWindow, TheRefreshKeepsTheKindLastShown)
{
    writePreferences({"AutoRefreshPreview"});
    start(sample("housing-typical.zr3"));
    entry("mnuPreviewAdditionalInformation").trigger();
    const QString additional = previewText();
    window->Activate();
    EXPECT_EQ(additional, previewText());
    entry("mnuPreviewScheduleOfTime").trigger();
    EXPECT_NE(additional, previewText());
}

TEST_F(MainWindow, ARightClickOnTheSheetOpensThePreviewMenuAndALeftClickNothing)
{
    start();
    const auto &menu = control<QMenu>(*window, "mnuPreview");
    QTest::mouseClick(preview().viewport(), Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_FALSE(menu.isVisible());
    QTest::mousePress(preview().viewport(), Qt::RightButton, {}, QPoint(50, 50));
    EXPECT_FALSE(menu.isVisible());
    QTest::mouseRelease(preview().viewport(), Qt::RightButton, {}, QPoint(50, 50));
    EXPECT_TRUE(menu.isVisible());
    control<QMenu>(*window, "mnuPreview").close();
}

TEST_F(MainWindow, TheSheetStandsInTheMiddleDownToTheTotals)
{
    start();
    window->resize(1600, 900);
    QTest::qWait(10);
    const auto &area = control<QWidget>(*window, "pctPreview");
    const auto topOf = [this](const QWidget &part) { return part.mapTo(window.get(), QPoint()).y(); };
    const auto &totals = control<QWidget>(*window, "oTotalsStrip");
    EXPECT_EQ(topOf(area) + area.height(), topOf(totals));
    EXPECT_EQ(topOf(totals) + totals.height(), topOf(*window->footer()));
    EXPECT_EQ(topOf(row("tbSubSection")) + row("tbSubSection").height(), topOf(area));
    EXPECT_NEAR(area.width() / 2.0, preview().geometry().center().x(), 1.0);
    EXPECT_EQ(area.height() - 1, preview().geometry().bottom());
    EXPECT_LE(preview().width(), Theme::scaled(1120));
}

TEST_F(MainWindow, TheFirstDrawingHasTheWidthOfTheSheetThatIsShown)
{
    for (const bool maximised : {true, false}) {
        window = std::make_unique<frmMain>();
        window->Load({});
        if (!maximised) { // as on a desktop that gives the window a different size
            window->setWindowState(Qt::WindowNoState);
            window->resize(1300, 700);
        }
        show(*window);
        QTest::qWait(20);
        int columns = 0;
        for (int i = 1; i <= preview().Columns(); ++i)
            columns += preview().ColumnWidth(i);
        EXPECT_GT(columns, preview().width() * 9 / 10) << maximised;
        EXPECT_LT(columns, preview().width()) << maximised;
    }
}

TEST_F(MainWindow, RestoringTheWindowLeavesThePreviewAsItWas)
{
    start();
    QTest::qWait(20);
    const QString time = addItem();
    window->hide();
    window->resize(800, 600);
    const int before = preview().width();
    show(*window);
    QTest::qWait(20);
    ASSERT_NE(before, preview().width());
    EXPECT_FALSE(previewText().contains(time));
}

TEST_F(MainWindow, TheFirstShowDrawsNothingInsideLongWork)
{
    window = std::make_unique<frmMain>();
    window->Load({});
    window->setWindowState(Qt::WindowNoState);
    window->resize(1300, 700); // not the width for which it was drawn
    const QString time = addItem();
    const clsLongWork work;
    show(*window);
    QTest::qWait(20);
    EXPECT_FALSE(previewText().contains(time));
}

TEST_F(MainWindow, AClaimThatIsDroppedOnItIsOpened)
{
    start();
    drop({QUrl::fromLocalFile(sample("housing-typical.zr3"))});
    EXPECT_EQ(path("claims/housing-typical.zr3*"), header());
    EXPECT_GT(preview().Rows(), 10);
    // It counts as changed: dropping another one asks, and Cancel keeps it.
    drop({QUrl::fromLocalFile(sample("empty.zr3"))});
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(path("claims/housing-typical.zr3*"), header());
}

TEST_F(MainWindow, WhatIsNoClaimIsNotTakenFromADrag)
{
    start();
    drop({QUrl::fromLocalFile(path("claims/letter.doc"))});
    drop({QUrl(QStringLiteral("https://www.velmor.example/claim.zr3"))});
    // Its name is not valid text: converted to text it would be that of another file.
    drop({QUrl(QStringLiteral("file:///%FF.zr3"))});
    drop({QUrl::fromLocalFile(path("a.zr3")), QUrl::fromLocalFile(path("b.zr3"))});
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(MainWindow, TheFocusStaysWhereItWasWhenThePreviewIsDrawn)
{
    start();
    auto *tab = row("tbSection").findChildren<oTabBarButton *>().first();
    tab->setFocus();
    ASSERT_EQ(tab, QApplication::focusWidget());
    entry("mnuPreviewAdditionalInformation").trigger();
    EXPECT_EQ(tab, QApplication::focusWidget());
}

TEST_F(MainWindow, TheFirstTabRowHasTheFirstFocus)
{
    start();
    EXPECT_EQ(row("tbSection").findChildren<oTabBarButton *>().first(), QApplication::focusWidget());
}

TEST_F(MainWindow, RestoredItStandsOnTheScreenWithItsFrame)
{
    window = std::make_unique<frmMain>();
    window->Load({});
    show(*window);
    EXPECT_TRUE(window->isMaximized());
    window->showNormal();
    // A desktop's frame is up to 40 pixels high, which the window doesn't know before it is shown.
    const QRect room = window->screen()->availableGeometry();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return room.contains(QRect(window->pos(), window->size() + QSize(0, 40))); }, 1000))
        << window->x() << ' ' << window->y() << ' ' << window->width() << ' ' << window->height();
    EXPECT_GT(window->width(), room.width() / 2);
    const auto &footer = control<oFooterBar>(*window, "oFooter");
    EXPECT_EQ(window->height(), footer.mapTo(window.get(), footer.rect().bottomLeft()).y() + 1);
}

TEST_F(MainWindow, NothingOfItIsCutInALargeFontOnASmallScreen)
{
    const QFont before = QApplication::font();
    for (const char *family : {"Liberation Sans", "DejaVu Sans"}) {
        QApplication::setFont(QFont(QString::fromLatin1(family), 16));
        start();
        for (const QSize size : {QSize(1024, 700), QSize(960, 540)}) {
            window->resize(size);
            QTest::qWait(20);
            EXPECT_EQ(size, window->size()) << family;
            const auto &footer = control<oFooterBar>(*window, "oFooter");
            for (const QWidget *part : footer.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
                const std::string name = part->objectName().toStdString();
                EXPECT_TRUE(footer.rect().contains(part->geometry())) << name;
                EXPECT_GE(part->width(), part->minimumSizeHint().width()) << name;
            }
        }
        window.reset();
        Form.reset();
        Preferences.reset();
    }
    QApplication::setFont(before);
}

TEST_F(MainWindow, TheRingOfNoButtonIsCut)
{
    start();
    int buttons = 0;
    for (const QAbstractButton *button : window->findChildren<QAbstractButton *>()) {
        if (!button->isVisible() || button->focusPolicy() == Qt::NoFocus)
            continue;
        ++buttons;
        for (const QWidget *around = button->parentWidget(); around; around = around->parentWidget())
            EXPECT_TRUE(around->rect().contains(QRect(button->mapTo(around, QPoint()), button->size())))
                << button->text().toStdString() << " in " << around->metaObject()->className();
    }
    EXPECT_GE(buttons, 5) << "the tabs of both rows and the button of the stopwatch";
}
