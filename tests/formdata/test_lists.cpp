// The nine lists: positions, orders and identities.

#include "tests/formdata/clsFormTest.h"

#include <QElapsedTimer>

namespace {

using Error = clsRunTimeError;

std::vector<int> indexesOf(const auto &collection)
{
    std::vector<int> indexes;
    for (const auto &item : collection)
        indexes.push_back(item->Index);
    return indexes;
}

std::vector<int> ordersOf(const auto &collection)
{
    std::vector<int> orders;
    for (const auto &item : collection)
        orders.push_back(item->OrderID());
    return orders;
}

using Numbers = std::vector<int>;

} // namespace

TEST(Lists, AreEmptyInANewClaim)
{
    clsZR3Form form;
    forEachList(
        form, [](const char *, const char *list, const auto &collection) { EXPECT_TRUE(collection.empty()) << list; });
    EXPECT_EQ("0", contentOf(form.XMLNode(), "idcounter"));
}

TEST(Lists, AnAddedItemIsTheLastInPlaceAndOrderAndInTheFile)
{
    clsZR3Form form;
    for (int round = 1; round <= 3; ++round) {
        addToEachList(form);
        forEachList(form, [&](const char *item, const char *list, const auto &collection) {
            ASSERT_EQ(size_t(round), collection.size()) << list;
            EXPECT_EQ(round, collection.back()->Index) << list;
            EXPECT_EQ(round, collection.back()->OrderID()) << list;
            EXPECT_EQ(collection.back()->XMLNode(), form.XMLNode().child(list).last_child()) << list;
            EXPECT_EQ(
                QStringList(QList<QString>(round, QString::fromLatin1(item))), childNames(form.XMLNode().child(list)));
        });
    }
}

TEST(Lists, ManyItemsAreAddedInTheirOrderWithoutAWalkAlongAllForEach)
{
    clsZR3Form form;
    constexpr int Many = 50'000;
    QElapsedTimer clock;
    clock.start();
    for (int place = 1; place <= Many; ++place)
        form.AddScheduleOfTimeItem();
    EXPECT_LT(clock.elapsed(), 2000);
    form.DeleteScheduleOfTimeItem(1);
    const auto added = form.AddScheduleOfTimeItem();
    EXPECT_EQ(Many, added->Index);
    EXPECT_EQ(Many, added->OrderID());
    const auto &items = form.ScheduleOfTimeItemsCollection();
    for (int place = 1; place <= Many; ++place)
        ASSERT_EQ(place, items[size_t(place - 1)]->Index);
    EXPECT_EQ(items.front(), form.ScheduleOfTimeItemByOrderID(2));
}

TEST(Lists, AnItemsOutputIsItsElement)
{
    clsZR3Form form;
    const auto counsel = form.AddCounsel();
    counsel->Name = QStringLiteral("A & B");
    EXPECT_EQ(QStringLiteral("<counsel><orderid>1</orderid><uniqueid>ID1</uniqueid><name>A+%26+B</name>"
                             "<accountnumber/><vat>False</vat></counsel>"),
        counsel->XMLOutput());
    EXPECT_TRUE(form.XMLOutput().contains(counsel->XMLOutput()));
}

TEST(Lists, TheElementFieldIsTheListsElement)
{
    const clsZR3Form form;
    EXPECT_STREQ("feeearnergroups", form.XMLFeeEarnerGroupsNode().name());
    EXPECT_STREQ("feeearners", form.XMLFeeEarnersNode().name());
    EXPECT_STREQ("counsel", form.XMLCounselNode().name());
    EXPECT_STREQ("enhancements", form.XMLEnhancementsNode().name());
    EXPECT_STREQ("fasitems", form.XMLFASItemsNode().name());
    EXPECT_STREQ("scheduleoftimeitems", form.XMLScheduleOfTimeItemsNode().name());
    EXPECT_STREQ("expertinvoices", form.XMLExpertInvoicesNode().name());
    EXPECT_STREQ("jointinstructions", form.XMLJointInstructionsNode().name());
    EXPECT_STREQ("disbursements", form.XMLDisbursementsNode().name());
}

TEST(Lists, DeletingKeepsTheOrdersAndRenumbersThePlaces)
{
    clsZR3Form form;
    for (int i = 0; i < 3; ++i)
        form.AddDisbursement();
    form.DeleteDisbursement(2);
    EXPECT_EQ((Numbers {1, 3}), ordersOf(form.DisbursementsCollection()));
    EXPECT_EQ((Numbers {1, 2}), indexesOf(form.DisbursementsCollection()));
    EXPECT_FALSE(form.DisbursementByOrderID(2));
    EXPECT_EQ(form.Disbursement(2), form.DisbursementByOrderID(3));
    EXPECT_EQ(2, int(childNames(form.XMLDisbursementsNode()).size()));
}

TEST(Lists, ADeletedItemKeepsItsValuesAndNoLongerTouchesTheClaim)
{
    clsZR3Form form;
    const auto kept = form.AddDisbursement();
    const auto gone = form.AddDisbursement();
    gone->Description = QStringLiteral("Search fee");
    form.DeleteDisbursement(2);
    const QString after = form.XMLOutput();
    EXPECT_EQ(QStringLiteral("Search fee"), gone->Description());
    gone->Description = QStringLiteral("Other");
    gone->OrderID = 1;
    EXPECT_EQ(QStringLiteral("Other"), gone->Description());
    EXPECT_EQ(after, form.XMLOutput());
    EXPECT_EQ(kept, form.DisbursementByOrderID(1));
}

TEST(Lists, ADeletedItemMayOutliveItsClaim)
{
    std::shared_ptr<clsZR3Counsel> gone;
    {
        clsZR3Form form;
        gone = form.AddCounsel();
        form.DeleteCounsel(1);
    }
    gone->OrderID = 9;
    EXPECT_EQ(9, gone->OrderID());
    EXPECT_EQ(QStringLiteral("ID1"), gone->UniqueID());
}

TEST(Lists, PlacesOutsideTheListAreTheSubscriptError)
{
    clsZR3Form form;
    form.AddExpertInvoice();
    for (const int index : {-1, 0, 2}) {
        EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.ExpertInvoice(index); })) << index;
        EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.DeleteExpertInvoice(index); })) << index;
    }
    EXPECT_EQ(form.ExpertInvoicesCollection()[0], form.ExpertInvoice(1));
}

TEST(Lists, LookUpsThatFailReturnNothing)
{
    clsZR3Form form;
    addToEachList(form);
    for (const int order : {-1, 0, 2}) {
        EXPECT_FALSE(form.FeeEarnerGroupByOrderID(order));
        EXPECT_FALSE(form.FeeEarnerByOrderID(order));
        EXPECT_FALSE(form.CounselByOrderID(order));
        EXPECT_FALSE(form.EnhancementByOrderID(order));
        EXPECT_FALSE(form.FASItemByOrderID(order));
        EXPECT_FALSE(form.ScheduleOfTimeItemByOrderID(order));
        EXPECT_FALSE(form.ExpertInvoiceByOrderID(order));
        EXPECT_FALSE(form.JointInstructionByOrderID(order));
        EXPECT_FALSE(form.DisbursementByOrderID(order));
    }
    EXPECT_FALSE(form.FeeEarnerGroupByUniqueID(QStringLiteral("ID99")));
    EXPECT_FALSE(form.FeeEarnerByUniqueID(QString()));
    EXPECT_FALSE(form.CounselByUniqueID(QStringLiteral("id3"))); // the comparison is exact
    EXPECT_TRUE(form.CounselByUniqueID(QStringLiteral("ID3")));
    EXPECT_FALSE(form.EnhancementByUniqueID(QStringLiteral("ID4 ")));
    EXPECT_FALSE(form.EnhancementByUniqueID(QStringLiteral("ID3"))); // a counsel's
}

TEST(Lists, LookUpsFollowEveryWriteToAnOrder)
{
    clsZR3Form form;
    const auto first = form.AddFASItem();
    const auto second = form.AddFASItem();
    EXPECT_EQ(first, form.FASItemByOrderID(1));
    first->OrderID = 2;
    second->OrderID = 1;
    EXPECT_EQ(second, form.FASItemByOrderID(1));
    EXPECT_EQ(first, form.FASItemByOrderID(2));
    first->OrderID = 7;
    EXPECT_FALSE(form.FASItemByOrderID(2));
    EXPECT_EQ(first, form.FASItemByOrderID(7));
    form.DeleteFASItem(1);
    EXPECT_FALSE(form.FASItemByOrderID(7));
    EXPECT_EQ(second, form.FASItemByOrderID(1));
    form.AddFASItem();
    EXPECT_EQ(form.FASItem(2), form.FASItemByOrderID(2));
}

TEST(Lists, LookUpsFollowWritesByName)
{
    clsZR3Form form;
    const auto counsel = form.AddCounsel();
    EXPECT_EQ(counsel, form.CounselByOrderID(1));
    counsel->field(u"OrderID")->writeLong(4);
    counsel->field(u"UniqueID")->writeText(QStringLiteral("own"));
    EXPECT_FALSE(form.CounselByOrderID(1));
    EXPECT_EQ(counsel, form.CounselByOrderID(4));
    EXPECT_FALSE(form.CounselByUniqueID(QStringLiteral("ID1")));
    EXPECT_EQ(counsel, form.CounselByUniqueID(QStringLiteral("own")));
}

TEST(Lists, AmongEqualsTheFirstInTheFileIsFound)
{
    clsZR3Form form;
    const auto first = form.AddEnhancement();
    const auto second = form.AddEnhancement();
    second->OrderID = 1;
    second->UniqueID = first->UniqueID();
    EXPECT_EQ(first, form.EnhancementByOrderID(1));
    EXPECT_EQ(first, form.EnhancementByUniqueID(QStringLiteral("ID1")));
    form.DeleteEnhancement(1);
    EXPECT_EQ(second, form.EnhancementByOrderID(1));
    EXPECT_EQ(second, form.EnhancementByUniqueID(QStringLiteral("ID1")));
}

TEST(Lists, AnOrderThatIsEmptyReadsAsZero)
{
    clsZR3Form form;
    const auto item = form.AddCounsel();
    setContentOf(item->XMLNode(), "orderid", "");
    form.RenderCounsel();
    EXPECT_EQ(form.Counsel(1), form.CounselByOrderID(0));
}

TEST(Lists, RenderingMakesNewObjectsInTheOrderOfTheFile)
{
    clsZR3Form form;
    const auto first = form.AddJointInstruction();
    const auto second = form.AddJointInstruction();
    first->OrderID = 2;
    second->OrderID = 1;
    first->PartyName = QStringLiteral("A");
    form.RenderJointInstructions();
    ASSERT_EQ(2u, form.JointInstructionsCollection().size());
    EXPECT_NE(first, form.JointInstruction(1));
    EXPECT_EQ(QStringLiteral("A"), form.JointInstruction(1)->PartyName());
    EXPECT_EQ((Numbers {2, 1}), ordersOf(form.JointInstructionsCollection()));
    EXPECT_EQ((Numbers {1, 2}), indexesOf(form.JointInstructionsCollection()));
    EXPECT_EQ(form.JointInstruction(1), form.JointInstructionByOrderID(2));
    // The old object has no element any more: it isn't notified when its element is removed.
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { first->OrderID = 5; }));
    EXPECT_EQ(form.JointInstruction(1), form.JointInstructionByOrderID(2));
}

TEST(Lists, ReorderingMovesNoElement)
{
    clsZR3Form form;
    form.AddCounsel()->Name = QStringLiteral("A");
    form.AddCounsel()->Name = QStringLiteral("B");
    form.Counsel(1)->OrderID = 2;
    form.Counsel(2)->OrderID = 1;
    EXPECT_EQ("A", contentOf(form.XMLCounselNode().first_child(), "name"));
    EXPECT_EQ(QStringLiteral("B"), form.CounselByOrderID(1)->Name());
    EXPECT_EQ(QStringLiteral("A"), form.Counsel(1)->Name());
}

TEST(Identities, AreSharedByTheFourListsAndNeverReused)
{
    clsZR3Form form;
    EXPECT_EQ(QStringLiteral("ID1"), form.AddFeeEarnerGroup()->UniqueID());
    EXPECT_EQ(QStringLiteral("ID2"), form.AddCounsel()->UniqueID());
    EXPECT_EQ(QStringLiteral("ID3"), form.AddFeeEarner()->UniqueID());
    EXPECT_EQ(QStringLiteral("ID4"), form.AddEnhancement()->UniqueID());
    form.AddDisbursement();
    form.AddScheduleOfTimeItem();
    form.AddFASItem();
    form.AddExpertInvoice();
    form.AddJointInstruction();
    EXPECT_EQ("4", contentOf(form.XMLNode(), "idcounter"));
    form.DeleteEnhancement(1);
    form.DeleteCounsel(1);
    EXPECT_EQ(QStringLiteral("ID5"), form.AddCounsel()->UniqueID());
}

TEST(Identities, GoOnFromTheCountersNumber)
{
    clsZR3Form form;
    setContentOf(form.XMLNode(), "idcounter", "41");
    EXPECT_EQ(QStringLiteral("ID42"), form.GenerateUniqueID());
    EXPECT_EQ("42", contentOf(form.XMLNode(), "idcounter"));
    setContentOf(form.XMLNode(), "idcounter", "-2");
    EXPECT_EQ(QStringLiteral("ID-1"), form.GenerateUniqueID());
}

TEST(Identities, ACounterThatIsNoNumberIsTheTypeErrorAndStays)
{
    for (const char *content : {"", "abc", "12abc", "ID7"}) {
        clsZR3Form form;
        setContentOf(form.XMLNode(), "idcounter", content);
        EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.GenerateUniqueID(); })) << content;
        EXPECT_EQ(content, contentOf(form.XMLNode(), "idcounter"));
    }
}

TEST(Identities, ACounterAtItsEndIsTheOverflowErrorAndStays)
{
    clsZR3Form form;
    setContentOf(form.XMLNode(), "idcounter", "2147483646");
    EXPECT_EQ(QStringLiteral("ID2147483647"), form.GenerateUniqueID());
    EXPECT_EQ(Error::Overflow, errorOf([&] { form.GenerateUniqueID(); }));
    EXPECT_EQ("2147483647", contentOf(form.XMLNode(), "idcounter"));
    setContentOf(form.XMLNode(), "idcounter", "2147483648");
    EXPECT_EQ(Error::Overflow, errorOf([&] { form.GenerateUniqueID(); }));
}
