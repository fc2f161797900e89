// The list of the claims of a folder: what it shows, and that it follows the files.

#include "controls/mdGridMetrics.h"
#include "controls/oHeaderBar.h"
#include "shell/clsFolderModel.h"
#include "shell/oFolderHeader.h"
#include "shell/oFolderTotals.h"
#include "tests/support/mdSpokenNames.h"
#include "tests/window/clsClaimFolderTest.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using Column = clsFolderModel;
class Folder : public clsClaimFolderTest {
protected:
    QString totals() const
    {
        return window->findChild<QWidget *>(QStringLiteral("oFolderTotals"))->accessibleDescription();
    }
    QString header() const { return control<oHeaderBar>(*window, "oHeader").SubCaption(); }
};

} // namespace

TEST_F(Folder, ShowsTheFiguresOfItsClaims)
{
    put("housing-typical.zr3", "Hartwell.zr3");
    put("care-typical.zr3", "2025/Abbot.zr3");
    start();
    read(2);
    EXPECT_EQ((QStringList {"Abbot", "Hartwell"}), names());
    EXPECT_EQ("1A", cell(0, Column::Form));
    EXPECT_EQ("2025", table().model()->index(0, 0).data(Column::FolderRole).toString());
    // From the samples' totals.
    EXPECT_EQ("5,080.66", cell(1, Column::ProfitCosts));
    EXPECT_EQ("10,804.31", cell(1, Column::Total));
    EXPECT_EQ("", cell(1, Column::Scheme)) << "Claim 1 has no such amount";
    EXPECT_EQ("16,059.69", cell(0, Column::Total));
    EXPECT_EQ(claims() + " and the folders below it: 2 claims", header());
    EXPECT_TRUE(totals().startsWith("2 claims, ")) << totals().toStdString();
    EXPECT_TRUE(totals().contains("Total 26,864.00")) << totals().toStdString();
    EXPECT_TRUE(table().hasFocus());
    EXPECT_LT(5, expectSensibleNames(*window));
}

TEST_F(Folder, AddsUpWhatIsChosen)
{
    for (const char *name : {"a.zr3", "b.zr3", "c.zr3"})
        put("housing-typical.zr3", name);
    start();
    read(3);
    QTest::keyClick(&table(), Qt::Key_Home);
    QTest::keyClick(&table(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(totals().startsWith("2 of 3 claims chosen, ")) << totals().toStdString();
    EXPECT_TRUE(totals().contains("Total 21,608.62")) << totals().toStdString();
    QTest::keyClick(&table(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(totals().startsWith("3 of 3 claims chosen, "));
    QTest::keyClick(&table(), Qt::Key_End);
    EXPECT_EQ(2, table().currentIndex().row());
    QTest::keyClick(&table(), Qt::Key_Right);
    QTest::keyClick(&table(), Qt::Key_A); // letters look for a claim
    EXPECT_EQ("a", table().currentIndex().data().toString());
    EXPECT_TRUE(totals().startsWith("1 of 3 claims chosen, "));
    QTest::keyClick(&table(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(totals().startsWith("3 claims, ")) << "nothing is chosen";
}

TEST_F(Folder, AClaimThatCantBeReadHasTheReasonAndIsInNoTotal)
{
    put("housing-typical.zr3", "good.zr3");
    putBytes("broken.zr3", "<zr3form>");
    // Larger than a claim may be, without using space on the disk.
    ASSERT_EQ(0, truncate(QFile::encodeName(putBytes("large.zr3", "<")).constData(), 100 << 20));
    ASSERT_TRUE(QFile::link(claims() + "/nowhere", claims() + "/vanished.zr3"));
    const QString locked = put("housing-typical.zr3", "locked.zr3");
    ASSERT_EQ(0, chmod(QFile::encodeName(locked).constData(), 0));
    const int unread = geteuid() == 0 ? 3 : 4; // root reads everything
    start();
    read(5);
    EXPECT_EQ((QStringList {"broken", "good", "large", "locked", "vanished"}), names());
    EXPECT_TRUE(header().endsWith(QStringLiteral(": 5 claims, %1 cannot be read").arg(unread)))
        << header().toStdString();
    const QString spoken = table().model()->index(0, 0).data(Qt::AccessibleTextRole).toString();
    EXPECT_TRUE(spoken.startsWith("broken, can't be read: There was a problem")) << spoken.toStdString();
    EXPECT_EQ("", cell(0, Column::Total));
    choose({0, 1, 2, 4});
    EXPECT_TRUE(totals().contains("Total 10,804.31")) << totals().toStdString();
}

TEST_F(Folder, AFigureThatCantBeWorkedOutIsMarked)
{
    QFile sample(put("housing-typical.zr3", "a.zr3"));
    ASSERT_TRUE(sample.open(QIODevice::ReadWrite));
    QByteArray bytes = sample.readAll();
    bytes.replace("<hourlyrate>", "<hourlyrate>x");
    sample.seek(0);
    sample.write(bytes);
    sample.close();
    start();
    read(1);
    EXPECT_EQ("!", cell(0, Column::Total));
    EXPECT_NE("", cell(0, Column::Client));
    const auto spoken = table().model()->index(0, Column::Total).data(Qt::AccessibleTextRole).toString();
    EXPECT_TRUE(spoken.startsWith("Can't be worked out: ")) << spoken.toStdString();
}

TEST_F(Folder, FollowsWhatIsSavedRenamedAndDeleted)
{
    put("housing-typical.zr3", "a.zr3");
    put("housing-typical.zr3", "c.zr3");
    start();
    read(2);
    table().setCurrentIndex(table().model()->index(1, 0));
    QElapsedTimer waited;
    waited.start();
    put("care-typical.zr3", "b.zr3");
    QTRY_COMPARE_WITH_TIMEOUT(table().model()->rowCount(), 3, Patience);
    EXPECT_LT(waited.elapsed(), 2000);
    EXPECT_EQ("c", cell(table().currentIndex().row(), 0)) << "the row that was chosen";
    EXPECT_EQ((QStringList {"a", "b", "c"}), names());
    put("care-typical.zr3", "a.zr3");
    QTRY_COMPARE_WITH_TIMEOUT(cell(0, Column::Form), QStringLiteral("1A"), Patience);
    ASSERT_TRUE(QFile::remove(claims() + "/b.zr3"));
    QTRY_COMPARE_WITH_TIMEOUT(table().model()->rowCount(), 2, Patience);
    EXPECT_EQ((QStringList {"a", "c"}), names());
}

TEST_F(Folder, AnEmptyFolderAndOneThatGoesSaySo)
{
    start();
    QTRY_COMPARE_WITH_TIMEOUT(table().accessibleDescription(), QStringLiteral("No claims in this folder."), Patience);
    ASSERT_TRUE(QDir().rmdir(claims()));
    QTRY_COMPARE_WITH_TIMEOUT(state(), QStringLiteral("Not up to date"), Patience);
    const QString trouble = table().accessibleDescription();
    EXPECT_TRUE(trouble.contains(claims() + u'\n')) << "on lines of their own: " << trouble.toStdString();
    ASSERT_TRUE(QDir().mkpath(claims()));
    put("empty.zr3", "a.zr3");
    read(1);
}

TEST_F(Folder, MarkUpInItsNameIsShownAsItIs)
{
    ASSERT_TRUE(QDir().mkpath(path("<b>x")));
    start();
    window->ShowFolder(path("<b>x"));
    const QString tip = control<QWidget>(*window, "oHeader").toolTip();
    EXPECT_TRUE(tip.contains("&lt;b&gt;x")) << tip.toStdString();
}

TEST_F(Folder, WithoutAFolderItAsksForNoneAndOffersTheChoice)
{
    window = std::make_unique<frmFolderOfClaims>(QString(), nullptr, QStringLiteral(ZR3_TOOL));
    show(*window);
    EXPECT_TRUE(button("cmdChooseFolder").hasFocus());
    EXPECT_EQ("Choose a folder to see its claims.", table().accessibleDescription());
    EXPECT_TRUE(user.prompts.isEmpty());
    put("empty.zr3", "a.zr3");
    user.folders = {claims()};
    QTest::keyClick(&button("cmdChooseFolder"), Qt::Key_Space);
    read(1);
    EXPECT_EQ(QStringList("Choose a folder of claims"), user.prompts);
}

TEST_F(Folder, SortsByAHeadingWithTheKeysAndTheMouse)
{
    put("housing-typical.zr3", "b.zr3"); // 10,804.31
    put("care-typical.zr3", "a.zr3"); // 16,059.69
    put("empty.zr3", "c.zr3");
    start();
    read(3);
    oFolderHeader &headings = *table().Header();
    headings.setFocus();
    EXPECT_EQ("Claim, sorted upwards", headings.accessibleDescription());
    while (headings.accessibleDescription() != "Total")
        QTest::keyClick(&headings, Qt::Key_Right);
    QTest::keyClick(&headings, Qt::Key_Return);
    EXPECT_EQ("Total, sorted upwards", headings.accessibleDescription());
    EXPECT_EQ((QStringList {"c", "b", "a"}), names());
    QTest::keyClick(&headings, Qt::Key_Space);
    EXPECT_EQ((QStringList {"a", "b", "c"}), names());
    const QPoint claim(headings.sectionViewportPosition(Column::Claim) + 20, headings.height() / 2);
    QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, claim);
    QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, claim);
    EXPECT_EQ((QStringList {"c", "b", "a"}), names());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Folder, FiltersByWordsAndByErrors)
{
    put("housing-typical.zr3", "Hartwell disrepair.zr3");
    put("housing-typical.zr3", "old/Hartwell possession.zr3");
    putBytes("Jessop.zr3", "<");
    start();
    read(3);
    auto &filter = control<QLineEdit>(*window, "txtFilter");
    filter.setFocus();
    QTest::keyClicks(&filter, "hart disrep");
    EXPECT_EQ(QStringList("Hartwell disrepair"), names());
    EXPECT_TRUE(totals().startsWith("1 claim, "));
    filter.setText("old");
    EXPECT_EQ(QStringList("Hartwell possession"), names());
    filter.setText("nothing like it");
    EXPECT_EQ("No claim matches the filter.", table().accessibleDescription());
    QTest::keyClick(&filter, Qt::Key_Escape);
    EXPECT_EQ(3, table().model()->rowCount());
    EXPECT_TRUE(window->isVisible()) << "Esc empties the filter first";
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_TRUE(table().hasFocus());
    control<QAbstractButton>(*window, "chkOnlyWithErrors").click();
    EXPECT_EQ(3, table().model()->rowCount()) << "what can't be read is wrong too";
}

TEST_F(Folder, ColumnsGiveWayWhereItIsNarrow)
{
    put("housing-typical.zr3", "a.zr3");
    start();
    read(1);
    window->resize(2200, 700);
    const auto hidden = [this] {
        QList<int> columns;
        for (int column = 0; column < Column::Columns; ++column)
            if (table().isColumnHidden(column))
                columns << column;
        return columns;
    };
    QTRY_COMPARE(hidden(), QList<int>());
    QList<QList<int>> seen;
    for (int width = 2200; width > 700; width -= 10) {
        window->resize(width, 700);
        QCoreApplication::processEvents();
        if (seen.isEmpty() || seen.last() != hidden())
            seen << hidden();
    }
    EXPECT_EQ((QList<QList<int>> {{}, {Column::All}, {Column::All, Column::Changed},
                  {Column::Items, Column::All, Column::Changed},
                  {Column::Items, Column::Scheme, Column::All, Column::Changed},
                  {Column::Reference, Column::Items, Column::Scheme, Column::All, Column::Changed}}),
        seen.first(6));
    window->resize(10, 400); // as small as it gets
    QTRY_VERIFY(hidden().size() > 5);
    EXPECT_FALSE(table().isColumnHidden(Column::Claim));
    EXPECT_FALSE(table().isColumnHidden(Column::Total));
    QTRY_VERIFY(!table().horizontalScrollBar()->isVisible());
}

TEST_F(Folder, RemembersItsFolderSizeAndOrder)
{
    put("empty.zr3", "a.zr3");
    start();
    read(1);
    window->resize(1210, 654);
    table().SortBy(Column::Total);
    table().SortBy(Column::Total);
    QTest::keyClick(&table(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    window = std::make_unique<frmFolderOfClaims>(path("program"), nullptr, QStringLiteral(ZR3_TOOL));
    EXPECT_EQ(QSize(1210, 654), window->size());
    EXPECT_EQ(int(Column::Total), table().Header()->sortIndicatorSection());
    EXPECT_EQ(Qt::DescendingOrder, table().Header()->sortIndicatorOrder());
    read(1);
}

TEST_F(Folder, AMissingToolIsToldAndClosingWaitsForNothing)
{
    window = std::make_unique<frmFolderOfClaims>(claims(), nullptr, path("no tool"));
    show(*window);
    QTRY_VERIFY(table().accessibleDescription().contains("zr3tool is missing beside the program"));
    window.reset();
    // A tool that ignores signals, as on a drive that no longer responds.
    QFile script(path("deaf"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\ntrap '' TERM\nwhile :; do sleep 1; done\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    window = std::make_unique<frmFolderOfClaims>(claims(), nullptr, path("deaf"));
    show(*window);
    EXPECT_EQ("Reading...", state());
    QElapsedTimer waited;
    waited.start();
    QTest::keyClick(&table(), Qt::Key_Escape);
    window.reset();
    EXPECT_LT(waited.elapsed(), 500);
}

TEST_F(Folder, FiveThousandRowsComeInAtTheirPlaces)
{
    clsFolderModel model;
    clsShownClaims shown(model);
    oFolderTable list(shown);
    list.resize(1300, 500);
    list.SortBy(Column::Claim);
    list.show();
    constexpr int Rows = 5000;
    constexpr int Batch = 250;
    QElapsedTimer waited;
    waited.start();
    for (int from = 0; from < Rows; from += Batch) {
        std::vector<clsFolderRow> rows;
        for (int at = from; at < from + Batch; ++at) {
            clsFolderRow row;
            // Not in sorted order.
            row.path = QStringLiteral("/claims/%1.zr3").arg((at * 7919) % Rows, 4, 10, QLatin1Char('0'));
            row.formType = QStringLiteral("Claim1");
            row.amounts[clsFolderRow::Total] = Money::fromTenThousandths(at * 100);
            rows.push_back(row);
        }
        list.KeepPlace([&] { model.Take(rows); });
        if (from == 0) {
            list.setCurrentIndex(shown.index(100, 0));
            list.scrollTo(list.currentIndex(), QAbstractItemView::PositionAtCenter);
        }
    }
    const QString current = list.currentIndex().data().toString();
    EXPECT_EQ(Rows, shown.rowCount());
    for (int row = 0; row < Rows; row += 499)
        EXPECT_EQ(QStringLiteral("%1").arg(row, 4, 10, QLatin1Char('0')), shown.index(row, 0).data().toString());
    EXPECT_EQ(list.currentIndex().row(), current.toInt());
    EXPECT_TRUE(list.viewport()->rect().intersects(list.visualRect(list.currentIndex()))) << "the chosen row stays";
    list.selectAll();
    EXPECT_EQ(Rows, list.ChosenRows().size());
    EXPECT_EQ("124,975.00", shown.Sums(list.ChosenRows()).text(Column::Total));
    list.SortBy(Column::Total);
    EXPECT_LT(waited.elapsed(), 3000);
    // The sums fit below their columns.
    oFolderTotals totals(list);
    clsFolderSums large = shown.SumsOfAll();
    large.amounts[clsFolderRow::Total] = Money::fromTenThousandths(9'876'543'210'1234);
    totals.Show(QStringLiteral("All"), large);
    EXPECT_LT(QFontMetrics(mdGridHeadingFont()).horizontalAdvance(QStringLiteral("9,876,543,210.12")),
        list.columnWidth(Column::Total));
    list.resize(300, 300);
    QTRY_VERIFY(list.isColumnHidden(Column::Errors));
    EXPECT_FALSE(list.isColumnHidden(Column::Claim));
    EXPECT_FALSE(list.isColumnHidden(Column::Total));
}
