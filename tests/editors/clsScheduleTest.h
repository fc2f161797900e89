#pragma once

#include "controls/oCheckBox.h"
#include "controls/oSGrid.h"
#include "formdata/clsZR3ScheduleOfTimeItem.h"
#include "tests/editors/clsFeeEarnersTest.h"

#include <QAbstractItemView>
#include <QAction>

/// Base of tests of lists of dated items and of their editors.
class clsScheduleTest : public clsFeeEarnersTest {
protected:
    using Item = std::shared_ptr<clsZR3ScheduleOfTimeItem>;

    /// Adds an item of the first fee earner, who is created if there is none.
    static Item addItem(const char *date, const char *code = "DOT", const char *time = "01:00")
    {
        if (Form->FeeEarnersCollection().empty())
            addFeeEarners(1);
        const auto item = Form->AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = Form->FeeEarner(1)->UniqueID();
        item->dDate = QString::fromUtf8(date);
        item->Code = QString::fromUtf8(code);
        item->TTime = QString::fromUtf8(time);
        return item;
    }
    static std::unique_ptr<frmScreen> editItem(const Item &item = nullptr)
    {
        return edit(ScreenScheduleOfTimeItemEdit(), item.get());
    }
    static size_t countItems() { return Form->ScheduleOfTimeItemsCollection().size(); }

    static oCheckBox &tick(const frmScreen &screen, const char *name) { return screen.Box<oCheckBox>(name); }
    static void focus(const frmScreen &screen, const char *name)
    {
        focusPart(screen.Box(name))->setFocus(Qt::TabFocusReason);
    }
    /// Expects exactly one message, with this title and text, and forgets it.
    void expectMessage(
        const char *title, const char *text, clsUserInterface::Buttons buttons = clsUserInterface::OKOnly)
    {
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QString::fromUtf8(title), user.messages[0].title);
        EXPECT_EQ(QString::fromUtf8(text), user.messages[0].text);
        EXPECT_EQ(buttons, user.messages[0].buttons);
        user.messages.clear();
    }
    void expectInvalidCode() { expectMessage("Invalid Code", "The code entered is invalid"); }
};
