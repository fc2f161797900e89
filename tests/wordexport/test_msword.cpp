#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/wordexport/clsTestDocument.h"

#include <QFileInfo>

namespace {

const QString ErrorText = QStringLiteral(
    "An error has occured during Word automation. If the problem persists please contact Velmor technical support "
    "via stating the following details:\r\n\r\nError Number: %1\r\nError Description: %2\r\nSubroutine: %3");
const QString NotSet = QStringLiteral("Object variable or With block variable not set");

class clsMSWordFailures : public testing::Test {
protected:
    void expectOnly(int number, const QString &description, const QString &subroutine)
    {
        ASSERT_EQ(user.messages.size(), 1u);
        EXPECT_EQ(user.messages[0].title, QStringLiteral("Word Automation Error"));
        EXPECT_EQ(user.messages[0].text, ErrorText.arg(number).arg(description, subroutine));
        EXPECT_EQ(user.messages[0].buttons, clsUserInterface::OKOnly);
        EXPECT_EQ(user.messages[0].icon, 0);
        EXPECT_FALSE(user.messages[0].system);
    }

    clsScriptedUserInterface user;
    clsUserInterfaceScope scope {user};
    clsTestFolder folder;
    clsMSWord word;
};

TEST(clsMSWord, VersionsHaveTheirMarketingYears)
{
    EXPECT_EQ(clsMSWord().VersionNumber(), QStringLiteral("12.0"));
    EXPECT_EQ(clsMSWord().VersionString(), QStringLiteral("2007"));
    const std::pair<const char *, const char *> rows[] = {
        {"7.0", "97"},
        {"8.0", "98"},
        {"9.0", "2000"},
        {"10.0", "2002"},
        {"11.0", "2003"},
        {"12.0", "2007"},
        {"14.0", "Unknown"},
        {"", "Unknown"},
        {"12", "Unknown"},
    };
    for (const auto &[number, year] : rows)
        EXPECT_EQ(clsMSWord::versionYear(QLatin1String(number)), QLatin1String(year)) << number;
}

TEST(clsMSWord, BeginsWithNothingReported)
{
    const clsMSWord word;
    EXPECT_FALSE(word.ErrorShown);
    EXPECT_FALSE(word.sheetLost());
    EXPECT_EQ(word.CurrentSubroutine, QStringLiteral("Class_Initialize"));
}

TEST_F(clsMSWordFailures, TheMessageIsWordForWord)
{
    word.DoReplace(QStringLiteral("{a}"), QStringLiteral("b"), false, false, true);
    expectOnly(91, NotSet, QStringLiteral("DoReplace"));
    EXPECT_TRUE(word.ErrorShown);
}

TEST_F(clsMSWordFailures, ASecondFailureOfTheSameInstanceIsSilent)
{
    word.SaveAndClose();
    word.TypeBackSpace();
    word.OpenDocument(folder.path(QStringLiteral("none.doc")));
    expectOnly(91, NotSet, QStringLiteral("SaveAndClose"));
}

TEST_F(clsMSWordFailures, AnotherInstanceReportsItsOwnFirstFailure)
{
    word.TypeBackSpace();
    clsMSWord other;
    other.TypeBackSpace();
    EXPECT_EQ(user.messages.size(), 2u);
}

TEST_F(clsMSWordFailures, EachGuardedOperationReportsUnderTheNameThatFailed)
{
    const std::pair<const char *, std::function<void(clsMSWord &)>> rows[] = {
        {"SaveAndClose", [](clsMSWord &w) { w.SaveAndClose(); }},
        {"NextColumn", [](clsMSWord &w) { w.NextColumn(); }},
        {"NextColumn", [](clsMSWord &w) { w.MoveColumns(2); }},
        // Without a tick or an amount, setting the weight is the first step that needs the document.
        {"SetBold", [](clsMSWord &w) { w.SetText(QStringLiteral("a"), false, false, false, false); }},
        {"SetText", [](clsMSWord &w) { w.SetText(QStringLiteral("True"), true, false, false, false); }},
        {"PageBreak", [](clsMSWord &w) { w.PageBreak(); }},
        {"DoReplace", [](clsMSWord &w) { w.DoReplace(QStringLiteral("a"), {}, false, false, false); }},
        {"InsertFileAtEnd", [](clsMSWord &w) { w.InsertFileAtEnd(QStringLiteral("a.doc")); }},
        {"TypeBackSpace", [](clsMSWord &w) { w.TypeBackSpace(); }},
    };
    for (const auto &[name, operation] : rows) {
        user.messages.clear();
        clsMSWord fresh;
        operation(fresh);
        expectOnly(91, NotSet, QLatin1String(name));
    }
}

TEST_F(clsMSWordFailures, UnguardedOperationsFailOpenly)
{
    const std::function<void()> operations[] = {
        [&] { word.NextLine(); },
        [&] { word.MoveCursorDown(1); },
        [&] { word.MoveCursorRight(1); },
        [&] { word.MoveCursorToStartOfRow(); },
        [&] { word.MoveSursorToNextLine(); },
    };
    for (const auto &operation : operations)
        EXPECT_EQ(errorOf(operation), clsRunTimeError::ObjectNotSet);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(clsMSWordFailures, MovingByCellsOutsideATableFailsOpenly)
{
    word.OpenDocument(folder.write(QStringLiteral("a.doc"), clsTestDocument(p(QStringLiteral("text")))));
    EXPECT_EQ(errorOf([&] { word.MoveCursorRight(1); }), clsRunTimeError::InvalidProcedureCall);
}

TEST_F(clsMSWordFailures, ADocumentThatIsNotThereIsFileNotFound)
{
    word.OpenDocument(folder.path(QStringLiteral("none.doc")));
    expectOnly(53, QStringLiteral("File not found"), QStringLiteral("OpenDocument"));
    EXPECT_TRUE(word.sheetLost());
}

TEST_F(clsMSWordFailures, ADocumentThatCannotBeSavedIsLostAndNotClosed)
{
    const QString path = folder.write(QStringLiteral("a.doc"), clsTestDocument(p(QStringLiteral("text"))));
    word.OpenDocument(path);
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkdir(path));
    word.SaveAndClose();
    expectOnly(75, QStringLiteral("Path/File access error"), QStringLiteral("SaveAndClose"));
    EXPECT_TRUE(word.sheetLost());
}

TEST_F(clsMSWordFailures, AnAmountThatIsNoNumberLeavesThePlaceholder)
{
    const QString path = folder.write(QStringLiteral("a.doc"), clsTestDocument(p(QStringLiteral("a {x} b"))));
    word.OpenDocument(path);
    word.DoReplace(QStringLiteral("{x}"), QStringLiteral("twelve"), false, true, true);
    word.SaveAndClose();
    expectOnly(13, QStringLiteral("Type mismatch"), QStringLiteral("SetText"));
    EXPECT_EQ(plain(path), QStringLiteral("a {x} b/"));
    EXPECT_FALSE(word.sheetLost());
}

TEST_F(clsMSWordFailures, AnAmountThatIsNoNumberLeavesItsCellEmptyAndTheCursorMovesOn)
{
    const QString path = folder.write(QStringLiteral("a.doc"), clsTestDocument(grid(1, 3) + p()));
    word.OpenDocument(path);
    word.SetText(QStringLiteral("1"), false, true, true, false);
    word.MoveCursorRight(1);
    word.SetText(QStringLiteral("?"), false, true, true, false);
    word.MoveCursorRight(1);
    word.SetText(QStringLiteral("3"), false, true, true, false);
    word.SaveAndClose();
    EXPECT_EQ(plain(path), QStringLiteral("1.00/|/|3.00/||/"));
}

TEST_F(clsMSWordFailures, AfterQuitThereIsNoDocumentAndWhatWasNotSavedIsLost)
{
    const QString path = folder.write(QStringLiteral("a.doc"), clsTestDocument(p(QStringLiteral("{x}"))));
    const QByteArray before = folder.read(QStringLiteral("a.doc"));
    word.OpenDocument(path);
    word.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, false);
    word.Quit();
    EXPECT_EQ(folder.read(QStringLiteral("a.doc")), before);
    EXPECT_EQ(errorOf([&] { word.NextLine(); }), clsRunTimeError::ObjectNotSet);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(clsMSWordFailures, OneInstanceEditsSeveralDocumentsOneAfterAnother)
{
    for (const QString &name : {QStringLiteral("a.doc"), QStringLiteral("b.doc"), QStringLiteral("a.doc")}) {
        if (!QFileInfo::exists(folder.path(name)))
            folder.write(name, clsTestDocument(p(QStringLiteral("{x}{x}"))));
        word.OpenDocument(folder.path(name));
        word.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, false);
        word.SaveAndClose();
    }
    EXPECT_EQ(plain(folder.path(QStringLiteral("a.doc"))), QStringLiteral("yy/"));
    EXPECT_EQ(plain(folder.path(QStringLiteral("b.doc"))), QStringLiteral("y{x}/"));
}

// The text that SetText makes in a cell.
QString typedInto(const QString &given, bool tick, bool money, bool blankZero)
{
    return plainAfterEditing(
        clsTestDocument(p()), [&](clsMSWord &word) { word.SetText(QString(given), tick, money, blankZero, false); });
}

TEST(SetText, TicksAreBoxesOnlyForTheExactWordsAndOnlyAsTicks)
{
    EXPECT_EQ(typedInto(QStringLiteral("True"), true, false, true), QStringLiteral("[x]/"));
    EXPECT_EQ(typedInto(QStringLiteral("False"), true, false, true), QStringLiteral("[ ]/"));
    EXPECT_EQ(typedInto(QStringLiteral("True"), false, false, true), QStringLiteral("True/"));
    EXPECT_EQ(typedInto(QStringLiteral("true"), true, false, true), QStringLiteral("true/"));
}

TEST(SetText, ATickIsASymbolOfTheSymbolFont)
{
    EXPECT_EQ(afterEditing(clsTestDocument(p()),
                  [](clsMSWord &w) { w.SetText(QStringLiteral("True"), true, false, true, false); }),
        QStringLiteral("<w:p><w:r><w:sym w:font=\"Wingdings\" w:char=\"F0FE\"/></w:r></w:p>"));
}

TEST(SetText, AnyOtherTextThatIsATickIsTypedInTheSymbolFont)
{
    EXPECT_EQ(afterEditing(clsTestDocument(p()),
                  [](clsMSWord &w) { w.SetText(QStringLiteral("Yes"), true, false, true, false); }),
        QStringLiteral("<w:p><w:r><w:rPr><w:rFonts w:ascii=\"Wingdings\" w:hAnsi=\"Wingdings\" w:cs=\"Wingdings\"/>"
                       "</w:rPr><w:t xml:space=\"preserve\">Yes</w:t></w:r></w:p>"));
}

TEST(SetText, AnAmountOfNothingPrintsOnlyWhereZerosPrint)
{
    EXPECT_EQ(typedInto(QStringLiteral("0.00"), false, false, false), QStringLiteral("0.00/"));
    EXPECT_EQ(typedInto(QStringLiteral("0.00"), false, false, true), QStringLiteral(" /"));
    EXPECT_EQ(typedInto(QStringLiteral("0"), false, false, true), QStringLiteral(" /"));
    EXPECT_EQ(typedInto(QStringLiteral("0.0"), false, false, true), QStringLiteral("0.0/"));
    for (const QString &zero : {QString(), QStringLiteral("0"), QStringLiteral("-0.004")}) {
        EXPECT_EQ(typedInto(zero, false, true, true), QStringLiteral(" /"));
        EXPECT_EQ(typedInto(zero, false, true, false), QStringLiteral("0.00/"));
    }
}

TEST(SetText, ATimeOfNothingPrintsAsABlankAndOneMinuteAsItIs)
{
    EXPECT_EQ(typedInto(QStringLiteral("00:00"), false, false, true), QStringLiteral(" /"));
    EXPECT_EQ(typedInto(QStringLiteral("00:00"), false, false, false), QStringLiteral("00:00/"));
    EXPECT_EQ(typedInto(QStringLiteral("00:01"), false, false, true), QStringLiteral("00:01/"));
}

TEST(SetText, LineEndsBreakWithinTheParagraphAndTabsAreBlanks)
{
    EXPECT_EQ(typedInto(QStringLiteral("a\r\n\r\nb\tc"), false, false, true), QStringLiteral("a^^b c/"));
    EXPECT_EQ(typedInto(QStringLiteral("\r\n"), false, false, true), QStringLiteral("^/"));
    // A single line end can't be shown in any other way either.
    EXPECT_EQ(typedInto(QStringLiteral("a\nb\rc"), false, false, true), QStringLiteral("a^b^c/"));
}

TEST(SetText, AnEmptyCellIsTypedAsNothing)
{
    EXPECT_EQ(afterEditing(clsTestDocument(p()), [](clsMSWord &w) { w.SetText(QString(), false, false, true, false); }),
        QStringLiteral("<w:p/>"));
}

TEST(SetText, ChangesTheTextInPlaceToWhatIsTyped)
{
    const clsTestFolder folder;
    clsMSWord word;
    word.OpenDocument(folder.write(QStringLiteral("a.doc"), clsTestDocument(p())));
    QString text = QStringLiteral("1234.5");
    word.SetText(text, false, true, true, false);
    EXPECT_EQ(text, QStringLiteral("1,234.50"));
    text = QStringLiteral("True");
    word.SetText(text, true, false, true, false);
    EXPECT_EQ(text, QString(QChar(0xFE)));
    text = QStringLiteral("a\r\nb\tc");
    word.SetText(text, false, false, true, false);
    EXPECT_EQ(text, QStringLiteral("a\vb c"));
}

TEST(SetText, WhatTheFormatCannotHoldIsLeftOut)
{
    const QString hostile = QStringLiteral("a\x01\x08\x0C\x1F<&>\"'") + QChar(0xD800) + QChar(0xFFFE) + QChar(0xFFFF)
        + QString::fromUcs4(U"\U0001F600") + QStringLiteral("z");
    EXPECT_EQ(typedInto(hostile, false, false, true),
        QStringLiteral("a<&>\"'") + QString::fromUcs4(U"\U0001F600") + QStringLiteral("z/"));
}

TEST(SetText, BlanksAtTheEndsAreKept)
{
    EXPECT_EQ(typedInto(QStringLiteral("  a  b  "), false, false, true), QStringLiteral("  a  b  /"));
}

TEST(SetText, IsBoldOnlyAsTold)
{
    const auto typedBold = [](const QString &paragraph, bool bold, const QString &styles = {}) {
        clsTestDocument document(paragraph);
        document.styles = styles;
        return afterEditing(
            document, [bold](clsMSWord &w) { w.SetText(QStringLiteral("x"), false, false, true, bold); });
    };
    const QString mark = QStringLiteral("<w:p><w:pPr><w:rPr><w:b/></w:rPr></w:pPr>%1</w:p>");
    const QString text = QStringLiteral("<w:t xml:space=\"preserve\">x</w:t></w:r>");
    EXPECT_EQ(typedBold(p(), false), QStringLiteral("<w:p><w:r>") + text + QStringLiteral("</w:p>"));
    EXPECT_EQ(
        typedBold(p(), true), QStringLiteral("<w:p><w:r><w:rPr><w:b/></w:rPr>") + text + QStringLiteral("</w:p>"));
    EXPECT_EQ(typedBold(mark.arg(QString()), true), mark.arg(QStringLiteral("<w:r><w:rPr><w:b/></w:rPr>") + text));
    EXPECT_EQ(typedBold(mark.arg(QString()), false),
        mark.arg(QStringLiteral("<w:r><w:rPr><w:b w:val=\"0\"/></w:rPr>") + text));

    // With a bold style, not bold needs the element and bold doesn't.
    const QString styles = QStringLiteral(
        "<w:style w:type=\"paragraph\" w:styleId=\"Strong\"><w:name w:val=\"Strong\"/><w:rPr><w:b/></w:rPr></w:style>"
        "<w:style w:type=\"paragraph\" w:styleId=\"On\"><w:name w:val=\"On\"/><w:basedOn w:val=\"Strong\"/></w:style>");
    const QString styled = QStringLiteral("<w:p><w:pPr><w:pStyle w:val=\"On\"/></w:pPr>%1</w:p>");
    EXPECT_EQ(typedBold(styled.arg(QString()), true, styles), styled.arg(QStringLiteral("<w:r>") + text));
    EXPECT_EQ(typedBold(styled.arg(QString()), false, styles),
        styled.arg(QStringLiteral("<w:r><w:rPr><w:b w:val=\"0\"/></w:rPr>") + text));
}

TEST(SetText, TakesTheLookOfAnEmptyBoxFromItsParagraphMark)
{
    const QString mark = QStringLiteral("<w:p><w:pPr><w:jc w:val=\"right\"/><w:rPr><w:ins w:id=\"1\" w:author=\"a\"/>"
                                        "<w:color w:val=\"112233\"/><w:sz w:val=\"26\"/></w:rPr></w:pPr>%1</w:p>");
    EXPECT_EQ(afterEditing(
                  mark.arg(QString()), [](clsMSWord &w) { w.SetText(QStringLiteral("x"), false, false, true, false); }),
        mark.arg(QStringLiteral("<w:r><w:rPr><w:color w:val=\"112233\"/><w:sz w:val=\"26\"/></w:rPr>"
                                "<w:t xml:space=\"preserve\">x</w:t></w:r>")));
}

TEST(clsMSWordTyping, TabsParagraphsAndTextStandInTheOrderTyped)
{
    // As the notes of the additional information are typed.
    const QString result = plainAfterEditing(clsTestDocument(tbl({tr({tc(p())})}) + p()), [](clsMSWord &word) {
        word.NextLine();
        word.NextColumn();
        word.SetText(QStringLiteral("7"), false, false, true, false);
        word.NextColumn();
        word.SetText(QStringLiteral(" First line"), false, false, true, false);
        word.NextLine();
        word.MoveColumns(2);
        word.SetText(QStringLiteral("second"), false, false, true, false);
        word.NextLine();
        word.SetText(QString(42, QChar(0x2014)), false, false, true, false);
    });
    EXPECT_EQ(
        result, QStringLiteral("/~7~ First line/~~second/") + QString(42, QChar(0x2014)) + QStringLiteral("/||/"));
}

TEST(clsMSWordTyping, ANewParagraphLooksLikeTheOneBeforeAndLeavesItsPageBreakAndSectionWhereTheyBelong)
{
    const QString section = QStringLiteral("<w:sectPr><w:pgSz w:w=\"100\" w:h=\"200\"/></w:sectPr>");
    EXPECT_EQ(
        afterEditing(QStringLiteral("<w:p><w:pPr><w:pageBreakBefore/><w:jc w:val=\"right\"/><w:rPr><w:i/></w:rPr>")
                + section + QStringLiteral("</w:pPr>") + r(QStringLiteral("{x}tail")) + QStringLiteral("</w:p>") + p(),
            [](clsMSWord &word) {
                word.DoReplace(QStringLiteral("{x}"), QStringLiteral("head"), false, false, true);
                word.NextLine();
            }),
        QStringLiteral("<w:p><w:pPr><w:pageBreakBefore/><w:jc w:val=\"right\"/><w:rPr><w:i/></w:rPr></w:pPr>")
            + r(QStringLiteral("head"))
            + QStringLiteral("</w:p><w:p><w:pPr><w:jc w:val=\"right\"/><w:rPr><w:i/></w:rPr>") + section
            + QStringLiteral("</w:pPr>") + r(QStringLiteral("tail")) + QStringLiteral("</w:p><w:p/>"));
}

TEST(clsMSWordTyping, APageBreakIsABreakOfItsOwnKind)
{
    EXPECT_EQ(plainAfterEditing(clsTestDocument(p(QStringLiteral("a"))), [](clsMSWord &w) { w.PageBreak(); }),
        QStringLiteral("%a/"));
}

TEST(TypeBackSpace, DeletesTheCharacterBeforeTheCursor)
{
    const auto typedThenDeleted = [](const QString &text) {
        return plainAfterEditing(clsTestDocument(p(QStringLiteral("{x}rest"))), [&](clsMSWord &word) {
            word.DoReplace(QStringLiteral("{x}"), text, false, false, true);
            word.TypeBackSpace();
        });
    };
    EXPECT_EQ(typedThenDeleted(QStringLiteral("abc")), QStringLiteral("abrest/"));
    EXPECT_EQ(typedThenDeleted(QStringLiteral("£")), QStringLiteral("rest/"));
    EXPECT_EQ(typedThenDeleted(QStringLiteral("a\r\n")), QStringLiteral("arest/"));
    EXPECT_EQ(typedThenDeleted(QStringLiteral("a") + QString::fromUcs4(U"\U0001F600")), QStringLiteral("arest/"));
}

TEST(TypeBackSpace, AtTheStartOfTheDocumentOrOfACellChangesNothing)
{
    const auto unchanged = [](const QString &body, int right) {
        EXPECT_EQ(afterEditing(body,
                      [right](clsMSWord &word) {
                          word.MoveCursorRight(right);
                          word.TypeBackSpace();
                      }),
            body);
    };
    EXPECT_EQ(afterEditing(p(QStringLiteral("a")) + p(), [](clsMSWord &w) { w.TypeBackSpace(); }),
        p(QStringLiteral("a")) + p());
    unchanged(grid(1, 2) + p(), 0);
    unchanged(grid(1, 2) + p(), 1);
}

TEST(TypeBackSpace, JoinsParagraphsButNeverTakesATableOrASectionsEnd)
{
    const auto back = [](clsMSWord &word) {
        word.MoveCursorDown(1);
        word.TypeBackSpace();
    };
    EXPECT_EQ(plainAfterEditing(clsTestDocument(p(QStringLiteral("a")) + p(QStringLiteral("b"))), back),
        QStringLiteral("ab/"));
    const QString afterTable = grid(1, 1) + p(QStringLiteral("b"));
    EXPECT_EQ(afterEditing(afterTable, back), afterTable);
    const QString afterSection = QStringLiteral("<w:p><w:pPr><w:sectPr/></w:pPr></w:p>") + p(QStringLiteral("b"));
    EXPECT_EQ(afterEditing(afterSection, back), afterSection);
    // The second one's section ends with the joined paragraph.
    EXPECT_EQ(
        afterEditing(p(QStringLiteral("a")) + QStringLiteral("<w:p><w:pPr><w:sectPr/></w:pPr></w:p>") + p(), back),
        QStringLiteral("<w:p><w:pPr><w:sectPr/></w:pPr>") + r(QStringLiteral("a")) + QStringLiteral("</w:p><w:p/>"));
}

} // namespace
