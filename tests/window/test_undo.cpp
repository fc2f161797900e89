#include "controls/oCheckBox.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "formdata/mdRunStep.h"
#include "preview/oPreviewGrid.h"
#include "tests/window/clsMainWindowTest.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace {

/// Undo and redo in the main window, by keyboard.
class Undo : public clsMainWindowTest {
protected:
    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        Document().history.clear();
    }
    /// Opens a section from the main window and uses its screen.
    void inScreen(const char *section, const std::function<void(frmScreen &)> &act)
    {
        bool used = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto *screen = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
            ASSERT_TRUE(screen);
            ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
            act(*screen);
            used = true;
            if (screen->isVisible())
                screen->done(QDialog::Rejected);
        });
        window->tbSubSection_Click(-1, QString::fromUtf8(section));
        EXPECT_TRUE(used);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    static void type(QWidget &box, const QString &text)
    {
        QWidget *part = &box;
        while (part->focusProxy())
            part = part->focusProxy();
        part->setFocus(Qt::TabFocusReason);
        QTest::keyClick(part, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(part, text);
    }
    void enterSurname(const char *surname)
    {
        inScreen("Client Details", [&](frmScreen &screen) {
            type(screen.Box("txtSurname"), QString::fromUtf8(surname));
            screen.Save();
        });
    }
    void undo() const { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier); }
    void redo() const { QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    QStringList entries() const
    {
        auto &edit = control<QMenu>(*window, "mnuEdit");
        emit edit.aboutToShow();
        QStringList texts;
        for (const char *name : {"mnuUndo", "mnuRedo"})
            texts << entry(name).text() + (entry(name).isEnabled() ? QString() : QStringLiteral(" (off)"));
        emit edit.aboutToHide();
        QCoreApplication::processEvents();
        return texts;
    }
    int previewRows() const { return window->findChild<oPreviewGrid *>()->Rows(); }
};

} // namespace

TEST_F(Undo, TakesScreensBackInTheOtherOrder)
{
    start(sample("housing-typical.zr3"));
    const QString before = Form->XMLOutput();
    const QString surname = Form->ClientDetails.Surname();
    EXPECT_EQ(QStringList({QStringLiteral("&Undo (off)"), QStringLiteral("&Redo (off)")}), entries());
    undo();
    redo();
    EXPECT_EQ(before, Form->XMLOutput()) << "nothing to undo";

    enterSurname("Smith & Sons");
    inScreen("Details of Work", [](frmScreen &screen) {
        type(screen.Box("txtDetailsOfCase"), QStringLiteral("New words"));
        screen.Save();
    });
    EXPECT_EQ(QStringList({QStringLiteral("&Undo Details of Work"), QStringLiteral("&Redo (off)")}), entries());
    EXPECT_TRUE(header().endsWith(u'*'));
    undo();
    EXPECT_EQ(
        QStringList({QStringLiteral("&Undo Client Details"), QStringLiteral("&Redo Details of Work")}), entries());
    EXPECT_TRUE(header().endsWith(u'*'));
    undo();
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(surname, Form->ClientDetails.Surname());
    EXPECT_EQ(FormIsDirty(), header().endsWith(u'*'));
    redo();
    EXPECT_EQ(QStringLiteral("Smith & Sons"), Form->ClientDetails.Surname());
}

TEST_F(Undo, ASavedClaimIsCleanAgainWhereTheUndoLeadsThere)
{
    const QString claim = savedClaim();
    const QString saved = header();
    enterSurname("Hartwell");
    EXPECT_EQ(saved + u'*', header());
    undo();
    EXPECT_EQ(saved, header());
    redo();
    entry("mnuSave").trigger();
    EXPECT_EQ(saved, header());
    undo();
    EXPECT_EQ(saved + u'*', header()) << "a save keeps the steps";
    EXPECT_EQ(QString(), Form->ClientDetails.Surname());
    redo();
    EXPECT_EQ(saved, header());
}

TEST_F(Undo, ANewFeeEarnerThatIsTakenBackLeavesTheMark)
{
    savedClaim();
    const QString saved = header();
    RunStep(QStringLiteral("Add DVE"), [] { Form->AddFeeEarner(); });
    undo();
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    EXPECT_EQ(saved + u'*', header());
}

TEST_F(Undo, NewAndOpenBeginAHistory)
{
    savedClaim();
    enterSurname("Hartwell");
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_FALSE(Document().history.canUndo());
    const QString fresh = Form->XMLOutput();
    undo();
    EXPECT_EQ(fresh, Form->XMLOutput());
}

TEST_F(Undo, AChangeOfTheFormTypeIsOneStep)
{
    start(sample("housing-typical.zr3"));
    const QString before = Form->XMLOutput();
    inScreen("Form Setup", [](frmScreen &screen) {
        screen.Box<QComboBox>("cmbFormType").setCurrentText(QStringLiteral("Claim1A"));
        screen.Box<oCheckBox>("chkMentalHealth").setChecked(true);
        screen.Close();
    });
    EXPECT_EQ(QStringLiteral("Claim1A"), Form->FormType());
    EXPECT_EQ(QStringLiteral("Claim1A"), control<oHeaderBar>(*window, "oHeader").Chip());
    undo();
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_EQ(QStringLiteral("Claim1"), control<oHeaderBar>(*window, "oHeader").Chip());
    redo();
    EXPECT_EQ(QStringLiteral("Claim1A"), Form->FormType());
}

TEST_F(Undo, ThePreviewShowsIt)
{
    start(sample("housing-typical.zr3"));
    ASSERT_FALSE(Preferences->AutoRefreshPreview());
    const int before = previewRows();
    inScreen("Schedule of Time", [this](frmScreen &screen) {
        user.answers = {clsUserInterface::Yes};
        auto &grid = screen.Box<oSGrid>("sgScheduleOfTime");
        grid.setFocus();
        QTest::keyClick(screen.focusWidget(), Qt::Key_Delete);
        screen.Close();
    });
    EXPECT_EQ(before, previewRows()) << "it is drawn anew when the user asks for it";
    undo();
    EXPECT_EQ(before, previewRows());
    redo();
    EXPECT_GT(before, previewRows());
    undo();
    EXPECT_EQ(before, previewRows());
}

TEST_F(Undo, AStepOfAListCanBeTakenBackInTheMainWindow)
{
    start(sample("housing-typical.zr3"));
    QString before;
    inScreen("Schedule of Time", [&](frmScreen &screen) {
        before = Form->XMLOutput();
        user.answers = {clsUserInterface::Yes};
        screen.Box<oSGrid>("sgScheduleOfTime").setFocus();
        QTest::keyClick(screen.focusWidget(), Qt::Key_Delete);
        screen.Close();
    });
    EXPECT_NE(before, Form->XMLOutput());
    undo();
    EXPECT_EQ(before, Form->XMLOutput());
}

TEST_F(Undo, TheStopwatchKeepsTheKeysToItself)
{
    savedClaim();
    enterSurname("Hartwell");
    auto *box = window->footer()->findChild<QLineEdit *>();
    ASSERT_TRUE(box);
    box->setFocus(Qt::TabFocusReason);
    ASSERT_EQ(box, window->focusWidget());
    for (const auto key : {Qt::Key_Z, Qt::Key_Y})
        QTest::keyClick(box, key, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->ClientDetails.Surname());
    entry("mnuUndo").trigger();
    EXPECT_EQ(QString(), Form->ClientDetails.Surname()) << "the menu means the claim";
    QTest::keyClick(box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(QString(), Form->ClientDetails.Surname());
}
