// How findings are shown: grouped, only the most serious for each field, and many notes of a rule in one line.

#include "costing/checking/clsFindingItems.h"
#include "costing/checking/mdGroupFindings.h"
#include "tests/costing/clsCheckTest.h"

namespace {

clsShownFinding shown(const char *rule, clsFindingLevel level, const char *screen, int item, const char *property)
{
    const QString list = item > 0 ? QStringLiteral("schedule") : QString();
    const QString text = QStringLiteral("%1 %2").arg(QLatin1String(rule)).arg(item);
    return {{QLatin1String(rule), level, QLatin1String(screen), list, item, QLatin1String(property), text},
        QLatin1String(screen), false};
}

/// "Errors 2: text; text", one for each group.
QStringList grouped(const std::vector<clsShownFinding> &findings)
{
    constexpr const char *Names[] = {"Errors", "Warnings", "Notes", "Aside"};
    QStringList result;
    for (const clsFindingGroup &group : mdGroupFindings(findings)) {
        QStringList lines;
        for (const clsFindingLine &line : group.Lines)
            lines << line.Text;
        result << QStringLiteral("%1 %2: %3")
                      .arg(QLatin1String(Names[group.Kind]))
                      .arg(group.Count)
                      .arg(lines.join(QStringLiteral("; ")));
    }
    return result;
}

constexpr auto Error = clsFindingLevel::Error;
constexpr auto Warning = clsFindingLevel::Warning;
constexpr auto Note = clsFindingLevel::Note;

class GroupFindings : public clsCheckTest { };

} // namespace

TEST_F(GroupFindings, TheGravestFirstAndEachInItsOrder)
{
    EXPECT_EQ(QStringList(), grouped({}));
    EXPECT_EQ(QStringList({"Errors 2: b 2; d 4"_q, "Warnings 1: a 1"_q, "Notes 1: c 3"_q}),
        grouped({shown("a", Warning, "X", 1, "P"), shown("b", Error, "X", 2, "P"), shown("c", Note, "X", 3, "P"),
            shown("d", Error, "X", 4, "P")}));
}

TEST_F(GroupFindings, OfSeveralAboutOneThingTheGravest)
{
    const clsShownFinding warning = shown("a", Warning, "X", 1, "P");
    clsShownFinding error = shown("b", Error, "X", 1, "P");
    EXPECT_EQ(QStringList("Errors 1: b 1"_q), grouped({warning, error}));
    EXPECT_EQ(QStringList("Errors 1: b 1"_q), grouped({error, warning}));
    EXPECT_EQ(QStringList("Warnings 1: a 1"_q), grouped({warning, shown("c", Warning, "X", 1, "P")}))
        << "of two that are as grave the first";
    EXPECT_EQ(QStringList({"Errors 1: b 1"_q, "Warnings 1: a 1"_q}), grouped({shown("a", Warning, "X", 1, "Q"), error}))
        << "another property";
    EXPECT_EQ(QStringList({"Errors 1: b 0"_q, "Warnings 1: a 0"_q}),
        grouped({shown("a", Warning, "X", 0, ""), shown("b", Error, "X", 0, "")}))
        << "nothing that both are about";
    error.IsAside = true;
    EXPECT_EQ(QStringList({"Warnings 1: a 1"_q, "Aside 1: b 1"_q}), grouped({warning, error}))
        << "what was put aside hides nothing";
}

TEST_F(GroupFindings, MoreThanThreeNotesOfARuleShareALine)
{
    std::vector<clsShownFinding> notes;
    for (int order = 1; order <= 3; ++order)
        notes.push_back(shown("voucher", Note, "Disbursements", order, "Amount"));
    notes.push_back(shown("long-item", Note, "Schedule of Time", 9, "Description"));
    EXPECT_EQ(QStringList("Notes 4: voucher 1; voucher 2; voucher 3; long-item 9"_q), grouped(notes));
    notes.push_back(shown("voucher", Note, "Disbursements", 4, "Amount"));
    EXPECT_EQ(QStringList("Notes 5: 4 disbursements need a voucher.; long-item 9"_q), grouped(notes));
    const auto groups = mdGroupFindings(notes);
    EXPECT_EQ(std::vector<int>({0, 1, 2, 4}), groups[0].Lines[0].Findings);
    EXPECT_EQ("Disbursements"_q, groups[0].Lines[0].Place);
    notes[2].Finding.Screen = "Elsewhere"_q;
    EXPECT_EQ("Several screens"_q, mdGroupFindings(notes)[0].Lines[0].Place);
    for (clsShownFinding &note : notes)
        note.Finding.Level = Warning;
    EXPECT_EQ(5U, mdGroupFindings(notes)[0].Lines.size()) << "warnings stand one by one";
}

TEST_F(GroupFindings, EachRuleWithNotesHasItsSentence)
{
    for (const auto &[rule, words] : {std::pair("long-item", "4 long items have no description."),
             std::pair("voucher", "4 disbursements need a voucher."),
             std::pair("paper", "4 texts are printed smaller.")}) {
        std::vector<clsShownFinding> notes;
        for (int order = 1; order <= 4; ++order)
            notes.push_back(shown(rule, Note, "X", order, "P"));
        EXPECT_EQ(QStringList("Notes 4: "_q + QLatin1String(words)), grouped(notes));
    }
}

TEST_F(GroupFindings, CountsInWords)
{
    const auto of = [](std::initializer_list<clsFindingLevel> levels, bool notes) {
        std::vector<clsShownFinding> findings;
        for (const clsFindingLevel level : levels)
            findings.push_back(shown("a", level, "X", int(findings.size()) + 1, "P"));
        return mdCountsInWords(mdGroupFindings(findings), notes);
    };
    EXPECT_EQ(QString(), of({}, true));
    EXPECT_EQ("2 errors, 1 warning, 1 note"_q, of({Error, Error, Warning, Note}, true));
    EXPECT_EQ("1 error, 2 warnings"_q, of({Error, Warning, Warning, Note}, false));
    EXPECT_EQ("2 notes"_q, of({Note, Note}, true));
    EXPECT_EQ(QString(), of({Note, Note}, false));
}

TEST_F(GroupFindings, PlacesInWords)
{
    const auto disbursement = form.AddDisbursement();
    disbursement->Description = "Court\r\nfee"_q;
    form.AddDisbursement();
    clsFindingItems items(form);
    const auto placeOf = [&](const char *screen, const char *list, int order) {
        return items.placeOf({"r"_q, Error, QLatin1String(screen), QLatin1String(list), order, "P"_q, {}});
    };
    EXPECT_EQ("Outcome of Case"_q, placeOf("Outcome of Case", "", 0));
    EXPECT_EQ("Schedule of Time, item 1"_q, placeOf("Schedule of Time", "schedule", 1));
    EXPECT_EQ("Disbursements, Court fee"_q, placeOf("Disbursements", "disbursements", 1));
    EXPECT_EQ("Disbursements, disbursement 2"_q, placeOf("Disbursements", "disbursements", 2)) << "without a name";
    EXPECT_EQ("Fee Earners / Rates, A"_q, placeOf("Fee Earners / Rates", "groups", 1));
    EXPECT_EQ("Schedule of Time, item 99"_q, placeOf("Schedule of Time", "schedule", 99)) << "one that isn't there";
}

TEST_F(GroupFindings, AFindingIsKnownAgainByItsItemsContentAndNotByItsPlace)
{
    const auto keyOf = [&](int order, const char *rule = "r", const char *property = "TTime") {
        clsFindingItems items(form);
        return items.keyOf(
            {QLatin1String(rule), Error, "Schedule of Time"_q, "schedule"_q, order, QLatin1String(property), {}});
    };
    const QString key = keyOf(1);
    EXPECT_NE(key, keyOf(1, "s"));
    EXPECT_NE(key, keyOf(1, "r", "dDate"));
    const auto second = addDated("02:00", "01/06/25");
    EXPECT_NE(key, keyOf(2));
    item->OrderID = 2;
    second->OrderID = 1;
    EXPECT_EQ(key, keyOf(2)) << "moved";
    item->TTime = "09:59"_q;
    EXPECT_NE(key, keyOf(2)) << "changed";
}

TEST_F(GroupFindings, AreCountedByScreenWithoutNotesAndWhatIsPutAside)
{
    clsShownFinding aside = shown("d", Error, "X", 4, "P");
    aside.IsAside = true;
    const std::vector<clsShownFinding> findings
        = {shown("a", Warning, "X", 1, "P"), shown("b", Error, "X", 1, "P"), shown("c", Error, "X", 3, "P"),
            shown("e", Warning, "X", 5, "P"), shown("f", Warning, "Y", 1, "P"), shown("g", Note, "Z", 1, "P"), aside};
    const auto counts = mdFindingsByScreen(findings, mdGroupFindings(findings));
    EXPECT_EQ(2, counts.size());
    EXPECT_EQ((clsScreenFindings {2, 1}), counts["X"_q]) << "the warning about item 1 stands behind its error";
    EXPECT_EQ((clsScreenFindings {0, 1}), counts["Y"_q]);
    EXPECT_EQ("2 errors, 1 warning"_q, mdCountsInWords(counts["X"_q]));
    EXPECT_EQ("1 warning"_q, mdCountsInWords(counts["Y"_q]));
    EXPECT_EQ(QString(), mdCountsInWords(clsScreenFindings()));
}
