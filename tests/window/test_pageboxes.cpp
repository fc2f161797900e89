#include "controls/mdTheme.h"
#include "controls/oSGrid.h"
#include "tests/window/clsFormPagesTest.h"

#include <QHelpEvent>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QScrollBar>
#include <QSet>
#include <QToolTip>

namespace {

using PageBoxes = clsFormPagesTest;

} // namespace

TEST_F(PageBoxes, ABoxOpensItsScreenOnItsField)
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
    // Outside the boxes nothing can be opened.
    QTest::mouseMove(view.viewport(), {2, 2});
    EXPECT_EQ(-1, view.MarkedBox());
    EXPECT_EQ(state(), view.accessibleDescription());
}

TEST_F(PageBoxes, TheTabKeyWalksTheBoxesAndEnterOpens)
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

TEST_F(PageBoxes, ASheetThatRunsOnHasNoBoxes)
{
    start();
    const auto boxes = [](std::vector<clsForecast::Sheet> sheets, int pages) {
        clsForecast given;
        given.Sheets = std::move(sheets);
        QSet<int> found;
        for (const clsPageBox &box : mdPageMarks(given, QStringLiteral("Claim1"), pages).boxes)
            found << box.page;
        return found;
    };
    const auto sheet = [](int page, const char *name, int paperPages) {
        return clsForecast::Sheet {
            page, QString::fromLatin1(name), QStringLiteral("Claim1 P%1").arg(page), paperPages, {}};
    };
    EXPECT_EQ((QSet<int> {0, 1, 2}), boxes({sheet(1, "1(1)", 1), sheet(2, "2(1)", 1), sheet(3, "3(1)", 1)}, 3));
    EXPECT_EQ((QSet<int> {0, 3}), boxes({sheet(1, "1(1)", 1), sheet(2, "2(1)", 2), sheet(3, "3(1)", 1)}, 4));
    EXPECT_EQ((QSet<int> {0, 2}), boxes({sheet(1, "1(1)", 1), sheet(2, "2(2)", 1), sheet(3, "3(1)", 1)}, 3));
    EXPECT_TRUE(boxes({sheet(1, "1(1)", 1)}, 2).isEmpty()) << "more pages than expected";
}

TEST_F(PageBoxes, ARowOfAListOpensItsItem)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    includeThreePages();
    Form->field(QStringLiteral("IncludePage3"))->writeBoolean(false);
    Form->field(QStringLiteral("IncludePage7"))->writeBoolean(true);
    Form->AddJointInstruction()->ExpertType = QStringLiteral("Surveyor");
    Form->AddJointInstruction()->ExpertType = QStringLiteral("Engineer");
    showPages();
    oPageView &view = *page().View();
    const int box = boxOf("joint:2");
    ASSERT_GE(box, 0);
    view.GoTo(2);
    QTest::mouseMove(view.viewport(), view.PlaceOfBox(box).center());
    EXPECT_EQ(QStringLiteral("Open item 2 of Joint Instructions"), view.accessibleDescription());
    QString opened;
    QTimer::singleShot(300, [&opened] {
        QWidget *screen = QApplication::activeModalWidget();
        ASSERT_NE(nullptr, screen);
        auto &grid = control<oSGrid>(*screen, "sgJointInstructions");
        opened = QStringLiteral("%1 %2 %3 %4")
                     .arg(screen->objectName())
                     .arg(grid.isVisible())
                     .arg(grid.SelectedRow())
                     .arg(grid.isAncestorOf(screen->focusWidget()));
        screen->close();
    });
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.PlaceOfBox(box).center());
    EXPECT_EQ(QStringLiteral("frmDisbursements 1 2 1"), opened);
}

TEST_F(PageBoxes, WhatIsPrintedSmallerHasItsSignInTheMargin)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    includeThreePages();
    Form->LateSubmission.Explanation = QStringLiteral("One\r\n").repeated(24);
    showPages();
    oPageView &view = *page().View();
    const int box = boxOf("LateSubmission.Explanation");
    ASSERT_GE(box, 0);
    const auto &signs = view.Signs();
    int sign = -1;
    for (int i = 0; i < int(signs.size()); ++i)
        if (signs[size_t(i)].note.words.startsWith(QLatin1String("Explanation: printed at ")))
            sign = i;
    ASSERT_GE(sign, 0);
    EXPECT_EQ(clsPrintNote::Smaller, signs[size_t(sign)].note.sign);
    EXPECT_EQ(1, signs[size_t(sign)].page);
    view.setZoom(100);
    view.verticalScrollBar()->setValue(view.PlaceOfSign(sign).center().y() - view.viewport()->height() / 2);
    // Beside the box, on its left.
    const QRect place = view.PlaceOfSign(sign);
    const QRect whole = view.PlaceOfBox(box);
    EXPECT_TRUE(whole.top() <= place.center().y() && place.center().y() <= whole.bottom());
    EXPECT_LE(place.right(), whole.left());
    // It is drawn there, in blue.
    const QImage drawn = view.viewport()->grab(place).toImage();
    int blue = 0;
    for (int x = 0; x < drawn.width(); ++x)
        for (int y = 0; y < drawn.height(); ++y)
            blue += drawn.pixelColor(x, y) == Theme::Blue;
    EXPECT_GT(blue, 5);
    // The tooltip shows its text, which is also in the box's description.
    QHelpEvent asked(QEvent::ToolTip, place.center(), view.viewport()->mapToGlobal(place.center()));
    QApplication::sendEvent(view.viewport(), &asked);
    EXPECT_EQ(signs[size_t(sign)].note.words, QToolTip::text());
    QTest::mouseMove(view.viewport(), whole.center());
    EXPECT_TRUE(
        view.accessibleDescription().startsWith(QLatin1String("Open Late Submission: Explanation (printed at ")))
        << qPrintable(view.accessibleDescription());
}

TEST_F(PageBoxes, ASheetThatRunsOnHasItsSignAtItsHead)
{
    start();
    clsForecast given;
    given.Sheets = {{1, QStringLiteral("1(1)"), QStringLiteral("Claim1 P1"), 1, {}},
        {2, QStringLiteral("2(1)"), QStringLiteral("Claim1 P2"), 2, {}}};
    const auto box = [](const char *sheet, const char *property, clsForecast::Box::clsState state) {
        clsForecast::Box made {};
        made.Sheet = QString::fromLatin1(sheet);
        made.Property = QString::fromLatin1(property);
        made.Placeholder = QStringLiteral("{surname}");
        made.Size = 10;
        made.PrintedSize = 8.5;
        made.State = state;
        return made;
    };
    given.Boxes = {box("1(1)", "ClientDetails.Surname", clsForecast::Box::Cut),
        box("2(1)", "CaseInformation.NameOfCourt", clsForecast::Box::Smaller),
        box("2(1)", "LateSubmission.Explanation", clsForecast::Box::RunsOn)};
    const auto signs = mdPageMarks(given, QStringLiteral("Claim1"), 3).signs;
    ASSERT_EQ(2u, signs.size());
    EXPECT_EQ(clsPrintNote::Cut, signs[0].note.sign);
    EXPECT_EQ(QStringLiteral("Surname: the rest is cut off"), signs[0].note.words);
    EXPECT_GT(signs[0].left, 0);
    EXPECT_EQ(1, signs[1].page);
    EXPECT_EQ(0, signs[1].left);
    EXPECT_EQ(clsPrintNote::RunsOn, signs[1].note.sign) << "the gravest of several";
    EXPECT_EQ(QStringLiteral("Name(s) of court(s) or proposed court: printed at 8.5 points instead of 10\n"
                             "Explanation: runs on to another page"),
        signs[1].note.words);
    EXPECT_TRUE(mdPageMarks(given, QStringLiteral("Claim1"), 4).signs.empty());
    // If the sheet with the grown row stays on one page, everything below the row has moved.
    given.Sheets[1].PaperPages = 1;
    const auto moved = mdPageMarks(given, QStringLiteral("Claim1"), 2);
    EXPECT_EQ(0, moved.signs.back().left);
    EXPECT_TRUE(
        std::none_of(moved.boxes.begin(), moved.boxes.end(), [](const clsPageBox &one) { return one.page == 1; }));
}

TEST_F(PageBoxes, TheBoxesLieWhereTheOfficeProgramPrintsTheirTexts)
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
        for (const clsPageBox &box : mdPageMarks(maker().Sheets(), Form->FormType(), page().Pages()).boxes) {
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

TEST_F(PageBoxes, TheRowsLieWhereTheOfficeProgramPrintsTheirItems)
{
    if (mdOfficeProgram().isEmpty())
        GTEST_SKIP() << "no office program is installed";
    for (const char *name : {"many-sheets.zr3", "many-sheets-1a.zr3"}) {
        window.reset();
        start(sample(name));
        const auto marked
            = [](const char *list, int order) { return QStringLiteral("Q%1%2q").arg(QLatin1String(list)).arg(order); };
        for (const auto &item : Form->DisbursementsCollection())
            item->Description = marked("d", item->OrderID());
        for (const auto &item : Form->ExpertInvoicesCollection())
            item->ExpertType = marked("e", item->OrderID());
        for (const auto &item : Form->JointInstructionsCollection())
            item->ExpertType = marked("j", item->OrderID());
        for (const auto &item : Form->FASItemsCollection()) {
            item->LevelOfCourt = marked("f", item->OrderID());
            item->BoltOnDescription = marked("f", item->OrderID());
            item->ExceptionalTravelReason = marked("f", item->OrderID());
        }
        for (const auto &item : Form->ScheduleOfTimeItemsCollection())
            item->TTime = QStringLiteral("%1:%2").arg(item->OrderID() / 50 + 20).arg(item->OrderID() % 50 + 10);
        showPages();
        ASSERT_TRUE(page().HasPages()) << nothing().toStdString();
        QBuffer buffer;
        buffer.setData(page().Pdf());
        buffer.open(QIODevice::ReadOnly);
        QPdfDocument pdf;
        pdf.load(&buffer);
        QHash<QString, int> rows;
        for (const clsPageBox &box : mdPageMarks(maker().Sheets(), Form->FormType(), page().Pages()).boxes) {
            const QString list = box.target.section(u':', 0, 0);
            const int order = box.target.section(u':', 1).toInt();
            if (order == 0)
                continue;
            const QString word = list == QLatin1String("schedule") ? Form->ScheduleOfTimeItemByOrderID(order)->TTime()
                                                                   : marked(list.left(1).toLatin1().constData(), order);
            const QString text = pdf.getAllText(box.page).text();
            bool within = false;
            for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1))
                within = within
                    || box.points.adjusted(-3, -3, 3, 3)
                           .contains(pdf.getSelectionAtIndex(box.page, int(at), int(word.size())).boundingRectangle());
            // Counsel's fees show counsel's name instead of a description.
            EXPECT_TRUE(within || list == QLatin1String("disbursements")) << name << ' ' << qPrintable(box.target);
            rows[list] += within;
        }
        EXPECT_GT(rows[QStringLiteral("schedule")], 33) << name;
        EXPECT_GT(rows[QStringLiteral("disbursements")], 3) << name;
        EXPECT_GT(rows[QStringLiteral("experts")], 3) << name;
        EXPECT_GT(rows[QStringLiteral("joint")], 3) << name;
        if (Form->FormType() == QLatin1String("Claim1A")) {
            EXPECT_GT(rows[QStringLiteral("fas")], 3) << name;
        }
    }
}
