// The number of keys needed for the items of a schedule, with Save alone and with "Save and Add".

#include "controls/oSGrid.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/support/mdTestPaths.h"
#include "tests/window/clsWholeWayTest.h"

#include <iostream>

namespace {

struct clsEntered {
    int feeEarner; ///< by its function key
    const char *date; ///< day and month; the year is remembered
    const char *code;
    const char *time;
};

// clang-format off
/// A schedule of typical size, by date.
constexpr clsEntered Items[] = {
    {1, "2/6",   "ACT", "1:12"}, {1, "2/6",   "DPL", "0:48"}, {2, "3/6",   "ACL", "0:54"}, {1, "9/6",   "DNO", "0:30"},
    {1, "10/6",  "AEX", "0:24"}, {1, "1/7",   "ACL", "0:42"}, {1, "8/10",  "HIN", "1:25"}, {1, "8/10",  "OOT", "0:50"},
    {1, "8/10",  "ACT", "0:35"}, {3, "15/10", "DPL", "1:12"}, {2, "29/10", "REX", "0:54"}, {1, "12/11", "ACL", "0:42"},
    {1, "19/11", "AEX", "0:24"}, {3, "26/11", "DBL", "4:40"}, {3, "27/11", "DBL", "2:10"}, {2, "2/12",  "REX", "3:10"},
    {2, "9/12",  "ACO", "1:20"}, {1, "12/12", "AWI", "0:54"}, {2, "15/12", "HFN", "3:20"}, {2, "16/12", "HFN", "4:05"},
    {1, "16/12", "ACL", "0:30"}, {1, "17/12", "DNO", "0:24"}, {1, "18/12", "DFL", "0:18"}, {1, "18/12", "ACL", "0:12"},
    {1, "19/12", "DNO", "0:36"},
};
// clang-format on

/// Counts of keys: those that enter data, and those that only move on.
struct clsKeys {
    int data = 0;
    int way = 0;
    int all() const { return data + way; }
};

class Strokes : public clsWholeWayTest {
protected:
    void SetUp() override
    {
        clsWholeWayTest::SetUp();
        longestRun = 60000;
        claim = path("claims/Usual.zr3");
        ASSERT_TRUE(QFile::copy(mdSamplePath(QStringLiteral("empty.zr3")), claim));
        ASSERT_TRUE(QFile(claim).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    }

    static void addFeeEarners()
    {
        const auto group = Form->AddFeeEarnerGroup();
        group->Reference = QStringLiteral("PTR");
        group->HourlyRate = QStringLiteral("78.00");
        for (const char *reference : {"DVE", "MO", "AKB"}) {
            const auto feeEarner = Form->AddFeeEarner();
            feeEarner->Reference = QString::fromLatin1(reference);
            feeEarner->GroupUniqueID = group->UniqueID();
        }
    }
    /// The third tab of the first row, and its third section.
    void openSchedule()
    {
        step([] {}, [this] { return header().startsWith(claim); });
        step([] {}, noScreen);
        look(addFeeEarners);
        key(Qt::Key_Right);
        key(Qt::Key_Right);
        key(Qt::Key_Return);
        key(Qt::Key_Tab);
        key(Qt::Key_Right);
        key(Qt::Key_Right);
        key(Qt::Key_Return, Qt::NoModifier, screenIs("frmScheduleOfTime"));
    }
    int closeAndEnd()
    {
        key(Qt::Key_C, Qt::AltModifier, noScreen);
        key(Qt::Key_S, Qt::ControlModifier, [this] { return header() == claim; });
        key(Qt::Key_Q, Qt::ControlModifier);
        return walk({QFile::encodeName(claim)});
    }

    void data(const char *text)
    {
        pressAll(QString::fromUtf8(text));
        counted.data += int(qstrlen(text));
    }
    void data(Qt::Key key)
    {
        press(key);
        ++counted.data;
    }
    void way(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(key, modifiers);
        ++counted.way;
    }
    /// The keys pressed since the last call.
    clsKeys taken() { return std::exchange(counted, clsKeys()); }

    /// In the editor of a new item, without its first and last keys.
    void enterFromTheBeginning(const clsEntered &item)
    {
        data(Qt::Key(Qt::Key_F1 + item.feeEarner - 1));
        way(Qt::Key_D, Qt::AltModifier);
        data(item.date);
        way(Qt::Key_Tab);
        data(item.code);
        way(Qt::Key_T, Qt::AltModifier);
        data(item.time);
    }
    /// Steps to a date a few days later if that takes fewer keys.
    void enterDate(const char *before, const char *date)
    {
        const QStringList from = QString::fromLatin1(before).split(u'/');
        const QStringList to = QString::fromLatin1(date).split(u'/');
        const int days = from[1] == to[1] ? to[0].toInt() - from[0].toInt() : 0;
        if (days < 1 || days >= int(qstrlen(date)))
            return data(date);
        for (int day = 0; day < days; ++day)
            data(Qt::Key_Up);
    }
    /// In the editor that keeps the values of the previous item.
    void enterAfter(const clsEntered &before, const clsEntered &item)
    {
        if (item.feeEarner != before.feeEarner)
            data(Qt::Key(Qt::Key_F1 + item.feeEarner - 1));
        if (qstrcmp(item.date, before.date) != 0) {
            way(Qt::Key_Backtab, Qt::ShiftModifier);
            enterDate(before.date, item.date);
            way(Qt::Key_Tab);
        }
        data(item.code);
        way(Qt::Key_Tab);
        way(Qt::Key_Tab);
        data(item.time);
        way(Qt::Key_Return, Qt::ControlModifier);
    }
    static void expectAll()
    {
        ASSERT_EQ(std::size(Items), Form->ScheduleOfTimeItemsCollection().size());
        const char *references[] = {"DVE", "MO", "AKB"};
        int order = 0;
        for (const clsEntered &item : Items) {
            const auto stored = Form->ScheduleOfTimeItemByOrderID(++order);
            const QStringList date = QString::fromLatin1(item.date).split(u'/');
            EXPECT_EQ(QStringLiteral("%1/%2/25").arg(date[0], 2, u'0').arg(date[1], 2, u'0'), stored->dDate()) << order;
            EXPECT_EQ(QString::fromLatin1(references[item.feeEarner - 1]), stored->FeeEarnerReference()) << order;
            EXPECT_EQ(QString::fromLatin1(item.code), stored->Code()) << order;
            EXPECT_EQ(u'0' + QString::fromLatin1(item.time), stored->TTime()) << order;
        }
    }

    QString claim;
    clsKeys counted;
};

} // namespace

TEST_F(Strokes, AnItemOfAUsualDayTakesElevenKeysOfWhichEightCarryData)
{
    openSchedule();
    key(Qt::Key_Insert, Qt::NoModifier, screenIs("frmScheduleOfTimeItemEdit"));
    look([this] {
        enterFromTheBeginning({1, "12/12/25", "AWI", "54"});
        way(Qt::Key_Return, Qt::ControlModifier);
        ASSERT_EQ(1u, Form->ScheduleOfTimeItemsCollection().size());
        taken();

        // The same day: another fee earner, the code, the time.
        enterAfter({1, "12/12", "", ""}, {2, "12/12", "hfn", "1:30"});
        ASSERT_EQ(2u, Form->ScheduleOfTimeItemsCollection().size());
        const clsKeys keys = taken();
        EXPECT_EQ(8, keys.data);
        EXPECT_EQ(11, keys.all());

        // The next day, by a step.
        way(Qt::Key_Backtab, Qt::ShiftModifier);
        data(Qt::Key_Up);
        way(Qt::Key_Tab);
        enterAfter({2, "", "", ""}, {2, "", "act", "54"});
        ASSERT_EQ(3u, Form->ScheduleOfTimeItemsCollection().size());
        EXPECT_EQ(11, taken().all());
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
    EXPECT_EQ(0, closeAndEnd());
}

// The year is typed for the first item and remembered for the others.

TEST_F(Strokes, TwentyFiveItemsWithSaveAlone)
{
    openSchedule();
    for (const clsEntered &item : Items) {
        key(Qt::Key_Insert, Qt::NoModifier, screenIs("frmScheduleOfTimeItemEdit"));
        look([this, &item] {
            if (&item == Items)
                enterFromTheBeginning({item.feeEarner, "2/6/25", item.code, item.time});
            else
                enterFromTheBeginning(item);
            counted.way += 2; // the first and the last
        });
        key(Qt::Key_Return, Qt::NoModifier, screenIs("frmScheduleOfTime"));
    }
    look([this] {
        expectAll();
        const clsKeys keys = taken();
        std::cout << "25 items with Save alone: " << keys.all() << " keys, " << keys.data << " of them data\n";
        EXPECT_EQ(437, keys.all());
    });
    EXPECT_EQ(0, closeAndEnd());
}

TEST_F(Strokes, TwentyFiveItemsWithSaveAndAdd)
{
    openSchedule();
    key(Qt::Key_Insert, Qt::NoModifier, screenIs("frmScheduleOfTimeItemEdit"));
    look([this] {
        counted.way = 1;
        enterFromTheBeginning({Items[0].feeEarner, "2/6/25", Items[0].code, Items[0].time});
        way(Qt::Key_Return, Qt::ControlModifier);
    });
    for (size_t i = 1; i < std::size(Items); ++i)
        look([this, i] { enterAfter(Items[i - 1], Items[i]); });
    look([this] { way(Qt::Key_Escape); });
    step([] {}, screenIs("frmScheduleOfTime"));
    look([this] {
        expectAll();
        const clsKeys keys = taken();
        std::cout << "25 items with Save and Add: " << keys.all() << " keys, " << keys.data << " of them data\n";
        EXPECT_EQ(364, keys.all());
    });
    EXPECT_EQ(0, closeAndEnd());
}
