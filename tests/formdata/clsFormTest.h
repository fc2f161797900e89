#pragma once

#include "base/clsFileSystem.h"
#include "formdata/clsZR3Form.h"
#include "tests/support/clsFolderTest.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <QFile>

#include <gtest/gtest.h>

/// Base of tests that load and save claims, with a temporary folder and a scripted user.
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

/// The raw content of a child element.
inline QByteArray contentOf(pugi::xml_node node, const char *child)
{
    return node.child(child).child_value();
}

/// Sets the content of a child element directly, as in a hand-edited file.
inline void setContentOf(pugi::xml_node node, const char *child, const char *content)
{
    ASSERT_TRUE(node.child(child));
    XMLSetContent(node.child(child), content);
}

/// Calls the visitor with each section's element name and the section.
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

/// Calls the visitor with each list's item element name, list element name and collection.
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

/// Adds an item to each of the nine lists.
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
