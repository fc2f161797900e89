#include "shell/mdPageBoxes.h"

#include "base/mdProgramFolder.h"
#include "editors/mdFieldPlace.h"
#include "editors/mdListPlace.h"
#include "wordexport/clsForecast.h"
#include "wordexport/clsPrintedBoxes.h"
#include "wordexport/clsSheetPlaces.h"

#include <algorithm>
#include <cmath>

namespace {

using Sheet = clsForecast::Sheet;
using Box = clsForecast::Box;

/// Signs nearer to each other than this are merged.
constexpr double SignHeight = 14;
constexpr double HeadOfSheet = 14;
constexpr qsizetype MostLines = 8;

/// The target of an item in a list; item 0 means the list.
QString targetOf(const QString &list, int item)
{
    return QStringLiteral("%1:%2").arg(list).arg(item);
}

QString nameOf(const clsListPlace &place, int item)
{
    return item > 0 ? QStringLiteral("item %1 of %2").arg(item).arg(place.caption) : place.caption;
}

/// What happens to a text in print, in words.
QString whatHappens(const Box &box)
{
    switch (box.State) {
    case Box::Smaller: return QStringLiteral("printed at %1 points instead of %2").arg(box.PrintedSize).arg(box.Size);
    case Box::RunsOn: return QStringLiteral("runs on to another page");
    case Box::Cut: break;
    }
    return QStringLiteral("the rest is cut off");
}

clsPrintNote::clsSign signOf(Box::clsState state)
{
    switch (state) {
    case Box::Smaller: return clsPrintNote::Smaller;
    case Box::RunsOn: return clsPrintNote::RunsOn;
    case Box::Cut: break;
    }
    return clsPrintNote::Cut;
}

/// Collects the marks sheet by sheet.
class clsPageMarker {
public:
    clsPageMarker(const clsForecast &sheets, const QString &formType)
        : m_forecast(sheets)
        , m_printed(formType, TemplatesFolder())
        , m_places(TemplatesFolder())
    { }

    void mark(const Sheet &sheet, int paperPage)
    {
        m_sheet = &sheet;
        m_paperPage = paperPage;
        m_first = m_marks.boxes.size();
        m_rows.clear();
        // A row that has grown moves everything below it.
        m_isAsTemplate = sheet.PaperPages == 1
            && std::none_of(m_forecast.Boxes.begin(), m_forecast.Boxes.end(),
                [&](const Box &box) { return box.Sheet == sheet.Name && box.State == Box::RunsOn; });
        if (m_isAsTemplate) {
            addRows();
            // A continuation sheet repeats fields that the page's first sheet already has boxes for.
            if (sheet.Name == QStringLiteral("%1(1)").arg(sheet.Page))
                addFields();
        }
        for (const Box &box : m_forecast.Boxes)
            if (box.Sheet == sheet.Name)
                addSign(box);
        std::stable_sort(m_marks.boxes.begin() + qsizetype(m_first), m_marks.boxes.end(),
            [](const clsPageBox &a, const clsPageBox &b) {
                return std::pair(a.points.top(), a.points.left()) < std::pair(b.points.top(), b.points.left());
            });
    }

    clsPageMarks takeMarks() { return std::move(m_marks); }

private:
    void addRows()
    {
        for (const clsForecast::Grid &grid : m_sheet->Grids) {
            m_rows.push_back(m_places.rows(m_sheet->Template, grid.LinesAbove, int(grid.Items.size())));
            const auto list = mdListPlace(grid.List);
            for (size_t i = 0; list && i < m_rows.back().size(); ++i)
                if (const QRectF &row = m_rows.back()[i]; !row.isEmpty())
                    m_marks.boxes.push_back(
                        {m_paperPage, row, QStringLiteral("Open %1").arg(nameOf(*list, grid.Items[i])),
                            targetOf(grid.List, grid.Items[i])});
        }
    }

    void addFields()
    {
        const QHash<QString, QString> properties = m_printed.properties(m_sheet->Page);
        const clsSheetPlaces::clsPlaces &places = m_places.placeholders(m_sheet->Template);
        for (auto place = places.constBegin(); place != places.constEnd(); ++place)
            if (const auto field = mdFieldPlace(properties.value(place.key())))
                m_marks.boxes.push_back({m_paperPage, place->cell,
                    QStringLiteral("Open %1: %2").arg(field->section, field->caption), properties.value(place.key())});
    }

    void addSign(const Box &box)
    {
        const QRectF place = placeOf(box);
        const QString name = nameOfText(box);
        const QString words = name.left(1).toUpper() + name.mid(1) + QStringLiteral(": ") + whatHappens(box);
        const double left = place.isEmpty() ? 0 : place.left();
        const double top = place.isEmpty() ? HeadOfSheet : place.top() + std::min(place.height(), 2 * SignHeight) / 2;
        const auto same = std::find_if(m_marks.signs.begin(), m_marks.signs.end(), [&](const clsPageSign &sign) {
            return sign.page == m_paperPage && std::abs(sign.middle - top) < SignHeight;
        });
        if (same == m_marks.signs.end()) {
            m_marks.signs.push_back({m_paperPage, left, top, {signOf(box.State), words}});
        } else {
            same->note.sign = std::max(same->note.sign, signOf(box.State));
            if (same->note.words.count(u'\n') < MostLines)
                same->note.words += u'\n' + words;
        }
        // For keyboard users the box has the same text as the sign.
        const QString target = targetOfText(box);
        for (size_t i = m_first; i < m_marks.boxes.size(); ++i)
            if (m_marks.boxes[i].target == target)
                m_marks.boxes[i].words += QStringLiteral(" (") + whatHappens(box) + u')';
    }

    const clsForecast::Grid *gridOf(const Box &box) const
    {
        return box.Grid >= 0 && box.Grid < int(m_sheet->Grids.size()) ? &m_sheet->Grids[size_t(box.Grid)] : nullptr;
    }

    int itemOf(const Box &box) const
    {
        const clsForecast::Grid *grid = gridOf(box);
        return grid && box.Row <= int(grid->Items.size()) ? grid->Items[size_t(box.Row - 1)] : 0;
    }

    QString targetOfText(const Box &box) const
    {
        const clsForecast::Grid *grid = gridOf(box);
        return grid ? targetOf(grid->List, itemOf(box)) : box.Property;
    }

    QString nameOfText(const Box &box) const
    {
        if (const clsForecast::Grid *grid = gridOf(box))
            if (const auto list = mdListPlace(grid->List))
                return nameOf(*list, itemOf(box));
        const auto field = mdFieldPlace(box.Property);
        return field ? field->caption : QStringLiteral("a text");
    }

    /// Empty if unknown.
    QRectF placeOf(const Box &box)
    {
        if (!m_isAsTemplate)
            return {};
        if (!gridOf(box))
            return m_places.placeholders(m_sheet->Template).value(box.Placeholder).row;
        const std::vector<QRectF> &rows = m_rows[size_t(box.Grid)];
        return rows.empty() ? QRectF() : rows[std::min(size_t(box.Row), rows.size()) - 1];
    }

    const clsForecast &m_forecast;
    clsPrintedBoxes m_printed;
    clsSheetPlaces m_places;
    clsPageMarks m_marks;
    const Sheet *m_sheet = nullptr;
    int m_paperPage = 0;
    bool m_isAsTemplate = false; ///< the sheet has the layout of its template
    size_t m_first = 0; ///< index of the sheet's first box
    std::vector<std::vector<QRectF>> m_rows; ///< of the sheet's grids
};

} // namespace

clsPageMarks mdPageMarks(const clsForecast &sheets, const QString &formType, int pages)
{
    if (sheets.PaperPages() != pages)
        return {};
    clsPageMarker marker(sheets, formType);
    int paperPage = 0;
    for (const Sheet &sheet : sheets.Sheets) {
        marker.mark(sheet, paperPage);
        paperPage += sheet.PaperPages;
    }
    return marker.takeMarks();
}

bool mdFindTarget(const QString &target, clsTargetPlace &place)
{
    if (const auto list = mdListPlace(target.section(u':', 0, 0))) {
        place = {list->section, list->control, target.section(u':', 1).toInt()};
        return true;
    }
    if (const auto field = mdFieldPlace(target)) {
        place = {field->section, field->control, 0};
        return true;
    }
    return false;
}
