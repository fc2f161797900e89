#include "tests/export/clsClaim1aTest.h"

// The driver of Claim 1A: its thirteen pages, their progress and log lines.

namespace {

class Claim1aDriver : public clsClaim1aTest { };

TEST_F(Claim1aDriver, HasThirteenPagesAndCountsToThem)
{
    EXPECT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 2(1) 3(1) 4(1) 5(1) 6(1) 7(1) 8(1) 9(1) 10(1) 11(1) 12(1) 13(1)"), recorder->order());
    QStringList expected;
    for (int page = 1; page <= 13; ++page)
        expected << QStringLiteral("Exporting Page %1 %1/13").arg(page);
    for (int sheet = 2; sheet <= 13; ++sheet)
        expected << QStringLiteral("Combining Documents %1/13").arg(sheet);
    EXPECT_EQ(expected, steps());
    EXPECT_EQ(QStringList {QStringLiteral("Claim1A.doc")},
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(Claim1aDriver, EachPageCanBeLeftOut)
{
    const QStringList all = names("1(1) 2(1) 3(1) 4(1) 5(1) 6(1) 7(1) 8(1) 9(1) 10(1) 11(1) 12(1) 13(1)");
    for (int left = 2; left <= 13; ++left) {
        includeOnly({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
        form.field(QStringLiteral("IncludePage%1").arg(left))->writeBoolean(false);
        EXPECT_TRUE(exportClaim());
        QStringList expected = all;
        expected.removeAt(left - 1);
        EXPECT_EQ(expected, recorder->order()) << left;
    }
}

TEST_F(Claim1aDriver, LogsUnderItsNameButForPages9And10)
{
    switchLogOn();
    includeOnly({1, 9});
    form.IncludePanelMembershipContSheet = true;
    EXPECT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("Begin Export Word Claim1a"),
        QStringLiteral("Begin Export Word Claim1a Page 1"),
        QStringLiteral("End Export Word Claim1a Page 1"),
        QStringLiteral("Begin Export Word Claim1a Page 2"),
        QStringLiteral("Begin Export Word Claim1a Page 3"),
        QStringLiteral("Begin Export Word Claim1a Page 4"),
        QStringLiteral("Begin Export Word Claim1a Page 5"),
        QStringLiteral("Begin Export Word Claim1a Page 6"),
        QStringLiteral("Begin Export Word Claim1a Page 7"),
        QStringLiteral("Begin Export Word Claim1a Page 8"),
        QStringLiteral("Begin Export Word Claim1 Page 9"),
        QStringLiteral("Begin Export Word Panel Membership Overrun"),
        // The panel sheet logs its page's end line, so that line appears twice.
        QStringLiteral("End Export Word Claim1 Page 9"),
        QStringLiteral("End Export Word Claim1 Page 9"),
        QStringLiteral("Begin Export Word Claim1 Page 10"),
        QStringLiteral("Begin Export Word Claim1a Page 11"),
        QStringLiteral("Begin Export Word Claim1a Page 12"),
        QStringLiteral("Begin Export Word Claim1a Page 13"),
        QStringLiteral("Begin Export Word Combine Documents"),
        QStringLiteral("End Export Word Combine Documents"),
        QStringLiteral("End Export Word Claim1a"),
    };
    QStringList found = logLines();
    found.removeIf([](const QString &line) {
        return line.contains(QLatin1String("Temp Folder")) || line.contains(QLatin1String("Copy Template"));
    });
    EXPECT_EQ(expected, found);
}

} // namespace
