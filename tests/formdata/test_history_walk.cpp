// Random sequences of all kinds of changes to a claim, with undo and redo in between.

#include "tests/formdata/clsHistoryTest.h"
#include "tests/soak/clsDice.h"

#include <QCryptographicHash>

#include <random>
#include <vector>

namespace {

/// Makes any change that a user can make to a claim.
class clsWalker {
public:
    /// With `byOtherHands` it also changes the tree without the records, which isn't counted.
    clsWalker(clsZR3Form &form, quint64 seed, bool byOtherHands)
        : m_form(form)
        , m_dice(seed)
        , m_byOtherHands(byOtherHands)
    { }
    clsDice &dice() { return m_dice; }

    void change()
    {
        switch (m_dice.below(12)) {
        case 0:
        case 1: return editSection();
        case 2: return editClaim();
        case 3: return m_byOtherHands ? editTree() : editSection();
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
    /// Doesn't access the element, which would count as handed out.
    static bool has(const clsXMLRecord &record, const char *element)
    {
        const QString output = record.XMLOutput();
        const auto begins
            = [&](const char *end) { return output.contains(u'<' + QLatin1String(element) + QLatin1String(end)); };
        return begins(">") || begins("/>") || begins(" />");
    }
    void editFields(clsXMLRecord &record, int most)
    {
        for (int n = m_dice.from(1, most); n > 0; --n) {
            clsXMLField &field = *record.field(QString::fromLatin1(m_dice.oneOf(record.properties()).property->name));
            if (field.property().key || !has(record, field.property().element))
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
        mdRenumber(items);
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
    bool m_byOtherHands;
};

QByteArray fingerprint(const clsZR3Form &form)
{
    return QCryptographicHash::hash(mdTextThatStepsChange(form).toUtf8(), QCryptographicHash::Sha1);
}

/// The claim after each step, and the current position among them.
class HistoryWalk : public clsHistoryTest {
protected:
    static int steps()
    {
        // Each step compares the whole claim with a newly loaded one; tests/long/steps runs more of them.
#ifdef __SANITIZE_ADDRESS__
        constexpr int Short = 200;
#else
        constexpr int Short = 1500;
#endif
        const int told = qEnvironmentVariableIntValue("ZR3_WALK_STEPS");
        return told > 0 ? told : Short;
    }
    /// Makes a change, and rebuilds what a screen would rebuild after it.
    void goOn(clsWalker &walker)
    {
        step("Step", [&] {
            walker.change();
            form->RenderScheduleOfTimeItemsForExport();
            form->RenderAdditionalInformationItems();
            form->CreateFASCollections();
            form->SeparateCounselAndNonCounselDisbursements();
        });
        if (const QByteArray after = fingerprint(*form); after != m_states[m_at]) {
            m_states.resize(++m_at);
            m_states.push_back(after);
        }
        expectRecordsAgree();
    }
    /// Undoes or redoes that many steps, or as many as there are.
    void turn(bool back, int times)
    {
        for (; times > 0 && (back ? history.canUndo() : history.canRedo()); --times) {
            back ? history.undo() : history.redo();
            m_at += back ? size_t(-1) : 1;
            ++m_turned;
            ASSERT_EQ(m_states[m_at], fingerprint(*form));
            expectRecordsAgree();
        }
    }
    void walk(bool byOtherHands)
    {
        const quint64 told = qEnvironmentVariable("ZR3_WALK_SEED").toULongLong();
        const quint64 seed = told > 0 ? told : std::random_device()();
        SCOPED_TRACE("seed " + std::to_string(seed));
        clsWalker walker(*form, seed, byOtherHands);
        clsDice &dice = walker.dice();
        m_states = {fingerprint(*form)};
        for (int n = 0; n < steps(); ++n) {
            SCOPED_TRACE("step " + std::to_string(n));
            if (dice.chance(35))
                turn(dice.chance(60), dice.chance(5) ? 60 : dice.from(1, 4));
            else
                goOn(walker);
            if (HasFailure())
                return;
        }
        EXPECT_LT(steps() / 4, m_turned);
        while (history.canUndo())
            history.undo();
        EXPECT_EQ(m_states.front(), fingerprint(*form));
        expectRecordsAgree();
    }

private:
    std::vector<QByteArray> m_states;
    size_t m_at = 0;
    int m_turned = 0;
};

} // namespace

TEST_F(HistoryWalk, AlwaysComesToTheSameClaimAndTheSameLists)
{
    walk(true);
    EXPECT_FALSE(form->CountsChanges());
}

TEST_F(HistoryWalk, DoesSoWhereEachChangeIsCountedAndTheTreeIsComparedOnlyAfterOne)
{
    walk(false);
    EXPECT_TRUE(form->CountsChanges());
}
