// The window with the differences between two states of a claim.

#include "commands/clsJournal.h"
#include "commands/mdJournalFile.h"
#include "controls/oCustomButton.h"
#include "controls/oNoticeBar.h"
#include "shell/clsJournalKeeper.h"
#include "shell/frmCompare.h"
#include "shell/mdComparison.h"
#include "tests/window/clsMainWindowTest.h"

#include <QLabel>
#include <QTableWidget>
#include <QTimer>

namespace {

class Compare : public clsMainWindowTest {
protected:
    oNoticeBar &bar() const { return control<oNoticeBar>(*window, "oNoticeBar"); }
    QStringList answers() const
    {
        QStringList captions;
        for (oCustomButton *button : bar().findChildren<oCustomButton *>())
            if (button->isVisible() && !button->Caption().isEmpty())
                captions << button->Caption();
        return captions;
    }
    /// A claim with a change that only the journal has, and a new window.
    QString leftClaim()
    {
        const QString claim = savedClaim();
        Form->ClientDetails.Surname = QStringLiteral("Hartwell");
        Journal().flush();
        window.reset();
        Form.reset();
        CleanXML.clear();
        start();
        return claim;
    }
    static void change(const QString &claim, const QByteArray &from, const QByteArray &to)
    {
        QFile file(claim);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        bytes.replace(from, to);
        file.resize(0);
        file.seek(0);
        file.write(bytes);
    }
    /// Presses "Compare" in the bar by keyboard, and returns what the window shows.
    QStringList compared()
    {
        QStringList rows;
        bool shown = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto *dialog = qobject_cast<frmCompare *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
            shown = true;
            rows = rowsOf(*dialog);
            ASSERT_TRUE(dialog->focusWidget());
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
            EXPECT_FALSE(dialog->isVisible());
        });
        for (oCustomButton *button : bar().findChildren<oCustomButton *>())
            if (button->isVisible() && button->Caption() == QLatin1String("Compare")) {
                QTest::keyClick(button, Qt::Key_Space);
                break;
            }
        EXPECT_TRUE(shown);
        return rows;
    }
    static QStringList rowsOf(const frmCompare &dialog)
    {
        QStringList rows;
        auto &line = control<QLabel>(dialog, "lblTrouble");
        if (line.isVisibleTo(&dialog))
            rows << line.text();
        auto &table = control<QTableWidget>(dialog, "tblChanges");
        for (int row = 0; row < table.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column)
                if (const auto *cell = table.item(row, column); cell && !cell->text().isEmpty())
                    cells << cell->text();
            rows << cells.join(u'|');
        }
        return rows;
    }
};

} // namespace

TEST_F(Compare, AClaimNotClosedProperlyIsHeldAgainstItsFile)
{
    leftClaim();
    EXPECT_EQ(QStringList({QStringLiteral("Open"), QStringLiteral("Compare"), QStringLiteral("Discard")}), answers());
    const QString open = Form->XMLOutput();
    EXPECT_EQ(QStringList({QStringLiteral("Fields"), QStringLiteral("Client Details|Surname|Hartwell")}), compared());
    EXPECT_EQ(open, Form->XMLOutput()) << "looking changes nothing";
    EXPECT_TRUE(bar().isVisible()) << "it waits for an answer";
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Compare, AChangedOriginalPutsItFirst)
{
    const QString claim = leftClaim();
    change(claim, "<surname></surname>", "<surname>Okafor</surname>");
    change(claim, "<surname/>", "<surname>Okafor</surname>");
    change(claim, "<surname />", "<surname>Okafor</surname>");
    window->journal().refresh();
    EXPECT_EQ(QStringList({QStringLiteral("Compare"), QStringLiteral("Open"), QStringLiteral("Discard")}), answers());
    EXPECT_EQ(
        QStringList({QStringLiteral("Fields"), QStringLiteral("Client Details|Surname|Okafor|Hartwell")}), compared());
}

TEST_F(Compare, WithoutAFileAnEmptyClaimIsHeldAgainstTheCopy)
{
    const QString claim = leftClaim();
    ASSERT_TRUE(QFile::remove(claim));
    const QStringList rows = compared();
    EXPECT_EQ(QStringLiteral("The claim's file is gone: this is all that the copy holds."), rows.value(0));
    EXPECT_TRUE(rows.contains(QStringLiteral("Client Details|Surname|Hartwell")));
}

TEST_F(Compare, ABrokenFileIsTold)
{
    const QString claim = leftClaim();
    QFile file(claim);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("no claim");
    file.close();
    EXPECT_EQ(QStringList {QStringLiteral("The claim's file cannot be read.")}, compared());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Compare, TheOpenClaimIsHeldAgainstWhatAnotherProgramWrote)
{
    const QString claim = savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    Form->AddDisbursement()->Description = QStringLiteral("Taxi");
    QTest::qWait(1100); // the file needs a different time stamp
    change(claim, "</vzrform>", " </vzrform>");
    window->journal().refresh();
    EXPECT_EQ(QStringList({QStringLiteral("Compare"), QStringLiteral("Open theirs")}), answers());
    const QStringList rows = compared();
    EXPECT_EQ(QStringLiteral("Fields"), rows.value(0));
    EXPECT_EQ(QStringLiteral("Client Details|Surname|Hartwell"), rows.value(1)) << "it stands in this window only";
    EXPECT_TRUE(rows.contains(QStringLiteral("Items")));
}

TEST_F(Compare, SaysThatNothingDiffers)
{
    start();
    const frmCompare dialog({QStringLiteral("A"), QStringLiteral("B"), {}, {}}, window.get());
    EXPECT_EQ(QStringList {QStringLiteral("Nothing differs.")}, rowsOf(dialog));
}

TEST_F(Compare, ShowsItemsWithTheirEffectAndTotals)
{
    start();
    clsComparison comparison {QStringLiteral("A"), QStringLiteral("B"), {}, {}};
    comparison.changes.Items
        = {{QStringLiteral("disbursements"), QStringLiteral("Disbursement 3"), clsItemChange::Changed, 3, 3,
            {{{}, QStringLiteral("Amount"), QStringLiteral("10.00"), QStringLiteral("12.50")},
                {{}, QStringLiteral("Description"), QStringLiteral("Taxi\r\nto court"), QStringLiteral("Taxi")}},
            QStringLiteral("2.50")}};
    comparison.changes.Totals = {{QStringLiteral("Net total"), QStringLiteral("1.00"), QStringLiteral("2.00")}};
    const frmCompare dialog(comparison, window.get());
    EXPECT_EQ(QStringList({QStringLiteral("Items"), QStringLiteral("Disbursement 3, changed|Amount|10.00|12.50|2.50"),
                  QStringLiteral("Description|Taxi to court|Taxi"), QStringLiteral("Totals"),
                  QStringLiteral("Net total|1.00|2.00")}),
        rowsOf(dialog));
    EXPECT_EQ(QStringLiteral("What differs"), control<QTableWidget>(dialog, "tblChanges").accessibleName());
}

TEST_F(Compare, ShowsNamesAndNoIdentities)
{
    savedClaim();
    const auto counsel = Form->AddCounsel();
    counsel->Name = QStringLiteral("Oak & Ash");
    const auto paid = Form->AddDisbursement();
    paid->Description = QStringLiteral("Brief");
    paid->Counsel = true;
    paid->CounselUniqueID = counsel->UniqueID();
    const QString identity = counsel->UniqueID();
    Journal().flush();
    window.reset();
    Form.reset();
    CleanXML.clear();
    start();
    const QStringList rows = compared();
    EXPECT_TRUE(rows.contains(QStringLiteral("Disbursement 1, added|Counsel|yes|0.00")))
        << rows.join(u'\n').toStdString();
    EXPECT_TRUE(rows.contains(QStringLiteral("Counsel's Name|Oak & Ash")));
    EXPECT_TRUE(rows.contains(QStringLiteral("Counsel Oak & Ash, added|Name|Oak & Ash")));
    EXPECT_TRUE(rows.filter(QStringLiteral("Unique ID")).isEmpty()) << rows.join(u'\n').toStdString();
    EXPECT_TRUE(rows.filter(identity).isEmpty()) << rows.join(u'\n').toStdString();
}
