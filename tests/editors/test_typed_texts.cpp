// The journal's record of texts typed in open screens and not stored.

#include "controls/oAllPurposeBox.h"
#include "editors/mdEditItem.h"
#include "editors/mdScreens.h"
#include "editors/mdTypedTexts.h"
#include "tests/editors/clsScreenTest.h"

namespace {

using TypedTexts = clsScreenTest;
using Fields = std::vector<std::pair<QString, QString>>;

} // namespace

TEST_F(TypedTexts, AreNoneWhereNothingIsTyped)
{
    EXPECT_TRUE(mdTypedTexts().empty());
    for (const char *section :
        {"Details of Work", "Client Details", "Outcome of Case", "Communications", "Form Setup"}) {
        const auto screen = opened(QString::fromLatin1(section));
        const auto typed = mdTypedTexts();
        EXPECT_TRUE(typed.empty()) << section << ": "
                                   << qPrintable(typed.empty() ? QString() : typed[0].fields[0].first);
    }
}

TEST_F(TypedTexts, AreTheFieldsThatDiffer)
{
    const auto screen = opened(QStringLiteral("Client Details"));
    screen->Box<oAllPurposeBox>("txtSurname").setText(QStringLiteral("Hartwell — née Ö"));
    const auto typed = mdTypedTexts();
    ASSERT_EQ(1u, typed.size());
    EXPECT_EQ(QStringLiteral("frmClientDetails"), typed[0].screen);
    EXPECT_EQ(QStringLiteral("Client Details"), typed[0].caption);
    EXPECT_EQ(0, typed[0].orderID);
    EXPECT_EQ((Fields {{QStringLiteral("Surname"), QStringLiteral("Hartwell — née Ö")}}), typed[0].fields);
    EXPECT_EQ(QString(), Form->ClientDetails.Surname()) << "the claim is not touched";
    screen->Box<oAllPurposeBox>("txtSurname").setText(QString());
    EXPECT_TRUE(mdTypedTexts().empty());
}

TEST_F(TypedTexts, OfAnItemHaveItsPlaceInTheList)
{
    Form->AddCounsel();
    auto second = Form->AddCounsel();
    second->OrderID = 2;
    const auto list = opened(QStringLiteral("Counsel"));
    frmScreen editor(ScreenCounselEdit(), list.get());
    editor.Initialise(second.get());
    show(editor);
    const clsScreenField *text = nullptr;
    for (const clsScreenField &field : editor.Fields())
        if (!text && qobject_cast<oAllPurposeBox *>(field.control))
            text = &field;
    ASSERT_TRUE(text);
    static_cast<oAllPurposeBox *>(text->control)->setText(QStringLiteral("Ms Ali"));
    const auto typed = mdTypedTexts();
    ASSERT_EQ(1u, typed.size()) << "the list below it is unchanged";
    EXPECT_EQ(QStringLiteral("frmCounselEdit"), typed[0].screen);
    EXPECT_EQ(2, typed[0].orderID);
}

TEST_F(TypedTexts, GoWithTheScreen)
{
    auto screen = opened(QStringLiteral("Client Details"));
    screen->Box<oAllPurposeBox>("txtSurname").setText(QStringLiteral("x"));
    EXPECT_EQ(1u, mdTypedTexts().size());
    screen->Cancel();
    EXPECT_TRUE(mdTypedTexts().empty());
}
