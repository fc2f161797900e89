#include "editors/mdEditedForm.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <utility>

namespace {

// The tables of the screens are static, and which form they show is known only while a window is open.
clsZR3Form *inPlaceOfClaim = nullptr;

} // namespace

clsZR3Form &mdEditedForm()
{
    return inPlaceOfClaim ? *inPlaceOfClaim : *Form;
}

clsEditedFormScope::clsEditedFormScope(clsZR3Form &form)
    : m_before(std::exchange(inPlaceOfClaim, &form))
{ }

clsEditedFormScope::~clsEditedFormScope()
{
    inPlaceOfClaim = m_before;
}
