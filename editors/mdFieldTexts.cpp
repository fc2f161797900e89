#include "editors/mdFieldTexts.h"

#include "controls/oCheckBox.h"
#include "editors/mdScreenControls.h"

namespace {

bool isStored(const clsScreenRow &row)
{
    return row.kind != clsRowKind::Button && row.kind != clsRowKind::Items && !(row.flags & Unbound);
}

QString textOf(const clsScreenField &field)
{
    if (const auto *tick = qobject_cast<const oCheckBox *>(field.control))
        return tick->Checked() ? QStringLiteral("True") : QStringLiteral("False");
    return mdTextOf(*field.control);
}

} // namespace

QStringList mdFieldTexts(const std::vector<clsScreenField> &fields)
{
    QStringList texts;
    for (const clsScreenField &field : fields)
        texts << (isStored(*field.row) ? textOf(field) : QString());
    return texts;
}
