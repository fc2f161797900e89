// A firm and its people by keys alone: on the screens of a claim, and once for all new claims.

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/window/clsWholeWayTest.h"

namespace {

class FirmByKeyboard : public clsWholeWayTest {
protected:
    /// Types a text into each field, with Tab between them.
    void fields(const QStringList &texts, Place place = Place::current())
    {
        step([texts] { pressAll(texts.join(u'\t')); }, always, place);
    }
    void alt(char letter, std::function<bool()> waitsFor = always, Place place = Place::current())
    {
        key(letter, Qt::AltModifier, std::move(waitsFor), place);
    }
    void saveAndAdd(Place place = Place::current())
    {
        key(
            Qt::Key_Return, Qt::ControlModifier, [] { return textOf("txtReference").isEmpty(); }, place);
    }

    // 53 keys with the Tabs, Save and Add, 27, and the two that open and save: 83.
    void enterGroups(const char *editor, const char *screen)
    {
        alt('A', screenIs(editor));
        fields({QStringLiteral("SOL"), QStringLiteral("Solicitor"), {}, QStringLiteral("47.25"), QStringLiteral("4.05"),
            QStringLiteral("2.05"), QStringLiteral("4.05"), QStringLiteral("59.40"), QStringLiteral("33.30"),
            QStringLiteral("27.90")});
        saveAndAdd();
        fields({QStringLiteral("TRN"), QStringLiteral("Trainee"), {}, QStringLiteral("45"), QStringLiteral("3.95"),
            QStringLiteral("2"), QStringLiteral("3.95")});
        alt('S', screenIs(screen));
    }
    // 1, 2, 1, 4 and 1: 9.
    void enterFeeEarners(char letter, const char *editor, const char *screen)
    {
        alt(letter, screenIs(editor));
        fields({QStringLiteral("AB")});
        saveAndAdd();
        fields({QStringLiteral("CD"), QStringLiteral("\u2193")});
        alt('S', screenIs(screen));
    }
    // 1, 16 and 1: 18.
    void enterCounsel(const char *editor, const char *screen)
    {
        alt('A', screenIs(editor));
        fields({QStringLiteral("Ada Brook"), QStringLiteral("12AB"), QStringLiteral(" ")});
        alt('S', screenIs(screen));
    }
    /// The claim without the values that differ between claims with the same content.
    static QString content()
    {
        clsZR3Form copy;
        copy.takeCopyOf(*Form);
        copy.DefaultFeeEarnerListIndex = 0;
        return copy.XMLOutput();
    }
    /// The keys since the last call.
    static int keys() { return std::exchange(pressed, 0); }
};

} // namespace

TEST_F(FirmByKeyboard, IsTypedOnceAndANewClaimTakesOneKey)
{
    longestRun = 60000;
    QFile::remove(path("state/Velmor/Firm offer answered"));
    int inClaim = 0, once = 0, after = 0;
    QString typed, filled;

    step([] {}, [] { return header() == QLatin1String("New ZR3 File"); });
    step([] {}, noScreen);
    step([] { keys(); }, always);
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmFeeEarnerGroups"));
    enterGroups("frmFeeEarnerGroupEdit", "frmFeeEarnerGroups");
    enterFeeEarners('D', "frmFeeEarnerEdit", "frmFeeEarnerGroups");
    alt('C', noScreen);
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmCounsel"));
    enterCounsel("frmCounselEdit", "frmCounsel");
    alt('C', noScreen);
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmSolicitorDetails"));
    fields({QStringLiteral("1A234B"), {}, QStringLiteral("Hartwell Shaw LLP"), {}, QStringLiteral("Jane Shaw"),
        QStringLiteral("0113 496 0000"), QStringLiteral("js@hartwell.example")});
    alt('S', noScreen);
    look([&] {
        inClaim = keys();
        typed = content();
    });

    // Once for all new claims, opened from the bar.
    alt('M', screenIs("frmFirmAndTeam"));
    fields({QStringLiteral("Hartwell Shaw LLP"), QStringLiteral("1A234B"), {}, QStringLiteral("Jane Shaw"),
        QStringLiteral("0113 496 0000"), QStringLiteral("js@hartwell.example"), {}, {}, QStringLiteral(" ")});
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    enterGroups("frmFirmGroupEdit", "frmFirmAndTeam");
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Tab);
    key(Qt::Key_Return);
    enterFeeEarners('A', "frmFirmFeeEarnerEdit", "frmFirmAndTeam");
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Tab);
    key(Qt::Key_Return);
    enterCounsel("frmFirmCounselEdit", "frmFirmAndTeam");
    alt('C', noScreen);
    look([&] {
        once = keys();
        EXPECT_EQ(typed, content()) << "the open claim stays as it is";
    });

    // Discards the previous claim; the two keys for its question don't count for the new one.
    key('N', Qt::ControlModifier, boxIs("Save?"));
    alt('O', [] { return noScreen() && header() == QLatin1String("New ZR3 File"); });
    step([] { keys(); }, always);
    key('N', Qt::ControlModifier, [] { return noScreen() && header() == QLatin1String("New ZR3 File"); });
    look([&] {
        after = keys();
        filled = content();
    });
    key('Q', Qt::ControlModifier);

    ASSERT_EQ(0, walk({}));
    EXPECT_EQ(typed, filled) << "to the letter what is typed by hand";
    // 3 to the groups, 83, 9, 1; 2 to counsel, 18, 1; 6 to the solicitor, 64 letters, 6 Tabs, 1.
    EXPECT_EQ(3 + 83 + 9 + 1 + 2 + 18 + 1 + 6 + 64 + 6 + 1, inClaim);
    // 1 opens it; 64 letters, 8 Tabs, 1 tick; 2, 83; 3, 9; 3, 18; 1.
    EXPECT_EQ(1 + 64 + 8 + 1 + 2 + 83 + 3 + 9 + 3 + 18 + 1, once);
    EXPECT_EQ(1, after);
}
