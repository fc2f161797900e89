// How many keys an item of the schedule takes with "Save and Add".

#include "controls/oSGrid.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/window/clsWholeWayTest.h"

namespace {

class SaveAndAddKeys : public clsWholeWayTest {
protected:
    static QString saveClaim(const QString &path)
    {
        clsZR3Form claim;
        const auto group = claim.AddFeeEarnerGroup();
        group->Reference = QStringLiteral("PTR");
        group->HourlyRate = QStringLiteral("78.00");
        for (const char *reference : {"DVE", "MO"}) {
            const auto feeEarner = claim.AddFeeEarner();
            feeEarner->Reference = QString::fromLatin1(reference);
            feeEarner->GroupUniqueID = group->UniqueID();
        }
        EXPECT_TRUE(claim.SaveXML(path));
        return path;
    }
    /// Keys that carry what the item says.
    void data(const char *text)
    {
        pressAll(QString::fromUtf8(text));
        m_data += int(qstrlen(text));
    }
    void data(Qt::Key key)
    {
        press(key);
        ++m_data;
    }
    /// Keys that only lead on.
    void way(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(key, modifiers);
        ++m_way;
    }
    /// What an item took since the last one.
    std::pair<int, int> counted()
    {
        const std::pair<int, int> result(m_data, m_data + m_way);
        m_data = m_way = 0;
        return result;
    }

private:
    int m_data = 0;
    int m_way = 0;
};

} // namespace

TEST_F(SaveAndAddKeys, AnItemOfAUsualDayTakesElevenKeysOfWhichEightCarryData)
{
    const QString claim = saveClaim(path("claims/Usual.zr3"));
    step([] {}, [] { return topLevel<frmMain>() != nullptr; });
    step([] {}, noScreen);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Tab);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmScheduleOfTime"));
    key(Qt::Key_Insert, Qt::NoModifier, screenIs("frmScheduleOfTimeItemEdit"));
    look([this] {
        press(Qt::Key_D, Qt::AltModifier);
        pressAll(QStringLiteral("12/12/25\tAWI\t\t54"));
        press(Qt::Key_Return, Qt::ControlModifier);
        ASSERT_EQ(1u, Form->ScheduleOfTimeItemsCollection().size());

        // Another fee earner, the code, the time.
        data(Qt::Key_F2);
        data("hfn");
        way(Qt::Key_Tab);
        way(Qt::Key_Tab);
        data("1:30");
        way(Qt::Key_Return, Qt::ControlModifier);
        ASSERT_EQ(2u, Form->ScheduleOfTimeItemsCollection().size());
        EXPECT_EQ(std::pair(8, 11), counted());

        // The next day, by a step.
        way(Qt::Key_Backtab, Qt::ShiftModifier);
        data(Qt::Key_Up);
        way(Qt::Key_Tab);
        data("act");
        way(Qt::Key_Tab);
        way(Qt::Key_Tab);
        data("54");
        way(Qt::Key_Return, Qt::ControlModifier);
        ASSERT_EQ(3u, Form->ScheduleOfTimeItemsCollection().size());
        const auto [carrying, all] = counted();
        EXPECT_EQ(6, carrying);
        EXPECT_LE(all, 12);
    });
    key(Qt::Key_Escape, Qt::NoModifier, screenIs("frmScheduleOfTime"));
    look([] {
        EXPECT_EQ(3, onScreen<oSGrid>("sgScheduleOfTime")->Rows());
        QStringList items;
        for (const auto &item : Form->ScheduleOfTimeItemsCollection())
            items << item->dDate() + u' ' + item->FeeEarnerReference() + u' ' + item->Code() + u' ' + item->TTime();
        EXPECT_EQ(
            QStringLiteral("12/12/25 DVE AWI 00:54|12/12/25 MO HFN 01:30|13/12/25 MO ACT 00:54"), items.join(u'|'));
    });
    key(Qt::Key_C, Qt::AltModifier, noScreen);
    key(Qt::Key_S, Qt::ControlModifier);
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(0, walk({QFile::encodeName(claim)}));
}
