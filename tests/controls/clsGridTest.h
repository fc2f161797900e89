#pragma once

#include "base/clsRunTimeError.h"
#include "controls/oGridView.h"
#include "controls/oSGrid.h"
#include "formdata/clsZR3Form.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

/// A grid in a window, over the fee earner groups of an empty claim, with a scripted user.
class clsGridTest : public testing::Test {
protected:
    clsScriptedUserInterface user;
    clsUserInterfaceScope scope {user};
    clsZR3Form form;
    QWidget window;
    oSGrid &grid = *new oSGrid(&window);
    QAbstractItemModelTester tester {
        grid.findChild<QTableView *>()->model(), QAbstractItemModelTester::FailureReportingMode::Warning};

    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&grid);
        window.resize(500, 300);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        // Forget messages that creating the claim caused.
        user.progress.clear();
        user.progressCleared = 0;
    }

    std::shared_ptr<clsZR3FeeEarnerGroup> addGroup(const char *reference, const char *name = "", bool enhance = false)
    {
        const auto group = form.AddFeeEarnerGroup();
        group->Reference = QString::fromUtf8(reference);
        group->Name = QString::fromUtf8(name);
        group->Enhance = enhance;
        return group;
    }
    /// Groups with the references G1, G2 ...
    void addGroups(int count)
    {
        for (int n = 1; n <= count; ++n)
            addGroup(("G" + QByteArray::number(n)).constData());
    }
    void addReferenceColumn() { grid.AddColumn({.caption = "Ref", .width = 100, .property = "Reference"}); }
    void draw()
    {
        grid.setItemCollection(form.FeeEarnerGroupsCollection());
        grid.Draw();
    }

    oGridView *view() const { return grid.findChild<oGridView *>(); }
    QAbstractItemModel *model() const { return view()->model(); }
    QStringList rowTexts(int row) const
    {
        QStringList texts;
        for (int number = 0; number < model()->columnCount(); ++number)
            texts << model()->index(row - 1, number).data().toString();
        return texts;
    }
    /// The text that a screen reader gets for a cell.
    QString describes(int row, int number) const
    {
        return model()->index(row - 1, number - 1).data(Qt::AccessibleTextRole).toString();
    }
    QStringList column(int number) const
    {
        QStringList texts;
        for (int row = 0; row < model()->rowCount(); ++row)
            texts << model()->index(row, number - 1).data().toString();
        return texts;
    }
    /// The `Index` of each row's item, from the top.
    std::vector<int> rowItems()
    {
        std::vector<int> items;
        for (int row = 1; row <= grid.Rows(); ++row) {
            grid.SelectRow(row);
            items.push_back(grid.SelectedItemData());
        }
        return items;
    }

    QPoint middleOf(int row, int number = 1) const
    {
        return view()->visualRect(model()->index(row - 1, number - 1)).center();
    }
    void click(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers shift = {}, int number = 1)
    {
        QTest::mouseClick(view()->viewport(), button, shift, middleOf(row, number));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers shift = {}) { QTest::keyClick(view(), key, shift); }
};
