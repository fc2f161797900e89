#pragma once

#include "formdata/clsZR3Form.h"

/// Which items of the schedule are on the bill: all but the non-advocacy items of a `Claim1A` that leaves them out.
/// Reads the claim's own settings once, at the first item; use one object for a single loop over the items.
class clsBillFilter {
public:
    explicit clsBillFilter(const clsZR3Form &form)
        : m_form(form)
    { }

    bool operator()(const clsZR3ScheduleOfTimeItem &item)
    {
        if (m_items == Items::Unread)
            m_items = m_form.FormType() == QLatin1String("Claim1") || !m_form.ExcludeNonAdvocacy() ? Items::All
                                                                                                   : Items::Advocacy;
        return m_items == Items::All || item.Advocacy();
    }

private:
    enum class Items { Unread, All, Advocacy };

    const clsZR3Form &m_form;
    Items m_items = Items::Unread;
};
