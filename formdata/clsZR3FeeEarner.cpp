#include "formdata/clsZR3FeeEarner.h"

#include "base/mdRequired.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdReadDerived.h"

std::span<const clsXMLDerivedProperty> clsZR3FeeEarner::DerivedProperties()
{
    // clang-format off
    static constexpr clsXMLDerivedProperty table[] = {
        {"GroupReference", &mdReadDerived<&clsZR3FeeEarner::GroupReference>},
    };
    // clang-format on
    return table;
}

std::shared_ptr<clsZR3FeeEarnerGroup> clsZR3FeeEarner::Group() const
{
    return m_form->FeeEarnerGroupByUniqueID(GroupUniqueID());
}

QString clsZR3FeeEarner::GroupReference() const
{
    return mdRequired(Group()).Reference();
}
