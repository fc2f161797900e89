// Spelling: words, dictionaries, the user's own words, underlines and the menu.

#include "controls/clsSpellingChecker.h"
#include "controls/mdSpellingWords.h"
#include "controls/mdTheme.h"
#include "controls/mdUserWords.h"
#include "controls/oSpellHighlighter.h"
#include "controls/oSpellText.h"
#include "tests/controls/clsTextBoxTest.h"
#include "tests/support/clsFolderTest.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

namespace {

QStringList wordsOf(const char *utf8)
{
    const QString text = QString::fromUtf8(utf8);
    QStringList words;
    for (const clsWordPlace &word : SpellingWords(text))
        words << text.mid(word.start, word.length);
    return words;
}

/// A small dictionary of our own, so that the rules can be tested on every machine.
class SpellingDictionary : public clsFolderTest {
protected:
    void putDictionary(const QByteArray &encoding, const QByteArray &words)
    {
        put("en_GB.aff", "SET " + encoding + "\nTRY esianrtolcdugmphbyfvkwz'\n");
        put("en_GB.dic", QByteArray::number(words.count('\n')) + "\n" + words);
    }
    clsSpellingChecker::clsPlaces places() const
    {
        return {{path("nothing here"), folder.path()}, path("own/words.txt")};
    }
};

/// A box with spell checking, using this machine's dictionary.
class Spelling : public clsTextBoxTest {
protected:
    void SetUp() override
    {
        clsTextBoxTest::SetUp();
        if (!SpellingChecker().IsAvailable())
            GTEST_SKIP() << "there is no British dictionary on this machine";
        box->setMultiLine(true);
        box->setSpellCheck(true);
    }

    /// The underlined words, after the pause.
    QStringList marked()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !highlighter() || !highlighter()->IsWaiting(); }));
        QStringList words;
        for (QTextBlock block = editor()->document()->begin(); block.isValid(); block = block.next())
            for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
                EXPECT_EQ(QTextCharFormat::SpellCheckUnderline, range.format.underlineStyle());
                EXPECT_EQ(Theme::Red, range.format.underlineColor());
                words << block.text().mid(range.start, range.length);
            }
        return words;
    }

    oSpellHighlighter *highlighter() { return editor()->document()->findChild<oSpellHighlighter *>(); }

    static QStringList captionsOf(const QMenu &menu)
    {
        QStringList captions;
        for (const QAction *action : menu.actions())
            captions << (action->isSeparator() ? QStringLiteral("-") : action->text());
        return captions;
    }
    std::unique_ptr<QMenu> menuAt(int position) { return static_cast<oSpellText *>(editor())->menuAt(position); }
    static QAction *entry(const QMenu &menu, const QString &caption)
    {
        for (QAction *action : menu.actions())
            if (action->text() == caption)
                return action;
        ADD_FAILURE() << "no entry " << caption.toStdString();
        return nullptr;
    }
};

} // namespace

// Words

TEST(SpellingWords, ApostrophesWithinAWordBelongToIt)
{
    EXPECT_EQ((QStringList {QStringLiteral("client's"), QStringLiteral("don't"), QString::fromUtf8("it’s"),
                  QStringLiteral("clients")}),
        wordsOf("client's 'don't' it’s clients'"));
}

TEST(SpellingWords, NumbersReferencesCapitalsAndAddressesAreNone)
{
    EXPECT_EQ(QStringList(), wordsOf("17.50 LA20417 F1 2nd LAA MOJ A I jo@firm www.firm.test e.g"));
    EXPECT_EQ((QStringList {QStringLiteral("well"), QStringLiteral("known"), QString::fromUtf8("café")}),
        wordsOf("well-known, (café)"));
    EXPECT_EQ(QStringList(), wordsOf(""));
    EXPECT_EQ(QStringList(), wordsOf("   - "));
}

// The dictionary

TEST_F(SpellingDictionary, WithoutADictionaryEverythingIsRight)
{
    clsSpellingChecker checker(places());
    EXPECT_FALSE(checker.IsAvailable());
    EXPECT_TRUE(checker.IsCorrect(QStringLiteral("teh")));
    EXPECT_TRUE(checker.Suggestions(QStringLiteral("teh"), 7).isEmpty());
    checker.Ignore(QStringLiteral("teh"));
}

TEST_F(SpellingDictionary, TheDictionaryIsReadInItsOwnLetters)
{
    const QString word = QString::fromUtf8("café");
    for (const char *encoding : {"UTF-8", "ISO8859-1", "ISO8859-15", "microsoft-cp1252"}) {
        const bool isUtf8 = qstrcmp(encoding, "UTF-8") == 0;
        putDictionary(encoding, "the\nisn't\n" + (isUtf8 ? word.toUtf8() : word.toLatin1()) + '\n');
        clsSpellingChecker checker(places());
        ASSERT_TRUE(checker.IsAvailable()) << encoding;
        EXPECT_TRUE(checker.IsCorrect(word)) << encoding;
        EXPECT_FALSE(checker.IsCorrect(QStringLiteral("cafe"))) << encoding;
        EXPECT_TRUE(checker.IsCorrect(QString::fromUtf8("isn’t"))) << encoding;
        EXPECT_EQ(QStringList {QStringLiteral("the")}, checker.Suggestions(QStringLiteral("teh"), 1)) << encoding;
        EXPECT_EQ(QStringList {QString::fromUtf8("isn’t")}, checker.Suggestions(QString::fromUtf8("isn’r"), 1));
        // Words with letters that the dictionary lacks can't be judged.
        EXPECT_EQ(!isUtf8, checker.IsCorrect(QString::fromUtf8("жук"))) << encoding;
    }
}

TEST_F(SpellingDictionary, AResultIsKnownOnceItHasBeenAskedFor)
{
    putDictionary("UTF-8", "the\n");
    clsSpellingChecker checker(places());
    EXPECT_FALSE(checker.KnownResult(QStringLiteral("teh")).has_value());
    EXPECT_FALSE(checker.IsCorrect(QStringLiteral("teh")));
    EXPECT_EQ(std::optional<bool>(false), checker.KnownResult(QStringLiteral("teh")));
    checker.Ignore(QStringLiteral("teh"));
    EXPECT_FALSE(checker.KnownResult(QStringLiteral("teh")).has_value());
    EXPECT_TRUE(checker.IsCorrect(QStringLiteral("teh")));
}

TEST_F(SpellingDictionary, AnIgnoredWordIsWrongInTheNextRun)
{
    putDictionary("UTF-8", "the\n");
    {
        clsSpellingChecker checker(places());
        QSignalSpy changes(&checker, &clsSpellingChecker::WordsChanged);
        checker.Ignore(QStringLiteral("Oakham"));
        EXPECT_EQ(1, changes.count());
        EXPECT_TRUE(checker.IsCorrect(QStringLiteral("Oakham")));
    }
    clsSpellingChecker checker(places());
    EXPECT_FALSE(checker.IsCorrect(QStringLiteral("Oakham")));
}

TEST_F(SpellingDictionary, AnAddedWordIsRightInEveryRunUntilItIsTakenOut)
{
    putDictionary("UTF-8", "the\n");
    {
        clsSpellingChecker checker(places());
        checker.AddToDictionary(QStringLiteral("Oakham"));
        checker.AddToDictionary(QString::fromUtf8("d’Arcy"));
        checker.AddToDictionary(QStringLiteral("Oakham"));
    }
    EXPECT_EQ("Oakham\nd'Arcy\n", bytesOf(path("own/words.txt")));
    EXPECT_EQ(QFile::ReadOwner | QFile::WriteOwner,
        QFile::permissions(path("own/words.txt"))
            & (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
    {
        clsSpellingChecker checker(places());
        EXPECT_TRUE(checker.IsCorrect(QStringLiteral("Oakham")));
        EXPECT_TRUE(checker.IsCorrect(QString::fromUtf8("d’Arcy")));
    }
    put("own/words.txt", "d'Arcy\r\n\n");
    clsSpellingChecker checker(places());
    EXPECT_FALSE(checker.IsCorrect(QStringLiteral("Oakham")));
    EXPECT_TRUE(checker.IsCorrect(QStringLiteral("d'Arcy")));
}

TEST_F(SpellingDictionary, AWordAddedElsewhereMeanwhileStays)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("own")));
    put("own/words.txt", "one\n");
    AddUserWord(path("own/words.txt"), QStringLiteral("two"));
    EXPECT_EQ("one\ntwo\n", bytesOf(path("own/words.txt")));
}

TEST_F(SpellingDictionary, AWordThatCanNotBeKeptIsToldAndIsRightForNow)
{
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    putDictionary("UTF-8", "the\n");
    put("own", "a file where the folder should be");
    clsSpellingChecker checker(places());
    checker.AddToDictionary(QStringLiteral("Oakham"));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
    EXPECT_TRUE(user.messages[0].text.contains(path("own/words.txt")));
    EXPECT_TRUE(checker.IsCorrect(QStringLiteral("Oakham")));
}

TEST_F(SpellingDictionary, AWordsFileThatIsSomethingElseIsLeftAlone)
{
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("own/words.txt")));
    EXPECT_EQ(QStringList(), UserWords(path("own/words.txt")));
    AddUserWord(path("own/words.txt"), QStringLiteral("two"));
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_TRUE(QFileInfo(path("own/words.txt")).isDir());
}

// Underlines

TEST_F(Spelling, MisspelledWordsAreUnderlinedAndBritishOnesAreNot)
{
    box->setText(QStringLiteral("The colour of teh\r\ncolor LAA 20417 soliciter's"));
    EXPECT_EQ((QStringList {QStringLiteral("teh"), QStringLiteral("color"), QStringLiteral("soliciter's")}), marked());
    box->setSpellCheck(false);
    EXPECT_EQ(QStringList(), marked());
    box->setSpellCheck(true);
    EXPECT_EQ(3, marked().size());
}

TEST_F(Spelling, AnUncheckedBoxMarksNothing)
{
    box->setSpellCheck(false);
    box->setText(QStringLiteral("teh"));
    EXPECT_EQ(QStringList(), marked());
}

TEST_F(Spelling, UnderliningIsNoChange)
{
    box->setText(QStringLiteral("teh wrod"));
    QSignalSpy changes(box, &oAllPurposeBox::Change);
    EXPECT_EQ(2, marked().size());
    box->setSpellCheck(false);
    box->setSpellCheck(true);
    EXPECT_EQ(2, marked().size());
    EXPECT_EQ(0, changes.count());
    EXPECT_FALSE(editor()->document()->isUndoAvailable());
    // Nor does it start another check.
    QTest::qWait(50);
    EXPECT_FALSE(highlighter()->IsWaiting());
}

TEST_F(Spelling, TheWordBeingTypedIsMarkedOnceTheCaretHasLeftIt)
{
    enter();
    type(QStringLiteral("see teh"));
    EXPECT_EQ(QStringList(), marked());
    press(Qt::Key_Home);
    EXPECT_EQ(QStringList {QStringLiteral("teh")}, marked());
    press(Qt::Key_End);
    EXPECT_EQ(QStringList {QStringLiteral("teh")}, marked());
    press(Qt::Key_Backspace);
    EXPECT_EQ(QStringList(), marked());
    type(QStringLiteral("h"));
    EXPECT_EQ(QStringList(), marked());
    other->setFocus();
    EXPECT_EQ(QStringList {QStringLiteral("teh")}, marked());
}

TEST_F(Spelling, ASpaceEndsTheWord)
{
    enter();
    type(QStringLiteral("teh "));
    EXPECT_EQ(QStringList {QStringLiteral("teh")}, marked());
}

// The menu

TEST_F(Spelling, TheMenuOffersCorrectionsOnTopAndTheReplacementsAtTheEnd)
{
    box->setText(QStringLiteral("the soliciter wrote"));
    const auto menu = menuAt(6);
    const QStringList captions = captionsOf(*menu);
    const int add = int(captions.indexOf(QStringLiteral("Add to dictionary")));
    ASSERT_GE(add, 1);
    EXPECT_LE(add, 7);
    EXPECT_EQ(QStringLiteral("solicitor"), captions[0]);
    for (int i = 0; i < add; ++i)
        EXPECT_TRUE(menu->actions().at(i)->font().bold());
    EXPECT_EQ(QStringLiteral("Ignore"), captions[add + 1]);
    EXPECT_EQ(QStringLiteral("-"), captions[add + 2]);
    EXPECT_FALSE(menu->actions().at(add)->font().bold());
    EXPECT_EQ(QStringLiteral("-"), captions[captions.size() - 2]);
    EXPECT_EQ(QStringLiteral("Edit Replacements..."), captions.last());
    EXPECT_GT(captions.size(), add + 8) << "the platform's own entries stand between";
}

TEST_F(Spelling, ARightWordGetsTheOrdinaryMenu)
{
    box->setText(QStringLiteral("the soliciter wrote"));
    EXPECT_FALSE(captionsOf(*menuAt(1)).contains(QStringLiteral("Ignore")));
    box->setSpellCheck(false);
    EXPECT_FALSE(captionsOf(*menuAt(6)).contains(QStringLiteral("Ignore")));
    EXPECT_EQ(QStringLiteral("Edit Replacements..."), captionsOf(*menuAt(6)).last());
}

TEST_F(Spelling, ACorrectionIsOneStepOfUndoAndAChange)
{
    box->setText(QStringLiteral("one\r\nthe soliciter wrote"));
    enter();
    QSignalSpy changes(box, &oAllPurposeBox::Change);
    const auto menu = menuAt(12);
    entry(*menu, QStringLiteral("solicitor"))->trigger();
    EXPECT_EQ(QStringLiteral("one\r\nthe solicitor wrote"), box->Text());
    EXPECT_EQ(1, changes.count());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("one\r\nthe soliciter wrote"), box->Text());
}

TEST_F(Spelling, AnAddedAndAnIgnoredWordLoseTheirLines)
{
    box->setText(QStringLiteral("Zorblaxian and quibberly"));
    EXPECT_EQ(2, marked().size());
    const auto first = menuAt(2);
    entry(*first, QStringLiteral("Add to dictionary"))->trigger();
    EXPECT_EQ(QStringList {QStringLiteral("quibberly")}, marked());
    EXPECT_TRUE(UserWords(clsSpellingChecker::systemPlaces().wordsFile).contains(QStringLiteral("Zorblaxian")));
    const auto second = menuAt(18);
    entry(*second, QStringLiteral("Ignore"))->trigger();
    EXPECT_EQ(QStringList(), marked());
    EXPECT_FALSE(UserWords(clsSpellingChecker::systemPlaces().wordsFile).contains(QStringLiteral("quibberly")));
}

TEST_F(Spelling, TheMenuKeyOpensTheMenuOfTheWordAtTheCaret)
{
    box->setText(QStringLiteral("the soliciter"));
    enter();
    QStringList captions;
    QTimer::singleShot(0, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_NE(nullptr, menu);
        captions = captionsOf(*menu);
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(0, 0), editor()->mapToGlobal(QPoint(0, 0)));
    QCoreApplication::sendEvent(editor()->viewport(), &event);
    EXPECT_EQ(QStringLiteral("solicitor"), captions.value(0));
}

TEST_F(Spelling, ShiftAndF10OpensItToo)
{
    box->setText(QStringLiteral("the soliciter"));
    enter();
    QStringList captions;
    QTimer::singleShot(0, [&] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            captions = captionsOf(*menu);
            menu->close();
        }
    });
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(QStringLiteral("solicitor"), captions.value(0));
}

using ReplacementsEntry = clsTextBoxTest;

TEST_F(ReplacementsEntry, RunsWhatThePreferencesHaveSetAndNothingBefore)
{
    const auto menu = static_cast<oSpellText *>(editor())->menuAt(0);
    QAction *entry = menu->actions().last();
    ASSERT_EQ(QStringLiteral("Edit Replacements..."), entry->text());
    EXPECT_FALSE(entry->isEnabled()) << "there is nothing that it could open";
    entry->trigger();
    int opened = 0;
    SetEditReplacements([&] { ++opened; });
    EXPECT_TRUE(entry->isEnabled()) << "in a box that was there before, too";
    entry->trigger();
    EXPECT_EQ(1, opened);
    SetEditReplacements({});
    EXPECT_FALSE(entry->isEnabled());
}
