#include "formdata/clsHistory.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdRunStep.h"
#include "tests/formdata/clsFormTest.h"
#include "tests/soak/clsDice.h"
#include "tests/support/mdTestPaths.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <vector>

namespace {

constexpr const char *Kept[] = {"idcounter", "timespent", "defaultfeeearnerlistindex", "exportpath", "path", "version"};

/// The claim's text without what no step changes.
QString textOf(const clsZR3Form &form)
{
    QString text = form.XMLOutput();
    for (const char *name : Kept) {
        const QString tag = QString::fromLatin1(name);
        text.remove(QRegularExpression(QStringLiteral("<%1>[^<]*</%1>|<%1 ?/>").arg(tag)));
    }
    return text;
}

class History : public clsFormTest {
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
    /// Expects every list and derived list to equal those of a claim built afresh from the tree.
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
        forEachSection(*form, [&](const char *name, const clsZR3Section &section) {
            EXPECT_EQ(name, QString::fromLatin1(section.elementName()));
            EXPECT_EQ(XMLElementOutput(form->XMLNode().child(name)), section.XMLOutput());
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

/// Numbers the items as a list does when it is drawn.
template <class Collection> void renumber(const Collection &collection)
{
    Collection inOrder = collection;
    std::stable_sort(
        inOrder.begin(), inOrder.end(), [](const auto &a, const auto &b) { return a->OrderID() < b->OrderID(); });
    int order = 0;
    for (const auto &item : inOrder)
        item->OrderID = ++order;
}

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
        renumber(form->ScheduleOfTimeItemsCollection());
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
    EXPECT_EQ(textOf(clsZR3Form()), textOf(*Form));
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
    const QString before = textOf(*form);
    step("Add", [&] { form->AddDisbursement()->Amount = QStringLiteral("12.00"); });
    const QString after = textOf(*form);
    for (int round = 0; round < 3; ++round) {
        history.undo();
        EXPECT_EQ(before, textOf(*form));
        EXPECT_TRUE(form->DisbursementsCollection().empty());
        EXPECT_EQ(form->Disbursement(history.redo()->Index)->Amount(), QStringLiteral("12.00"));
        EXPECT_EQ(after, textOf(*form));
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
        renumber(form->DisbursementsCollection());
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

namespace {

/// Does random things that a user can do to a claim.
class clsWalker {
public:
    clsWalker(clsZR3Form &form, quint64 seed)
        : m_form(form)
        , m_dice(seed)
    { }
    clsDice &dice() { return m_dice; }

    void change()
    {
        switch (m_dice.below(12)) {
        case 0:
        case 1: return editSection();
        case 2: return editClaim();
        case 3: return editTree();
        default: return changeList();
        }
    }

private:
    QString text()
    {
        static const QString Texts[]
            = {QString(), QStringLiteral("x"), QStringLiteral("a & b <c>\r\n%41+"), QString(300, u'é')};
        return Texts[m_dice.below(4)] + (m_dice.chance(50) ? QString::number(m_dice.below(1000)) : QString());
    }
    void editFields(clsXMLRecord &record, int most)
    {
        for (int n = m_dice.from(1, most); n > 0; --n) {
            clsXMLField &field = *record.field(QString::fromLatin1(m_dice.oneOf(record.properties()).property->name));
            if (field.property().key || !record.XMLNode().child(field.property().element))
                continue;
            switch (field.property().kind) {
            case clsXMLKind::Text: field.writeText(text()); break;
            case clsXMLKind::Boolean: field.writeBoolean(m_dice.chance(50)); break;
            case clsXMLKind::Long: field.writeLong(m_dice.below(9)); break;
            }
        }
    }
    void editSection()
    {
        int chosen = m_dice.below(14);
        forEachSection(m_form, [&](const char *, clsZR3Section &section) {
            if (chosen-- == 0)
                editFields(section, 8);
        });
    }
    void editClaim()
    {
        m_form.FormType = m_dice.chance(50) ? QStringLiteral("Claim1") : QStringLiteral("Claim1A");
        m_form.ExcludeNonAdvocacy = m_dice.chance(50);
        m_form.Notes = text();
        m_form.TimeSpent = QString::number(m_dice.below(100));
        m_form.path = text();
    }
    void editTree()
    {
        pugi::xml_node root = m_form.XMLNode();
        if (m_dice.chance(50) && root.remove_child("costslimit"))
            return;
        if (!root.child("costslimit"))
            root.append_child("costslimit");
        root.child("costslimit").text().set(m_dice.below(5));
    }
    template <class Collection, class Add, class Remove> void changeOne(const Collection &items, Add add, Remove remove)
    {
        const int count = int(items.size());
        if (count < 3 || (count < 40 && m_dice.chance(30))) {
            for (int n = m_dice.chance(10) ? 8 : 1; n > 0; --n)
                editFields(*add(), 3);
        } else if (m_dice.chance(40)) {
            for (int n = m_dice.chance(10) ? count : 1; n > 0 && !items.empty(); --n)
                remove(m_dice.from(1, int(items.size())));
        } else if (m_dice.chance(30)) {
            const int first = m_dice.from(1, count);
            const int order = items[size_t(first - 1)]->OrderID();
            const auto &other = items[size_t(m_dice.below(count))];
            items[size_t(first - 1)]->OrderID = other->OrderID();
            other->OrderID = order;
        } else {
            editFields(*m_dice.oneOf(items), 4);
        }
        renumber(items);
    }
    void changeList()
    {
        clsZR3Form &form = m_form;
        const auto change = [&](const auto &items, auto add, auto remove) {
            changeOne(
                items, [&] { return (form.*add)(); }, [&](int index) { (form.*remove)(index); });
        };
        switch (m_dice.below(9)) {
        case 0:
            return change(
                form.FeeEarnerGroupsCollection(), &clsZR3Form::AddFeeEarnerGroup, &clsZR3Form::DeleteFeeEarnerGroup);
        case 1: return change(form.FeeEarnersCollection(), &clsZR3Form::AddFeeEarner, &clsZR3Form::DeleteFeeEarner);
        case 2: return change(form.CounselCollection(), &clsZR3Form::AddCounsel, &clsZR3Form::DeleteCounsel);
        case 3:
            return change(form.EnhancementsCollection(), &clsZR3Form::AddEnhancement, &clsZR3Form::DeleteEnhancement);
        case 4: return change(form.FASItemsCollection(), &clsZR3Form::AddFASItem, &clsZR3Form::DeleteFASItem);
        case 5:
            return change(
                form.ExpertInvoicesCollection(), &clsZR3Form::AddExpertInvoice, &clsZR3Form::DeleteExpertInvoice);
        case 6:
            return change(form.JointInstructionsCollection(), &clsZR3Form::AddJointInstruction,
                &clsZR3Form::DeleteJointInstruction);
        case 7:
            return change(
                form.DisbursementsCollection(), &clsZR3Form::AddDisbursement, &clsZR3Form::DeleteDisbursement);
        default:
            return change(form.ScheduleOfTimeItemsCollection(), &clsZR3Form::AddScheduleOfTimeItem,
                &clsZR3Form::DeleteScheduleOfTimeItem);
        }
    }

    clsZR3Form &m_form;
    clsDice m_dice;
};

QByteArray fingerprint(const clsZR3Form &form)
{
    return QCryptographicHash::hash(textOf(form).toUtf8(), QCryptographicHash::Sha1);
}

} // namespace

TEST_F(History, ARandomWalkAlwaysComesToTheSameClaim)
{
    const quint64 seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    clsWalker walker(*form, seed);
    std::vector<QByteArray> states {fingerprint(*form)};
    size_t at = 0;
    int undone = 0;
#ifdef __SANITIZE_ADDRESS__
    constexpr int Steps = 1500;
#else
    constexpr int Steps = 10000;
#endif
    for (int n = 0; n < Steps; ++n) {
        if (walker.dice().chance(35)) {
            const bool back = walker.dice().chance(60);
            const int before = undone;
            for (int times = walker.dice().chance(5) ? 60 : walker.dice().from(1, 4); times > 0; --times) {
                if (back ? !history.canUndo() : !history.canRedo())
                    break;
                back ? history.undo() : history.redo();
                at += back ? size_t(-1) : 1;
                ++undone;
                ASSERT_EQ(states[at], fingerprint(*form)) << "step " << n;
            }
            // This builds the claim afresh, which takes longer than all the rest.
            if (n % 10 == 0 && undone != before)
                expectRecordsAgree();
            continue;
        }
        const QByteArray before = states[at];
        step("Step", [&] { walker.change(); });
        const QByteArray after = fingerprint(*form);
        if (after == before)
            continue;
        states.resize(++at);
        states.push_back(after);
    }
    EXPECT_LT(Steps / 4, undone);
    while (history.canUndo())
        history.undo();
    EXPECT_EQ(states.front(), fingerprint(*form));
    expectRecordsAgree();
}
