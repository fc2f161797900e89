#include "controls/oCustomButton.h"
#include "preview/oFormPages.h"
#include "preview/oPageThumbnails.h"
#include "preview/oPageView.h"
#include "preview/oPreviewGrid.h"
#include "shell/clsFormPages.h"
#include "shell/mdPageBoxes.h"
#include "tests/window/clsMainWindowTest.h"
#include "wordexport/mdOfficeProgram.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QLabel>
#include <QPageSize>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QPdfWriter>
#include <QProgressBar>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

#include <optional>

namespace {

/// A PDF of some pages, each with its name at the head.
QByteArray pdfOf(int pages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    for (int i = 1; i <= pages; ++i) {
        if (i > 1)
            writer.newPage();
        painter.drawText(200, 400, QStringLiteral("See Page 99 (9)"));
        painter.drawText(200, 1200, QStringLiteral("Page %1 (2)").arg(i));
    }
    painter.end();
    return buffer.data();
}

class FormPages : public clsMainWindowTest {
protected:
    void SetUp() override
    {
        clsMainWindowTest::SetUp();
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(14, 11)); });
    }
    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        m_office.reset();
    }

    /// A script that stands for the office program. It counts its runs, and $3 is the folder for its PDF.
    void officeProgram(const QByteArray &steps, int longestMilliseconds = 60000)
    {
        QFile pdf(path("ready.pdf"));
        ASSERT_TRUE(pdf.open(QIODevice::WriteOnly));
        pdf.write(pdfOf(3));
        pdf.close();
        QFile script(path("office"));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nhere=" + QFile::encodeName(folder.path())
            + "\necho run >> $here/runs\n"
              "while [ $# -gt 1 ]; do [ \"$1\" = --outdir ] && out=$2; shift; done\n"
              "made=$out/$(basename \"$1\" .doc).pdf\n"
            + steps);
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_office.reset();
        m_office.emplace(path("office"), longestMilliseconds);
    }
    void workingOfficeProgram() { officeProgram("cp $here/ready.pdf $made\n"); }
    void noOfficeProgram()
    {
        m_office.reset();
        m_office.emplace(QString(), 60000);
    }
    int runs() const
    {
        QFile file(path("runs"));
        return file.open(QIODevice::ReadOnly) ? int(file.readAll().count('\n')) : 0;
    }

    oFormPages &page() const { return control<oFormPages>(*window, "oFormPages"); }
    QString state() const { return control<QLabel>(*window, "lblState").text(); }
    QString nothing() const { return control<QLabel>(*window, "lblNothing").text(); }
    clsPagesMaker &maker() const { return window->findChild<clsFormPages *>()->Maker(); }
    bool wait() const
    {
        return QTest::qWaitFor([this] { return !maker().isRunning(); }, 60000);
    }
    void showPages()
    {
        entry("mnuFormPages").trigger();
        ASSERT_TRUE(wait());
    }
    /// As many as the script gives.
    static void includeThreePages()
    {
        for (int number = 4; number <= 13; ++number)
            Form->field(QStringLiteral("IncludePage%1").arg(number))->writeBoolean(false);
    }
    int boxOf(const char *property) const
    {
        const auto boxes = mdPageBoxes(maker().Sheets(), Form->FormType(), page().Pages());
        for (size_t i = 0; i < boxes.size(); ++i)
            if (boxes[i].target == QLatin1String(property))
                return int(i);
        return -1;
    }
    /// Closes the screen that opens next; its name, and the field that has the focus.
    static void closeScreen(QString &focus)
    {
        QTimer::singleShot(300, [&focus] {
            QWidget *screen = QApplication::activeModalWidget();
            ASSERT_NE(nullptr, screen);
            QWidget *field = screen->focusWidget();
            while (field && field != screen && !field->objectName().startsWith(QLatin1String("txtSurname")))
                field = field->parentWidget();
            focus = screen->objectName() + u' ' + (field ? field->objectName() : QString());
            screen->close();
        });
    }
    void change() { Form->ClientDetails.Surname = Form->ClientDetails.Surname() + u'x'; }

private:
    std::optional<clsOfficeProgramScope> m_office;
};

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
        user.answers = {clsUserInterface::No}; // nothing is to be saved
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
    // What no page shows is no change, and neither is one that was taken back.
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
    // A view of any width: the page and an edge, and never more than a quarter larger than on paper.
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
    const QByteArray pdf = pdfOf(300);
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(pages.ShowPages(pdf, Now()));
    QTest::keyClick(pages.View(), Qt::Key_End);
    pages.grab();
    EXPECT_EQ(299, pages.View()->CurrentPage());
    // All of them drawn would take many times as long.
    EXPECT_LT(timer.elapsed(), 2000);
}

TEST_F(FormPages, ABoxOpensItsScreenOnItsField)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    includeThreePages();
    showPages();
    oPageView &view = *page().View();
    view.setZoom(50);
    const int box = boxOf("ClientDetails.Surname");
    ASSERT_GE(box, 0);
    const QPoint place = view.PlaceOfBox(box).center();
    QTest::mouseMove(view.viewport(), place);
    EXPECT_EQ(box, view.MarkedBox());
    EXPECT_EQ(QStringLiteral("Open Client Details: Surname"), view.accessibleDescription());
    QString focus;
    closeScreen(focus);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(QStringLiteral("frmClientDetails txtSurname"), focus);
    EXPECT_TRUE(page().isVisible());
    // Beside all boxes there is nothing to open.
    QTest::mouseMove(view.viewport(), {2, 2});
    EXPECT_EQ(-1, view.MarkedBox());
    EXPECT_EQ(state(), view.accessibleDescription());
}

TEST_F(FormPages, TheTabKeyWalksTheBoxesAndEnterOpens)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    includeThreePages();
    showPages();
    oPageView &view = *page().View();
    QTest::keyClick(&view, Qt::Key_Tab);
    EXPECT_EQ(0, view.MarkedBox());
    const int box = boxOf("ClientDetails.Surname");
    for (int i = 0; i < box; ++i)
        QTest::keyClick(&view, Qt::Key_Tab);
    EXPECT_EQ(box, view.MarkedBox());
    EXPECT_TRUE(view.viewport()->rect().contains(view.PlaceOfBox(box)));
    QString focus;
    closeScreen(focus);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("frmClientDetails txtSurname"), focus);
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(-1, view.MarkedBox());
    EXPECT_FALSE(view.hasFocus()) << "before the first box comes the control before";
}

TEST_F(FormPages, ASheetThatRunsOnHasNoBoxes)
{
    start();
    const auto boxes = [](std::vector<clsForecast::Sheet> sheets, int pages) {
        clsForecast given;
        given.Sheets = std::move(sheets);
        QSet<int> found;
        for (const clsPageBox &box : mdPageBoxes(given, QStringLiteral("Claim1"), pages))
            found << box.page;
        return found;
    };
    const QString none;
    EXPECT_EQ((QSet<int> {0, 1, 2}),
        boxes({{1, QStringLiteral("1(1)"), none, 1}, {2, QStringLiteral("2(1)"), none, 1},
                  {3, QStringLiteral("3(1)"), none, 1}},
            3));
    EXPECT_EQ((QSet<int> {0, 3}),
        boxes({{1, QStringLiteral("1(1)"), none, 1}, {2, QStringLiteral("2(1)"), none, 2},
                  {3, QStringLiteral("3(1)"), none, 1}},
            4));
    EXPECT_EQ((QSet<int> {0, 2}),
        boxes({{1, QStringLiteral("1(1)"), none, 1}, {2, QStringLiteral("2(2)"), none, 1},
                  {3, QStringLiteral("3(1)"), none, 1}},
            3));
    EXPECT_TRUE(boxes({{1, QStringLiteral("1(1)"), none, 1}}, 2).isEmpty()) << "pages that nobody reckoned with";
}

TEST_F(FormPages, TheBoxesLieWhereTheOfficeProgramPrintsTheirTexts)
{
    if (mdOfficeProgram().isEmpty())
        GTEST_SKIP() << "no office program is installed";
    start(sample("housing-typical.zr3"));
    const std::pair<const char *, QString> words[] = {
        {"ClientDetails.Surname", QStringLiteral("Qsurname")},
        {"CaseInformation.NameOfCourt", QStringLiteral("Qcourt")},
        {"LateSubmission.Explanation", QStringLiteral("Qlate")},
        {"DetailsOfWork.DetailsOfCase", QStringLiteral("Qwork")},
        {"DebtorsDetails.Address", QStringLiteral("Qaddress")},
        {"DebtorsDetails.Information", QStringLiteral("Qinformation")},
        {"DetailsOfCostsAwarded.AddressOfService", QStringLiteral("Qservice")},
    };
    for (const char *formType : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromLatin1(formType);
        Form->ClientDetails.Surname = QStringLiteral("Qsurname");
        Form->CaseInformation.NameOfCourt = QStringLiteral("Qcourt");
        Form->LateSubmission.Explanation = QStringLiteral("Qlate");
        Form->DetailsOfWork.DetailsOfCase = QStringLiteral("Qwork");
        Form->DebtorsDetails.Address = QStringLiteral("Qaddress");
        Form->DebtorsDetails.Information = QStringLiteral("Qinformation");
        Form->DetailsOfCostsAwarded.AddressOfService = QStringLiteral("Qservice");
        showPages();
        ASSERT_TRUE(page().HasPages()) << nothing().toStdString();
        QBuffer buffer;
        buffer.setData(page().Pdf());
        buffer.open(QIODevice::ReadOnly);
        QPdfDocument pdf;
        pdf.load(&buffer);
        int found = 0;
        for (const clsPageBox &box : mdPageBoxes(maker().Sheets(), Form->FormType(), page().Pages())) {
            const QString text = pdf.getAllText(box.page).text();
            for (const auto &[property, word] : words) {
                const bool itsOwn = QLatin1String(property) == box.target;
                const qsizetype at = itsOwn ? text.indexOf(word) : -1;
                if (at < 0)
                    continue;
                ++found;
                const QRectF printed = pdf.getSelectionAtIndex(box.page, int(at), int(word.size())).boundingRectangle();
                EXPECT_TRUE(box.points.adjusted(-3, -3, 3, 3).contains(printed))
                    << formType << ' ' << qPrintable(word) << " at " << printed.x() << ' ' << printed.y() << ", box "
                    << box.points.x() << ' ' << box.points.y() << ' ' << box.points.width() << ' '
                    << box.points.height();
            }
        }
        EXPECT_GE(found, 5) << formType;
    }
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

namespace {

class PdfExport : public FormPages {
protected:
    QByteArray bytesOf(const QString &file) const
    {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArrayLiteral("(no file)");
    }
    QByteArray ready() const { return bytesOf(path("ready.pdf")); }
    void exportTo(const QString &file)
    {
        user.files = {file};
        entry("mnuExportAsPdf").trigger();
    }
};

} // namespace

TEST_F(PdfExport, WritesThePagesUnderTheProposedName)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    exportTo(path("claims/mine.pdf"));
    EXPECT_EQ(QStringList(path("claims/housing-typical.pdf")), user.proposed);
    EXPECT_EQ(ready(), bytesOf(path("claims/mine.pdf")));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Export Complete"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Exporting is complete."), user.messages[0].text);
    EXPECT_EQ(QFile::permissions(path("claims/housing-typical.zr3")), QFile::permissions(path("claims/mine.pdf")));
}

TEST_F(PdfExport, AClaimNeverSavedIsNamedAfterItsForm)
{
    workingOfficeProgram();
    start();
    Form->ExportPath = path("claims");
    exportTo(QString());
    EXPECT_EQ(QStringList(path("claims/Claim1.pdf")), user.proposed);
    EXPECT_EQ(0, runs());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PdfExport, TakesThePagesThatAreShown)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    for (int i = 0; i < 10; ++i)
        exportTo(path("claims/mine.pdf"));
    EXPECT_EQ(1, runs());
    EXPECT_EQ(ready(), bytesOf(path("claims/mine.pdf")));
    change();
    exportTo(path("claims/mine.pdf"));
    EXPECT_EQ(2, runs());
}

TEST_F(PdfExport, TenOneAfterTheOtherLeaveNothingBehind)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    const QStringList before = QDir(QDir::tempPath()).entryList({QStringLiteral("window_test-*")});
    for (int i = 0; i < 10; ++i) {
        exportTo(path("claims/mine.pdf"));
        EXPECT_EQ(ready(), bytesOf(path("claims/mine.pdf")));
        QFile::remove(path("claims/mine.pdf"));
    }
    EXPECT_EQ(10, runs());
    EXPECT_EQ(10u, user.messages.size());
    EXPECT_EQ(before, QDir(QDir::tempPath()).entryList({QStringLiteral("window_test-*")}));
}

TEST_F(PdfExport, EscapeStopsItAndLeavesTheOldFile)
{
    officeProgram("exec sleep 1000\n");
    start(sample("housing-typical.zr3"));
    QFile old(path("claims/mine.pdf"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    QTimer::singleShot(500, [] {
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_NE(nullptr, dialog);
        EXPECT_EQ(QStringLiteral("frmExportAsPdf"), dialog->objectName());
        EXPECT_EQ(QStringLiteral("Drawing 14 pages"), control<QLabel>(*dialog, "lblProgress").text());
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    exportTo(path("claims/mine.pdf"));
    EXPECT_EQ("old", bytesOf(path("claims/mine.pdf")));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PdfExport, AFailureIsOneMessage)
{
    start(sample("housing-typical.zr3"));
    struct {
        std::function<void()> prepare;
        QString file;
        QString told;
    } const rows[] = {
        {[this] { noOfficeProgram(); }, path("claims/mine.pdf"),
            QStringLiteral(
                "No office program was found that can make the PDF. Install LibreOffice Writer and try again.")},
        {[this] { officeProgram("exit 7\n"); }, path("claims/mine.pdf"),
            QStringLiteral("LibreOffice failed to make the PDF (exit status 7).")},
        {[this] { officeProgram("exec sleep 1000\n", 300); }, path("claims/mine.pdf"),
            QStringLiteral("LibreOffice did not make the PDF within 0.3 seconds and was stopped.")},
        {[this] { workingOfficeProgram(); }, path("gone/mine.pdf"),
            QStringLiteral("The PDF could not be written: File not found.")},
    };
    for (const auto &row : rows) {
        row.prepare();
        user.messages.clear();
        exportTo(row.file);
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Export as PDF"), user.messages[0].title);
        EXPECT_EQ(QStringLiteral("The PDF was not made.\r\n\r\n") + row.told, user.messages[0].text);
        EXPECT_FALSE(QFile::exists(path("claims/mine.pdf")));
    }
}
