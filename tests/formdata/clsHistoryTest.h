#pragma once

#include "formdata/clsHistory.h"
#include "formdata/mdGlobals.h"
#include "tests/formdata/clsFormTest.h"
#include "tests/support/mdTestPaths.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <memory>

/// The claim's text without the values that steps don't change.
inline QString mdTextThatStepsChange(const clsZR3Form &form)
{
    QString text = form.XMLOutput();
    for (const char *name : {"idcounter", "timespent", "defaultfeeearnerlistindex", "exportpath", "path", "version"}) {
        const QString tag = QString::fromLatin1(name);
        text.remove(QRegularExpression(QStringLiteral("<%1>[^<]*</%1>|<%1 ?/>").arg(tag)));
    }
    return text;
}

/// Numbers the items as a list does when it is drawn.
template <class Collection> void mdRenumber(const Collection &collection)
{
    Collection inOrder = collection;
    std::stable_sort(
        inOrder.begin(), inOrder.end(), [](const auto &a, const auto &b) { return a->OrderID() < b->OrderID(); });
    int order = 0;
    for (const auto &item : inOrder)
        item->OrderID = ++order;
}

/// A claim with a separate history.
class clsHistoryTest : public clsFormTest {
protected:
    void SetUp() override { load(QStringLiteral("housing-typical.zr3")); }
    void load(const QString &sample)
    {
        form = std::make_unique<clsZR3Form>();
        ASSERT_TRUE(form->LoadXML(mdSamplePath(sample)));
        form->RenderScheduleOfTimeItemsForExport();
        history.join();
    }
    void step(const char *name, const std::function<void()> &action)
    {
        history.run([&] {
            action();
            return QString::fromLatin1(name);
        });
    }
    void swapFirstTwo() const
    {
        const int order = form->ScheduleOfTimeItem(1)->OrderID();
        form->ScheduleOfTimeItem(1)->OrderID = form->ScheduleOfTimeItem(2)->OrderID();
        form->ScheduleOfTimeItem(2)->OrderID = order;
    }
    /// Every list and derived list equals that of a new claim loaded from the tree.
    void expectRecordsAgree() const
    {
        clsZR3Form fresh;
        fresh.takeCopyOf(*form);
        expectListsAgree(fresh);
        expectSameItems(fresh.ScheduleOfTimeItemsForExportCollection(), form->ScheduleOfTimeItemsForExportCollection());
        expectSameItems(fresh.AdditionalInformationItemsCollection(), form->AdditionalInformationItemsCollection());
        expectSameItems(fresh.FASBoltOnPaymentsCollection(), form->FASBoltOnPaymentsCollection());
        expectSameItems(fresh.FASTravelBoltOnsCollection(), form->FASTravelBoltOnsCollection());
        expectSameItems(fresh.CounselDisbursementsCollection(), form->CounselDisbursementsCollection());
        expectSameItems(fresh.NonCounselDisbursementsCollection(), form->NonCounselDisbursementsCollection());
        for (const auto &feeEarner : fresh.FeeEarnersCollection()) {
            const auto same = form->FeeEarnerByUniqueID(feeEarner->UniqueID());
            ASSERT_TRUE(same);
            EXPECT_EQ(feeEarner->XMLOutput(), same->XMLOutput());
        }
        for (int order = 1; order <= int(fresh.ScheduleOfTimeItemsCollection().size()); ++order)
            ASSERT_EQ(fresh.ScheduleOfTimeItemByOrderID(order)->Index, form->ScheduleOfTimeItemByOrderID(order)->Index);
        QStringList sections;
        forEachSection(fresh, [&](const char *, const clsZR3Section &section) { sections << section.XMLOutput(); });
        qsizetype at = 0;
        forEachSection(*form, [&](const char *name, const clsZR3Section &section) {
            EXPECT_EQ(name, QString::fromLatin1(section.elementName()));
            EXPECT_EQ(sections[at++], section.XMLOutput());
        });
    }
    template <class Items> static void expectSameItems(const Items &expected, const Items &found)
    {
        ASSERT_EQ(expected.size(), found.size());
        for (size_t place = 0; place < expected.size(); ++place) {
            EXPECT_EQ(expected[place]->XMLOutput(), found[place]->XMLOutput());
            EXPECT_EQ(expected[place]->Index, found[place]->Index);
        }
    }
    void expectListsAgree(clsZR3Form &fresh) const
    {
        expectSameItems(fresh.FeeEarnerGroupsCollection(), form->FeeEarnerGroupsCollection());
        expectSameItems(fresh.FeeEarnersCollection(), form->FeeEarnersCollection());
        expectSameItems(fresh.CounselCollection(), form->CounselCollection());
        expectSameItems(fresh.EnhancementsCollection(), form->EnhancementsCollection());
        expectSameItems(fresh.FASItemsCollection(), form->FASItemsCollection());
        expectSameItems(fresh.ScheduleOfTimeItemsCollection(), form->ScheduleOfTimeItemsCollection());
        expectSameItems(fresh.ExpertInvoicesCollection(), form->ExpertInvoicesCollection());
        expectSameItems(fresh.JointInstructionsCollection(), form->JointInstructionsCollection());
        expectSameItems(fresh.DisbursementsCollection(), form->DisbursementsCollection());
    }

    std::unique_ptr<clsZR3Form> form;
    clsHistory history {form};
};
