#include "base/mdStateFile.h"
#include "commands/mdFileHandling.h"
#include "controls/mdGridMetrics.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "editors/clsPasteList.h"
#include "editors/clsPasteModel.h"
#include "editors/frmPasteItems.h"
#include "editors/mdPasteItems.h"
#include "editors/oListLine.h"
#include "editors/oPasteGrid.h"
#include "editors/oPasteHeader.h"
#include "formdata/clsZR3Disbursement.h"
#include "formdata/mdRunStep.h"
#include "tests/editors/clsScheduleTest.h"

#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>

// Pasting rows of a table into a list, and copying a list as a table.

namespace {

class PasteItems : public clsScheduleTest {
protected:
    void SetUp() override
    {
        clsScheduleTest::SetUp();
        m_stateHome = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
        const auto group = addGroup("PTR");
        for (const char *reference : {"DVE", "AKB"})
            addFeeEarner(QString::fromLatin1(reference), *group);
        Document().takeAsClean();
        Document().history.clear();
    }
    void TearDown() override
    {
        screen.reset();
        window.reset();
        Document().history.clear();
        m_stateHome.isNull() ? qunsetenv("XDG_STATE_HOME") : qputenv("XDG_STATE_HOME", m_stateHome);
        clsScheduleTest::TearDown();
    }
    static void copy(const QString &text) { QGuiApplication::clipboard()->setText(text); }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    void look(const QString &text, const clsPasteList &list = mdPasteSchedule())
    {
        window = std::make_unique<frmPasteItems>(list, text,
            frmPasteItems::clsSource {
                QStringLiteral("Paste Items"), QStringLiteral("the clipboard"), QStringLiteral("Nothing to paste.")});
        window->resize(window->sizeHint());
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    oPasteGrid &pasted() const { return *window->findChild<oPasteGrid *>(); }
    QAbstractItemModel &cells() const { return *pasted().model(); }
    /// The cells of a row, separated by bars, with the note last.
    QString row(int number) const
    {
        QStringList texts;
        for (int column = clsPasteModel::FirstPlace; column < cells().columnCount(); ++column)
            texts << cells().index(number - 1, column).data().toString();
        return texts.join(u'|');
    }
    bool ticked(int number) const
    {
        return cells().index(number - 1, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    oCustomButton &add() const { return *window->findChild<oCustomButton *>(QStringLiteral("cmdAdd")); }
    QString said(const char *name) const { return window->findChild<QLabel *>(QString::fromLatin1(name))->text(); }
    void press(int which, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window->focusWidget(), Qt::Key(which), modifiers);
    }
    /// The cell with the focus, as row and column from 1; the tick is column 0.
    std::pair<int, int> at() const
    {
        const QModelIndex current = pasted().currentIndex();
        return {current.row() + 1, current.column() - clsPasteModel::FirstPlace + 1};
    }
    std::vector<QComboBox *> headings() const { return pasted().Headings().Lists(); }
    QStringList meanings() const
    {
        QStringList texts;
        for (const QComboBox *list : headings())
            texts << list->currentText();
        return texts;
    }
    static void choose(QComboBox &list, const char *meaning)
    {
        list.setCurrentIndex(list.findText(QString::fromLatin1(meaning)));
        emit list.activated(list.currentIndex());
    }

    /// Presses a key in the open list screen and uses the window that it opens until that is closed.
    void inWindow(const std::function<void()> &opens, const std::function<void(frmPasteItems &)> &act)
    {
        bool isOpened = false;
        int patience = 500;
        QTimer waiting;
        QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
            auto *found = qobject_cast<frmPasteItems *>(QApplication::activeModalWidget());
            if (!found && --patience > 0)
                return;
            waiting.stop();
            if (!found)
                return;
            isOpened = true;
            activate(*found);
            act(*found);
            EXPECT_FALSE(found->isVisible());
            if (found->isVisible())
                found->reject();
        });
        waiting.start(2);
        opens();
        EXPECT_TRUE(isOpened);
        activate(*screen);
    }
    void open(const char *section) { screen = opened(QString::fromUtf8(section)); }
    void paste(const std::function<void(frmPasteItems &)> &act)
    {
        inWindow([this] { QTest::keyClick(screen->focusWidget(), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier); },
            act);
    }
    /// By keyboard alone: without wrong rows the focus is on "Add".
    static void pressEnter(frmPasteItems &found) { QTest::keyClick(found.focusWidget(), Qt::Key_Return); }
    void undo() const { QTest::keyClick(screen->focusWidget(), Qt::Key_Z, Qt::ControlModifier); }
    static QStringList schedule()
    {
        QStringList items;
        for (const auto &item : Form->ScheduleOfTimeItemsCollection())
            items << QStringList(
                {item->FeeEarnerReference(), item->dDate(), item->Code(), item->TTime(), item->Description()})
                         .join(u' ');
        return items;
    }

    std::unique_ptr<frmScreen> screen;
    std::unique_ptr<frmPasteItems> window;

private:
    QByteArray m_stateHome;
};

QString worked()
{
    return QStringLiteral("Date\tFee Earner\tCode\tTime\tDescription\n"
                          "17/09/25\tDVE\tACT\t0:36\tAttending client\n"
                          "18/09/25\tAKB\tACT\t1:10\tPreparing\n");
}

QString withFaults()
{
    return worked()
        + QStringLiteral("30/09/25\tJPR\tACT\t0:30\tAttending surveyor\n"
                         "31/09/25\tDVE\tACT\t0:24\tAttending on the application\n");
}

} // namespace

TEST_F(PasteItems, ShowsTheRowsAsTheyWillBeStored)
{
    look(worked());
    EXPECT_EQ(QStringLiteral("17/09/25|DVE|ACT|00:36|Attending client|"), row(1));
    EXPECT_EQ(QStringLiteral("18/09/25|AKB|ACT|01:10|Preparing|"), row(2));
    EXPECT_EQ(QStringList({QStringLiteral("Date"), QStringLiteral("Fee Earner"), QStringLiteral("Code"),
                  QStringLiteral("Time"), QStringLiteral("Description")}),
        meanings());
    EXPECT_EQ(QStringLiteral("Add 2 items"), add().Caption());
    EXPECT_TRUE(add().isEnabled());
    EXPECT_EQ(&add(), window->focusWidget());
    EXPECT_EQ(QStringLiteral("2 rows: 2 chosen"), said("lblCounts"));
    EXPECT_EQ(QStringLiteral("01:46"), said("lblTotal"));
}

TEST_F(PasteItems, AWrongCellHoldsTheButtonAndHasTheFocus)
{
    look(withFaults());
    EXPECT_EQ(std::make_pair(3, 2), at());
    EXPECT_EQ(QStringLiteral("30/09/25|JPR|ACT|00:30|Attending surveyor|No fee earner \"JPR\" in this claim"), row(3));
    EXPECT_TRUE(row(4).endsWith(QStringLiteral("September has 30 days"))) << row(4).toStdString();
    EXPECT_TRUE(cells().index(2, 3).data(clsPasteModel::WrongRole).toBool());
    EXPECT_FALSE(cells().index(2, 2).data(clsPasteModel::WrongRole).toBool());
    EXPECT_EQ(QStringLiteral("2 rows are wrong."), said("lblWrong"));
    EXPECT_EQ(QStringLiteral("Add 4 items"), add().Caption());
    EXPECT_FALSE(add().isEnabled());
    EXPECT_EQ(QStringLiteral("2 ticked rows are wrong: correct or untick them"), add().toolTip());

    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(std::make_pair(4, 1), at());
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(std::make_pair(4, 1), at()) << "there is none behind it";
    press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(std::make_pair(3, 2), at());
}

TEST_F(PasteItems, ATimeWithACommaSaysHowItIsReadAndHoldsNothing)
{
    look(QStringLiteral("date\tfeeearner\tcode\ttime\n17/09/25\tDVE\tACT\t1,5\n18/09/25\tDVE\tACT\t1.5\n"));
    EXPECT_EQ(QStringLiteral("17/09/25|DVE|ACT|00:15|1,5 read as 00:15: times take no comma"), row(1));
    EXPECT_EQ(QStringLiteral("18/09/25|DVE|ACT|01:30|"), row(2));
    EXPECT_FALSE(cells().index(0, cells().columnCount() - 1).data(clsPasteModel::WrongRole).toBool());
    EXPECT_TRUE(add().isEnabled());
}

TEST_F(PasteItems, ACellIsPutRightByTypingAndARowLeftOutBySpace)
{
    look(withFaults());
    QTest::keyClicks(window->focusWidget(), QStringLiteral("A"));
    auto *box = pasted().viewport()->findChild<QLineEdit *>();
    ASSERT_TRUE(box);
    QTest::keyClicks(box, QStringLiteral("KB"));
    QTest::keyClick(box, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(QStringLiteral("30/09/25|AKB|ACT|00:30|Attending surveyor|"), row(3));
    EXPECT_EQ(QStringLiteral("1 row is wrong."), said("lblWrong"));
    EXPECT_EQ(QStringLiteral("A ticked row is wrong: correct or untick it"), add().toolTip());
    EXPECT_EQ(&pasted(), window->focusWidget());
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Space);
    EXPECT_FALSE(ticked(4));
    EXPECT_EQ(QStringLiteral("Add 3 items"), add().Caption());
    EXPECT_TRUE(add().isEnabled());
    EXPECT_EQ(QString(), add().toolTip());
    for (int number = 1; number <= 3; ++number) {
        pasted().setCurrentIndex(cells().index(number - 1, 3));
        press(Qt::Key_Space);
    }
    EXPECT_EQ(QStringLiteral("Add 0 items"), add().Caption());
    EXPECT_FALSE(add().isEnabled());
    EXPECT_EQ(QStringLiteral("No row is ticked"), add().toolTip());
}

TEST_F(PasteItems, EnterEditsACellAndEscLeavesItAlone)
{
    look(withFaults());
    press(Qt::Key_Return);
    auto *box = pasted().viewport()->findChild<QLineEdit *>();
    ASSERT_TRUE(box);
    EXPECT_EQ(QStringLiteral("JPR"), box->text());
    box->setText(QStringLiteral("DVE"));
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(row(3).contains(QStringLiteral("JPR")));
}

TEST_F(PasteItems, ADoubleComesUntickedWithTheItemThatItEquals)
{
    const auto item = addItem("17/09/25", "ACT", "00:36");
    item->Description = QStringLiteral("Attending client");
    look(worked());
    EXPECT_FALSE(ticked(1));
    EXPECT_TRUE(row(1).endsWith(QStringLiteral("|As item 1 of the claim"))) << row(1).toStdString();
    EXPECT_TRUE(ticked(2));
    EXPECT_EQ(QStringLiteral("2 rows: 1 chosen, 1 double left out"), said("lblCounts"));
    EXPECT_EQ(QStringLiteral("Add 1 item"), add().Caption());
    window->findChild<oCheckBox *>(QStringLiteral("chkLeaveDoublesOut"))->setChecked(false);
    EXPECT_TRUE(ticked(1));
    EXPECT_EQ(QStringLiteral("Add 2 items"), add().Caption());
}

TEST_F(PasteItems, AHeadingChangesWhatAColumnMeans)
{
    look(QStringLiteral("Who\tDone\tCode\tTime\tRemark\tDescription\nDVE\t17/09/25\tACT\t0:36\tshort\twhole\n"));
    EXPECT_EQ(QStringList({QStringLiteral("Fee Earner"), QStringLiteral("Date"), QStringLiteral("Code"),
                  QStringLiteral("Time"), QStringLiteral("(left out)"), QStringLiteral("Description")}),
        meanings())
        << "by what stands in the cells";
    EXPECT_EQ(QStringLiteral("In the table: Who"), headings()[0]->toolTip());
    choose(*headings()[4], "Description");
    EXPECT_EQ(QStringLiteral("(left out)"), headings()[5]->currentText());
    const auto description = size_t(mdColumnOf(mdScheduleColumns(), QStringLiteral("description")));
    EXPECT_EQ(QStringLiteral("short"), window->Rows().rows()[0].Cells[description].Value);

    choose(*headings()[2], "(left out)");
    EXPECT_EQ(QStringLiteral("The table lacks a column: code."), said("lblWrong"));
    EXPECT_FALSE(add().isEnabled());
    EXPECT_EQ(1, cells().rowCount()) << "the rows stay in sight";
    choose(*headings()[2], "Code");
    EXPECT_TRUE(add().isEnabled());
}

TEST_F(PasteItems, RowsWithoutAHeadingLineAreKnownByTheirCells)
{
    look(QStringLiteral("17/09/25\tDVE\tACT\t0:36\tAttending client\n18/09/25\tAKB\tACT\t1:10\tPreparing\n"));
    EXPECT_EQ(2, cells().rowCount());
    EXPECT_EQ(QStringLiteral("17/09/25|DVE|ACT|00:36|Attending client|"), row(1));
    EXPECT_EQ(QStringLiteral("Columns found by what stands in them"), said("lblHow"));
    EXPECT_TRUE(add().isEnabled());
}

TEST_F(PasteItems, AnEmptyClipboardSaysWhatToDo)
{
    open("Schedule of Time");
    QGuiApplication::clipboard()->clear();
    paste([](frmPasteItems &found) {
        EXPECT_EQ(QStringLiteral("Nothing to paste. Copy rows from a spreadsheet first."),
            found.findChild<oPasteGrid *>()->EmptyText());
        EXPECT_FALSE(found.findChild<oCustomButton *>(QStringLiteral("cmdAdd"))->isEnabled());
        EXPECT_EQ(QStringLiteral("cmdCancel"), focused(found));
        QTest::keyClick(found.focusWidget(), Qt::Key_Escape);
    });
    EXPECT_FALSE(Document().history.canUndo());
}

TEST_F(PasteItems, ThePasteIsOneStepAndShowsInTheList)
{
    open("Schedule of Time");
    const QString before = Form->XMLOutput();
    copy(worked());
    paste(pressEnter);
    EXPECT_EQ(QStringList({QStringLiteral("DVE 17/09/25 ACT 00:36 Attending client"),
                  QStringLiteral("AKB 18/09/25 ACT 01:10 Preparing")}),
        schedule());
    EXPECT_EQ(2, rows(screen->Box<oSGrid>("sgScheduleOfTime")).size());
    EXPECT_EQ(2u, Form->ScheduleOfTimeItemsForExportCollection().size());
    EXPECT_EQ(QStringLiteral("Paste 2 items"), Document().history.undoName());
    EXPECT_TRUE(FormIsDirty());
    undo();
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_TRUE(rows(screen->Box<oSGrid>("sgScheduleOfTime")).isEmpty());
}

TEST_F(PasteItems, CancelAddsNothing)
{
    open("Schedule of Time");
    const QString before = Form->XMLOutput();
    copy(withFaults());
    paste([](frmPasteItems &found) {
        // All or nothing: with a wrong row it can only be corrected or cancelled.
        QTest::keyClick(&found, Qt::Key_A, Qt::AltModifier);
        EXPECT_TRUE(found.isVisible());
        QTest::keyClick(found.focusWidget(), Qt::Key_Escape);
    });
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_FALSE(Document().history.canUndo());
}

TEST_F(PasteItems, AFileIsImportedTheSameWay)
{
    QFile file(path("bill.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("My firm's list\r\ndate;fee earner;code;time\r\n17/09/25;DVE;ACT;0:36\r\n");
    file.close();
    open("Schedule of Time");
    user.files = {file.fileName()};
    inWindow([this] { entry(*screen, "mnuImportItems").trigger(); }, pressEnter);
    EXPECT_EQ(QStringList({QStringLiteral("DVE 17/09/25 ACT 00:36 ")}), schedule());
    EXPECT_EQ(QStringLiteral("Import 1 item"), Document().history.undoName());

    user.files = {path("missing.csv")};
    inWindow([this] { entry(*screen, "mnuImportItems").trigger(); },
        [](frmPasteItems &found) {
            EXPECT_TRUE(
                found.findChild<oPasteGrid *>()->EmptyText().startsWith(QStringLiteral("missing.csv can't be read:")));
            found.reject();
        });
    user.files = {QString()};
    entry(*screen, "mnuImportItems").trigger();
    EXPECT_EQ(1, schedule().size());
}

TEST_F(PasteItems, WhatCopyListMakesIsWhatPasteTakes)
{
    const auto item = addItem("17/09/25", "ACT", "00:36");
    item->Description = QStringLiteral("Attending \"client\"\r\n=with a second\tline");
    item->Travel = true;
    addItem("31/12/29", "DOT", "01:10");
    open("Schedule of Time");
    const QStringList before = schedule();
    QTest::keyClick(screen->focusWidget(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QStringLiteral("Copied Schedule of Time: 2 in all"), screen->findChild<oListLine *>()->Text());
    EXPECT_TRUE(clipboard().contains(u'\t'));
    const QByteArray csv = QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("text/csv"));
    EXPECT_TRUE(csv.contains("17/09/2025,ACT") || csv.contains("DVE,17/09/2025")) << csv.toStdString();

    while (!Form->ScheduleOfTimeItemsCollection().empty())
        Form->DeleteScheduleOfTimeItem(1);
    screen->RedrawLists();
    paste(pressEnter);
    EXPECT_EQ(before, schedule());
    EXPECT_TRUE(Form->ScheduleOfTimeItem(1)->Travel());
    paste([](frmPasteItems &found) {
        EXPECT_EQ(0, found.Rows().chosen()) << "all of them are in the claim now";
        found.reject();
    });
}

TEST_F(PasteItems, DisbursementsAreCopiedAndPasted)
{
    const auto item = Form->AddDisbursement();
    item->Description = QStringLiteral("Court fee");
    item->Amount = QStringLiteral("255.00");
    item->VAT = QStringLiteral("0.00");
    open("Disbursements");
    screen->Switcher().SwitchTo(4);
    entry(*screen, "mnuCopyList").trigger();
    Form->DeleteDisbursement(1);
    screen->RedrawLists();
    paste([](frmPasteItems &found) {
        EXPECT_EQ(QStringLiteral("255.00"), found.findChild<QLabel *>(QStringLiteral("lblTotal"))->text());
        pressEnter(found);
    });
    ASSERT_EQ(1u, Form->DisbursementsCollection().size());
    EXPECT_EQ(QStringLiteral("Court fee"), Form->Disbursement(1)->Description());
    EXPECT_EQ(QStringLiteral("255.00"), Form->Disbursement(1)->Amount());
    EXPECT_EQ(1u, Form->NonCounselDisbursementsCollection().size()) << "what the claim derives from them";
}

TEST_F(PasteItems, OnTheExpertsPageInvoicesAreCopiedAndPasted)
{
    const auto invoice = Form->AddExpertInvoice();
    invoice->ExpertGroup = QStringLiteral("Surveying");
    invoice->ExpertType = QStringLiteral("Surveyor");
    invoice->PriorAuthorityObtained = true;
    invoice->TotalPrepCost = QStringLiteral("300.00");
    invoice->NetAmount = QStringLiteral("450.00");
    invoice->VATAmount = QStringLiteral("90.00");
    open("Disbursements");
    ASSERT_EQ(1, screen->Switcher().OpenPage());
    entry(*screen, "mnuCopyList").trigger();
    Form->DeleteExpertInvoice(1);
    screen->RedrawLists();
    paste([](frmPasteItems &found) {
        EXPECT_EQ(QStringLiteral("450.00"), found.findChild<QLabel *>(QStringLiteral("lblTotal"))->text());
        pressEnter(found);
    });
    EXPECT_EQ(0u, Form->DisbursementsCollection().size());
    ASSERT_EQ(1u, Form->ExpertInvoicesCollection().size());
    const auto again = Form->ExpertInvoice(1);
    EXPECT_EQ(QStringLiteral("Surveying, Surveyor, 300.00, 450.00, 90.00"),
        QStringList(
            {again->ExpertGroup(), again->ExpertType(), again->TotalPrepCost(), again->NetAmount(), again->VATAmount()})
            .join(QStringLiteral(", ")));
    EXPECT_TRUE(again->PriorAuthorityObtained());
    EXPECT_EQ(1, screen->Switcher().OpenPage());
    EXPECT_EQ(QStringLiteral("Paste 1 item"), Document().history.undoName());
}

TEST_F(PasteItems, LettersAndCallsAreCounted)
{
    Form->FeeEarner(1)->Calls = 2;
    open("Communications");
    EXPECT_TRUE(entry(*screen, "mnuCopyList").shortcuts().isEmpty());
    entry(*screen, "mnuCopyList").trigger();
    EXPECT_TRUE(clipboard().startsWith(QStringLiteral("reference\tcalls\tlettersin\tlettersout\r\nDVE\t2\t0\t0\r\n")))
        << clipboard().toStdString();
    copy(QStringLiteral("fee earner\tkind\tcount\nDVE\tcall\t3\nAKB\tletter in\t\n"));
    paste(pressEnter);
    EXPECT_EQ(5, Form->FeeEarner(1)->Calls());
    EXPECT_EQ(1, Form->FeeEarner(2)->LettersIn());
    EXPECT_EQ(QStringLiteral("Paste 2 items"), Document().history.undoName());
    undo();
    EXPECT_EQ(2, Form->FeeEarner(1)->Calls());
    EXPECT_EQ(0, Form->FeeEarner(2)->LettersIn());
}

TEST_F(PasteItems, WhatColumnsMeantIsKnownTheNextTime)
{
    const QString table
        = QStringLiteral("Date\tFee Earner\tCode\tTime\tRemark\tDescription\n17/09/25\tDVE\tACT\t0:36\tshort\twhole\n");
    open("Schedule of Time");
    copy(table);
    paste([this](frmPasteItems &found) {
        choose(*found.findChild<QComboBox *>(QStringLiteral("cboColumn5")), "Description");
        EXPECT_EQ(QByteArray(), mdReadStateFile(QStringLiteral("Columns.json"))) << "not before it is added";
        found.accept();
    });
    EXPECT_EQ(QStringList({QStringLiteral("DVE 17/09/25 ACT 00:36 short")}), schedule());
    look(table);
    EXPECT_EQ(QStringLiteral("Description"), headings()[4]->currentText());
    EXPECT_EQ(QStringLiteral("(left out)"), headings()[5]->currentText());

    mdWriteStateFile(QStringLiteral("Columns.json"), "no JSON");
    look(table);
    EXPECT_EQ(QStringLiteral("(left out)"), headings()[4]->currentText());
    EXPECT_TRUE(QFile::exists(path("state") + QStringLiteral("/Velmor/Columns.json.broken")));
}

TEST_F(PasteItems, AListWithoutPasteHasNoSuchEntries)
{
    open("Counsel");
    for (const char *name : {"mnuPasteItems", "mnuImportItems", "mnuCopyList"})
        EXPECT_FALSE(screen->findChild<QAction *>(QString::fromLatin1(name))) << name;
}

TEST_F(PasteItems, InANarrowWindowTheNoteStandsBeneathItsRow)
{
    look(withFaults());
    const int note = cells().columnCount() - 1;
    window->resize(1160, 500);
    QCoreApplication::processEvents();
    EXPECT_FALSE(pasted().isColumnHidden(note));
    EXPECT_EQ(0, pasted().horizontalScrollBar()->maximum()) << "the columns share the width";
    EXPECT_EQ(pasted().rowHeight(1), pasted().rowHeight(2));
    window->resize(700, 500);
    QCoreApplication::processEvents();
    EXPECT_TRUE(pasted().isColumnHidden(note));
    EXPECT_EQ(2 * pasted().rowHeight(1), pasted().rowHeight(2));
}

TEST_F(PasteItems, TenThousandRowsAreQuick)
{
    QString table = QStringLiteral("Date\tFee Earner\tCode\tTime\tDescription\n");
    for (int n = 0; n < 10'000; ++n)
        table += QStringLiteral("17/09/25\tDVE\tACT\t0:36\tAttending client %1\n").arg(n);
    QElapsedTimer clock;
    clock.start();
    look(table);
    window->grab();
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_EQ(QStringLiteral("Add 10000 items"), add().Caption());
    clock.start();
    cells().setData(cells().index(9'999, 3), QStringLiteral("JPR"));
    pasted().setCurrentIndex({});
    press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(std::make_pair(10'000, 2), at());
    pasted().selectAll();
    press(Qt::Key_Space);
    EXPECT_EQ(0, window->Rows().chosen());
    EXPECT_LT(clock.elapsed(), 1000);
}

TEST_F(PasteItems, ManyWrongRowsAreQuickInANarrowWindowToo)
{
    constexpr int Many = 99'999;
    QString table = QStringLiteral("Date\tFee Earner\tCode\tTime\tDescription\n");
    for (int n = 0; n < Many; ++n)
        table += QStringLiteral("17/09/25\tJPR\tQQQ\t0:36\tAttending client %1\n").arg(n);
    QElapsedTimer clock;
    clock.start();
    look(table);
    window->resize(700, 500);
    QCoreApplication::processEvents();
    window->grab();
    EXPECT_LT(clock.elapsed(), 6000);
    EXPECT_TRUE(pasted().isColumnHidden(cells().columnCount() - 1));
    EXPECT_EQ(2 * mdGridRowHeight(), pasted().rowHeight(0));
    EXPECT_EQ(2 * mdGridRowHeight(), pasted().rowHeight(Many - 1));
}
