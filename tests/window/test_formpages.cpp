#include "controls/oCustomButton.h"
#include "preview/oPageThumbnails.h"
#include "preview/oPreviewGrid.h"
#include "tests/window/clsFormPagesTest.h"

#include <QElapsedTimer>
#include <QScrollBar>

namespace {

using FormPages = clsFormPagesTest;

} // namespace

TEST_F(FormPages, StandBesideTheGridUntilItIsCalledBack)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    for (const char *back : {"mnuPreviewScheduleOfTime", "mnuPreviewAdditionalInformation", "mnuNew"}) {
        showPages();
        EXPECT_TRUE(page().isVisible());
        EXPECT_FALSE(grid.isVisible());
        EXPECT_TRUE(page().View()->hasFocus());
        user.answers = {clsUserInterface::No}; // don't save
        entry(back).trigger();
        EXPECT_FALSE(page().isVisible()) << back;
        EXPECT_TRUE(grid.isVisible()) << back;
        EXPECT_TRUE(grid.hasFocus()) << back;
    }
    EXPECT_FALSE(page().HasPages()) << "the pages of a claim that is no more";
}

TEST_F(FormPages, SayWhichPageIsShownAndAsOfWhen)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    ASSERT_TRUE(page().HasPages());
    EXPECT_EQ(QStringLiteral("Page 1 (2), paper page 1 of 3. As the claim stands at 14:11."), state());
    EXPECT_EQ(QStringLiteral("Form pages"), page().View()->accessibleName());
    EXPECT_EQ(state(), page().View()->accessibleDescription());
    QTest::keyClick(page().View(), Qt::Key_End);
    EXPECT_EQ(QStringLiteral("Page 3 (2), paper page 3 of 3. As the claim stands at 14:11."), state());
    EXPECT_EQ(2, page().Thumbnails()->currentIndex().row());
    QTest::keyClick(page().View(), Qt::Key_Home);
    EXPECT_EQ(0, page().View()->CurrentPage());
    QTest::keyClick(page().View(), Qt::Key_PageDown);
    EXPECT_EQ(page().View()->verticalScrollBar()->pageStep(), page().View()->verticalScrollBar()->value());
    QTest::keyClick(page().View(), Qt::Key_PageUp);
    EXPECT_EQ(0, page().View()->verticalScrollBar()->value());
}

TEST_F(FormPages, TheSameClaimIsNotConvertedTwice)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    showPages();
    EXPECT_EQ(1, runs());
    // Neither a change that no page shows nor one that was undone counts.
    Form->TimeSpent = QStringLiteral("09:59");
    Form->ExportPath = path("claims");
    window->Activate();
    showPages();
    const QString name = Form->ClientDetails.Surname();
    change();
    window->Activate();
    EXPECT_EQ(QStringLiteral("Shown as of 14:11; the claim has changed"), state());
    Form->ClientDetails.Surname = name;
    window->Activate();
    showPages();
    EXPECT_EQ(1, runs());
}

TEST_F(FormPages, MarkThemselvesOldAndAreMadeAnewOnRequest)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    auto &refresh = control<oCustomButton>(*window, "cmdRefreshPages");
    showPages();
    EXPECT_FALSE(refresh.isVisible());
    page().View()->GoTo(1);
    change();
    window->Activate();
    EXPECT_EQ(QStringLiteral("Shown as of 14:11; the claim has changed"), state());
    EXPECT_EQ(1, runs());
    ASSERT_TRUE(refresh.isVisible());
    refresh.setFocus();
    QTest::keyClick(&refresh, Qt::Key_Space);
    EXPECT_TRUE(page().View()->hasFocus()) << "not the next button";
    EXPECT_TRUE(page().HasPages()) << "the old pages stay";
    EXPECT_TRUE(window->isEnabled());
    ASSERT_TRUE(wait());
    EXPECT_EQ(2, runs());
    EXPECT_FALSE(refresh.isVisible());
    EXPECT_EQ(1, page().View()->CurrentPage()) << "the place stays";
}

TEST_F(FormPages, AreMadeAnewAtActivationWhereThePreviewIsRefreshed)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    Preferences->AutoRefreshPreview = true;
    showPages();
    change();
    window->Activate();
    EXPECT_TRUE(maker().isRunning());
    EXPECT_TRUE(window->isEnabled());
    ASSERT_TRUE(wait());
    EXPECT_EQ(2, runs());
    window->Activate();
    EXPECT_FALSE(maker().isRunning());
}

TEST_F(FormPages, WhatFailedIsNotTriedAgainAtEachActivation)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    Preferences->AutoRefreshPreview = true;
    showPages();
    officeProgram("exit 7\n");
    const auto activate = [this] {
        window->Activate();
        ASSERT_TRUE(wait());
    };
    change();
    activate();
    activate();
    activate();
    EXPECT_EQ(2, runs());
    EXPECT_EQ(QStringLiteral("LibreOffice failed to make the PDF (exit status 7)."), state());
    // Not again until the claim changes,
    const QString failed = Form->ClientDetails.Surname();
    change();
    activate();
    activate();
    EXPECT_EQ(3, runs());
    // or until the user asks for it.
    control<oCustomButton>(*window, "cmdRefreshPages").Click();
    ASSERT_TRUE(wait());
    EXPECT_EQ(4, runs());
    showPages();
    EXPECT_EQ(5, runs());
    // After new pages, the old failure is forgotten.
    workingOfficeProgram();
    showPages();
    EXPECT_EQ(6, runs());
    Form->ClientDetails.Surname = failed;
    activate();
    EXPECT_EQ(7, runs());
    EXPECT_EQ(QStringLiteral("Page 1 (2), paper page 1 of 3. As the claim stands at 14:11."), state());
}

TEST_F(FormPages, WhatWasCancelledIsNotTriedAgainAtEachActivation)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    Preferences->AutoRefreshPreview = true;
    showPages();
    officeProgram("exec sleep 1000\n");
    const QString name = Form->ClientDetails.Surname();
    change();
    window->Activate();
    ASSERT_TRUE(maker().isRunning());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    window->Activate();
    EXPECT_FALSE(maker().isRunning());
    EXPECT_EQ(QStringLiteral("Shown as of 14:11; the claim has changed"), state());
    Form->ClientDetails.Surname = name;
    window->Activate();
    EXPECT_EQ(QStringLiteral("Page 1 (2), paper page 1 of 3. As the claim stands at 14:11."), state());
}

TEST_F(FormPages, AFailureIsNoLongerToldOnceTheClaimIsThatOfThePages)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    const QString name = Form->ClientDetails.Surname();
    officeProgram("exit 7\n");
    change();
    window->Activate();
    showPages();
    EXPECT_EQ(QStringLiteral("LibreOffice failed to make the PDF (exit status 7)."), state());
    Form->ClientDetails.Surname = name;
    window->Activate();
    EXPECT_EQ(QStringLiteral("Page 1 (2), paper page 1 of 3. As the claim stands at 14:11."), state());
}

TEST_F(FormPages, AClaimThatChangesMeanwhileIsShownAsChanged)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    entry("mnuFormPages").trigger();
    ASSERT_TRUE(maker().isRunning());
    change();
    ASSERT_TRUE(wait());
    EXPECT_EQ(QStringLiteral("Shown as of 14:11; the claim has changed"), state());
    EXPECT_EQ(1, runs());
}

TEST_F(FormPages, AClaimThatGoesMeanwhileLeavesNoPages)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    entry("mnuFormPages").trigger();
    ASSERT_TRUE(maker().isRunning());
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_FALSE(maker().isRunning());
    QTest::qWait(300);
    EXPECT_FALSE(page().HasPages());
}

TEST_F(FormPages, TouchNeitherTheClaimNorItsExportFolder)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    QDir(folder.path()).mkpath(QStringLiteral("out"));
    Form->ExportPath = path("out");
    const QString before = Form->XMLOutput();
    showPages();
    EXPECT_TRUE(before == Form->XMLOutput());
    EXPECT_TRUE(QDir(path("out")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FormPages, WithoutAnOfficeProgramTheSheetSaysWhatToInstall)
{
    noOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    EXPECT_EQ(
        QStringLiteral("Form pages need an office program. Install LibreOffice Writer, then choose Form Pages again."),
        nothing());
    EXPECT_TRUE(control<QLabel>(*window, "lblNothing").hasFocus());
    EXPECT_EQ(nothing(), control<QLabel>(*window, "lblNothing").accessibleName());
    workingOfficeProgram();
    showPages();
    EXPECT_TRUE(page().HasPages());
    EXPECT_TRUE(page().View()->hasFocus());
}

TEST_F(FormPages, OneThatHangsIsGivenUp)
{
    officeProgram("exec sleep 1000\n", 300);
    start(sample("housing-typical.zr3"));
    showPages();
    EXPECT_EQ(QStringLiteral("LibreOffice did not make the PDF within 0.3 seconds and was stopped."), nothing());
}

TEST_F(FormPages, OneThatFailsIsToldAndTheOldPagesStay)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    officeProgram("exit 7\n");
    change();
    showPages();
    EXPECT_EQ(QStringLiteral("LibreOffice failed to make the PDF (exit status 7)."), state());
    EXPECT_TRUE(page().HasPages());
    EXPECT_TRUE(control<oCustomButton>(*window, "cmdRefreshPages").isVisible());
    officeProgram("printf %%PDF-1.4 > $made\n");
    showPages();
    EXPECT_EQ(QStringLiteral("The office program made no pages that can be shown."), state());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FormPages, EscapeAndCancelStopIt)
{
    officeProgram("exec sleep 1000\n");
    start(sample("housing-typical.zr3"));
    auto &cancel = control<oCustomButton>(*window, "cmdCancelPages");
    entry("mnuFormPages").trigger();
    EXPECT_EQ(QStringLiteral("Drawing 14 pages"), state());
    EXPECT_TRUE(cancel.isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(maker().isRunning());
    EXPECT_EQ(QStringLiteral("The pages have not been drawn. Choose Form Pages again."), nothing());
    EXPECT_FALSE(cancel.isVisible());
    entry("mnuFormPages").trigger();
    EXPECT_TRUE(maker().isRunning());
    cancel.setFocus();
    QTest::keyClick(&cancel, Qt::Key_Space);
    EXPECT_FALSE(maker().isRunning());
    EXPECT_TRUE(control<QLabel>(*window, "lblNothing").hasFocus());
}

TEST_F(FormPages, ZoomByKeysAndFitTheWidth)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    oPageView &view = *page().View();
    const auto zoom = [this] { return control<QLabel>(*window, "lblZoom").text(); };
    EXPECT_TRUE(view.FitsWidth());
    const int fitting = view.Zoom();
    EXPECT_LE(fitting, 125);
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(fitting, view.Zoom());
    view.setZoom(100);
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("110 %"), zoom());
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("90 %"), zoom());
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(fitting, view.Zoom());
    // At any width: the page and a margin, but never more than a quarter larger than on paper.
    window->resize(2400, 760);
    EXPECT_EQ(125, view.Zoom());
    window->resize(700, 760);
    EXPECT_LT(view.Zoom(), 90);
    EXPECT_EQ(0, view.horizontalScrollBar()->maximum());
    EXPECT_FALSE(page().Thumbnails()->isVisible());
    window->resize(1200, 760);
    EXPECT_TRUE(page().Thumbnails()->isVisible());
}

TEST_F(FormPages, AThumbnailLeadsToItsPage)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    oPageThumbnails &list = *page().Thumbnails();
    EXPECT_EQ(QStringLiteral("Pages"), list.accessibleName());
    EXPECT_EQ(QStringLiteral("Page 2 (2)"), list.model()->index(1, 0).data().toString());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(1, 0)).center());
    EXPECT_EQ(1, page().View()->CurrentPage());
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(2, page().View()->CurrentPage());
}

TEST_F(FormPages, ThreeHundredPagesAreQuick)
{
    start();
    entry("mnuFormPages");
    oFormPages pages;
    pages.resize(1200, 700);
    show(pages);
    const QByteArray pdf = mdPdfOf(300);
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(pages.ShowPages(pdf, Now()));
    QTest::keyClick(pages.View(), Qt::Key_End);
    pages.grab();
    EXPECT_EQ(299, pages.View()->CurrentPage());
    // Drawing all of them would take many times as long.
    EXPECT_LT(timer.elapsed(), 2000);
}

TEST_F(FormPages, ARealOfficeProgramDrawsThem)
{
    if (mdOfficeProgram().isEmpty())
        GTEST_SKIP() << "no office program is installed";
    start(sample("housing-typical.zr3"));
    showPages();
    ASSERT_TRUE(page().HasPages()) << nothing().toStdString();
    EXPECT_EQ(QStringLiteral("Page 1, paper page 1 of 14. As the claim stands at 14:11."), state());
}
