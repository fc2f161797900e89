#include "editors/frmPasteItems.h"
#include "preview/oPreviewGrid.h"
#include "tests/support/mdSpokenNames.h"
#include "tests/window/clsMainWindowTest.h"

#include <QClipboard>
#include <QTimer>

namespace {

/// Pasting rows into the schedule from the main window.
class MainPaste : public clsMainWindowTest {
protected:
    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        Document().history.clear();
    }
    int previewRows() const { return window->findChild<oPreviewGrid *>()->Rows(); }
    void press(int key) const { QTest::keyClick(window.get(), Qt::Key(key), Qt::ControlModifier | Qt::ShiftModifier); }
};

} // namespace

TEST_F(MainPaste, TheScheduleAndItsPreviewHaveTheRows)
{
    start(sample("housing-typical.zr3"));
    const size_t items = Form->ScheduleOfTimeItemsCollection().size();
    const int shown = previewRows();
    const QString before = Form->XMLOutput();
    QGuiApplication::clipboard()->setText(
        QStringLiteral("fee earner\tdate\tcode\ttime\nMO\t17/09/25\tACL\t0:36\nMO\t18/09/25\tDBL\t1:10\n"));
    bool isUsed = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto *pasting = qobject_cast<frmPasteItems *>(QApplication::activeModalWidget());
        ASSERT_TRUE(pasting);
        ASSERT_TRUE(QTest::qWaitForWindowActive(pasting));
        EXPECT_LT(0, expectSensibleNames(*pasting));
        QTest::keyClick(pasting->focusWidget(), Qt::Key_Return);
        isUsed = true;
        if (pasting->isVisible())
            pasting->reject();
    });
    press(Qt::Key_V);
    EXPECT_TRUE(isUsed);
    EXPECT_EQ(items + 2, Form->ScheduleOfTimeItemsCollection().size());
    EXPECT_LT(shown, previewRows());
    EXPECT_TRUE(header().endsWith(u'*'));
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(shown, previewRows());
}

TEST_F(MainPaste, TheScheduleIsCopied)
{
    start(sample("housing-typical.zr3"));
    const QString before = Form->XMLOutput();
    press(Qt::Key_C);
    const QString table = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(table.startsWith(QStringLiteral("orderid\tfeeearner\tdate\tcode\t")));
    EXPECT_EQ(before, Form->XMLOutput());
}
