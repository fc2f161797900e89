#include "costing/clsZR3FeeEarner.h"

#include "formdata/clsZR3Form.h"
#include "shell/mdExisting.h"

std::shared_ptr<clsZR3FeeEarnerGroup> clsZR3FeeEarner::Group() const
{
    return m_form->FeeEarnerGroupByUniqueID(GroupUniqueID());
}

QString clsZR3FeeEarner::GroupReference() const
{
    return mdExisting(Group()).Reference();
}
