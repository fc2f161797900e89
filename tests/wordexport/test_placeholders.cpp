#include "tests/wordexport/clsTestDocument.h"

namespace {

const QString Bold = QStringLiteral("<w:b/>");

QString replaced(const QString &body, const QString &find, const QString &text, const QString &styles = {})
{
    clsTestDocument document(body);
    document.styles = styles;
    return afterEditing(document, [&](clsMSWord &word) { word.DoReplace(find, text, false, false, true); });
}

QString replaced(const QString &body)
{
    return replaced(body, QStringLiteral("{x}"), QStringLiteral("new"));
}

QString paragraph(const QString &runs)
{
    return QStringLiteral("<w:p>%1</w:p>").arg(runs);
}

TEST(DoReplace, ReplacesWithinARun)
{
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("a {x} b"), Bold))),
        paragraph(r(QStringLiteral("a "), Bold) + r(QStringLiteral("new"), Bold) + r(QStringLiteral(" b"), Bold)));
}

TEST(DoReplace, ReplacesAWholeRunInItsPlace)
{
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("{x}"), Bold))), paragraph(r(QStringLiteral("new"), Bold)));
}

TEST(DoReplace, FindsAPlaceholderThatIsSplitOverRuns)
{
    const QStringList splits[] = {
        {QStringLiteral("{"), QStringLiteral("x}")},
        {QStringLiteral("{x"), QStringLiteral("}")},
        {QStringLiteral("{"), QStringLiteral("x"), QStringLiteral("}")},
        {QStringLiteral("a{"), QStringLiteral(""), QStringLiteral("x"), QStringLiteral("}b")},
    };
    for (const QStringList &split : splits) {
        QString runs;
        for (const QString &text : split)
            runs += r(text);
        const QString joined = split.join(QString());
        const QString expected = QString(joined).replace(QLatin1String("{x}"), QLatin1String("new"));
        EXPECT_EQ(plainAfterEditing(clsTestDocument(paragraph(runs)),
                      [](clsMSWord &word) {
                          word.DoReplace(QStringLiteral("{x}"), QStringLiteral("new"), false, false, true);
                      }),
            expected + u'/')
            << joined.toStdString();
    }
}

TEST(DoReplace, TakesTheLookOfThePlaceholdersFirstCharacter)
{
    const QString big = QStringLiteral("<w:sz w:val=\"40\"/>");
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("{"), big) + r(QStringLiteral("x}")))),
        paragraph(r(QStringLiteral("new"), big)));
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("{")) + r(QStringLiteral("x}"), big))),
        paragraph(r(QStringLiteral("new"))));
}

TEST(DoReplace, APlaceholderThatIsPartlyBoldCountsAsBold)
{
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("{"), Bold) + r(QStringLiteral("x}")))),
        paragraph(r(QStringLiteral("new"), Bold)));
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("{x")) + r(QStringLiteral("}"), Bold))),
        paragraph(r(QStringLiteral("new"), Bold)));
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("{x}")) + r(QStringLiteral("b"), Bold))),
        paragraph(r(QStringLiteral("new")) + r(QStringLiteral("b"), Bold)));
}

TEST(DoReplace, BoldnessOfAStyleIsKeptWithoutSayingItAgain)
{
    const QString styles = QStringLiteral(
        "<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"N\"><w:name "
        "w:val=\"Normal\"/><w:rPr><w:b/></w:rPr></w:style>"
        "<w:style w:type=\"character\" w:styleId=\"C\"><w:name w:val=\"C\"/><w:rPr><w:b/></w:rPr></w:style>");
    EXPECT_EQ(replaced(p(QStringLiteral("{x}")), QStringLiteral("{x}"), QStringLiteral("new"), styles),
        p(QStringLiteral("new")));
    // Bold in both styles cancels out, and so it does in the text typed over it.
    const QString toggled = QStringLiteral("<w:rStyle w:val=\"C\"/>");
    EXPECT_EQ(
        replaced(paragraph(r(QStringLiteral("{x}"), toggled)), QStringLiteral("{x}"), QStringLiteral("new"), styles),
        paragraph(r(QStringLiteral("new"), toggled)));
}

TEST(DoReplace, IsNotDisturbedByMarksBetweenTheRuns)
{
    EXPECT_EQ(plainAfterEditing(
                  clsTestDocument(paragraph(r(QStringLiteral("{"))
                      + QStringLiteral("<w:proofErr w:type=\"spellStart\"/><w:bookmarkStart w:id=\"1\" w:name=\"m\"/>")
                      + QStringLiteral("<w:r><w:lastRenderedPageBreak/><w:t>x</w:t></w:r>")
                      + QStringLiteral("<w:bookmarkEnd w:id=\"1\"/><w:proofErr w:type=\"spellEnd\"/>")
                      + r(QStringLiteral("}")))),
                  [](clsMSWord &w) { w.DoReplace(QStringLiteral("{x}"), QStringLiteral("new"), false, false, true); }),
        QStringLiteral("new/"));
}

TEST(DoReplace, IgnoresCaseAlsoOfLettersOutsideTheAlphabet)
{
    EXPECT_EQ(replaced(p(QStringLiteral("{X}"))), p(QStringLiteral("new")));
    EXPECT_EQ(replaced(p(QStringLiteral("{straße É}")), QStringLiteral("{STRAßE é}"), QStringLiteral("new")),
        p(QStringLiteral("new")));
}

TEST(DoReplace, IsLiteral)
{
    EXPECT_EQ(replaced(p(QStringLiteral("a.c abc ^p ?*")), QStringLiteral("?*"), QStringLiteral("new")),
        paragraph(r(QStringLiteral("a.c abc ^p ")) + r(QStringLiteral("new"))));
    EXPECT_EQ(replaced(p(QStringLiteral("abc a.c")), QStringLiteral("a.c"), QStringLiteral("new")),
        paragraph(r(QStringLiteral("abc ")) + r(QStringLiteral("new"))));
}

TEST(DoReplace, ANoBreakBlankInAPlaceholderCountsAsABlank)
{
    EXPECT_EQ(replaced(p(QStringLiteral("{a\u00A0b}")), QStringLiteral("{a b}"), QStringLiteral("new")),
        p(QStringLiteral("new")));
}

TEST(DoReplace, ReplacesOnlyTheFirstOccurrenceInDocumentOrder)
{
    const QString body = p(QStringLiteral("a"))
        + tbl({tr({tc(p(QStringLiteral("b"))), tc(p(QStringLiteral("{x}1")))}),
            tr({tc(p(QStringLiteral("{x}2"))), tc(p())})})
        + p(QStringLiteral("{x}3"));
    const auto times = [&](int n) {
        return plainAfterEditing(clsTestDocument(body), [n](clsMSWord &word) {
            for (int i = 0; i < n; ++i)
                word.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, true);
        });
    };
    EXPECT_EQ(times(1), QStringLiteral("a/b/|y1/||{x}2/|/||{x}3/"));
    EXPECT_EQ(times(2), QStringLiteral("a/b/|y1/||y2/|/||{x}3/"));
    EXPECT_EQ(times(3), QStringLiteral("a/b/|y1/||y2/|/||y3/"));
}

TEST(DoReplace, TwiceInOneParagraphIsTwoOccurrences)
{
    EXPECT_EQ(plainAfterEditing(clsTestDocument(p(QStringLiteral("{x} and {x}"))),
                  [](clsMSWord &word) {
                      word.DoReplace(QStringLiteral("{x}"), QStringLiteral("one {x}"), false, false, true);
                      word.DoReplace(QStringLiteral("{x}"), QStringLiteral("two"), false, false, true);
                  }),
        QStringLiteral("one two and {x}/"));
}

TEST(DoReplace, AnEmptyReplacementIsOneBlank)
{
    EXPECT_EQ(replaced(p(QStringLiteral("a{x}b")), QStringLiteral("{x}"), QString()),
        paragraph(r(QStringLiteral("a")) + r(QStringLiteral(" ")) + r(QStringLiteral("b"))));
}

TEST(DoReplace, TextThatTheFormatCannotHoldStillTakesThePlaceholderAway)
{
    EXPECT_EQ(
        plainAfterEditing(clsTestDocument(p(QStringLiteral("a{x}b"))),
            [](clsMSWord &word) { word.DoReplace(QStringLiteral("{x}"), QStringLiteral("\x01"), false, false, true); }),
        QStringLiteral("ab/"));
}

TEST(DoReplace, LineEndsAreBreaksInTheSameParagraph)
{
    EXPECT_EQ(replaced(p(QStringLiteral("{x}")), QStringLiteral("{x}"), QStringLiteral("a\r\nb")),
        paragraph(QStringLiteral(
            "<w:r><w:t xml:space=\"preserve\">a</w:t><w:br/><w:t xml:space=\"preserve\">b</w:t></w:r>")));
}

TEST(DoReplace, ATickKeepsThePlaceholdersLook)
{
    EXPECT_EQ(afterEditing(paragraph(r(QStringLiteral("{x}"), QStringLiteral("<w:sz w:val=\"26\"/>"))
                               + r(QStringLiteral(" Yes"))),
                  [](clsMSWord &w) { w.DoReplace(QStringLiteral("{x}"), QStringLiteral("False"), true, false, true); }),
        paragraph(QStringLiteral(
                      "<w:r><w:rPr><w:sz w:val=\"26\"/></w:rPr><w:sym w:font=\"Wingdings\" w:char=\"F0A8\"/></w:r>")
            + r(QStringLiteral(" Yes"))));
}

TEST(DoReplace, APlaceholderThatIsNotThereIsTypedAtTheStartLaterOnesBeforeEarlierOnes)
{
    const auto twice = [](const QString &body) {
        return plainAfterEditing(clsTestDocument(body), [](clsMSWord &word) {
            word.DoReplace(QStringLiteral("{or}"), QStringLiteral("(1)"), false, false, true);
            word.DoReplace(QStringLiteral("{or}"), QStringLiteral("(2)"), false, false, true);
        });
    };
    EXPECT_EQ(twice(p(QStringLiteral("text"))), QStringLiteral("(2)(1)text/"));
    EXPECT_EQ(twice(p() + p(QStringLiteral("text"))), QStringLiteral("(2)(1)/text/"));
    EXPECT_EQ(twice(tbl({tr({tc(p(QStringLiteral("cell"))), tc(p())})}) + p()), QStringLiteral("(2)(1)cell/|/||/"));
}

TEST(DoReplace, TextTypedAtTheStartTakesTheLookThatIsThere)
{
    const QString mark = QStringLiteral("<w:p><w:pPr><w:rPr><w:b/><w:sz w:val=\"22\"/></w:rPr></w:pPr>%1</w:p>");
    EXPECT_EQ(replaced(mark.arg(QString()), QStringLiteral("{or}"), QStringLiteral("(1)")),
        mark.arg(r(QStringLiteral("(1)"), QStringLiteral("<w:b/><w:sz w:val=\"22\"/>"))));
    EXPECT_EQ(replaced(paragraph(r(QStringLiteral("text"), Bold)), QStringLiteral("{or}"), QStringLiteral("(1)")),
        paragraph(r(QStringLiteral("(1)"), Bold) + r(QStringLiteral("text"), Bold)));
}

TEST(DoReplace, LooksOnlyWhereTheReaderSeesTheMainText)
{
    const QString hidden[] = {
        QStringLiteral(
            "<w:r><mc:AlternateContent xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\">"
            "<mc:Choice Requires=\"w\"><w:p><w:r><w:t>{x}</w:t></w:r></w:p></mc:Choice></mc:AlternateContent></w:r>"),
        QStringLiteral(
            "<w:r><w:pict><w:txbxContent><w:p><w:r><w:t>{x}</w:t></w:r></w:p></w:txbxContent></w:pict></w:r>"),
        QStringLiteral("<w:del w:id=\"1\"><w:r><w:delText>{x}</w:delText></w:r></w:del>"),
        QStringLiteral("<w:moveFrom w:id=\"1\"><w:r><w:t>{x}</w:t></w:r></w:moveFrom>"),
        QStringLiteral("<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r><w:instrText>{x}</w:instrText></w:r>"
                       "<w:r><w:t>{x}</w:t></w:r><w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>"
                       "<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>"),
    };
    for (const QString &content : hidden)
        EXPECT_EQ(
            replaced(paragraph(content) + p(QStringLiteral("{x}"))), paragraph(content) + p(QStringLiteral("new")))
            << content.toStdString();
}

TEST(DoReplace, LooksIntoLinksControlsInsertionsAndResultsOfFields)
{
    const QString around[] = {
        QStringLiteral("<w:hyperlink w:anchor=\"a\">%1</w:hyperlink>"),
        QStringLiteral("<w:ins w:id=\"1\">%1</w:ins>"),
        QStringLiteral("<w:sdt><w:sdtPr/><w:sdtContent>%1</w:sdtContent></w:sdt>"),
        QStringLiteral("<w:fldSimple w:instr=\"DATE\">%1</w:fldSimple>"),
        QStringLiteral("<w:smartTag w:uri=\"u\" w:element=\"e\">%1</w:smartTag>"),
        QStringLiteral(
            "<w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r><w:instrText>DATE</w:instrText></w:r>"
            "<w:r><w:fldChar w:fldCharType=\"separate\"/></w:r>%1<w:r><w:fldChar w:fldCharType=\"end\"/></w:r>"),
    };
    for (const QString &content : around)
        EXPECT_EQ(replaced(paragraph(content.arg(r(QStringLiteral("{x}"))))),
            paragraph(content.arg(r(QStringLiteral("new")))))
            << content.toStdString();
    const QString block = QStringLiteral("<w:sdt><w:sdtContent>%1</w:sdtContent></w:sdt>");
    EXPECT_EQ(replaced(block.arg(p(QStringLiteral("{x}"))) + p()), block.arg(p(QStringLiteral("new"))) + p());
}

TEST(DoReplace, NeverMatchesAcrossParagraphsCellsOrBreaks)
{
    const QString bodies[] = {
        p(QStringLiteral("{")) + p(QStringLiteral("x}")),
        tbl({tr({tc(p(QStringLiteral("{"))), tc(p(QStringLiteral("x}")))})}) + p(),
        paragraph(r(QStringLiteral("{")) + QStringLiteral("<w:r><w:br/></w:r>") + r(QStringLiteral("x}"))),
        paragraph(r(QStringLiteral("{")) + QStringLiteral("<w:r><w:tab/></w:r>") + r(QStringLiteral("x}"))),
    };
    for (const QString &body : bodies)
        EXPECT_TRUE(plainAfterEditing(clsTestDocument(body),
            [](clsMSWord &word) {
                word.DoReplace(QStringLiteral("{x}"), QStringLiteral("new"), false, false, true);
            }).startsWith(QLatin1String("new{")))
            << body.toStdString();
}

TEST(DoReplace, KeepsWhatElseStandsInTheRunsThatItSplits)
{
    EXPECT_EQ(replaced(paragraph(QStringLiteral(
                  "<w:r><w:t>a</w:t><w:tab/><w:t>{</w:t></w:r><w:r><w:t>x}</w:t><w:br/><w:t>b</w:t></w:r>"))),
        paragraph(QStringLiteral("<w:r><w:t>a</w:t><w:tab/></w:r>") + r(QStringLiteral("new"))
            + QStringLiteral("<w:r><w:br/><w:t>b</w:t></w:r>")));
}

TEST(DoReplace, ALongTextHasNoLimit)
{
    const QString text(100000, u'a');
    EXPECT_EQ(replaced(p(QStringLiteral("{x}")), QStringLiteral("{x}"), text), p(text));
}

QString withoutHidden(const QString &body)
{
    return afterEditing(clsTestDocument(body), [](clsMSWord &word) { word.RemoveHidden(QStringLiteral("{x}")); });
}

const QString Hidden = QStringLiteral("<w:vanish/>");

TEST(RemoveHidden, RemovesEachPlaceThatIsHiddenAndNoOther)
{
    EXPECT_EQ(withoutHidden(paragraph(r(QStringLiteral("{x}")) + r(QStringLiteral("{x}"), Hidden)
                  + r(QStringLiteral("{x}"), Hidden) + r(QStringLiteral("(1)"), Hidden))),
        paragraph(r(QStringLiteral("{x}")) + r(QStringLiteral("(1)"), Hidden)));
}

TEST(RemoveHidden, LeavesWhatIsSaidNotToBeHidden)
{
    const QString shown = paragraph(r(QStringLiteral("{x}"), QStringLiteral("<w:vanish w:val=\"0\"/>")));
    EXPECT_EQ(withoutHidden(shown), shown);
}

TEST(DoReplace, TypesOverAHiddenPlaceInHiddenText)
{
    const QString body = paragraph(r(QStringLiteral("(1)")) + r(QStringLiteral("{x}"), Hidden));
    EXPECT_EQ(replaced(body), paragraph(r(QStringLiteral("(1)")) + r(QStringLiteral("new"), Hidden)));
}

} // namespace
