#include "editors/mdUnloadAndDummyTabClick.h"
#include "tests/window/clsMainWindowTest.h"

#include <QDialog>
#include <QTimer>

namespace {

/// The main window with screens that only record that they were opened, and then act as the test says.
class Sections : public clsMainWindowTest {
protected:
    void startWithScreens(const QString &claimPath = {})
    {
        start(claimPath);
        window->createScreen = [this](const QString &text, QWidget *parent) -> QDialog * {
            if (text.isEmpty() || text == QLatin1String("Unknown"))
                return nullptr;
            opened << text;
            auto *screen = new QDialog(parent);
            QTimer::singleShot(0, screen, [this, screen, text] {
                deepest = qMax(deepest, ++standing);
                if (onOpen)
                    onOpen(*screen, text);
                --standing;
                screen->close();
            });
            return screen;
        };
    }

    QStringList opened;
    std::function<void(QDialog &screen, const QString &text)> onOpen;
    int standing = 0;
    int deepest = 0;
};

} // namespace

TEST_F(Sections, TheFirstTabIsChosenAtTheStart)
{
    start();
    EXPECT_EQ(QStringList({QStringLiteral("Form Options"), QStringLiteral("Pre-Bill Sections"), QStringLiteral("Bill"),
                  QStringLiteral("Post-Bill Sections")}),
        tabs("tbSection"));
    EXPECT_EQ(1, row("tbSection").SelectedIndex());
    EXPECT_EQ(QStringList({QStringLiteral("Form Setup"), QStringLiteral("Fee Earners / Rates"),
                  QStringLiteral("Counsel"), QStringLiteral("Enhancements")}),
        tabs("tbSubSection"));
    EXPECT_EQ(0, row("tbSubSection").SelectedIndex());
}

TEST_F(Sections, SomeSectionsCanNotBeReachedOnClaim1AAndKeepTheirData)
{
    start();
    Form->FormType = QStringLiteral("Claim1A");
    Form->LateSubmission.Explanation = QStringLiteral("kept");
    QStringList reachable;
    for (const char *tab : {"Form Options", "Pre-Bill Sections", "Bill", "Post-Bill Sections"}) {
        clickTab("tbSection", tab);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        reachable << tabs("tbSubSection");
    }
    EXPECT_EQ(18, reachable.size());
    for (const char *text : {"Case Information", "Late Submission", "Details of Monies Awarded"})
        EXPECT_FALSE(reachable.contains(QLatin1String(text))) << text;
    EXPECT_EQ(QStringLiteral("kept"), Form->LateSubmission.Explanation());
}

TEST_F(Sections, TheSecondRowIsNotRebuiltWhenTheTypeChanges)
{
    start();
    clickTab("tbSection", "Bill");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList before = tabs("tbSubSection");
    Form->FormType = QStringLiteral("Claim1A");
    window->Activate();
    EXPECT_EQ(before, tabs("tbSubSection"));
}

TEST_F(Sections, TheSameTabOpensItsScreenEachTime)
{
    startWithScreens();
    clickTab("tbSubSection", "Form Setup");
    EXPECT_EQ(0, row("tbSubSection").SelectedIndex());
    clickTab("tbSubSection", "Form Setup");
    EXPECT_EQ(QStringList({QStringLiteral("Form Setup"), QStringLiteral("Form Setup")}), opened);
}

TEST_F(Sections, EveryTextCanBeOpenedFromAnywhere)
{
    startWithScreens();
    window->tbSubSection_Click(-1, QStringLiteral("Debtor's Details"));
    EXPECT_EQ(QStringList("Debtor's Details"), opened);
}

TEST_F(Sections, AnUnknownOrEmptyTextDoesNothing)
{
    startWithScreens();
    window->tbSubSection_Click(-1, QString());
    window->tbSubSection_Click(-1, QStringLiteral("Unknown"));
    EXPECT_TRUE(opened.isEmpty());
    window->tbSubSection_Click(-1, QStringLiteral("Counsel"));
    EXPECT_EQ(QStringList("Counsel"), opened);
}

TEST_F(Sections, NextOpensTheFollowingScreenWhenThePresentOneIsGone)
{
    startWithScreens();
    onOpen = [](QDialog &screen, const QString &text) {
        const QHash<QString, QString> next = {{QStringLiteral("A"), QStringLiteral("B")},
            {QStringLiteral("B"), QStringLiteral("C")}, {QStringLiteral("C"), QStringLiteral("A")}};
        static int steps = 0;
        if (++steps < 60)
            mdUnloadAndDummyTabClick(screen, next[text]);
    };
    window->tbSubSection_Click(1, QStringLiteral("A"));
    EXPECT_EQ(60, opened.size());
    EXPECT_EQ(QStringLiteral("ABCABC"), opened.mid(0, 6).join(QString()));
    // One after the other, never nested.
    EXPECT_EQ(1, deepest);
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
}

TEST_F(Sections, NextTakesTheMarkFromTheTabThatWasClicked)
{
    startWithScreens();
    std::vector<int> marks;
    onOpen = [this, &marks](QDialog &screen, const QString &) {
        marks.push_back(row("tbSubSection").SelectedIndex());
        if (marks.size() == 1)
            mdUnloadAndDummyTabClick(screen, QStringLiteral("Client Details"));
    };
    clickTab("tbSubSection", "Form Setup");
    EXPECT_EQ((std::vector<int> {1, 0}), marks);
}

TEST_F(Sections, TheActivationRoutineRunsWhenTheLastScreenIsGone)
{
    startWithScreens();
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    onOpen = [this](QDialog &, const QString &) {
        Form->ClientDetails.Surname = QStringLiteral("Hartwell");
        EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    };
    window->tbSubSection_Click(1, QStringLiteral("Client Details"));
    EXPECT_EQ(QStringLiteral("New ZR3 File*"), header());
}

TEST_F(Sections, TabsWorkByKeyboard)
{
    startWithScreens();
    auto *first = row("tbSection").findChildren<oTabBarButton *>().first();
    first->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(2, row("tbSection").SelectedIndex());
    QCoreApplication::processEvents(); // the new row is shown
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QStringList("Solicitor Details"), opened);
}
