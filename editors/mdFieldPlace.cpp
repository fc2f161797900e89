#include "editors/mdFieldPlace.h"

#include "controls/mdCaption.h"
#include "editors/mdScreenControls.h"
#include "editors/mdSections.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdClaimLists.h"
#include "formdata/mdGlobals.h"

namespace {

/// Whether a tab's screen edits the properties of that record; the claim's own are on several screens.
bool isScreenOf(const QString &tab, const QString &record)
{
    if (!record.isEmpty())
        return tab == mdTabOfSection(record);
    const clsScreen &screen = *mdScreenOf(tab);
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
        if (!isScreenOf(section, property.left(qMax<qsizetype>(dot, 0))))
            continue;
        if (const clsScreenRow *row = rowOf(*mdScreenOf(section), member))
            return clsFieldPlace {section, QString::fromUtf8(row->control),
                mdSpokenCaption(QString::fromUtf8(row->spoken ? row->spoken : row->caption))};
    }
    return {};
}
