#include "base/mdProgramFolder.h"
#include "controls/oAllPurposeBox.h"
#include "editors/mdFieldPlace.h"
#include "tests/editors/clsScreenTest.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>

namespace {

/// The signs at the boxes, with the built templates.
class PrintNotes : public clsScreenTest {
protected:
    void SetUp() override
    {
        clsScreenTest::SetUp();
        SetProgramFolder(QStringLiteral(ZR3_PROGRAM));
    }
    void TearDown() override
    {
        clsScreenTest::TearDown();
        SetProgramFolder(QString());
    }

    static const oPrintSign &signOf(frmScreen &screen, const char *box)
    {
        return *screen.Box<oAllPurposeBox>(box).findChild<oPrintSign *>();
    }
    static bool waitFor(const oPrintSign &sign, clsPrintNote::clsSign expected)
    {
        return QTest::qWaitFor([&] { return sign.Note().sign == expected; }, 1000);
    }
    static QString linesOf(int count) { return QString(QStringLiteral("x\r\n")).repeated(count - 1) + u'x'; }
};

} // namespace

TEST_F(PrintNotes, ComeWhileATextIsTypedAndGoAgain)
{
    const auto screen = opened(QStringLiteral("Debtor's Details"));
    auto &box = screen->Box<oAllPurposeBox>("txtAddress");
    auto &editor = *box.findChild<QPlainTextEdit *>();
    const oPrintSign &sign = signOf(*screen, "txtAddress");
    box.setText(linesOf(5));
    QTest::qWait(100);
    EXPECT_EQ(clsPrintNote::Fits, sign.Note().sign) << "five lines have their room";
    EXPECT_FALSE(sign.isVisible());
    EXPECT_EQ(QStringLiteral("47 of 60 left"), editor.accessibleDescription());

    editor.moveCursor(QTextCursor::End);
    editor.setFocus();
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(&editor, Qt::Key_Return);
    QTest::keyClick(&editor, Qt::Key_X);
    ASSERT_TRUE(waitFor(sign, clsPrintNote::Smaller));
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_TRUE(sign.isVisible());
    const QString words = QStringLiteral("6 lines; the box prints 5. It will be printed smaller");
    EXPECT_EQ(words, sign.toolTip());
    EXPECT_EQ(words, sign.accessibleName());
    EXPECT_EQ(QStringLiteral("44 of 60 left. ") + words, editor.accessibleDescription());

    QTest::keyClick(&editor, Qt::Key_Backspace);
    QTest::keyClick(&editor, Qt::Key_Backspace);
    ASSERT_TRUE(waitFor(sign, clsPrintNote::Fits));
    EXPECT_FALSE(sign.isVisible());
    EXPECT_EQ(QStringLiteral("47 of 60 left"), editor.accessibleDescription());
}

TEST_F(PrintNotes, ComeWithoutAPauseInTheTyping)
{
    const auto screen = opened(QStringLiteral("Debtor's Details"));
    auto &editor = *screen->Box<oAllPurposeBox>("txtAddress").findChild<QPlainTextEdit *>();
    const oPrintSign &sign = signOf(*screen, "txtAddress");
    editor.setFocus();
    // A key every 10 ms until the sign appears.
    for (int i = 0; i < 60 && sign.Note().sign == clsPrintNote::Fits; ++i) {
        QTest::keyClick(&editor, Qt::Key_Return);
        QTest::qWait(10);
    }
    EXPECT_NE(clsPrintNote::Fits, sign.Note().sign);
}

TEST_F(PrintNotes, ShowWhatTheClaimBrings)
{
    Form->DebtorsDetails.Address = linesOf(60);
    Form->ClientDetails.Surname = QString(100, u'W');
    const auto debtor = opened(QStringLiteral("Debtor's Details"));
    ASSERT_TRUE(waitFor(signOf(*debtor, "txtAddress"), clsPrintNote::RunsOn));
    EXPECT_EQ(QStringLiteral("60 lines; the box prints 5. It will run on to another page"),
        signOf(*debtor, "txtAddress").toolTip());
    // For a one-line box it is beside the number.
    const auto client = opened(QStringLiteral("Client Details"));
    const oPrintSign &sign = signOf(*client, "txtSurname");
    ASSERT_TRUE(waitFor(sign, clsPrintNote::Smaller));
    ASSERT_TRUE(sign.isVisible());
    EXPECT_TRUE(sign.parentWidget()->rect().contains(sign.geometry()));
}

TEST_F(PrintNotes, ATextForContinuationSheetsHasNone)
{
    const auto screen = opened(QStringLiteral("Late Submission"));
    auto &box = screen->Box<oAllPurposeBox>("txtExplanation");
    const oPrintSign &sign = signOf(*screen, "txtExplanation");
    box.setText(linesOf(60));
    ASSERT_TRUE(QTest::qWaitFor([&] { return sign.isVisible(); }, 1000)) << "178 characters in 60 lines";
    box.setText(linesOf(300));
    ASSERT_TRUE(waitFor(sign, clsPrintNote::Fits)) << "898 characters leave the box whole";
}

TEST_F(PrintNotes, AFieldIsFoundByItsProperty)
{
    const struct {
        const char *property;
        const char *section;
        const char *control;
        const char *caption;
    } rows[] = {
        {"DebtorsDetails.Address", "Debtor's Details", "txtAddress", "Address"},
        {"ClientDetails.FirstName", "Client Details", "txtFirstName", "First Name"},
        {"LateSubmission.dDate", "Late Submission", "txtDate", "Date"},
    };
    for (const auto &row : rows) {
        const auto place = mdFieldPlace(QString::fromLatin1(row.property));
        ASSERT_TRUE(place) << row.property;
        EXPECT_EQ(QLatin1String(row.section), place->section);
        EXPECT_EQ(QLatin1String(row.control), place->control);
        EXPECT_EQ(QLatin1String(row.caption), place->caption);
    }
    EXPECT_FALSE(mdFieldPlace(QStringLiteral("ClientDetails.Nothing")));
    EXPECT_FALSE(mdFieldPlace(QStringLiteral("Nothing.Surname")));
    EXPECT_FALSE(mdFieldPlace(QString()));
}
