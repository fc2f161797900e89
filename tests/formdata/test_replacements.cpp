// The user's abbreviations, on a box with only a text and a caret.

#include "formdata/mdReplacements.h"
#include "tests/support/clsReplacementsTest.h"

namespace {

struct Box {
    QString text;
    int caret = 0;
    int writes = 0;

    QString Text() const { return text; }
    void setText(const QString &newText)
    {
        text = newText;
        ++writes;
    }
    int SelStart() const { return caret; }
    void setSelStart(int position) { caret = position; }
};

class Replacements : public clsReplacementsTest {
protected:
    /// The result for a text whose last character, a space, has just been typed.
    static Box typed(const char *text)
    {
        Box box;
        box.text = QString::fromUtf8(text);
        box.caret = int(box.text.size());
        ApplyReplacements(Qt::Key_Space, box);
        return box;
    }
};

} // namespace

TEST_F(Replacements, TheWordBeforeTheSpaceIsExpandedAndTheSpaceSpent)
{
    replace("ab", "above");
    const Box box = typed("see ab ");
    EXPECT_EQ(QStringLiteral("see above"), box.text);
    EXPECT_EQ(9, box.caret);
}

TEST_F(Replacements, TheFirstWordOfTheTextIsExpanded)
{
    replace("ab", "above");
    const Box box = typed("ab ");
    EXPECT_EQ(QStringLiteral("above"), box.text);
    EXPECT_EQ(5, box.caret);
}

TEST_F(Replacements, CapitalsAreOtherLetters)
{
    replace("ab", "above");
    EXPECT_EQ(QStringLiteral("AB "), typed("AB ").text);
}

TEST_F(Replacements, TheFirstWordOfALineIsExpandedAndTheBreakStays)
{
    replace("ab", "above");
    const Box box = typed("one\r\nab ");
    EXPECT_EQ(QStringLiteral("one\r\nabove"), box.text);
    EXPECT_EQ(10, box.caret);
}

TEST_F(Replacements, OfTwoSideBySideTheFirstTakesTheSpaceOfTheSecond)
{
    replace("ab", "above");
    EXPECT_EQ(QStringLiteral("aboveab "), typed("ab ab ").text);
}

TEST_F(Replacements, AWordBeforeABreakAStopOrTheEndStays)
{
    replace("ab", "above");
    EXPECT_EQ(QStringLiteral("ab\r\nab. x ab, ab"), typed("ab\r\nab. x ab, ab").text);
}

TEST_F(Replacements, AWordWithinAWordStays)
{
    replace("ab", "above");
    EXPECT_EQ(QStringLiteral("cab abc xabx "), typed("cab abc xabx ").text);
}

TEST_F(Replacements, AllOfTheTextIsSearched)
{
    replace("ab", "above");
    Box box;
    box.text = QStringLiteral("x  ab y\r\nab z");
    box.caret = 2;
    EXPECT_TRUE(ApplyReplacements(Qt::Key_Space, box));
    EXPECT_EQ(QStringLiteral("x  abovey\r\nabovez"), box.text);
    // Moved by the growth of the whole text, although all of it is after the caret.
    EXPECT_EQ(6, box.caret);
}

TEST_F(Replacements, ALaterOneSeesWhatAnEarlierOneHasPutIn)
{
    replace("ab", "cd x");
    replace("x", "y");
    // The inserted x is followed by a space only if there was one before.
    EXPECT_EQ(QStringLiteral("cd x"), typed("ab ").text);
    EXPECT_EQ(QStringLiteral("cd y"), typed("ab  ").text);
}

TEST_F(Replacements, AnEarlierOneDoesNotSeeWhatALaterOneHasPutIn)
{
    replace("x", "y");
    replace("ab", "cd x");
    EXPECT_EQ(QStringLiteral("cd x "), typed("ab  ").text);
}

TEST_F(Replacements, TheOrderIsThatOfTheDatabase)
{
    replace("ab", "first");
    replace("ab", "second");
    EXPECT_EQ(QStringLiteral("first"), typed("ab ").text);
}

TEST_F(Replacements, BlanksAtTheBeginningOfALineStay)
{
    replace("ab", "above");
    EXPECT_EQ(QStringLiteral(" x\r\n  y\r\n above"), typed(" x\r\n  y\r\n ab ").text);
}

TEST_F(Replacements, AShorterTextMovesTheCaretBack)
{
    replace("abbreviation", "a");
    const Box box = typed("the abbreviation ");
    EXPECT_EQ(QStringLiteral("the a"), box.text);
    EXPECT_EQ(5, box.caret);
}

TEST_F(Replacements, NothingIsSpecialAboutTheTextPutIn)
{
    replace("ab", "\\1 $& %1 & £5\r\nnext");
    EXPECT_EQ(QString::fromUtf8("\\1 $& %1 & £5\r\nnext"), typed("ab ").text);
}

TEST_F(Replacements, TheTextIsWrittenEvenIfNothingMatches)
{
    Box box;
    box.text = QStringLiteral("nothing here ");
    box.caret = 3;
    EXPECT_FALSE(ApplyReplacements(Qt::Key_Space, box));
    EXPECT_EQ(1, box.writes);
    EXPECT_EQ(QStringLiteral("nothing here "), box.text);
    EXPECT_EQ(3, box.caret);
}

TEST_F(Replacements, TheAnswerIsWhetherTheLengthHasChanged)
{
    replace("ab", "above");
    replace("xy", "123"); // as long as before, including the space that is removed
    Box box;
    box.text = QStringLiteral("ab ");
    EXPECT_TRUE(ApplyReplacements(Qt::Key_Space, box));
    box.text = QStringLiteral("xy ");
    EXPECT_FALSE(ApplyReplacements(Qt::Key_Space, box));
    EXPECT_EQ(QStringLiteral("123"), box.text);
}

TEST_F(Replacements, NoOtherKeyExpands)
{
    replace("ab", "above");
    for (const int key : {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Tab), int(Qt::Key_Period),
             int(Qt::Key_A), int(Qt::Key_Shift), int(Qt::Key_F1), int(Qt::Key_nobreakspace)}) {
        Box box;
        box.text = QStringLiteral("ab ");
        EXPECT_FALSE(ApplyReplacements(key, box)) << key;
        EXPECT_EQ(0, box.writes) << key;
        EXPECT_EQ(QStringLiteral("ab "), box.text) << key;
    }
}

TEST_F(Replacements, AChangeOfTheListCountsFromTheNextSpace)
{
    EXPECT_EQ(QStringLiteral("ab "), typed("ab ").text);
    replace("ab", "above");
    EXPECT_EQ(QStringLiteral("above"), typed("ab ").text);
    Preferences->DeleteReplacement(1);
    EXPECT_EQ(QStringLiteral("ab "), typed("ab ").text);
}

TEST_F(Replacements, WithoutPreferencesThereAreNone)
{
    Preferences.reset();
    EXPECT_EQ(QStringLiteral("ab "), typed("ab ").text);
}

TEST(KeyCodes, GiveTheCharacterWithoutShift)
{
    struct Row {
        int key;
        const char16_t *character;
    };
    // clang-format off
    const Row rows[] = {
        {Qt::Key_Space,     u" "},
        {Qt::Key_A,         u"a"},
        {Qt::Key_Z,         u"z"},
        {Qt::Key_0,         u"0"},
        {Qt::Key_Period,    u"."},
        {Qt::Key_Adiaeresis, u"\u00e4"},
        {Qt::Key_Return,    u"\r"},
        {Qt::Key_Enter,     u"\r"},
        {Qt::Key_Tab,       u"\t"},
        {Qt::Key_Backspace, u"\b"},
        {Qt::Key_Escape,    u"\x1b"},
        {Qt::Key_F1,        u""},
        {Qt::Key_Left,      u""},
        {Qt::Key_Shift,     u""},
        {0,                 u""},
        {-1,                u""},
    };
    // clang-format on
    for (const Row &row : rows)
        EXPECT_EQ(QString::fromUtf16(row.character), KeyCodeToCharacter(row.key)) << row.key;
}

TEST(InputText, TakesDigitsAndUnaccentedLettersOnly)
{
    for (const char *good :
        {"", "ab", "AB", "a1", "0123456789", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"})
        EXPECT_TRUE(IsValidInputText(QString::fromUtf8(good))) << good;
    for (const char *bad : {" ", "a b", "a-b", "ab ", "é", "ab.", "a_b", "\r\n", "１"})
        EXPECT_FALSE(IsValidInputText(QString::fromUtf8(bad))) << bad;
}
