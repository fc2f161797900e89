#include "base/mdDateText.h"
#include "base/mdLog.h"
#include "base/mdProgramFolder.h"
#include "commands/mdFileHandling.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oDateBox.h"
#include "editors/mdScreenControls.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/editors/mdWalkedScreens.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLabel>

#include <cstring>

namespace {

class RecordScreens : public clsScreenTest {
protected:
    /// The element in which a field is stored, by the names in the expected tables.
    static pugi::xml_node elementOf(const clsExpectedScreen &screen, const clsExpectedField &field)
    {
        pugi::xml_node record = Form->XMLNode();
        if (*screen.element)
            record = record.child(screen.element);
        const QByteArray own = QString::fromUtf8(field.control).mid(3).toLower().toUtf8();
        return record.child(field.element ? field.element : own.constData());
    }
    static QByteArray contentOf(const clsExpectedScreen &screen, const clsExpectedField &field)
    {
        return elementOf(screen, field).child_value();
    }
    static QByteArray claimWithout(const clsExpectedScreen &screen, const clsExpectedField &field)
    {
        pugi::xml_node element = elementOf(screen, field);
        const QByteArray content = element.child_value();
        element.text().set("left out");
        const QByteArray all = Form->XMLOutput().toUtf8();
        element.text().set(content.constData());
        return all;
    }

    /// Gives a field a unique value by keys and clicks; returns the expected content of its element.
    static QByteArray fill(frmScreen &screen, const clsExpectedField &field)
    {
        QWidget &control = screen.Box(field.control);
        switch (field.kind) {
        case 't': type(control, QStringLiteral("Mark ") + QString::fromUtf8(field.control)); break;
        case 'd': type(control, QStringLiteral("3.4.21")); break;
        case 'm': type(control, QStringLiteral("12.3")); break;
        case 'i': type(control, QStringLiteral("7")); break;
        case 'x': QTest::mouseClick(&control, Qt::LeftButton, {}, control.rect().center()); break;
        default: QTest::keyClick(&control, Qt::Key_Down);
        }
        switch (field.kind) {
        case 't': return QByteArray("Mark+") + field.control;
        case 'd': return "03%2F04%2F21";
        case 'm': return "12%2E30";
        case 'i': return "7";
        case 'x': return static_cast<oCheckBox &>(control).Checked() ? "True" : "False";
        default: return field.second;
        }
    }
    static QString shown(const QWidget &control)
    {
        if (const auto *tick = qobject_cast<const oCheckBox *>(&control))
            return tick->Checked() ? QStringLiteral("True") : QStringLiteral("False");
        return mdTextOf(control);
    }
    static void pressEnd(frmScreen &screen)
    {
        press(screen, screen.Screen().ending == clsScreenEnding::Close ? "cmdClose" : "cmdSave");
    }
    static void expectStored(const clsExpectedScreen &expected, const clsExpectedField &field);
    static oCheckBox &tick(const frmScreen &screen, const char *name) { return screen.Box<oCheckBox>(name); }
};

void RecordScreens::expectStored(const clsExpectedScreen &expected, const clsExpectedField &field)
{
    Form = std::make_unique<clsZR3Form>();
    // The template has its rate with a plain point, which the first write encodes.
    Form->VATRate = Form->VATRate();
    // If the first field of the screen is an amount, leaving it makes it a number.
    if (expected.fields.front().kind == 'm' && &expected.fields.front() != &field)
        elementOf(expected, expected.fields.front()).text().set("0%2E00");
    const auto screen = opened(QString::fromUtf8(expected.section));
    if (!screen->Box(field.control).isEnabled())
        return;
    for (const clsScreenField &found : screen->Fields())
        if (found.page > 0 && found.control == &screen->Box(field.control))
            screen->Switcher().SwitchTo(found.page);
    const std::string name = expected.name + std::string(" ") + field.control;
    ASSERT_TRUE(elementOf(expected, field)) << name;
    const QByteArray before = contentOf(expected, field);
    const QByteArray others = claimWithout(expected, field);
    const QByteArray content = fill(*screen, field);
    EXPECT_EQ(before, contentOf(expected, field)) << name << ": stored before Save";
    pressEnd(*screen);
    EXPECT_FALSE(screen->isVisible()) << name;
    EXPECT_NE(before, contentOf(expected, field)) << name;
    EXPECT_EQ(content, contentOf(expected, field)) << name;
    EXPECT_TRUE(others == claimWithout(expected, field)) << name << ": another field has changed";
    const QString value = shown(screen->Box(field.control));
    EXPECT_EQ(value, shown(created(QString::fromUtf8(expected.section))->Box(field.control))) << name;
}

} // namespace

TEST_F(RecordScreens, EachFieldIsStoredInItsOwnElementAndShownAgain)
{
    for (const clsExpectedScreen &expected : AllExpectedScreens())
        for (const clsExpectedField &field : expected.fields)
            if (*expected.section && std::strchr("tdmixl", field.kind))
                expectStored(expected, field);
}

TEST_F(RecordScreens, LinesAreStoredWithBothTheirEnds)
{
    auto screen = opened(QStringLiteral("Client Details"));
    QWidget *box = focusPart(screen->Box("txtMoreThan1Certificate"));
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(box, QStringLiteral("one"));
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClicks(box, QStringLiteral("two"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("one\r\ntwo"), Form->ClientDetails.MoreThan1Certificate());
}

TEST_F(RecordScreens, CancelEscAndTheCloseBoxStoreNothingAndAskNothing)
{
    const QString clean = Form->XMLOutput();
    for (int way = 0; way < 3; ++way) {
        const auto screen = opened(QStringLiteral("Client Details"));
        type(screen->Box("txtSurname"), QStringLiteral("Hartwell"));
        if (way == 0)
            press(*screen, "cmdCancel");
        else if (way == 1)
            QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        else
            screen->close();
        EXPECT_FALSE(screen->isVisible()) << way;
        EXPECT_EQ(clean, Form->XMLOutput()) << way;
        EXPECT_TRUE(user.messages.empty()) << way;
    }
}

TEST_F(RecordScreens, CtrlSLeavesWhatIsTypedOutOfTheFileUntilTheScreenIsSaved)
{
    user.files = {path("claim.zr3")};
    Form->ClientDetails.Title = QStringLiteral("Mrs");
    auto screen = opened(QStringLiteral("Client Details"));
    type(screen->Box("txtSurname"), QStringLiteral("Hartwell"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(screen->isVisible());
    const QByteArray first = bytesOf(path("claim.zr3"));
    EXPECT_TRUE(first.contains("Mrs"));
    EXPECT_FALSE(first.contains("Hartwell"));
    EXPECT_EQ(QStringLiteral("Hartwell"), screen->Box<oAllPurposeBox>("txtSurname").Text());
    press(*screen, "cmdSave");
    EXPECT_FALSE(bytesOf(path("claim.zr3")).contains("Hartwell"));
    SaveForm(false);
    EXPECT_TRUE(bytesOf(path("claim.zr3")).contains("Hartwell"));
}

TEST_F(RecordScreens, AFirstNameOfEightCharactersShowsARedOneAndIsStoredWhole)
{
    auto screen = opened(QStringLiteral("Client Details"));
    QWidget &box = screen->Box("txtFirstName");
    type(box, QStringLiteral("Beatrice"));
    const auto *count = box.findChild<QLabel *>(QStringLiteral("lblCharacterAllowance"));
    ASSERT_TRUE(count);
    EXPECT_EQ(QStringLiteral("1"), count->text());
    EXPECT_EQ(QColor(177, 17, 22), count->palette().color(QPalette::Active, QPalette::WindowText));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("Beatrice"), Form->ClientDetails.FirstName());
}

TEST_F(RecordScreens, TickingOneOfAPairClearsTheOtherAndNoOtherPair)
{
    auto screen = opened(QStringLiteral("Previous Advice"));
    const auto click = [](oCheckBox &box) { QTest::mouseClick(&box, Qt::LeftButton, {}, box.rect().center()); };
    click(tick(*screen, "chkLegalHelpNo"));
    click(tick(*screen, "chkFurtherClaimsNo"));
    click(tick(*screen, "chkInclusiveOfAllSolicitorsNo"));
    click(tick(*screen, "chkLegalHelpYes"));
    EXPECT_TRUE(tick(*screen, "chkLegalHelpYes").Checked());
    EXPECT_FALSE(tick(*screen, "chkLegalHelpNo").Checked());
    EXPECT_TRUE(tick(*screen, "chkFurtherClaimsNo").Checked());
    EXPECT_FALSE(tick(*screen, "chkFurtherClaimsYes").Checked());
    EXPECT_TRUE(tick(*screen, "chkInclusiveOfAllSolicitorsNo").Checked());
    // Unticking neither clears nor ticks anything else: the question is unanswered again.
    click(tick(*screen, "chkLegalHelpYes"));
    EXPECT_FALSE(tick(*screen, "chkLegalHelpYes").Checked());
    EXPECT_FALSE(tick(*screen, "chkLegalHelpNo").Checked());
    press(*screen, "cmdSave");
    EXPECT_FALSE(Form->PreviousAdvice.LegalHelpYes());
    EXPECT_FALSE(Form->PreviousAdvice.LegalHelpNo());
    EXPECT_TRUE(Form->PreviousAdvice.FurtherClaimsNo());
}

TEST_F(RecordScreens, OfAPairThatAFileHasTickedTwiceTheOneLoadedLastWins)
{
    Form->PreviousAdvice.LegalHelpYes = true;
    Form->PreviousAdvice.LegalHelpNo = true;
    const auto screen = opened(QStringLiteral("Previous Advice"));
    EXPECT_FALSE(tick(*screen, "chkLegalHelpYes").Checked());
    EXPECT_TRUE(tick(*screen, "chkLegalHelpNo").Checked());
}

TEST_F(RecordScreens, TheReasonsStayOpenWhateverIsTickedAndOnBothFormTypes)
{
    for (const char *type : {"Claim1", "Claim1A"}) {
        Form->FormType = QString::fromUtf8(type);
        const auto screen = opened(QStringLiteral("Previous Advice"));
        for (const char *box : {"chkInclusiveOfAllSolicitorsYes", "chkInclusiveOfAllSolicitorsNo"}) {
            tick(*screen, box).setChecked(true);
            EXPECT_TRUE(screen->Box("txtInclusiveOfAllSolicitorsReasons").isEnabled());
        }
        for (const clsScreenField &field : screen->Fields())
            EXPECT_TRUE(field.control->isEnabled()) << field.row->control;
    }
}

TEST_F(RecordScreens, ABoxWithBadInputBlocksTheButtonsButNotEscAndTheCloseBox)
{
    for (const char *button : {"cmdSave", "cmdCancel", "btnRight"}) {
        auto screen = opened(QStringLiteral("Client Details"));
        bool opensNext = false;
        SetOpenSection([&opensNext](const QString &) { opensNext = true; });
        type(screen->Box("txtDateOfBirth"), QStringLiteral("31/02/24"));
        press(*screen, button);
        EXPECT_TRUE(screen->isVisible()) << button;
        EXPECT_FALSE(opensNext);
        EXPECT_EQ(QStringLiteral("txtDateOfBirth"), focusedName(*screen)) << button;
        QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(screen->isVisible()) << button;
        screen->findChild<QAbstractButton *>(QString::fromUtf8(button))->click();
        EXPECT_TRUE(screen->isVisible()) << button;
        EXPECT_FALSE(opensNext);
        QTest::keyClick(screen.get(), Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(screen->isVisible()) << button;
        QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(screen->isVisible()) << button;
    }
    auto screen = opened(QStringLiteral("Client Details"));
    type(screen->Box("txtDateOfBirth"), QStringLiteral("31/02/24"));
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QString(), Form->ClientDetails.DateOfBirth());
}

TEST_F(RecordScreens, TheLetterOfADateThatCanNotBeTypedLeavesTheFocusWhereItIs)
{
    Form->ClientDetails.DateOfBirth = QString(NoDate);
    auto screen = opened(QStringLiteral("Client Details"));
    QWidget *title = focusPart(screen->Box("txtTitle"));
    title->setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen.get(), Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(title, screen->focusWidget());
}

TEST_F(RecordScreens, BadInputDoesNotStopTheLetterOfATickButHoldsTheFocus)
{
    auto screen = opened(QStringLiteral("Previous Advice"));
    type(screen->Box("txtTotalCostsIncurred"), QStringLiteral("abc"));
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    QTest::mouseClick(&screen->Box("chkLegalHelpYes"), Qt::LeftButton, {}, QPoint(12, 12));
    EXPECT_EQ(QStringLiteral("txtTotalCostsIncurred"), focusedName(*screen));
    EXPECT_FALSE(tick(*screen, "chkLegalHelpYes").Checked());
    type(screen->Box("txtTotalCostsIncurred"), QStringLiteral("5"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("5.00"), Form->PreviousAdvice.TotalCostsIncurred());
}

TEST_F(RecordScreens, OpeningIsToldToTheLog)
{
    SetProgramFolder(folder.path());
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Logs")));
    SetLogSwitch([] { return true; });
    put(qPrintable(QStringLiteral("Logs/") + QFileInfo(LogPath()).fileName()), "");
    const auto screens = AllExpectedScreens();
    for (const clsExpectedScreen &expected : screens)
        if (*expected.section)
            created(QString::fromUtf8(expected.section));
    const QByteArray log = bytesOf(LogPath());
    SetLogSwitch(nullptr);
    SetProgramFolder(QString());
    for (const clsExpectedScreen &expected : screens)
        EXPECT_EQ(*expected.section ? 1 : 0, log.count(QByteArray(" : ") + expected.name + " Opened")) << expected.name;
}
