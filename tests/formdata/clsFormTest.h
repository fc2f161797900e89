#pragma once

#include "base/clsFileSystem.h"
#include "formdata/clsZR3Form.h"
#include "tests/support/clsFolderTest.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <QFile>

#include <gtest/gtest.h>

/// A test that loads and saves claims: a folder of its own and a scripted user.
class clsFormTest : public clsFolderTest {
protected:
    clsScriptedUserInterface user;

private:
    clsUserInterfaceScope m_scope {user};
};

/// The names of an element's child elements, in their order.
inline QStringList childNames(pugi::xml_node node)
{
    QStringList names;
    for (const pugi::xml_node child : node.children())
        if (child.type() == pugi::node_element)
            names << QString::fromUtf8(child.name());
    return names;
}

/// A child's content as it stands in the tree.
inline QByteArray contentOf(pugi::xml_node node, const char *child)
{
    return node.child(child).child_value();
}

/// Puts a content into the tree as a hand-edited file would hold it.
inline void setContentOf(pugi::xml_node node, const char *child, const char *content)
{
    ASSERT_TRUE(node.child(child));
    XMLSetContent(node.child(child), content);
}

/// Calls the visitor with the name of each section's element and the section.
template <class Visit> void forEachSection(clsZR3Form &form, Visit visit)
{
    visit("clientdetails", form.ClientDetails);
    visit("solicitordetails", form.SolicitorDetails);
    visit("previousadvice", form.PreviousAdvice);
    visit("caseinformation", form.CaseInformation);
    visit("outcomeofcase", form.OutcomeOfCase);
    visit("latesubmission", form.LateSubmission);
    visit("natureofproceedings", form.NatureOfProceedings);
    visit("actualcostsincurred", form.ActualCostsIncurred);
    visit("detailsofwork", form.DetailsOfWork);
    visit("counseloutstandingclaims", form.CounselOutstandingClaims);
    visit("communications", form.Communications);
    visit("detailsofmonies", form.DetailsOfMonies);
    visit("detailsofcostsawarded", form.DetailsOfCostsAwarded);
    visit("debtorsdetails", form.DebtorsDetails);
}

/// Calls the visitor with the item element's name, the list element's name and the collection of each list.
template <class Visit> void forEachList(clsZR3Form &form, Visit visit)
{
    visit("feeearnergroup", "feeearnergroups", form.FeeEarnerGroupsCollection());
    visit("feeearner", "feeearners", form.FeeEarnersCollection());
    visit("counsel", "counsel", form.CounselCollection());
    visit("enhancement", "enhancements", form.EnhancementsCollection());
    visit("fasitem", "fasitems", form.FASItemsCollection());
    visit("scheduleoftimeitem", "scheduleoftimeitems", form.ScheduleOfTimeItemsCollection());
    visit("expertinvoice", "expertinvoices", form.ExpertInvoicesCollection());
    visit("jointinstruction", "jointinstructions", form.JointInstructionsCollection());
    visit("disbursement", "disbursements", form.DisbursementsCollection());
}

/// One more item in each of the nine lists.
inline void addToEachList(clsZR3Form &form)
{
    form.AddFeeEarnerGroup();
    form.AddFeeEarner();
    form.AddCounsel();
    form.AddEnhancement();
    form.AddFASItem();
    form.AddScheduleOfTimeItem();
    form.AddExpertInvoice();
    form.AddJointInstruction();
    form.AddDisbursement();
}
