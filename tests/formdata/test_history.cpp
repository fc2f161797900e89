// Undo and redo of single steps, and what the history stores.

#include "formdata/mdRunStep.h"
#include "tests/formdata/clsHistoryTest.h"

namespace {

class History : public clsHistoryTest { };

} // namespace

TEST_F(History, HasNothingAtFirst)
{
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(QString(), history.undoName());
    EXPECT_EQ(nullptr, history.undo());
    EXPECT_EQ(nullptr, history.redo());
}

TEST_F(History, TakesATextBackAndDoesItAgain)
{
    const QString before = form->XMLOutput();
    step("Client Details", [&] { form->ClientDetails.Surname = QStringLiteral("O'Brien & Söhne\r\n<b>"); });
    const QString after = form->XMLOutput();
    ASSERT_NE(before, after);
    EXPECT_EQ(QStringLiteral("Client Details"), history.undoName());

    history.undo();
    EXPECT_EQ(before, form->XMLOutput());
    EXPECT_EQ(QString(), history.undoName());
    EXPECT_EQ(QStringLiteral("Client Details"), history.redoName());

    history.redo();
    EXPECT_EQ(after, form->XMLOutput());
    EXPECT_EQ(QStringLiteral("O'Brien & Söhne\r\n<b>"), form->ClientDetails.Surname());
    EXPECT_FALSE(history.canRedo());
}

TEST_F(History, AnActionThatChangesNothingIsNoStep)
{
    step("Nothing", [&] { form->ClientDetails.Surname = form->ClientDetails.Surname(); });
    EXPECT_FALSE(history.canUndo());
}

TEST_F(History, ADeletedItemReturnsToItsPlaceInTheFile)
{
    const QString before = form->XMLOutput();
    const auto items = form->ScheduleOfTimeItemsCollection();
    ASSERT_LT(3u, items.size());
    const auto deleted = items[1];
    const QString text = deleted->XMLOutput();
    EXPECT_EQ(nullptr, history.undoItem());
    step("Delete", [&] {
        form->DeleteScheduleOfTimeItem(2);
        mdRenumber(form->ScheduleOfTimeItemsCollection());
        form->RenderScheduleOfTimeItemsForExport();
    });
    EXPECT_EQ(nullptr, history.undoItem()) << "it is gone";

    const clsZR3Item *back = history.undo();
    EXPECT_EQ(before, form->XMLOutput());
    EXPECT_EQ(form->ScheduleOfTimeItem(2).get(), back);
    EXPECT_EQ(items[0], form->ScheduleOfTimeItem(1)) << "the others keep their records";
    EXPECT_EQ(items[2], form->ScheduleOfTimeItem(3));
    EXPECT_EQ(text, deleted->XMLOutput()) << "who still holds the one that was deleted can read it";
    expectRecordsAgree();

    EXPECT_EQ(back, history.redoItem());
    const auto held = form->ScheduleOfTimeItem(2);
    EXPECT_EQ(nullptr, history.redo());
    EXPECT_EQ(text, held->XMLOutput());
    EXPECT_EQ(items.size() - 1, form->ScheduleOfTimeItemsCollection().size());
    expectRecordsAgree();
}

TEST_F(History, TheMarkGoesAndComesWithATextThatIsUndoneAndDoneAgain)
{
    Form = std::make_unique<clsZR3Form>();
    ASSERT_TRUE(Form->LoadXML(mdSamplePath(QStringLiteral("housing-typical.zr3"))));
    Document().takeAsClean();
    clsHistory &own = Document().history;
    RunStep(QStringLiteral("Client Details"), [] { Form->ClientDetails.Surname = QStringLiteral("Hartwell-Brown"); });
    EXPECT_TRUE(Document().isDirty());
    own.undo();
    EXPECT_FALSE(Document().isDirty());
    own.redo();
    EXPECT_TRUE(Document().isDirty());
    own.clear();
    Form.reset();
}

TEST_F(History, AnUndoneNewFeeEarnerLeavesTheMark)
{
    Form = std::make_unique<clsZR3Form>();
    Document().takeAsClean();
    clsHistory &own = Document().history;
    const QString before = Form->XMLOutput();
    RunStep(QStringLiteral("Add AB"), [] { Form->AddFeeEarner()->Reference = QStringLiteral("AB"); });
    EXPECT_EQ(QStringLiteral("ID1"), Form->FeeEarner(1)->UniqueID());
    own.undo();
    EXPECT_TRUE(Form->FeeEarnersCollection().empty());
    EXPECT_NE(before, Form->XMLOutput());
    EXPECT_EQ(mdTextThatStepsChange(clsZR3Form()), mdTextThatStepsChange(*Form));
    EXPECT_TRUE(Document().isDirty()) << "an identity is never given again";
    RunStep(QStringLiteral("Add CD"), [] { Form->AddFeeEarner(); });
    EXPECT_EQ(QStringLiteral("ID2"), Form->FeeEarner(1)->UniqueID());
    own.clear();
    Form.reset();
}

TEST_F(History, TheFirstItemOfAnEmptyClaimGoesAndComes)
{
    form = std::make_unique<clsZR3Form>();
    history.join();
    const QString before = mdTextThatStepsChange(*form);
    step("Add", [&] { form->AddDisbursement()->Amount = QStringLiteral("12.00"); });
    const QString after = mdTextThatStepsChange(*form);
    for (int round = 0; round < 3; ++round) {
        history.undo();
        EXPECT_EQ(before, mdTextThatStepsChange(*form));
        EXPECT_TRUE(form->DisbursementsCollection().empty());
        EXPECT_EQ(form->Disbursement(history.redo()->Index)->Amount(), QStringLiteral("12.00"));
        EXPECT_EQ(after, mdTextThatStepsChange(*form));
    }
}

TEST_F(History, WhatIsCountedAndRememberedIsNotTouched)
{
    step("Notes", [&] { form->Notes = QStringLiteral("one"); });
    form->TimeSpent = QStringLiteral("01:02:03");
    form->path = QStringLiteral("/a/b.zr3");
    form->ExportPath = QStringLiteral("/c");
    form->Version = QStringLiteral("9.9.9");
    form->DefaultFeeEarnerListIndex = 3;
    form->GenerateUniqueID();
    const QString kept = form->XMLOutput();
    history.undo();
    history.redo();
    EXPECT_EQ(kept, form->XMLOutput());
    EXPECT_EQ(1u, history.steps());
}

TEST_F(History, ANumberingWithoutAStepJoinsTheStepBefore)
{
    const QString before = form->XMLOutput();
    step("Notes", [&] { form->Notes = QStringLiteral("one"); });
    swapFirstTwo();
    history.join();
    const QString joined = form->XMLOutput();
    step("Notes again", [&] { form->Notes = QStringLiteral("two"); });
    EXPECT_EQ(2u, history.steps());
    history.undo();
    EXPECT_EQ(joined, form->XMLOutput());
    history.undo();
    EXPECT_EQ(before, form->XMLOutput());
    history.redo();
    EXPECT_EQ(joined, form->XMLOutput());
    EXPECT_TRUE(history.canRedo());
}

TEST_F(History, ANumberingBeforeTheFirstStepStays)
{
    swapFirstTwo();
    const QString numbered = form->XMLOutput();
    step("Notes", [&] { form->Notes = QStringLiteral("one"); });
    history.undo();
    EXPECT_EQ(numbered, form->XMLOutput());
    EXPECT_FALSE(history.canUndo());
}

TEST_F(History, AnElementThatIsThereOnlyWhenItIsSetComesAndGoes)
{
    const QString before = form->XMLOutput();
    const auto item = form->ScheduleOfTimeItem(1);
    step("Costs Limit", [&] { form->XMLNode().append_child("costslimit").text().set("12000.00"); });
    const QString after = form->XMLOutput();
    history.undo();
    EXPECT_EQ(before, form->XMLOutput());
    history.redo();
    EXPECT_EQ(after, form->XMLOutput());
    EXPECT_EQ(item, form->ScheduleOfTimeItem(1)) << "nothing is loaded anew for it";
}

TEST_F(History, WhatAnotherHandPutIntoTheTreeIsKept)
{
    pugi::xml_node list = form->XMLNode().child("disbursements");
    list.prepend_child(pugi::node_comment).set_value("first");
    pugi::xml_node odd = form->XMLNode().append_child("odd");
    odd.append_attribute("a").set_value("1");
    odd.append_child("b").append_child("c").text().set("x");
    odd.append_child(pugi::node_cdata).set_value("<raw>");
    history.join();
    const QString before = form->XMLOutput();
    step("Everything", [&] {
        form->XMLNode().remove_child("odd");
        form->XMLNode().child("disbursements").remove_child(form->XMLNode().child("disbursements").first_child());
        form->DeleteDisbursement(1);
        mdRenumber(form->DisbursementsCollection());
    });
    history.undo();
    EXPECT_EQ(before, form->XMLOutput());
    expectRecordsAgree();
}

TEST_F(History, AWholeListThatWasTakenOutComesBackWithItsRecords)
{
    const QString before = form->XMLOutput();
    const size_t count = form->DisbursementsCollection().size();
    ASSERT_LT(0u, count);
    step("Remove", [&] {
        while (!form->DisbursementsCollection().empty())
            form->DeleteDisbursement(1);
    });
    history.undo();
    EXPECT_EQ(before, form->XMLOutput());
    EXPECT_EQ(count, form->DisbursementsCollection().size());
    expectRecordsAgree();
}

TEST_F(History, ANewStepDropsThoseUndone)
{
    step("One", [&] { form->Notes = QStringLiteral("one"); });
    step("Two", [&] { form->Notes = QStringLiteral("two"); });
    history.undo();
    step("Three", [&] { form->Notes = QStringLiteral("three"); });
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(2u, history.steps());
    history.undo();
    EXPECT_EQ(QStringLiteral("one"), form->Notes());
}

TEST_F(History, AnActionInsideAnotherIsAStepAndNoneIsUndoneMeanwhile)
{
    step("Outer", [&] {
        step("Inner", [&] { form->Notes = QStringLiteral("inner"); });
        EXPECT_FALSE(history.canUndo());
        EXPECT_EQ(nullptr, history.undo());
        form->Notes = QStringLiteral("outer");
    });
    EXPECT_EQ(QStringLiteral("Outer"), history.undoName());
    history.undo();
    EXPECT_EQ(QStringLiteral("inner"), form->Notes());
    EXPECT_EQ(QStringLiteral("Inner"), history.undoName());
}

TEST_F(History, AnActionThatFailsLeavesNoStep)
{
    EXPECT_THROW(step("Fails",
                     [&] {
                         form->Notes = QStringLiteral("half");
                         throw clsRunTimeError(clsRunTimeError::TypeMismatch);
                     }),
        clsRunTimeError);
    EXPECT_FALSE(history.canUndo());
    step("Next", [&] { form->Notes = QStringLiteral("next"); });
    history.undo();
    EXPECT_EQ(QStringLiteral("half"), form->Notes());
}

TEST_F(History, AnotherClaimHasAHistoryOfItsOwn)
{
    step("Notes", [&] { form->Notes = QStringLiteral("one"); });
    form = std::make_unique<clsZR3Form>();
    EXPECT_FALSE(history.canUndo());
    const QString before = form->XMLOutput();
    EXPECT_EQ(nullptr, history.undo());
    EXPECT_EQ(before, form->XMLOutput());
    history.join();
    EXPECT_EQ(0u, history.steps());
    EXPECT_EQ(0u, history.bytes());
    form.reset();
    EXPECT_FALSE(history.canUndo());
    step("Nothing", [] {});
}

TEST_F(History, TellsEachStepUndoAndRedo)
{
    int told = 0;
    history.stepTaken = [&told] { ++told; };
    step("Notes", [&] { form->Notes = QStringLiteral("one"); });
    EXPECT_EQ(1, told);
    step("Nothing", [] {});
    history.join();
    EXPECT_EQ(1, told);
    history.undo();
    history.undo();
    EXPECT_EQ(2, told);
    history.redo();
    history.redo();
    EXPECT_EQ(3, told);
}

TEST_F(History, KeepsTwoHundredStepsAndNoMoreThanItsMemory)
{
    for (int n = 0; n < 200; ++n)
        step("Notes", [&] { form->Notes = QString::number(n); });
    EXPECT_EQ(200u, history.steps());
    // Each step stores the text before and after.
    const int length = int(clsHistory::MostBytes / 10);
    for (int n = 0; n < 12; ++n) {
        step("Long", [&] { form->Notes = QString(length, QChar(u'a' + n)); });
        ASSERT_GE(clsHistory::MostBytes, history.bytes());
    }
    EXPECT_EQ(4u, history.steps());
    while (history.canUndo())
        history.undo();
    EXPECT_EQ(QString(length, u'h'), form->Notes());
    step("Too long", [&] { form->Notes = QString(12 * length, u'z'); });
    EXPECT_EQ(0u, history.steps());
    EXPECT_EQ(0u, history.bytes());
}

TEST_F(History, FindsTheItemThatAStepIsAbout)
{
    step("Edit", [&] {
        form->ScheduleOfTimeItem(3)->Code = QStringLiteral("XYZ");
        swapFirstTwo();
    });
    EXPECT_EQ(form->ScheduleOfTimeItem(3).get(), history.undoItem()) << "and not one that was only renumbered";
    EXPECT_EQ(form->ScheduleOfTimeItem(3).get(), history.undo());
    step("Move", [&] {
        const int order = form->Disbursement(1)->OrderID();
        form->Disbursement(1)->OrderID = form->Disbursement(2)->OrderID();
        form->Disbursement(2)->OrderID = order;
    });
    EXPECT_EQ(form->Disbursement(1).get(), history.undoItem());
    step("Section", [&] { form->ClientDetails.Surname = QStringLiteral("x"); });
    EXPECT_EQ(nullptr, history.undoItem());
}
