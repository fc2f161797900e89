#include "tests/wordexport/clsJoin.h"

// The styles of joined documents.

namespace {

const QString NormalStyle = QStringLiteral("<w:style w:type=\"paragraph\" w:default=\"1\" w:styleId=\"Normal\"><w:name "
                                           "w:val=\"Normal\"/><w:rPr><w:sz w:val=\"%1\"/></w:rPr></w:style>");

QString style(
    const QString &id, const QString &name, const QString &look, const QString &basedOn = QStringLiteral("Normal"))
{
    return QStringLiteral("<w:style w:type=\"paragraph\" w:styleId=\"%1\"><w:name w:val=\"%2\"/>%3%4</w:style>")
        .arg(id, name, basedOn.isEmpty() ? QString() : QStringLiteral("<w:basedOn w:val=\"%1\"/>").arg(basedOn),
            look.isEmpty() ? QString() : QStringLiteral("<w:rPr>%1</w:rPr>").arg(look));
}

QString styled(const QString &id, const QString &text)
{
    return QStringLiteral("<w:p><w:pPr><w:pStyle w:val=\"%1\"/></w:pPr>%2</w:p>").arg(id, r(text));
}

clsTestDocument withStyles(const QString &body, const QString &styles)
{
    clsTestDocument document(body + p() + section(page(100)));
    document.styles = styles;
    return document;
}

TEST(JoinedStyles, TheVerySameStylesAreLeftAlone)
{
    const QString styles
        = NormalStyle.arg(20) + style(QStringLiteral("A"), QStringLiteral("Answer"), QStringLiteral("<w:i/>"));
    const clsJoin join({withStyles(styled(QStringLiteral("A"), QStringLiteral("1")), styles),
        withStyles(styled(QStringLiteral("A"), QStringLiteral("2")), styles)});
    EXPECT_EQ(join.part(QStringLiteral("word/styles.xml")), styles);
    EXPECT_EQ(join.body().count(QStringLiteral("<w:pStyle w:val=\"A\"/>")), 2);
}

TEST(JoinedStyles, EqualStylesAreSharedWhateverTheirIdsAndWhateverElseTheListHolds)
{
    const clsJoin join(
        {withStyles(styled(QStringLiteral("A"), QStringLiteral("1")),
             NormalStyle.arg(20) + style(QStringLiteral("A"), QStringLiteral("Answer"), QStringLiteral("<w:i/>"))),
            withStyles(styled(QStringLiteral("Antwort"), QStringLiteral("2")),
                NormalStyle.arg(20) + style(QStringLiteral("Other"), QStringLiteral("Other"), QStringLiteral("<w:b/>"))
                    + style(QStringLiteral("Antwort"), QStringLiteral("Answer"), QStringLiteral("<w:i/>")))});
    EXPECT_EQ(join.body().count(QStringLiteral("<w:pStyle w:val=\"A\"/>")), 2);
    EXPECT_EQ(join.part(QStringLiteral("word/styles.xml")).count(QStringLiteral("<w:style ")), 2);
}

TEST(JoinedStyles, DifferentStylesOfTheSameNameAreKeptApart)
{
    const clsTestDocument second = withStyles(styled(QStringLiteral("A"), QStringLiteral("2")),
        NormalStyle.arg(20) + style(QStringLiteral("A"), QStringLiteral("Answer"), QStringLiteral("<w:b/>")));
    const clsJoin join(
        {withStyles(styled(QStringLiteral("A"), QStringLiteral("1")),
             NormalStyle.arg(20) + style(QStringLiteral("A"), QStringLiteral("Answer"), QStringLiteral("<w:i/>"))),
            second, second});
    EXPECT_EQ(join.body().count(QStringLiteral("<w:pStyle w:val=\"A\"/>")), 1);
    EXPECT_EQ(join.body().count(QStringLiteral("<w:pStyle w:val=\"A_2\"/>")), 2); // shared by those that are equal
    const QString styles = join.part(QStringLiteral("word/styles.xml"));
    EXPECT_TRUE(styles.endsWith(QStringLiteral(
        "<w:style w:type=\"paragraph\" w:styleId=\"A_2\" w:customStyle=\"1\"><w:name w:val=\"Answer (2)\"/>"
        "<w:basedOn w:val=\"Normal\"/><w:rPr><w:b/></w:rPr></w:style>")))
        << styles.toStdString();
}

TEST(JoinedStyles, AStyleDiffersWhenWhatItIsBasedOnDiffers)
{
    const auto chain = [](const QString &baseLook) {
        return NormalStyle.arg(20) + style(QStringLiteral("B"), QStringLiteral("Base"), baseLook)
            + style(QStringLiteral("A"), QStringLiteral("Answer"), QString(), QStringLiteral("B"));
    };
    const clsJoin join({withStyles(styled(QStringLiteral("A"), QStringLiteral("1")), chain(QStringLiteral("<w:i/>"))),
        withStyles(styled(QStringLiteral("A"), QStringLiteral("2")), chain(QStringLiteral("<w:b/>")))});
    EXPECT_EQ(join.body().count(QStringLiteral("<w:pStyle w:val=\"A_2\"/>")), 1);
    EXPECT_TRUE(join.part(QStringLiteral("word/styles.xml"))
                    .contains(QStringLiteral("<w:name w:val=\"Answer (2)\"/><w:basedOn w:val=\"B_2\"/>")));
}

TEST(JoinedStyles, WhatNamesNoStyleKeepsItsOwnDocumentsDefault)
{
    const clsJoin join({withStyles(p(QStringLiteral("1")), NormalStyle.arg(20)),
        withStyles(p(QStringLiteral("2")), NormalStyle.arg(30))});
    EXPECT_TRUE(join.body().contains(styled(QStringLiteral("Normal_2"), QStringLiteral("2"))));
    EXPECT_TRUE(join.part(QStringLiteral("word/styles.xml"))
                    .contains(QStringLiteral("w:styleId=\"Normal_2\" w:customStyle=\"1\"><w:name w:val=\"Normal "
                                             "(2)\"/><w:rPr><w:sz w:val=\"30\"/>")));
}

TEST(JoinedStyles, DifferentDefaultsOfTheDocumentsBecomePartOfTheLowestStyle)
{
    const QString defaults = QStringLiteral(
        "<w:docDefaults><w:rPrDefault><w:rPr><w:i/><w:sz w:val=\"44\"/></w:rPr></w:rPrDefault></w:docDefaults>");
    const clsJoin join({withStyles(p(QStringLiteral("1")), NormalStyle.arg(20)),
        withStyles(p(QStringLiteral("2")), defaults + NormalStyle.arg(20))});
    EXPECT_TRUE(join.body().contains(styled(QStringLiteral("Normal_2"), QStringLiteral("2"))));
    EXPECT_TRUE(
        join.part(QStringLiteral("word/styles.xml"))
            .endsWith(QStringLiteral("<w:name w:val=\"Normal (2)\"/><w:pPr><w:spacing w:before=\"0\" w:after=\"0\" "
                                     "w:line=\"240\" w:lineRule=\"auto\"/></w:pPr>"
                                     "<w:rPr><w:i/><w:sz w:val=\"20\"/><w:szCs w:val=\"20\"/></w:rPr></w:style>")))
        << join.part(QStringLiteral("word/styles.xml")).toStdString();
}

TEST(JoinedStyles, AReferenceToNoStyleDoesNotBecomeOneByChance)
{
    const clsJoin join({withStyles(p(QStringLiteral("1")),
                            NormalStyle.arg(20) + style(QStringLiteral("Ghost"), QStringLiteral("Ghost"), QString())),
        withStyles(styled(QStringLiteral("Ghost"), QStringLiteral("2")), NormalStyle.arg(20))});
    EXPECT_FALSE(join.body().contains(QStringLiteral("Ghost")));
}

TEST(JoinedStyles, ADocumentWithoutStylesTakesThoseOfTheOther)
{
    const clsJoin join({sheet(QStringLiteral("1")),
        withStyles(styled(QStringLiteral("A"), QStringLiteral("2")),
            style(QStringLiteral("A"), QStringLiteral("Answer"), QStringLiteral("<w:b/>"), QString()))});
    EXPECT_TRUE(join.part(QStringLiteral("word/styles.xml")).contains(QStringLiteral("w:styleId=\"A\"")));
}

TEST(JoinedStyles, StylesThatAreBasedOnOneAnotherInACircleAreNoTrap)
{
    const QString circle
        = style(QStringLiteral("A"), QStringLiteral("A"), QStringLiteral("<w:%1/>"), QStringLiteral("B"))
        + style(QStringLiteral("B"), QStringLiteral("B"), QString(), QStringLiteral("A"));
    const clsJoin join({withStyles(styled(QStringLiteral("A"), QStringLiteral("{x}")), circle.arg(QStringLiteral("i"))),
        withStyles(styled(QStringLiteral("B"), QStringLiteral("2")), circle.arg(QStringLiteral("b")))});
    EXPECT_TRUE(join.body().contains(QStringLiteral("<w:pStyle w:val=\"B_2\"/>")));
}

TEST(JoinedStyles, AChainOfStylesOfAnyLengthIsNoTrap)
{
    // Each refers to the next. Following them recursively would overflow the stack.
    constexpr int Length = 20000;
    const char *const references[] = {"basedOn", "next", "link"};
    QString chain;
    for (int i = 0; i < Length; ++i)
        chain += QStringLiteral("<w:style w:type=\"paragraph\" w:styleId=\"S%1\"><w:name w:val=\"S%1\"/>"
                                "<w:%2 w:val=\"S%3\"/></w:style>")
                     .arg(i)
                     .arg(QLatin1String(references[i < Length / 2 ? 0 : i % 3]))
                     .arg((i + 1) % Length);
    const clsJoin join({withStyles(p(), NormalStyle.arg(20)), withStyles(styled(QStringLiteral("S0"), {}), chain)});
    EXPECT_EQ(join.part(QStringLiteral("word/styles.xml")).count(QStringLiteral("<w:style ")), Length + 1);
}

} // namespace
