#include "wordexport/clsSheetPlaces.h"

#include "wordexport/clsSilentTrial.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/document/clsWordDocument.h"

namespace {

QRectF inPoints(const QRect &twips)
{
    constexpr double TwipsPerPoint = 20;
    return {QPointF(twips.topLeft()) / TwipsPerPoint, QSizeF(twips.size()) / TwipsPerPoint};
}

clsSheetPlaces::clsPlaces placesIn(clsMSWord &word)
{
    clsSheetPlaces::clsPlaces places;
    for (const clsPlaceholderPlace &place : word.openDocument()->placeholderPlaces())
        places.insert(place.placeholder, {inPoints(place.cell), inPoints(place.row)});
    return places;
}

QString markOfRow(int row)
{
    return QStringLiteral("{row %1}").arg(row);
}

} // namespace

bool clsSheetPlaces::open(clsMSWord &word, const QString &templateName) const
{
    word.OpenDocument(m_folder + u'/' + templateName + QStringLiteral(".doc"));
    return word.isOpen();
}

const clsSheetPlaces::clsPlaces &clsSheetPlaces::placeholders(const QString &templateName)
{
    auto known = m_placeholders.find(templateName);
    if (known == m_placeholders.end()) {
        known = m_placeholders.insert(templateName, {});
        const clsSilentTrial silent;
        clsMSWord word;
        if (open(word, templateName))
            known.value() = placesIn(word);
    }
    return known.value();
}

std::vector<QRectF> clsSheetPlaces::rows(const QString &templateName, int linesAbove, int count) const
{
    std::vector<QRectF> found;
    const clsSilentTrial silent;
    clsMSWord word;
    if (count == 0 || !open(word, templateName))
        return found;
    // Uses the export's own steps: a mark in each row shows where the row is printed.
    word.MoveCursorDown(linesAbove);
    for (int row = 1; row <= count; ++row) {
        word.SetText(markOfRow(row), false, false, true, false);
        word.MoveSursorToNextLine();
    }
    const clsPlaces places = placesIn(word);
    for (int row = 1; row <= count; ++row)
        found.push_back(places.value(markOfRow(row)).row);
    return found;
}
