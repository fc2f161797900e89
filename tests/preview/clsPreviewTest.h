#pragma once

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "preview/mdExportPreview.h"
#include "preview/mdPreview.h"
#include "preview/oPreviewGrid.h"
#include "preview/oPreviewSheet.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"

#include <QStringList>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

/// A window with the preview, a claim, and a scripted user.
class clsPreviewTest : public testing::Test {
protected:
    void SetUp() override
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        sheet = new oPreviewSheet(&window);
        layout->addWidget(sheet);
        window.resize(1366, 600);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        PreviewGrid = sheet->Grid();
        Form = std::make_unique<clsZR3Form>();
        const auto group = Form->AddFeeEarnerGroup();
        group->HourlyRate = QStringLiteral("60.00");
        group->AdvocacyRate = QStringLiteral("70.00");
        group->CounselRate = QStringLiteral("30.00");
        group->TravelAndWaitingRate = QStringLiteral("20.00");
        const auto feeEarner = Form->AddFeeEarner();
        feeEarner->Reference = QStringLiteral("AB");
        feeEarner->GroupUniqueID = group->UniqueID();
        user.progress.clear();
        user.progressCleared = 0;
    }
    void TearDown() override
    {
        PreviewGrid = nullptr;
        Form.reset();
    }

    using Item = std::shared_ptr<clsZR3ScheduleOfTimeItem>;

    static Item addItem(const char *time = "01:00", const char *code = "ACT", const char *date = "03/02/26")
    {
        const Item item = Form->AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = Form->FeeEarner(1)->UniqueID();
        item->TTime = QString::fromLatin1(time);
        item->Code = QString::fromLatin1(code);
        item->dDate = QString::fromLatin1(date);
        return item;
    }
    static void addItems(int count)
    {
        for (int i = 0; i < count; ++i)
            addItem();
        makeLists();
    }
    /// Rebuilds the lists that the preview shows, as the schedule's screen does after each action.
    static void makeLists()
    {
        Form->RenderScheduleOfTimeItemsForExport();
        Form->RenderAdditionalInformationItems();
    }

    static oPreviewGrid &grid() { return *PreviewGrid; }
    static QStringList rowTexts(int row)
    {
        QStringList texts;
        for (int column = 1; column <= grid().Columns(); ++column)
            texts << grid().Text(row, column);
        return texts;
    }

    clsScriptedUserInterface user;

private:
    clsUserInterfaceScope m_scope {user};

protected:
    QWidget window;
    oPreviewSheet *sheet = nullptr;
};
