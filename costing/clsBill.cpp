#include "costing/clsBill.h"

#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"

clsSchedulePrices &clsBill::prices() const
{
    if (!m_prices)
        m_prices.emplace(m_form);
    return *m_prices;
}

const clsColumnTotals &clsBill::columns() const
{
    if (!m_columns)
        m_columns = AllColumnTotals(m_form, prices());
    return *m_columns;
}

const clsFigure<Money> &clsBill::advocacy() const
{
    if (!m_advocacy)
        m_advocacy = ScheduleAdvocacy(m_form, prices());
    return *m_advocacy;
}

Money clsBill::communications() const
{
    if (!m_communications)
        m_communications = CommsTotal(m_form);
    return *m_communications;
}

void clsBill::forget()
{
    m_communications.reset();
    m_advocacy.reset();
    m_columns.reset();
    m_prices.reset();
}
