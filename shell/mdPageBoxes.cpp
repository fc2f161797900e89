#include "shell/mdPageBoxes.h"

#include "base/mdProgramFolder.h"
#include "editors/mdFieldPlace.h"
#include "wordexport/clsForecast.h"
#include "wordexport/clsPrintedBoxes.h"

namespace {

void addBoxes(std::vector<clsPageBox> &boxes, const clsPrintedBoxes &printed, int page, int paperPage)
{
    for (const clsPrintedBoxes::clsPlace &place : printed.places(page))
        if (const auto field = mdFieldPlace(place.property))
            boxes.push_back({paperPage, place.cell, QStringLiteral("Open %1: %2").arg(field->section, field->caption),
                place.property});
}

} // namespace

std::vector<clsPageBox> mdPageBoxes(const clsForecast &sheets, const QString &formType, int pages)
{
    std::vector<clsPageBox> boxes;
    if (sheets.PaperPages() != pages)
        return boxes;
    const clsPrintedBoxes printed(formType, TemplatesFolder());
    int paperPage = 0;
    for (const clsForecast::Sheet &sheet : sheets.Sheets) {
        if (sheet.PaperPages == 1 && sheet.Name == QStringLiteral("%1(1)").arg(sheet.Page))
            addBoxes(boxes, printed, sheet.Page, paperPage);
        paperPage += sheet.PaperPages;
    }
    return boxes;
}
