#pragma once

#include "costing/clsColumnTotals.h"
#include "formdata/clsSchedulePrices.h"

/// The figures of a claim's bill. Each item is priced once and each sum over the items is computed once, on first use.
/// The figures do not follow changes: the claim must not change while this object is in use. For a single figure, use
/// the claim itself.
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

    /// The total of the letters and calls.
    Money communications() const;

    /// Forgets all cached figures. Call when the claim has changed.
    void forget();

private:
    const clsZR3Form &m_form;
    mutable std::optional<clsSchedulePrices> m_prices;
    mutable std::optional<clsColumnTotals> m_columns;
    mutable std::optional<clsFigure<Money>> m_advocacy;
    mutable std::optional<Money> m_communications; ///< not set if it failed, so that it is computed again
};
