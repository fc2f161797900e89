#pragma once

#include "costing/checking/clsCheckFacts.h"
#include "costing/checking/clsFinding.h"
#include "costing/clsBill.h"
#include "formdata/clsZR3Form.h"

#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

class clsClaimCheck;

/// A rule: one row of the one table of rules. The level is that of most of its findings; one of notes finds nothing
/// else.
struct clsCheckRule {
    const char *id;
    clsFindingLevel level;
    void (*find)(clsClaimCheck &check);
};

/// An item of the schedule that is on the bill.
struct clsBilledItem {
    const clsZR3ScheduleOfTimeItem *item;
    const clsSchedulePrice *price;
    int order;
    std::optional<QDate> date;

    bool hasTime() const { return !price->errorOf(clsSchedulePrice::TimeFigure); }
    /// The start of a sentence: "Item 14, 03/06/25,", or "Item 14" without a date.
    QString words() const;
};

/// Where to correct a finding.
struct clsFindingPlace {
    QString screen;
    QString list {};
    int item = 0;
    QString property {};
};

/// What a rule says of a finding.
struct clsToldFinding {
    clsFindingPlace place;
    QString text;
};

/// One look through a claim: what its rules share, and what they have found. It reads the claim and writes nothing.
class clsClaimCheck {
public:
    clsClaimCheck(const clsBill &bill, const clsCheckFacts &facts);

    clsFindings run(const clsCheckRule *begin, const clsCheckRule *end);
    /// The same, without what is said of the findings.
    clsFindingCounts count(const clsCheckRule *begin, const clsCheckRule *end);

    const clsZR3Form &form() const { return m_form; }
    const clsCheckFacts &facts() const { return m_facts; }
    const clsBill &bill() const { return m_bill; }
    bool isClaim1() const { return m_isClaim1; }
    bool isClaim1A() const { return m_isClaim1A; }
    /// Whether a page of the claim's form is printed; the page has a number on each form, 0 for none.
    bool isPrinted(int claim1Page, int claim1APage) const;

    /// The items on the bill, in order, without undecided ones.
    const std::vector<clsBilledItem> &billed();

    void add(const clsFindingPlace &place, const QString &text) { add(place, text, m_rule->level); }
    void add(const clsFindingPlace &place, const QString &text, clsFindingLevel level);
    /// Adds what `told` gives, which is not asked where findings are only counted.
    template <class Told> void add(Told told)
    {
        if (m_counts) {
            countOne(m_rule->level);
            return;
        }
        const clsToldFinding finding = told();
        add(finding.place, finding.text);
    }

    /// Visits each item of a list by order. Skips an item if something in it can't be read.
    template <class Items, class Look> static void each(const Items &items, Look look)
    {
        for (const auto *item : inOrder(items))
            unlessItFails([&] { look(*item, item->OrderID()); });
    }
    template <class Look> void eachBilled(Look look)
    {
        for (const clsBilledItem &item : billed())
            unlessItFails([&] { look(item); });
    }
    /// Runs a check; false if something in the claim can't be read.
    template <class Run> static bool unlessItFails(Run run)
    {
        try {
            run();
            return true;
        } catch (const clsRunTimeError &) {
            return false;
        }
    }

    // Uncomputable figures are reported once: the rules of amounts skip items with such a fault.
    void noteFault(const clsXMLRecord &item) { m_withFault.insert(&item); }
    bool hasFault(const clsXMLRecord &item) const { return m_withFault.contains(&item); }

private:
    template <class Items> static auto inOrder(const Items &items)
    {
        using Item = const typename Items::value_type::element_type;
        // Reads each order once; none if there is only one item.
        std::vector<std::pair<int, Item *>> byOrder;
        byOrder.reserve(items.size());
        for (const auto &item : items)
            byOrder.emplace_back(items.size() > 1 ? item->OrderID() : 0, item.get());
        const auto before = [](const auto &left, const auto &right) { return left.first < right.first; };
        if (!std::is_sorted(byOrder.begin(), byOrder.end(), before))
            std::stable_sort(byOrder.begin(), byOrder.end(), before);
        std::vector<Item *> result;
        result.reserve(byOrder.size());
        for (const auto &[order, item] : byOrder)
            result.push_back(item);
        return result;
    }

    void countOne(clsFindingLevel level);

    const clsBill &m_bill;
    const clsZR3Form &m_form;
    const clsCheckFacts &m_facts;
    bool m_isClaim1;
    bool m_isClaim1A;
    std::optional<std::vector<clsBilledItem>> m_billed;
    QSet<const clsXMLRecord *> m_withFault;
    const clsCheckRule *m_rule = nullptr;
    clsFindings m_findings;
    std::optional<clsFindingCounts> m_counts; ///< while findings are only counted
};

// The screens, by their tabs, and their lists.
inline constexpr char ScheduleScreen[] = "Schedule of Time";
inline constexpr char DisbursementsScreen[] = "Disbursements";
inline constexpr char CommunicationsScreen[] = "Communications";
inline constexpr char AdvocacyScreen[] = "Family Advocacy Scheme";
inline constexpr char RatesScreen[] = "Fee Earners / Rates";
inline constexpr char ActualCostsScreen[] = "Actual Costs";
inline constexpr char OutcomeScreen[] = "Outcome of Case";
inline constexpr char WorkScreen[] = "Details of Work";
