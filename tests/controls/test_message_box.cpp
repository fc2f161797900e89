#include "base/mdPlayWav.h"
#include "base/mdProgramFolder.h"
#include "controls/frmMessageBox.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "controls/oHeaderBar.h"
#include "tests/support/clsScriptedUserInterface.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using testing::ElementsAre;
using UI = clsUserInterface;

namespace {

/// A shown box with one message; the test drives its timer.
class Box {
public:
    Box(UI::Buttons buttons, int timeout = 0, const QString &title = QStringLiteral("Save?"),
        const QString &message = QStringLiteral("Save changes to this form before closing?"), int icon = 1)
    {
        form.Initialise(message, title, buttons, icon, timeout);
        timer()->setInterval(3600 * 1000);
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    oCustomButton *button(const char *name) const { return form.findChild<oCustomButton *>(QLatin1String(name)); }
    QTimer *timer() const { return form.findChild<QTimer *>(QStringLiteral("tmrAutoOK")); }
    QLabel *message() const { return form.findChild<QLabel *>(QStringLiteral("lblMessage")); }
    void tick() const { EXPECT_TRUE(QMetaObject::invokeMethod(timer(), "timeout")); }

    /// The captions of the visible buttons, from left to right.
    std::vector<std::string> captions() const
    {
        std::map<int, std::string> byPlace;
        for (const oCustomButton *shown : form.findChildren<oCustomButton *>())
            if (shown->isVisible())
                byPlace[shown->x()] = shown->Caption().toStdString();
        std::vector<std::string> result;
        for (const auto &[place, caption] : byPlace)
            result.push_back(caption);
        return result;
    }

    frmMessageBox form;
};

} // namespace

TEST(MessageBox, ShowsTheButtonsOfItsSet)
{
    EXPECT_THAT(Box(UI::OKOnly).captions(), ElementsAre("OK"));
    EXPECT_THAT(Box(UI::OKCancel).captions(), ElementsAre("OK", "Cancel"));
    EXPECT_THAT(Box(UI::YesNo).captions(), ElementsAre("Yes", "No"));
    EXPECT_THAT(Box(UI::YesNoCancel).captions(), ElementsAre("Yes", "No", "Cancel"));
}

TEST(MessageBox, EachButtonStoresItsResultAndCloses)
{
    const struct {
        const char *name;
        UI::Buttons buttons;
        int result;
    } rows[] = {{"cmdOK", UI::OKCancel, 0}, {"cmdCancel", UI::YesNoCancel, 1}, {"cmdYes", UI::YesNoCancel, 2},
        {"cmdNo", UI::YesNoCancel, 3}};
    for (const auto &row : rows) {
        Box box(row.buttons);
        QTest::mouseClick(box.button(row.name), Qt::LeftButton);
        EXPECT_FALSE(box.form.isVisible()) << row.name;
        EXPECT_EQ(row.result, int(box.form.Result())) << row.name;
    }
}

TEST(MessageBox, EnterPressesTheDefaultWhichHasTheFocus)
{
    for (const UI::Buttons buttons : {UI::OKOnly, UI::OKCancel, UI::YesNo, UI::YesNoCancel}) {
        Box box(buttons);
        const bool ok = buttons == UI::OKOnly || buttons == UI::OKCancel;
        EXPECT_TRUE(box.button(ok ? "cmdOK" : "cmdYes")->isDefault());
        EXPECT_TRUE(box.button(ok ? "cmdOK" : "cmdYes")->hasFocus());
        QTest::keyClick(&box.form, Qt::Key_Return);
        EXPECT_EQ(ok ? UI::OK : UI::Yes, box.form.Result());
        EXPECT_FALSE(box.form.isVisible());
    }
}

TEST(MessageBox, EscAndTheCloseBoxAnswerCancelElseNoElseOK)
{
    const struct {
        UI::Buttons buttons;
        UI::Answer answer;
    } rows[] = {{UI::OKOnly, UI::OK}, {UI::OKCancel, UI::Cancel}, {UI::YesNo, UI::No}, {UI::YesNoCancel, UI::Cancel}};
    for (const auto &row : rows) {
        Box escaped(row.buttons);
        QTest::keyClick(&escaped.form, Qt::Key_Escape);
        EXPECT_EQ(row.answer, escaped.form.Result()) << int(row.buttons);
        EXPECT_FALSE(escaped.form.isVisible());
        Box closed(row.buttons);
        closed.form.close();
        EXPECT_EQ(row.answer, closed.form.Result()) << int(row.buttons);
        EXPECT_FALSE(closed.form.isVisible());
    }
}

TEST(MessageBox, ATimeoutOfThreeCountsDownAndClosesWithOK)
{
    Box box(UI::OKCancel, 3);
    EXPECT_TRUE(box.timer()->isActive());
    EXPECT_EQ(QStringLiteral("OK"), box.button("cmdOK")->Caption());
    EXPECT_EQ(QKeySequence(Qt::ALT | Qt::Key_O), box.button("cmdOK")->shortcut());
    box.tick();
    EXPECT_EQ(QStringLiteral("OK (2)"), box.button("cmdOK")->Caption());
    EXPECT_EQ(QKeySequence(Qt::ALT | Qt::Key_O), box.button("cmdOK")->shortcut());
    box.tick();
    EXPECT_EQ(QStringLiteral("OK (1)"), box.button("cmdOK")->Caption());
    EXPECT_TRUE(box.form.isVisible());
    box.tick();
    EXPECT_EQ(QStringLiteral("OK (0)"), box.button("cmdOK")->Caption());
    EXPECT_FALSE(box.form.isVisible());
    EXPECT_EQ(0, int(box.form.Result()));
    EXPECT_FALSE(box.timer()->isActive());
}

TEST(MessageBox, TheCountdownTicksEverySecond)
{
    frmMessageBox form;
    form.Initialise(QString(), QString(), UI::OKOnly, 0, 1);
    const auto *timer = form.findChild<QTimer *>(QStringLiteral("tmrAutoOK"));
    EXPECT_EQ(1000, timer->interval());
    EXPECT_TRUE(timer->isActive());
}

TEST(MessageBox, TheCountdownMovesNothing)
{
    Box box(UI::OKCancel, 1000000001);
    const QRect ok = box.button("cmdOK")->geometry();
    const QRect cancel = box.button("cmdCancel")->geometry();
    for (int i = 0; i < 5; ++i) {
        box.tick();
        QCoreApplication::processEvents();
        EXPECT_EQ(ok, box.button("cmdOK")->geometry());
        EXPECT_EQ(cancel, box.button("cmdCancel")->geometry());
    }
}

TEST(MessageBox, TheCountdownAnswersOKAlsoWhereOKIsHidden)
{
    Box box(UI::YesNo, 1);
    box.tick();
    EXPECT_FALSE(box.form.isVisible());
    EXPECT_EQ(UI::OK, box.form.Result());
}

TEST(MessageBox, AnAnswerStopsTheCountdown)
{
    Box box(UI::OKCancel, 3);
    QTest::keyClick(&box.form, Qt::Key_Escape);
    EXPECT_FALSE(box.timer()->isActive());
    EXPECT_EQ(UI::Cancel, box.form.Result());
}

TEST(MessageBox, WithoutATimeoutNothingCounts)
{
    const Box none(UI::OKOnly, 0);
    EXPECT_FALSE(none.timer()->isActive());
    const Box negative(UI::OKOnly, -1);
    EXPECT_FALSE(negative.timer()->isActive());
}

TEST(MessageBox, WritesTitleMessageAndIcon)
{
    const Box box(UI::OKOnly, 0, QStringLiteral("Export Complete"), QStringLiteral("One\r\n\r\nTwo & <b>three</b>"), 2);
    EXPECT_EQ(QStringLiteral("Export Complete"), box.form.windowTitle());
    const auto *header = box.form.findChild<oHeaderBar *>();
    EXPECT_EQ(QStringLiteral("Export Complete"), header->Caption());
    EXPECT_EQ(3, header->IconGroup());
    EXPECT_EQ(QStringLiteral("One\n\nTwo & <b>three</b>"), box.message()->text());
    EXPECT_EQ(Qt::PlainText, box.message()->textFormat());
    EXPECT_TRUE(box.message()->textInteractionFlags() & Qt::TextSelectableByMouse);
}

TEST(MessageBox, IconsAreGroupsTwoFourAndThree)
{
    std::vector<int> groups;
    for (int icon = 0; icon <= 2; ++icon)
        groups.push_back(Box(UI::OKOnly, 0, QString(), QString(), icon).form.findChild<oHeaderBar *>()->IconGroup());
    EXPECT_THAT(groups, ElementsAre(2, 4, 3));
}

TEST(MessageBox, IsRedWhereItsDefaultLosesSomething)
{
    EXPECT_EQ(oCustomButton::Look::Danger, Box(UI::YesNo, 0, QStringLiteral("Delete?")).button("cmdYes")->look());
    EXPECT_EQ(oCustomButton::Look::Danger, Box(UI::OKCancel, 0, QStringLiteral("Overwrite?")).button("cmdOK")->look());
    EXPECT_EQ(oCustomButton::Look::Default, Box(UI::YesNo, 0, QStringLiteral("Save?")).button("cmdYes")->look());
    EXPECT_EQ(oCustomButton::Look::Secondary, Box(UI::YesNo, 0, QStringLiteral("Delete?")).button("cmdNo")->look());
}

TEST(MessageBox, PlaysTheAlertOfTheProgramFolder)
{
    clsScriptedUserInterface ui;
    const clsUserInterfaceScope scope(ui);
    SetProgramFolder(QStringLiteral("/opt/program"));
    frmMessageBox silent;
    silent.Initialise(QString(), QString(), UI::OKOnly, 0, 0);
    EXPECT_TRUE(ui.sounds.isEmpty()) << "the switch for sound is off";
    SetSoundSwitch([] { return true; });
    frmMessageBox form;
    form.Initialise(QString(), QString(), UI::OKOnly, 0, 0);
    SetSoundSwitch({});
    SetProgramFolder({});
    EXPECT_EQ(QStringList(QStringLiteral("/opt/program/Sounds/Alert.wav")), ui.sounds);
}

TEST(MessageBox, IsBetween440And560Wide)
{
    EXPECT_EQ(440, Box(UI::OKOnly, 0, QStringLiteral("A"), QStringLiteral("B")).form.width());
    const Box wide(UI::OKOnly, 0, QStringLiteral("A"), QStringLiteral("word ").repeated(400));
    EXPECT_EQ(560, wide.form.width());
    EXPECT_GE(wide.message()->height(), wide.message()->heightForWidth(wide.message()->width()));
}

TEST(MessageBox, AShortQuestionStandsInItsBoxWithoutAScrollBar)
{
    const QFont before = QApplication::font();
    for (const int points : {10, 13, 15}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        for (const char *word : {"Correspondences", "Counsel", "Disbursement", "Enhancement", "Expert Invoice",
                 "Family Advocacy Scheme Item", "Fee Earner Group", "Fee Earner", "Joint Instruction", "Rate Set",
                 "Replacement", "Schedule of Time Item"}) {
            const Box box(UI::YesNo, 0, QStringLiteral("Delete?"),
                QStringLiteral("Are you sure you wish to delete this %1?").arg(QLatin1String(word)));
            const QScrollBar &bar = *box.form.findChild<QScrollArea *>()->verticalScrollBar();
            EXPECT_FALSE(bar.isVisible()) << word << points;
            EXPECT_EQ(0, bar.maximum()) << word << points;
        }
    }
    QApplication::setFont(before);
}

TEST(MessageBox, AMessageThatIsCutScrollsAndOneThatFitsAgainDoesNot)
{
    Box box(UI::OKOnly, 0, QStringLiteral("A"), QStringLiteral("line\n").repeated(12));
    const QScrollBar &bar = *box.form.findChild<QScrollArea *>()->verticalScrollBar();
    const QSize whole = box.form.size();
    EXPECT_FALSE(bar.isVisible());
    box.form.resize(whole - QSize(0, 80));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }));
    box.form.resize(whole);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bar.isVisible(); }));
}

TEST(MessageBox, AMessageTallerThanTheScreenScrolls)
{
    const Box box(UI::OKOnly, 0, QStringLiteral("A"), QStringLiteral("line\r\n").repeated(500));
    EXPECT_LE(box.form.height(), box.form.screen()->availableGeometry().height());
    EXPECT_TRUE(box.form.findChild<QScrollArea *>()->verticalScrollBar()->isVisible());
    EXPECT_TRUE(box.button("cmdOK")->isVisible());
    EXPECT_LE(box.button("cmdOK")->geometry().bottom(), box.form.height());
}

TEST(MessageBox, AnswersItsMnemonics)
{
    Box box(UI::YesNoCancel);
    QTest::keyClick(&box.form, Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box.form.isVisible(); }));
    EXPECT_EQ(UI::No, box.form.Result());
    Box other(UI::YesNoCancel);
    QTest::keyClick(&other.form, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !other.form.isVisible(); }));
    EXPECT_EQ(UI::Cancel, other.form.Result());
}
