#pragma once

#include "base/mdPlayWav.h"
#include "base/mdProgramFolder.h"
#include "controls/oCheckBox.h"
#include "controls/oGridView.h"
#include "controls/oSGrid.h"
#include "editors/oEnhancementsBox.h"
#include "formdata/clsZR3Enhancement.h"
#include "formdata/clsZR3FeeEarner.h"
#include "tests/editors/clsModalTest.h"

#include <QSignalSpy>

/// The counting screen of a claim with some fee earners, each with counts, and two enhancements.
class clsCommunicationsTest : public clsModalTest {
protected:
    static constexpr int NameColumn = 1, CallsColumn = 3, LettersInColumn = 4, LettersOutColumn = 5;

    using Counts = std::vector<int>;

    std::unique_ptr<frmScreen> screen = nullptr;

    void SetUp() override
    {
        clsModalTest::SetUp();
        SetProgramFolder(QStringLiteral("/opt/program"));
        SetSoundSwitch([] { return true; });
        for (const char *name : {"Exceptional speed", "Novelty"})
            Form->AddEnhancement()->Name = QString::fromUtf8(name);
    }
    void TearDown() override
    {
        screen.reset();
        SetSoundSwitch({});
        SetProgramFolder({});
        clsModalTest::TearDown();
    }

    /// Fee earners F1, F2 ... with 3 calls, 5 letters in and 7 letters out each.
    void openWith(int feeEarners)
    {
        for (int n = 1; n <= feeEarners; ++n) {
            const auto person = Form->AddFeeEarner();
            person->Reference = QStringLiteral("F%1").arg(n);
            person->Calls = 3;
            person->LettersIn = 5;
            person->LettersOut = 7;
        }
        screen = opened(QStringLiteral("Communications"));
    }
    oSGrid &grid() const { return screen->Box<oSGrid>("sgCommunications"); }
    oGridView &view() const { return *grid().findChild<oGridView *>(); }
    QPoint middleOf(int row, int column) const
    {
        return view().visualRect(view().model()->index(row - 1, column - 1)).center();
    }
    void press(int key, Qt::KeyboardModifiers shift = {}) { QTest::keyClick(&view(), Qt::Key(key), shift); }
    void rightClick(int row, int column, Qt::KeyboardModifiers shift = {})
    {
        QTest::mouseClick(view().viewport(), Qt::RightButton, shift, middleOf(row, column));
    }
    /// Types digits and waits until they count as a number.
    void typeNumber(const QString &text)
    {
        QSignalSpy typed(&grid(), &oSGrid::TimedKeyPress);
        QTest::keyClicks(&view(), text);
        EXPECT_TRUE(typed.wait(2000));
    }

    static Counts counts(int feeEarner)
    {
        const auto person = Form->FeeEarner(feeEarner);
        return {person->Calls(), person->LettersIn(), person->LettersOut()};
    }
    QString shown(int row, int column) const { return view().model()->index(row - 1, column - 1).data().toString(); }
    QStringList takeSounds()
    {
        const QStringList heard = user.sounds;
        user.sounds.clear();
        return heard;
    }
    static QString up() { return QStringLiteral("/opt/program/Sounds/Blip.wav"); }
    static QString down() { return QStringLiteral("/opt/program/Sounds/Blip Low.wav"); }

    oEnhancementsBox &enhancement(const char *name) const { return screen->Box<oEnhancementsBox>(name); }
    static QString idOf(int enhancement) { return Form->Enhancement(enhancement)->UniqueID(); }
    /// Ticks the boxes for calls and letters out, and chooses the second enhancement for the latter.
    void changeBoxes()
    {
        for (const char *name : {"oCallsEnhancement", "oLettersOutEnhancement"})
            click(*enhancement(name).findChild<oCheckBox *>());
        enhancement("oLettersOutEnhancement").setEnhancementUniqueID(idOf(2));
    }
    static QStringList settings()
    {
        const auto &comms = Form->Communications;
        const auto shownAs = [](bool flag, const QString &id) { return (flag ? u'+' : u'-') + id; };
        return {shownAs(comms.EnhanceCalls(), comms.CallsEnhancementUniqueID()),
            shownAs(comms.EnhanceLettersIn(), comms.LettersInEnhancementUniqueID()),
            shownAs(comms.EnhanceLettersOut(), comms.LettersOutEnhancementUniqueID())};
    }
    static QStringList untouched() { return {QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("-")}; }
    static QStringList changed() { return {u'+' + idOf(1), QStringLiteral("-"), u'+' + idOf(2)}; }
};
