#include "editors/mdFieldPlace.h"

#include "controls/mdCaption.h"
#include "editors/mdScreenControls.h"
#include "editors/mdSections.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

/// Whether a screen keeps the properties of that record: a section of the claim bears the record's name, and the
/// claim's own properties stand on screens of several names.
bool isScreenOf(const clsScreen &screen, const QString &record)
{
    if (!record.isEmpty())
        return QLatin1String(screen.name) == QStringLiteral("frm") + record;
    return screen.record && Form && screen.record() == Form.get();
}

const clsScreenRow *rowIn(const std::vector<clsScreenRow> &rows, const QString &member)
{
    for (const clsScreenRow &row : rows)
        if (mdIsControl(row) && !(row.flags & Unbound) && mdMemberOf(row) == member)
            return &row;
    return nullptr;
}

const clsScreenRow *rowOf(const clsScreen &screen, const QString &member)
{
    for (const clsScreenFrame &frame : screen.frames) {
        if (const clsScreenRow *row = rowIn(frame.rows, member))
            return row;
        for (const clsScreenPage &page : frame.pages)
            if (const clsScreenRow *row = rowIn(page.rows, member))
                return row;
    }
    return nullptr;
}

} // namespace

std::optional<clsFieldPlace> mdFieldPlace(const QString &property)
{
    const qsizetype dot = property.indexOf(u'.');
    const QString member = property.mid(dot + 1);
    for (const QString &section : mdSectionTexts()) {
        const clsScreen &screen = *mdScreenOf(section);
        if (!isScreenOf(screen, property.left(qMax<qsizetype>(dot, 0))))
            continue;
        if (const clsScreenRow *row = rowOf(screen, member))
            return clsFieldPlace {section, QString::fromUtf8(row->control),
                mdSpokenCaption(QString::fromUtf8(row->spoken ? row->spoken : row->caption))};
    }
    return {};
}
