// The limit of costs: entered in its dialog, saved in the claim, shown in the strip.

#include "commands/clsNotStored.h"
#include "controls/oDecimalBox.h"
#include "controls/oFooterLine.h"
#include "formdata/mdCostsLimit.h"
#include "formdata/mdGlobals.h"
#include "tests/window/clsFiguresTest.h"

#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include <utility>

namespace {

class CostsLimitDialog : public clsFiguresTest {
protected:
    static QByteArray bytesOf(const QString &file)
    {
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }
    /// Opens the dialog and types into its box, by keyboard alone; `end` is the key that leaves it.
    void type(const char *amount, Qt::Key end = Qt::Key_Return)
    {
        bool seen = false;
        QTimer::singleShot(200, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, dialog);
            EXPECT_EQ(QStringLiteral("frmCostsLimit"), dialog->objectName());
            auto *line = dialog->findChild<QLineEdit *>();
            EXPECT_TRUE(line->hasFocus()) << "the box has the focus";
            found = line->text();
            QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(line, Qt::Key_Delete);
            QTest::keyClicks(line, QString::fromLatin1(amount));
            seen = true;
            QTest::keyClick(line, end);
            if (dialog->isVisible())
                dialog->done(QDialog::Rejected);
        });
        entry("mnuCostsLimit").trigger();
        EXPECT_TRUE(seen);
        renew();
    }
    oStripLimit &limit() const
    {
        auto *item = qobject_cast<oStripLimit *>(strip().Item(QStringLiteral("limit")));
        if (!item)
            throw std::runtime_error("no limit");
        return *item;
    }

    QString found; ///< the text of the box when the dialog opened
};

} // namespace

TEST_F(CostsLimitDialog, SetsTheLimitAndTheClaimHasChanges)
{
    const QString claim = savedClaim();
    type("12000");
    EXPECT_EQ(QStringLiteral("12000.00"), mdStoredCostsLimit(*Form));
    EXPECT_TRUE(FormIsDirty());
    EXPECT_TRUE(header().endsWith(u'*'));
    entry("mnuSave").trigger();
    EXPECT_FALSE(FormIsDirty());
    clsZR3Form again;
    ASSERT_TRUE(again.LoadXML(claim));
    EXPECT_EQ(QStringLiteral("12000.00"), mdStoredCostsLimit(again));
    type("1");
    EXPECT_EQ(QStringLiteral("12000.00"), found);
}

TEST_F(CostsLimitDialog, LeavesTheFileAsItWasWhenItIsRemoved)
{
    const QString claim = savedClaim();
    const QByteArray before = bytesOf(claim);
    for (const char *none : {"", "0.00"}) {
        type("500");
        entry("mnuSave").trigger();
        EXPECT_NE(before, bytesOf(claim));
        type(none);
        EXPECT_EQ(nullptr, strip().Item(QStringLiteral("limit")));
        entry("mnuSave").trigger();
        EXPECT_EQ(before, bytesOf(claim)) << none;
    }
}

TEST_F(CostsLimitDialog, IsAStepThatCanBeUndone)
{
    savedClaim();
    type("500");
    EXPECT_EQ(QStringLiteral("Costs Limit"), Document().history.undoName());
    entry("mnuUndo").trigger();
    EXPECT_EQ(QString(), mdStoredCostsLimit(*Form));
    EXPECT_FALSE(FormIsDirty());
    renew();
    EXPECT_EQ(nullptr, strip().Item(QStringLiteral("limit")));
    entry("mnuRedo").trigger();
    EXPECT_EQ(QStringLiteral("500.00"), mdStoredCostsLimit(*Form));
    type("700");
    type("0.00");
    entry("mnuUndo").trigger();
    EXPECT_EQ(QStringLiteral("700.00"), mdStoredCostsLimit(*Form));
}

TEST_F(CostsLimitDialog, KeepsTheLimitAtCancel)
{
    savedClaim();
    user.answers = {clsUserInterface::Yes};
    type("500", Qt::Key_Escape);
    EXPECT_EQ(QString(), mdStoredCostsLimit(*Form));
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(CostsLimitDialog, BringsBackWhatWasTypedAndNotStored)
{
    savedClaim();
    type("500", Qt::Key_Escape);
    QTest::qWait(0);
    window->Activate();
    auto &line = control<oFooterLine>(*window, "oFooterLine");
    EXPECT_EQ(QStringLiteral("Costs Limit: 3 characters not stored"), line.Line());
    bool seen = false;
    const auto bringBack = [&](Qt::Key end) {
        QTimer::singleShot(200, [&, end] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, dialog);
            EXPECT_EQ(QStringLiteral("frmCostsLimit"), dialog->objectName());
            auto *box = dialog->findChild<QLineEdit *>();
            EXPECT_EQ(QStringLiteral("500.00"), box->text());
            EXPECT_TRUE(box->hasFocus()) << "as if typed";
            seen = true;
            QTest::keyClick(box, end);
            if (dialog->isVisible())
                dialog->done(QDialog::Rejected);
        });
        entry("mnuBringBack").trigger();
        window->Activate();
    };
    bringBack(Qt::Key_Escape);
    EXPECT_TRUE(std::exchange(seen, false)) << "a second Esc loses nothing";
    EXPECT_EQ(QString(), mdStoredCostsLimit(*Form));
    bringBack(Qt::Key_Return);
    EXPECT_TRUE(seen);
    EXPECT_EQ(QStringLiteral("500.00"), mdStoredCostsLimit(*Form));
    EXPECT_EQ(QString(), line.isVisible() ? line.Line() : QString()) << "stored, and forgotten";
    EXPECT_TRUE(NotStored().all().empty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CostsLimitDialog, IsTheLastEntryButOneOfTools)
{
    start();
    const auto entries = control<QMenu>(*window, "mnuTools").actions();
    EXPECT_TRUE(entries.contains(&entry("mnuCostsLimit")));
    EXPECT_LT(entries.indexOf(&entry("mnuCheckForBlankItems")), entries.indexOf(&entry("mnuCostsLimit")));
}

TEST_F(CostsLimitDialog, IsABarOfTheStrip)
{
    startOn("housing-typical.zr3"); // 9,407.12 net and 1,588.49 for counsel: 10,995.61
    struct clsCase {
        const char *limit;
        clsStripLimit::clsState state;
        const char *figures;
        const char *words;
    };
    for (const clsCase &row :
        {
            clsCase {"20000", clsStripLimit::Plenty, "10,995.61 of 20,000.00",
                "10,995.61 net of VAT with counsel; 9,004.39 left"},
            {"12217.35", clsStripLimit::Plenty, "10,995.61 of 12,217.35",
                "10,995.61 net of VAT with counsel; 1,221.74 left"}, // 90 per cent is 10,995.615
            {"12217.34", clsStripLimit::Near, "10,995.61 of 12,217.34",
                "10,995.61 net of VAT with counsel; 1,221.73 left"}, // 10,995.606
            {"10995.61", clsStripLimit::Near, "10,995.61 of 10,995.61", "10,995.61 net of VAT with counsel; 0.00 left"},
            {"10995.60", clsStripLimit::Over, "10,995.61 of 10,995.60",
                "10,995.61 net of VAT with counsel; 0.01 too much"},
        }) {
        mdSetCostsLimit(*Form, QString::fromLatin1(row.limit));
        renew();
        EXPECT_EQ(row.state, limit().Limit().state) << row.limit;
        EXPECT_EQ(QLatin1String(row.figures), limit().Limit().figures);
        EXPECT_EQ(QLatin1String(row.words), limit().toolTip());
        EXPECT_EQ(limit().toolTip(), limit().accessibleDescription());
    }
    Form->ExpertInvoice(1)->NetAmount = QStringLiteral("much");
    renew();
    EXPECT_EQ(clsStripLimit::Failed, limit().Limit().state);
    EXPECT_EQ(QStringLiteral("! of 10,995.60"), limit().Limit().figures);
}

TEST_F(CostsLimitDialog, EnterOnTheBarSaysWhatIsCounted)
{
    startOn("housing-typical.zr3");
    mdSetCostsLimit(*Form, QStringLiteral("12000"));
    renew();
    limit().setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("Costs limit"), sheet().Text().about);
    EXPECT_EQ(QStringList({"Profit costs 5,080.66", "Experts 3,591.21", "Other disbursements 735.25",
                  "Counsel's fees 1,588.49", "Costs, net with counsel 10,995.61"}),
        steps());
}

TEST_F(CostsLimitDialog, GivesItsWordsUpBeforeTheVAT)
{
    startOn("housing-typical.zr3");
    mdSetCostsLimit(*Form, QStringLiteral("12000"));
    renew();
    const auto formAt = [this](int width) {
        strip().resize(width, strip().height());
        return limit().Form();
    };
    EXPECT_EQ(oStripLimit::clsForm::WholeCaption, formAt(2000));
    EXPECT_EQ(oStripLimit::clsForm::BarOnly, formAt(300));
    int width = 2000;
    while (formAt(width) != oStripLimit::clsForm::BarOnly)
        --width;
    EXPECT_TRUE(strip().Shown().contains(QStringLiteral("VAT 1,397.19")));
    EXPECT_TRUE(strip().Shown().contains(QStringLiteral("Other 5,193.63")));
    EXPECT_FALSE(limit().isHidden());
}

TEST_F(CostsLimitDialog, OfANewClaimHasNothingCounted)
{
    start();
    mdSetCostsLimit(*Form, QStringLiteral("100"));
    renew();
    EXPECT_EQ(QStringLiteral("0.00 of 100.00"), limit().Limit().figures);
    EXPECT_EQ(0, limit().Limit().share);
}
