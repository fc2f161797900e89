// The collections that are derived from the lists, and when they are rebuilt.

#include "tests/formdata/clsFormTest.h"

namespace {

using Error = clsRunTimeError;
using Numbers = std::vector<int>;

/// The list positions of the items in a collection.
Numbers placesOf(const auto &collection)
{
    Numbers places;
    for (const auto &item : collection)
        places.push_back(item->Index);
    return places;
}

/// Four items, of which the second and the fourth are advocacy, shown in the order 4, 3, 2, 1.
void addFourItemsBackwards(clsZR3Form &form)
{
    for (int n = 1; n <= 4; ++n) {
        const auto item = form.AddScheduleOfTimeItem();
        item->Advocacy = n % 2 == 0;
        item->Description = QStringLiteral("note");
    }
    for (int n = 1; n <= 4; ++n)
        form.ScheduleOfTimeItem(n)->OrderID = 5 - n;
}

void render(clsZR3Form &form)
{
    form.RenderScheduleOfTimeItemsForExport();
    form.RenderAdditionalInformationItems();
}

} // namespace

TEST(ScheduleForExport, WhatIsOnTheBillByFormTypeAndFlag)
{
    struct Row {
        const char16_t *formType;
        bool excludeNonAdvocacy;
        Numbers places;
    };
    const Row rows[] = {
        {u"Claim1", false, {4, 3, 2, 1}}, {u"Claim1", true, {4, 3, 2, 1}}, {u"Claim1A", false, {4, 3, 2, 1}},
        {u"Claim1A", true, {4, 2}}, {u"claim1", true, {4, 2}}, // the type is compared exactly
    };
    for (const Row &row : rows) {
        clsZR3Form form;
        addFourItemsBackwards(form);
        form.FormType = QString::fromUtf16(row.formType);
        form.ExcludeNonAdvocacy = row.excludeNonAdvocacy;
        render(form);
        EXPECT_EQ(row.places, placesOf(form.ScheduleOfTimeItemsForExportCollection()));
        int number = 0;
        for (const auto &item : form.ScheduleOfTimeItemsForExportCollection())
            EXPECT_EQ(++number, item->SOTItemNumber);
    }
}

TEST(ScheduleForExport, AnItemLeftOutKeepsTheNumberThatItHad)
{
    clsZR3Form form;
    addFourItemsBackwards(form);
    form.FormType = QStringLiteral("Claim1A");
    render(form);
    EXPECT_EQ(4, form.ScheduleOfTimeItem(1)->SOTItemNumber);
    form.ExcludeNonAdvocacy = true;
    render(form);
    EXPECT_EQ(4, form.ScheduleOfTimeItem(1)->SOTItemNumber); // left out, so not updated
    EXPECT_EQ(2, form.ScheduleOfTimeItem(2)->SOTItemNumber);
    EXPECT_EQ(2, form.ScheduleOfTimeItem(3)->SOTItemNumber); // left out, so not updated
    EXPECT_EQ(1, form.ScheduleOfTimeItem(4)->SOTItemNumber);
}

TEST(ScheduleForExport, HoldsTheObjectsOfTheList)
{
    clsZR3Form form;
    const auto item = form.AddScheduleOfTimeItem();
    render(form);
    EXPECT_EQ(item, form.ScheduleOfTimeItemsForExportCollection()[0]);
}

TEST(ScheduleForExport, IsRebuiltByItsRoutineOnly)
{
    clsZR3Form form;
    addFourItemsBackwards(form);
    EXPECT_TRUE(form.ScheduleOfTimeItemsForExportCollection().empty());
    EXPECT_EQ(0, form.ScheduleOfTimeItem(1)->SOTItemNumber);
    render(form);
    form.AddScheduleOfTimeItem();
    form.ScheduleOfTimeItem(1)->Description = QString();
    EXPECT_EQ((Numbers {4, 3, 2, 1}), placesOf(form.ScheduleOfTimeItemsForExportCollection()));
    EXPECT_EQ((Numbers {4, 3, 2, 1}), placesOf(form.AdditionalInformationItemsCollection()));
    render(form);
    EXPECT_EQ((Numbers {4, 3, 2, 1, 5}), placesOf(form.ScheduleOfTimeItemsForExportCollection()));
    EXPECT_EQ((Numbers {4, 3, 2}), placesOf(form.AdditionalInformationItemsCollection()));
}

TEST(AdditionalInformation, AnItemWithoutADescriptionIsNumberedAndNotListed)
{
    clsZR3Form form;
    addFourItemsBackwards(form);
    form.ScheduleOfTimeItem(3)->Description = QString();
    form.ScheduleOfTimeItem(2)->Description = QStringLiteral(" "); // a space is a description
    render(form);
    EXPECT_EQ((Numbers {4, 2, 1}), placesOf(form.AdditionalInformationItemsCollection()));
    EXPECT_EQ(2, form.ScheduleOfTimeItem(3)->SOTItemNumber);
    EXPECT_EQ(form.ScheduleOfTimeItem(4), form.AdditionalInformationItem(1));
    EXPECT_EQ(form.ScheduleOfTimeItem(1), form.AdditionalInformationItem(3));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.AdditionalInformationItem(0); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.AdditionalInformationItem(4); }));
}

TEST(AdditionalInformation, HasOnlyItemsThatAreOnTheBill)
{
    clsZR3Form form;
    addFourItemsBackwards(form);
    form.FormType = QStringLiteral("Claim1A");
    form.ExcludeNonAdvocacy = true;
    render(form);
    EXPECT_EQ((Numbers {4, 2}), placesOf(form.AdditionalInformationItemsCollection()));
}

TEST(FASCollections, AnItemMayStandInBothOrNeither)
{
    struct Row {
        const char *boltOn;
        const char *distance;
        const char *reason;
    };
    clsZR3Form form;
    for (const Row &row : {Row {"", "", ""}, {"x", "", ""}, {"", "x", ""}, {"", "", "x"}, {"x", "x", "x"}}) {
        const auto item = form.AddFASItem();
        item->BoltOnDescription = QString::fromLatin1(row.boltOn);
        item->ExceptionalTravelDistance = QString::fromLatin1(row.distance);
        item->ExceptionalTravelReason = QString::fromLatin1(row.reason);
    }
    for (int n = 1; n <= 5; ++n)
        form.FASItem(n)->OrderID = 6 - n;
    EXPECT_TRUE(form.FASBoltOnPaymentsCollection().empty()); // not before its function is called
    form.CreateFASCollections();
    EXPECT_EQ((Numbers {5, 2}), placesOf(form.FASBoltOnPaymentsCollection()));
    EXPECT_EQ((Numbers {5, 4, 3}), placesOf(form.FASTravelBoltOnsCollection()));
}

TEST(CounselAndOtherDisbursements, ArePartedInTheirOrder)
{
    clsZR3Form form;
    for (int n = 1; n <= 4; ++n)
        form.AddDisbursement()->Counsel = n > 2;
    for (int n = 1; n <= 4; ++n)
        form.Disbursement(n)->OrderID = 5 - n;
    EXPECT_TRUE(form.NonCounselDisbursementsCollection().empty());
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ((Numbers {4, 3}), placesOf(form.CounselDisbursementsCollection()));
    EXPECT_EQ((Numbers {2, 1}), placesOf(form.NonCounselDisbursementsCollection()));
    EXPECT_EQ(form.Disbursement(3), form.CounselDisbursement(2));
    EXPECT_EQ(form.Disbursement(2), form.NonCounselDisbursement(1));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.CounselDisbursement(3); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.NonCounselDisbursement(0); }));
    form.Disbursement(1)->Counsel = true;
    EXPECT_EQ(2u, form.CounselDisbursementsCollection().size());
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ((Numbers {4, 3, 1}), placesOf(form.CounselDisbursementsCollection()));
}

TEST(DerivedCollections, AreRebuiltByRenderingTheirLists)
{
    clsZR3Form form;
    form.AddScheduleOfTimeItem()->Description = QStringLiteral("x");
    form.AddFASItem()->BoltOnDescription = QStringLiteral("x");
    form.AddDisbursement();
    form.RenderScheduleOfTimeItems();
    form.RenderFASItems();
    form.RenderDisbursements();
    ASSERT_EQ(1u, form.ScheduleOfTimeItemsForExportCollection().size());
    ASSERT_EQ(1u, form.AdditionalInformationItemsCollection().size());
    ASSERT_EQ(1u, form.FASBoltOnPaymentsCollection().size());
    ASSERT_EQ(1u, form.NonCounselDisbursementsCollection().size());
    // They contain the objects of the new lists.
    EXPECT_EQ(form.ScheduleOfTimeItem(1), form.AdditionalInformationItem(1));
    EXPECT_EQ(form.FASItem(1), form.FASBoltOnPaymentsCollection()[0]);
    EXPECT_EQ(form.Disbursement(1), form.NonCounselDisbursement(1));
}

TEST(DerivedCollections, AGapInTheOrderIsTheObjectErrorAndIsTold)
{
    clsZR3Form form;
    for (int i = 0; i < 3; ++i)
        addToEachList(form);
    form.DeleteScheduleOfTimeItem(2);
    form.DeleteFASItem(2);
    form.DeleteDisbursement(2);
    const auto told = [](auto render) {
        try {
            render();
        } catch (const Error &error) {
            return QString::number(error.number()) + u' ' + error.cause();
        }
        return QString();
    };
    EXPECT_EQ(QStringLiteral("91 No schedule item has place 2 in the order of its list"),
        told([&] { form.RenderScheduleOfTimeItemsForExport(); }));
    EXPECT_EQ(QStringLiteral("91 No FAS item has place 2 in the order of its list"),
        told([&] { form.CreateFASCollections(); }));
    EXPECT_EQ(QStringLiteral("91 No disbursement has place 2 in the order of its list"),
        told([&] { form.SeparateCounselAndNonCounselDisbursements(); }));
    // Numbered 1 to n, as a grid numbers them.
    form.ScheduleOfTimeItem(2)->OrderID = 2;
    form.FASItem(2)->OrderID = 2;
    form.Disbursement(2)->OrderID = 2;
    render(form);
    form.CreateFASCollections();
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ(2u, form.ScheduleOfTimeItemsForExportCollection().size());
    EXPECT_EQ(2u, form.NonCounselDisbursementsCollection().size());
}

// Items without a stored order

TEST(DerivedCollections, AClaimThatDoesNotSayWhatIsOnTheBillShowsAllItemsAndNumbersNone)
{
    clsZR3Form form;
    addFourItemsBackwards(form);
    form.FormType = QStringLiteral("Claim1A");
    setContentOf(form.XMLNode(), "excludenonadvocacy", "perhaps");
    render(form);
    EXPECT_EQ((Numbers {4, 3, 2, 1}), placesOf(form.ScheduleOfTimeItemsForExportCollection()));
    EXPECT_EQ(4u, form.AdditionalInformationItemsCollection().size());
    for (const auto &item : form.ScheduleOfTimeItemsCollection())
        EXPECT_EQ(0, item->SOTItemNumber);
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.CheckDerivedCollections(); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.IsOnBill(*form.ScheduleOfTimeItem(1)); }));

    form.ExcludeNonAdvocacy = true;
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.CheckDerivedCollections(); })) << "as they were last made";
    render(form);
    form.CheckDerivedCollections();
    EXPECT_EQ((Numbers {4, 2}), placesOf(form.ScheduleOfTimeItemsForExportCollection()));
}

TEST(DerivedCollections, AnItemThatDoesNotSayWhetherItIsAdvocacyTakesNoNumber)
{
    clsZR3Form form;
    addFourItemsBackwards(form);
    form.FormType = QStringLiteral("Claim1A");
    form.ExcludeNonAdvocacy = true;
    setContentOf(form.ScheduleOfTimeItem(3)->XMLNode(), "advocacy", "perhaps");
    render(form);
    EXPECT_EQ((Numbers {4, 3, 2}), placesOf(form.ScheduleOfTimeItemsForExportCollection()));
    EXPECT_EQ(1, form.ScheduleOfTimeItem(4)->SOTItemNumber);
    EXPECT_EQ(0, form.ScheduleOfTimeItem(3)->SOTItemNumber);
    EXPECT_EQ(2, form.ScheduleOfTimeItem(2)->SOTItemNumber);
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.CheckDerivedCollections(); }));
}

TEST(DerivedCollections, ADisbursementThatDoesNotSayWhetherItIsCounselsKeepsBothFromBeingTold)
{
    clsZR3Form form;
    addToEachList(form);
    addToEachList(form);
    setContentOf(form.Disbursement(1)->XMLNode(), "counsel", "perhaps");
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.CheckDerivedCollections(); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.CounselDisbursementsCollection(); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.NonCounselDisbursementsCollection(); }));
    form.Disbursement(1)->Counsel = true;
    form.SeparateCounselAndNonCounselDisbursements();
    form.CheckDerivedCollections();
    EXPECT_EQ(1u, form.CounselDisbursementsCollection().size());
    EXPECT_EQ(1u, form.NonCounselDisbursementsCollection().size());
}
