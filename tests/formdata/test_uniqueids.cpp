// Which identities of a claim are in use.

#include "formdata/mdUniqueIDInUseInForm.h"
#include "tests/formdata/clsClaimTest.h"

using UniqueIDInUse = clsClaimTest;

TEST_F(UniqueIDInUse, OwnIdentityAloneIsNoUse)
{
    const auto group = claim.addGroup();
    EXPECT_FALSE(UniqueIDInUseInForm(form, group->UniqueID()));
    claim.addFeeEarner(group);
    EXPECT_TRUE(UniqueIDInUseInForm(form, group->UniqueID()));
}

TEST_F(UniqueIDInUse, EveryReferenceCounts)
{
    const auto group = claim.addGroup();
    const auto feeEarner = claim.addFeeEarner(group);
    const auto counsel = form.AddCounsel();
    const auto enhancement = claim.addEnhancement("10");
    EXPECT_FALSE(UniqueIDInUseInForm(form, feeEarner->UniqueID()));
    EXPECT_FALSE(UniqueIDInUseInForm(form, counsel->UniqueID()));
    EXPECT_FALSE(UniqueIDInUseInForm(form, enhancement->UniqueID()));

    const auto item = claim.addItem(feeEarner, "01:00");
    EXPECT_TRUE(UniqueIDInUseInForm(form, feeEarner->UniqueID()));

    const auto disbursement = claim.addDisbursement("1", "0");
    disbursement->CounselUniqueID = counsel->UniqueID();
    EXPECT_TRUE(UniqueIDInUseInForm(form, counsel->UniqueID()));
    disbursement->CounselUniqueID = form.AddCounsel()->UniqueID();
    EXPECT_FALSE(UniqueIDInUseInForm(form, counsel->UniqueID()));

    item->EnhancementUniqueID = enhancement->UniqueID();
    EXPECT_TRUE(UniqueIDInUseInForm(form, enhancement->UniqueID()));
    item->EnhancementUniqueID = QString();
    EXPECT_FALSE(UniqueIDInUseInForm(form, enhancement->UniqueID()));
    for (const char16_t *name :
        {u"LettersOutEnhancementUniqueID", u"LettersInEnhancementUniqueID", u"CallsEnhancementUniqueID"}) {
        form.Communications.field(name)->writeText(enhancement->UniqueID());
        EXPECT_TRUE(UniqueIDInUseInForm(form, enhancement->UniqueID()));
        form.Communications.field(name)->writeText(QString());
    }
}

TEST_F(UniqueIDInUse, AnIdentityLeftInAFieldThatIsNotInUseStillCounts)
{
    const auto enhancement = claim.addEnhancement("10");
    form.Communications.EnhanceCalls = false;
    form.Communications.CallsEnhancementUniqueID = enhancement->UniqueID();
    EXPECT_TRUE(UniqueIDInUseInForm(form, enhancement->UniqueID()));
}

TEST_F(UniqueIDInUse, SoDoesAnUnrelatedFieldWithThatWholeText)
{
    const auto group = claim.addGroup();
    form.ClientDetails.Surname = "ID1 "_q;
    EXPECT_FALSE(UniqueIDInUseInForm(form, group->UniqueID()));
    form.ClientDetails.Surname = "id1"_q;
    EXPECT_FALSE(UniqueIDInUseInForm(form, group->UniqueID()));
    form.ClientDetails.Surname = "ID1"_q;
    EXPECT_TRUE(UniqueIDInUseInForm(form, group->UniqueID()));
}

TEST_F(UniqueIDInUse, OneIdentityIsNoPartOfAnother)
{
    for (int n = 1; n <= 12; ++n)
        form.AddCounsel();
    EXPECT_FALSE(UniqueIDInUseInForm(form, "ID1"_q)); // ID10, ID11 and ID12 exist too
    EXPECT_FALSE(UniqueIDInUseInForm(form, "ID2"_q));
    EXPECT_FALSE(UniqueIDInUseInForm(form, "ID99"_q));
}
