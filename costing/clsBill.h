#pragma once

#include "costing/clsColumnTotals.h"
#include "formdata/clsSchedulePrices.h"

/// A claim for whoever asks for several figures of its bill: each item is priced once, and what is added up of all
/// items is added up once, when it is first asked for. It is for one piece of work on a claim that stays as it is
/// meanwhile, since nothing in it follows a change. A single figure can be asked of the claim itself.
class clsBill {
public:
    clsBill(const clsZR3Form &form)
        : m_form(form)
    { }
    clsBill(clsBill &&) = default;

    const clsZR3Form &form() const { return m_form; }
    clsSchedulePrices &prices() const;
    const clsColumnTotals &columns() const;
    /// The claims of the schedule's advocacy items, not yet rounded.
    const clsFigure<Money> &advocacy() const;

    /// Begins anew, after the claim has changed.
    void forget();

private:
    const clsZR3Form &m_form;
    mutable std::optional<clsSchedulePrices> m_prices;
    mutable std::optional<clsColumnTotals> m_columns;
    mutable std::optional<clsFigure<Money>> m_advocacy;
};
