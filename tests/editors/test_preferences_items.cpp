#include "controls/oAllPurposeBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "tests/editors/clsPreferencesTest.h"

#include <QMenuBar>

// The editors of an abbreviation and of a rate set.

namespace {

class ReplacementEdit : public clsPreferencesTest {
protected:
    static std::unique_ptr<frmScreen> edit(clsXMLRecord *item = nullptr)
    {
        return editor(ScreenReplacementEdit(), item);
    }
    void expectInvalidCharacters(const QString &inputText);
};

void ReplacementEdit::expectInvalidCharacters(const QString &inputText)
{
    user.messages.clear();
    const auto screen = edit();
    screen->Box<oAllPurposeBox>("txtInputText").setText(inputText);
    type(screen->Box("txtOutputText"), QStringLiteral("above"));
    press(*screen, "cmdSave");
    ASSERT_EQ(1u, user.messages.size()) << inputText.toStdString();
    EXPECT_EQ(QStringLiteral("Invalid Characters"), user.messages[0].title);
    EXPECT_EQ(
        QStringLiteral("Only alpha-numeric characters are allowed in the Input Text field"), user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_FALSE(user.messages[0].system);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("txtInputText"), focusedName(*screen));
    EXPECT_TRUE(Preferences->ReplacementsCollection().empty()) << "nothing is made for what isn't stored";
}

class RateSetEdit : public clsPreferencesTest {
protected:
    static std::unique_ptr<frmScreen> edit(clsXMLRecord *item = nullptr)
    {
        return editor(ScreenPreferencesRateSetEdit(), item);
    }
    /// The texts of the seven rate boxes, in the order of the screen.
    static QStringList rates(const frmScreen &screen)
    {
        QStringList result;
        for (const char *box : {"txtHourly", "txtCalls", "txtLettersIn", "txtLettersOut", "txtAdvocacy", "txtCounsel",
                 "txtTravelAndWaiting"})
            result << text(screen, box);
        return result;
    }
    static QStringList list(std::initializer_list<const char *> texts)
    {
        QStringList result;
        for (const char *one : texts)
            result << QString::fromUtf8(one);
        return result;
    }
    static QStringList calculated(const char *hourly)
    {
        const auto screen = edit();
        // Set like a pasted text: tests can't type a pound sign.
        screen->Box("txtHourly").setFocus(Qt::TabFocusReason);
        screen->Box<oDecimalBox>("txtHourly").setText(QString::fromUtf8(hourly));
        press(*screen, "cmdCalculate");
        return rates(*screen);
    }
    static QStringList stored(const clsZR3RateSet &set)
    {
        return {set.HourlyRate(), set.CallsRate(), set.LettersInRate(), set.LettersOutRate(), set.AdvocacyRate(),
            set.CounselRate(), set.TravelAndWaitingRate()};
    }
};

} // namespace

// The two screens

TEST_F(ReplacementEdit, BothEditorsHaveTheirButtonsAndNoMenu)
{
    for (const bool rates : {false, true}) {
        const auto screen = editor(rates ? ScreenPreferencesRateSetEdit() : ScreenReplacementEdit());
        QStringList buttons;
        for (const oCustomButton *button : screen->findChildren<oCustomButton *>())
            buttons << button->objectName() + u' ' + button->Caption();
        QStringList expected {QStringLiteral("cmdSaveAndAdd Save and Add"), QStringLiteral("cmdSave Save"),
            QStringLiteral("cmdCancel Cancel")};
        if (rates)
            expected.prepend(QStringLiteral("cmdCalculate Calculate"));
        EXPECT_EQ(expected, buttons);
        EXPECT_TRUE(screen->findChild<QMenuBar *>()->actions().isEmpty()) << "the claim is saved elsewhere";
    }
}

// An abbreviation

TEST_F(ReplacementEdit, ANewOneIsMadeByTheFirstSave)
{
    auto screen = edit();
    EXPECT_EQ(QString(), text(*screen, "txtInputText"));
    EXPECT_EQ(QString(), text(*screen, "txtOutputText"));
    type(screen->Box("txtInputText"), QStringLiteral("ab12Z"));
    type(screen->Box("txtOutputText"), QStringLiteral("above & below"));
    EXPECT_TRUE(Preferences->ReplacementsCollection().empty());
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QDialog::Accepted, screen->result());
    EXPECT_EQ(QStringList("ab12Z>above & below"), replacements());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ReplacementEdit, AnItemFillsTheBoxesAndIsWrittenOnSave)
{
    addReplacement("x", "y");
    const auto item = addReplacement("ab", "above");
    const auto screen = edit(item.get());
    EXPECT_EQ(QStringLiteral("ab"), text(*screen, "txtInputText"));
    EXPECT_EQ(QStringLiteral("above"), text(*screen, "txtOutputText"));
    type(screen->Box("txtOutputText"), QStringLiteral("about"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringList({QStringLiteral("x>y"), QStringLiteral("ab>about")}), replacements());
}

TEST_F(ReplacementEdit, CancelLeavesTheItemAndAsksNothing)
{
    const auto item = addReplacement("ab", "above");
    for (const char *way : {"cmdCancel", "Esc", "close box"}) {
        const auto screen = edit(item.get());
        type(screen->Box("txtInputText"), QStringLiteral("cd"));
        type(screen->Box("txtOutputText"), QStringLiteral("other"));
        if (QByteArray(way) == "Esc")
            QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        else if (QByteArray(way) == "close box")
            screen->close();
        else
            press(*screen, way);
        EXPECT_FALSE(screen->isVisible()) << way;
        EXPECT_EQ(QDialog::Rejected, screen->result()) << way;
        EXPECT_EQ(QStringList("ab>above"), replacements()) << way;
    }
    const auto fresh = edit();
    type(fresh->Box("txtInputText"), QStringLiteral("cd"));
    press(*fresh, "cmdCancel");
    EXPECT_EQ(1u, Preferences->ReplacementsCollection().size());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ReplacementEdit, NeitherBoxMayBeEmpty)
{
    for (const char *filled : {"", "txtInputText", "txtOutputText"}) {
        user.messages.clear();
        const auto screen = edit();
        if (*filled)
            type(screen->Box(filled), QStringLiteral("ab"));
        press(*screen, "cmdSave");
        ASSERT_EQ(1u, user.messages.size()) << filled;
        EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
        EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
        EXPECT_TRUE(screen->isVisible());
        EXPECT_TRUE(Preferences->ReplacementsCollection().empty());
        EXPECT_EQ(
            QByteArray(filled) == "txtInputText" ? QStringLiteral("txtOutputText") : QStringLiteral("txtInputText"),
            focusedName(*screen));
    }
}

TEST_F(ReplacementEdit, AnInputTextWithABlankOrAHyphenIsRefused)
{
    for (const char *inputText : {"a b", "a-b", " ", "ab ", "caf\u00e9", "a_b", "a.b"})
        expectInvalidCharacters(QString::fromUtf8(inputText));
}

TEST_F(ReplacementEdit, EmptyComesBeforeInvalid)
{
    const auto screen = edit();
    type(screen->Box("txtInputText"), QStringLiteral("a-b"));
    press(*screen, "cmdSave");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
}

TEST_F(ReplacementEdit, ARefusedItemIsLeftAsItWasAndCanBeMended)
{
    const auto item = addReplacement("ab", "above");
    const auto screen = edit(item.get());
    type(screen->Box("txtInputText"), QStringLiteral("a b"));
    type(screen->Box("txtOutputText"), QStringLiteral("about"));
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringList("ab>above"), replacements());
    type(screen->Box("txtInputText"), QStringLiteral("abc"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringList("abc>about"), replacements());
}

TEST_F(ReplacementEdit, TheAbbreviationIsNotExpandedInItsOwnBox)
{
    const auto item = addReplacement("ab", "above");
    const auto screen = edit(item.get());
    type(screen->Box("txtInputText"), QStringLiteral("ab "));
    EXPECT_EQ(QStringLiteral("ab "), text(*screen, "txtInputText"));
    type(screen->Box("txtOutputText"), QStringLiteral("see ab "));
    EXPECT_EQ(QStringLiteral("see above"), text(*screen, "txtOutputText"));
}

TEST_F(ReplacementEdit, WorksByKeyboardAlone)
{
    const auto screen = edit();
    EXPECT_EQ(QStringLiteral("txtInputText"), focusedName(*screen));
    QTest::keyClicks(screen->focusWidget(), QStringLiteral("ab"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(screen->focusWidget(), QStringLiteral("above"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringList("ab>above"), replacements());
}

// A rate set

TEST_F(RateSetEdit, CalculateFillsTheSetFromTheHourlyRate)
{
    EXPECT_EQ(list({"100.00", "10.00", "5.00", "10.00", "100.00", "100.00", "100.00"}), calculated("100"));
    EXPECT_EQ(list({"0.00", "0.00", "0.00", "0.00", "0.00", "0.00", "0.00"}), calculated(""));
    EXPECT_EQ(list({"63.20", "6.32", "3.16", "6.32", "63.20", "63.20", "63.20"}), calculated("\u00a363.2"));
    // 4.725 and 2.3625.
    EXPECT_EQ(list({"47.25", "4.73", "2.36", "4.73", "47.25", "47.25", "47.25"}), calculated("47.25"));
    // 0.001 and 0.0005.
    EXPECT_EQ(list({"0.01", "0.00", "0.00", "0.00", "0.01", "0.01", "0.01"}), calculated("0.01"));
}

TEST_F(RateSetEdit, CalculateOverwritesAndStoresNothing)
{
    const auto item = addRateSet("Inner", "50.00");
    item->CallsRate = QStringLiteral("1.00");
    item->TravelAndWaitingRate = QStringLiteral("2.00");
    const auto screen = edit(item.get());
    press(*screen, "cmdCalculate");
    EXPECT_EQ(list({"50.00", "5.00", "2.50", "5.00", "50.00", "50.00", "50.00"}), rates(*screen));
    EXPECT_EQ(QStringLiteral("1.00"), item->CallsRate());
    press(*screen, "cmdCancel");
    EXPECT_EQ(list({"50.00", "1.00", "0.00", "0.00", "0.00", "0.00", "2.00"}), stored(*item));
}

TEST_F(RateSetEdit, CalculateTakesWhatIsTypedAlsoFromItsKey)
{
    const auto screen = edit();
    type(screen->Box("txtHourly"), QStringLiteral("200"));
    auto *button = screen->findChild<oCustomButton *>(QStringLiteral("cmdCalculate"));
    const qsizetype mark = button->text().indexOf(u'&');
    ASSERT_GE(mark, 0);
    QTest::keyClick(screen.get(), button->text()[mark + 1].toLower().toLatin1(), Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return text(*screen, "txtCalls") != QLatin1String("0.00"); }));
    EXPECT_EQ(list({"200.00", "20.00", "10.00", "20.00", "200.00", "200.00", "200.00"}), rates(*screen));
    // Also from the button after the rate.
    type(screen->Box("txtHourly"), QStringLiteral("300"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QStringLiteral("cmdCalculate"), focusedName(*screen));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(QStringLiteral("30.00"), text(*screen, "txtCalls"));
}

TEST_F(RateSetEdit, AnHourlyRateThatIsNoNumberHoldsTheUserAndCalculatesNothing)
{
    const auto screen = edit();
    type(screen->Box("txtHourly"), QStringLiteral("abc"));
    press(*screen, "cmdCalculate");
    EXPECT_EQ(list({"abc", "0.00", "0.00", "0.00", "0.00", "0.00", "0.00"}), rates(*screen));
    EXPECT_EQ(QStringLiteral("txtHourly"), focusedName(*screen));
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible()) << "Esc lets go";
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(RateSetEdit, OnlyTheNameIsRequired)
{
    auto screen = edit();
    type(screen->Box("txtHourly"), QStringLiteral("100"));
    press(*screen, "cmdSave");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("txtName"), focusedName(*screen));
    EXPECT_TRUE(Preferences->RateSetsCollection().empty());
    type(screen->Box("txtName"), QStringLiteral("Outer London"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(1u, user.messages.size());
    ASSERT_EQ(1u, Preferences->RateSetsCollection().size());
    // A rate that was never entered is stored as zero, not as an empty text.
    EXPECT_EQ(list({"100.00", "0.00", "0.00", "0.00", "0.00", "0.00", "0.00"}), stored(*Preferences->RateSet(1)));
}

TEST_F(RateSetEdit, EachBoxHasItsOwnRate)
{
    const auto item = addRateSet("Inner", "1.00");
    item->CallsRate = QStringLiteral("2.00");
    item->LettersInRate = QStringLiteral("3.00");
    item->LettersOutRate = QStringLiteral("4.00");
    item->AdvocacyRate = QStringLiteral("5.00");
    item->CounselRate = QStringLiteral("6.00");
    item->TravelAndWaitingRate = QStringLiteral("7.00");
    const auto screen = edit(item.get());
    EXPECT_EQ(QStringLiteral("Inner"), text(*screen, "txtName"));
    EXPECT_EQ(list({"1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00"}), rates(*screen));
    int rate = 11;
    for (const char *box :
        {"txtHourly", "txtCalls", "txtLettersIn", "txtLettersOut", "txtAdvocacy", "txtCounsel", "txtTravelAndWaiting"})
        type(screen->Box(box), QString::number(rate++));
    press(*screen, "cmdSave");
    EXPECT_EQ(list({"11.00", "12.00", "13.00", "14.00", "15.00", "16.00", "17.00"}), stored(*item));
    EXPECT_EQ(1u, Preferences->RateSetsCollection().size());
}

TEST_F(RateSetEdit, ItsFieldsAreStoredInTheirOrder)
{
    expectStoredInOrder({"name", "hourlyrate", "callsrate", "lettersinrate", "lettersoutrate", "advocacyrate",
                            "counselrate", "travelandwaitingrate"},
        [] { return edit(addRateSet("Inner", "1.00").get()); });
}

TEST_F(RateSetEdit, CalculateByItsLetterFormatsAlsoTheBoxThatHasTheFocus)
{
    const auto screen = edit();
    type(screen->Box("txtHourly"), QStringLiteral("47"));
    screen->Box("txtCalls").setFocus(Qt::TabFocusReason);
    const QString marked = screen->Box<oCustomButton>("cmdCalculate").text();
    ASSERT_TRUE(marked.contains(u'&'));
    QTest::keyClick(screen->focusWidget(), marked[marked.indexOf(u'&') + 1].toLower().toLatin1(), Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return text(*screen, "txtLettersIn") == QLatin1String("2.35"); }));
    EXPECT_EQ(list({"47.00", "4.70", "2.35", "4.70", "47.00", "47.00", "47.00"}), rates(*screen));
}

TEST_F(RateSetEdit, CancelMakesAndChangesNothing)
{
    const auto item = addRateSet("Inner", "50.00");
    auto screen = edit(item.get());
    type(screen->Box("txtName"), QStringLiteral("Other"));
    press(*screen, "cmdCancel");
    screen = edit();
    type(screen->Box("txtName"), QStringLiteral("New"));
    press(*screen, "cmdCancel");
    EXPECT_EQ(QStringList("Inner>50.00"), rateSets());
    EXPECT_TRUE(user.messages.empty());
}
