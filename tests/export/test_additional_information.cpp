#include "tests/export/clsExportTest.h"

// The additional information: how many lines a note takes, and on which sheet it is printed.

namespace {

class AdditionalInformation : public clsExportTest {
protected:
    void exportWith(std::initializer_list<int> lineCounts)
    {
        includeOnly({1, 6});
        for (const int count : lineCounts)
            addItem(note(count));
        ASSERT_TRUE(exportClaim());
    }
    QStringList order() const { return recorder->order().mid(1); }
    QString firstDown(const char *name) const { return lines(name).filter(QStringLiteral("down")).value(0); }
    QString secondDown(const char *name) const { return lines(name).filter(QStringLiteral("down")).value(1); }
    int notesOn(const char *name) const { return int(lines(name).filter(QStringLiteral("\u2014")).size()); }
};

TEST_F(AdditionalInformation, ANoteAsItIsTyped)
{
    includeOnly({1, 6});
    addItem();
    addItem(QStringLiteral("Attending the client at length about the hearing, and drafting the statement of her case"));
    ASSERT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("open"),
        QStringLiteral("down 3"),
        QStringLiteral("rowstart"),
        QStringLiteral("newpara"),
        QStringLiteral("tabs 1"),
        QStringLiteral("settext 2"), // the item's number on the bill: the first has no description
        QStringLiteral("tabs 1"),
        QStringLiteral("settext Attending the client at length about the hearing, and"),
        QStringLiteral("newpara"),
        QStringLiteral("tabs 2"),
        QStringLiteral("settext drafting the statement of her case"),
        QStringLiteral("newpara"),
        QStringLiteral("settext ") + QString(42, QChar(0x2014)),
        QStringLiteral("replace {or}  "),
        QStringLiteral("open"),
        QStringLiteral("down 23"), // 20, plus the two lines and the rule
        QStringLiteral("open"),
        QStringLiteral("replace {or}  "),
        QStringLiteral("replace {1} \u00A8 [tick]"),
        QStringLiteral("replace {2} \u00A8 [tick]"),
        QStringLiteral("replace {expertsmeetmojstandardreasons}  "),
        QStringLiteral("replace {exnet}  "),
        QStringLiteral("replace {exvat}  "),
        QStringLiteral("replace {extot}  "),
    };
    EXPECT_EQ(expected, lines("6(1)"));
}

TEST_F(AdditionalInformation, EightLinesFillTheFirstSheet)
{
    exportWith({8});
    EXPECT_EQ(QStringList {QStringLiteral("6(1)")}, order());
    EXPECT_EQ(1, notesOn("6(1)"));
    EXPECT_EQ(QStringLiteral("down 29"), secondDown("6(1)"));
}

TEST_F(AdditionalInformation, NineLinesDoNotFitTheFirstSheetWhichStaysEmpty)
{
    exportWith({9});
    const QStringList expectedOrder = {QStringLiteral("6(1)"), QStringLiteral("6(2)")};
    EXPECT_EQ(expectedOrder, order());
    EXPECT_EQ(0, notesOn("6(1)"));
    EXPECT_EQ(1, notesOn("6(2)"));
    EXPECT_EQ(QStringLiteral("Claim1 P6 Additional Info Cont"), recorder->templateOf(QStringLiteral("6(2)")));
    EXPECT_EQ(QStringLiteral("down 20"), secondDown("6(1)")) << "no line was used";
    EXPECT_EQ(QStringLiteral("down 3"), firstDown("6(2)"));
    // Only the very last item overflowed, so the sheet's own mark is empty; the experts' grid then uses the last
    // number, and there is no mark left for the page's "(1)".
    EXPECT_EQ(QStringLiteral(" |(2)|(1)"), mark("6(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("6(2)"));
}

TEST_F(AdditionalInformation, OneLineOfASheetAlwaysStaysEmpty)
{
    exportWith({4, 3}); // 5 and 4 lines with their rules: 9 of 10
    EXPECT_EQ(QStringList {QStringLiteral("6(1)")}, order());
    EXPECT_EQ(QStringLiteral("down 29"), secondDown("6(1)"));

    exportWith({1}); // 9 and 2 exceed the limit
    EXPECT_EQ(2, notesOn("6(1)"));
    EXPECT_EQ(1, notesOn("6(2)"));
}

TEST_F(AdditionalInformation, ANoteGoesWholeToTheNextSheet)
{
    exportWith({4, 4}); // 5 and 5 would use all ten lines
    EXPECT_EQ(1, notesOn("6(1)"));
    EXPECT_EQ(1, notesOn("6(2)"));
    EXPECT_EQ(QStringLiteral("down 25"), secondDown("6(1)"));
    EXPECT_EQ(4, int(lines("6(2)").filter(QStringLiteral("settext n")).size())) << "all four lines";
}

TEST_F(AdditionalInformation, AFurtherSheetTakesFiftyLines)
{
    exportWith({9, 18, 19, 1}); // 10, 19 and 20 make 49 lines; the last has no room
    const QStringList expectedOrder = {QStringLiteral("6(1)"), QStringLiteral("6(2)"), QStringLiteral("6(3)")};
    EXPECT_EQ(expectedOrder, order());
    EXPECT_EQ(3, notesOn("6(2)"));
    EXPECT_EQ(1, notesOn("6(3)"));
    // More than the last item overflowed from the first sheet.
    EXPECT_EQ(QStringLiteral("(1)|(3)|(1)"), mark("6(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("6(2)"));
    EXPECT_EQ(QStringLiteral("(3)"), mark("6(3)"));
}

TEST_F(AdditionalInformation, TwoNotesThatWouldUseAllFiftyLinesAreParted)
{
    exportWith({9, 24, 24}); // 10 and 25: 35; another 25 exceeds 49
    EXPECT_EQ(2, notesOn("6(2)"));
    EXPECT_EQ(1, notesOn("6(3)"));
}

TEST_F(AdditionalInformation, FortyEightLinesFitAFurtherSheet)
{
    exportWith({48});
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(1, notesOn("6(2)"));
    EXPECT_EQ(2, order().size());
}

TEST_F(AdditionalInformation, FortyNineLinesNeverFitAndNothingIsWritten)
{
    put(finished(), "as it was");
    includeOnly({1, 6});
    addItem();
    addItem(note(2));
    addItem(note(49));
    addItem(note(60));
    EXPECT_FALSE(exportClaim());
    ASSERT_EQ(1u, user.messages.size()) << "the first such note is told";
    EXPECT_EQ(QStringLiteral("Additional Information"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Item 3 has a description of 49 lines. The additional information sheets hold at most 48 "
                             "lines for one item. Please shorten the description and try again."),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_FALSE(user.messages[0].system);
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
    EXPECT_FALSE(QFileInfo::exists(temporary()));
    EXPECT_TRUE(run->ExportFileCollection.isEmpty());
}

TEST_F(AdditionalInformation, ANoteThatNeverFitsIsNoMatterWhenItsPageIsLeftOut)
{
    includeOnly({1, 5});
    addItem(note(49));
    EXPECT_TRUE(exportClaim());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(2, run->ExportFileCollection.size());
}

TEST_F(AdditionalInformation, TheLinesOfANoteAreThoseOfItsDescriptionAndALongFirstWordLeavesOneEmpty)
{
    includeOnly({1, 6});
    addItem(QString(70, u'w') + QStringLiteral(" end"));
    ASSERT_TRUE(exportClaim());
    const QStringList texts = lines("6(1)").filter(QStringLiteral("settext"));
    const QStringList expected = {
        QStringLiteral("settext 1"),
        QStringLiteral("settext "),
        QStringLiteral("settext ") + QString(70, u'w'),
        QStringLiteral("settext end"),
        QStringLiteral("settext ") + QString(42, QChar(0x2014)),
    };
    EXPECT_EQ(expected, texts);
}

} // namespace
