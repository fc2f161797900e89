#include "formdata/mdUniqueIDInUseInForm.h"

#include "formdata/clsZR3Form.h"

bool UniqueIDInUseInForm(const clsZR3Form &form, const QString &uniqueID)
{
    return form.XMLOutput().count(u'>' + uniqueID + u'<', Qt::CaseSensitive) >= 2;
}
