#include "controls/oHeaderBar.h"
#include "controls/oIntegerBox.h"
#include "editors/mdScreens.h"
#include "editors/oFieldLabel.h"
#include "formdata/clsZR3FeeEarner.h"
#include "tests/editors/clsScreenTest.h"
#include "tests/editors/mdCommsTables.h"

#include <QLineEdit>
#include <QMenuBar>

namespace {

/// The screen for typing a fee earner's counts, opened on the second of two.
class Correspondences : public clsScreenTest {
protected:
    std::unique_ptr<frmScreen> screen = nullptr;

    void SetUp() override
    {
        clsScreenTest::SetUp();
        Form->AddFeeEarner();
        const auto person = Form->AddFeeEarner();
        person->Calls = 12;
        person->LettersOut = 345;
        screen = std::make_unique<frmScreen>(ScreenCorrespondences());
        screen->Initialise(person.get());
        show(*screen);
    }
    static std::vector<int> counts(int feeEarner)
    {
        const auto person = Form->FeeEarner(feeEarner);
        return {person->Calls(), person->LettersIn(), person->LettersOut()};
    }
    QString text(const char *box) const { return screen->Box<oIntegerBox>(box).Text(); }
};

} // namespace

TEST_F(Correspondences, TheScreenIsAsItsTableSays)
{
    const clsExpectedScreen &expected = ExpectedCommsScreens.back();
    EXPECT_STREQ(expected.name, screen->Screen().name);
    EXPECT_EQ(QString::fromUtf8(expected.header), screen->findChild<oHeaderBar *>()->Caption());
    EXPECT_EQ(QString::fromUtf8(expected.subCaption), screen->findChild<oHeaderBar *>()->SubCaption());
    EXPECT_EQ(QStringLiteral("Correspondences"), screen->findChild<oFrame *>(QStringLiteral("bxGeneral"))->Caption());
    ASSERT_EQ(expected.fields.size(), screen->Fields().size());
    for (size_t i = 0; i < expected.fields.size(); ++i) {
        const clsScreenField &field = screen->Fields()[i];
        EXPECT_EQ(QString::fromUtf8(expected.fields[i].control), field.control->objectName());
        EXPECT_EQ(QString::fromUtf8(expected.fields[i].caption), field.label->Caption());
        EXPECT_TRUE(qobject_cast<oIntegerBox *>(field.control)) << expected.fields[i].control;
        EXPECT_FALSE(field.control->accessibleName().contains(u'*'));
    }
    EXPECT_STREQ("Correspondences", screen->Screen().itemWord);
    EXPECT_FALSE(screen->findChild<QMenuBar *>()->isVisible());
}

TEST_F(Correspondences, ItShowsTheCountsOfItsFeeEarner)
{
    EXPECT_EQ(QStringLiteral("12"), text("txtCalls"));
    EXPECT_EQ(QStringLiteral("0"), text("txtLettersIn"));
    EXPECT_EQ(QStringLiteral("345"), text("txtLettersOut"));
}

TEST_F(Correspondences, SaveWritesTheThreeCountsOfThatFeeEarnerAndCloses)
{
    type(screen->Box("txtCalls"), QStringLiteral("7"));
    type(screen->Box("txtLettersIn"), QStringLiteral("2147483647"));
    type(screen->Box("txtLettersOut"), QStringLiteral("1 0"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ((std::vector<int> {7, 2147483647, 10}), counts(2));
    EXPECT_EQ((std::vector<int> {0, 0, 0}), counts(1));
}

TEST_F(Correspondences, CommasGroupTheFiguresAndEndNoCount)
{
    type(screen->Box("txtCalls"), QStringLiteral("1,000"));
    type(screen->Box("txtLettersIn"), QStringLiteral("2,147,483,647"));
    type(screen->Box("txtLettersOut"), QStringLiteral(",5"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ((std::vector<int> {1000, 2147483647, 5}), counts(2));
}

TEST_F(Correspondences, EnterSavesFromAnyBox)
{
    type(screen->Box("txtLettersIn"), QStringLiteral("8"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ((std::vector<int> {12, 8, 345}), counts(2));
}

TEST_F(Correspondences, NoCountIsRequiredAndAnEmptyBoxSaysNothing)
{
    for (const char *box : {"txtCalls", "txtLettersIn", "txtLettersOut"})
        type(screen->Box(box), QString());
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ((std::vector<int> {0, 0, 0}), counts(2));
}

TEST_F(Correspondences, WhatIsNoCountHoldsItsBoxAndStillLetsEscThrough)
{
    for (const char *wrong : {"many", "2147483648"}) {
        type(screen->Box("txtCalls"), QString::fromUtf8(wrong));
        press(*screen, "cmdSave");
        EXPECT_TRUE(screen->isVisible()) << wrong;
        EXPECT_EQ(QStringLiteral("txtCalls"), focusedName(*screen)) << wrong;
        EXPECT_EQ((std::vector<int> {12, 0, 345}), counts(2)) << wrong;
    }
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ((std::vector<int> {12, 0, 345}), counts(2));
}

TEST_F(Correspondences, CancelAndTheCloseBoxStoreNothingAndAskNothing)
{
    type(screen->Box("txtCalls"), QStringLiteral("99"));
    press(*screen, "cmdCancel");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ((std::vector<int> {12, 0, 345}), counts(2));
    show(*screen);
    type(screen->Box("txtLettersIn"), QStringLiteral("99"));
    screen->close();
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ((std::vector<int> {12, 0, 345}), counts(2));
    EXPECT_TRUE(user.messages.empty());
}
