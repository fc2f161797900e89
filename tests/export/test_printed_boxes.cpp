#include "tests/export/clsExportTest.h"
#include "wordexport/clsPrintedBoxes.h"

#include <QDir>

namespace {

QString linesOf(int count)
{
    return QString(QStringLiteral("x\r\n")).repeated(count - 1) + u'x';
}

} // namespace

using PrintedBoxes = clsExportTest;

TEST_F(PrintedBoxes, SayWhatBecomesOfATextThatDoesNotFit)
{
    clsPrintedBoxes boxes(QStringLiteral("Claim1"), TestTemplates);
    const QString address = QStringLiteral("DebtorsDetails.Address");
    ASSERT_TRUE(boxes.has(address));
    EXPECT_FALSE(boxes.fit(address, QString()));
    int room = 0;
    while (!boxes.fit(address, linesOf(room + 1)))
        ++room;
    EXPECT_GE(room, 4);
    const auto smaller = boxes.fit(address, linesOf(room + 1));
    ASSERT_TRUE(smaller);
    EXPECT_EQ(clsPrintedFit::Smaller, smaller->state);
    EXPECT_EQ(room + 1, smaller->lines);
    EXPECT_EQ(room, smaller->room);
    const auto runsOn = boxes.fit(address, linesOf(60));
    ASSERT_TRUE(runsOn);
    EXPECT_EQ(clsPrintedFit::RunsOn, runsOn->state);
    EXPECT_EQ(60, runsOn->lines);
    EXPECT_EQ(room, runsOn->room);
}

TEST_F(PrintedBoxes, AgreeWithTheExport)
{
    const struct {
        QString property;
        std::function<void(clsZR3Form &, const QString &)> write;
    } fields[] = {
        {QStringLiteral("DebtorsDetails.Address"),
            [](clsZR3Form &claim, const QString &text) { claim.DebtorsDetails.Address = text; }},
        {QStringLiteral("ClientDetails.Surname"),
            [](clsZR3Form &claim, const QString &text) { claim.ClientDetails.Surname = text; }},
        {QStringLiteral("CaseInformation.NameOfCourt"),
            [](clsZR3Form &claim, const QString &text) { claim.CaseInformation.NameOfCourt = text; }},
    };
    clsPrintedBoxes boxes(QStringLiteral("Claim1"), TestTemplates);
    for (const auto &field : fields)
        for (const QString &text : {QStringLiteral("Short"), linesOf(7), QString(40, u'W'), linesOf(60)}) {
            clsZR3Form claim;
            field.write(claim, text);
            clsExport one {.form = claim, .templatesFolder = TestTemplates};
            one.inMemory = true;
            ASSERT_TRUE(mdExportDriver(claim.FormType())(one));
            std::optional<clsForecast::Box> worst;
            for (const clsSheetFile &sheet : std::as_const(one.sheets))
                for (const clsForecast::Box &box : sheet.boxes)
                    if (box.Property == field.property && (!worst || worst->State < box.State))
                        worst = box;
            const auto fit = boxes.fit(field.property, text);
            ASSERT_EQ(worst.has_value(), fit.has_value()) << qPrintable(field.property) << ' ' << qPrintable(text);
            if (fit) {
                EXPECT_EQ(int(worst->State), int(fit->state)) << qPrintable(field.property) << ' ' << qPrintable(text);
                EXPECT_EQ(worst->Lines, fit->lines) << qPrintable(field.property) << ' ' << qPrintable(text);
            }
        }
}

TEST_F(PrintedBoxes, AreThoseOfTheFormType)
{
    EXPECT_TRUE(clsPrintedBoxes(QStringLiteral("Claim1A"), TestTemplates)
                    .has(QStringLiteral("NatureOfProceedings.DetailsOfCase")));
    EXPECT_FALSE(clsPrintedBoxes(QStringLiteral("Claim1"), TestTemplates)
                     .has(QStringLiteral("NatureOfProceedings.DetailsOfCase")));
    EXPECT_FALSE(clsPrintedBoxes(QStringLiteral("Claim9"), TestTemplates).has(QStringLiteral("ClientDetails.Surname")));
    EXPECT_FALSE(clsPrintedBoxes(QStringLiteral("Claim1"), folder.path()).has(QStringLiteral("ClientDetails.Surname")));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}
