#include "wordexport/document/mdWordPlaces.h"

#include "wordexport/document/clsWordCellText.h"
#include "wordexport/document/clsWordTableShape.h"
#include "wordexport/document/mdWordXml.h"

#include <QRegularExpression>

#include <numeric>

using pugi::xml_node;

namespace {

QString textOf(const xml_node &cell)
{
    QString text;
    for (const auto &found : cell.select_nodes(".//w:t"))
        text += QString::fromUtf8(found.node().text().get());
    return text;
}

class clsPlaceFinder {
public:
    clsPlaceFinder(const xml_node &section, const clsWordLooks &looks)
        : m_looks(looks)
        , m_left(section.child("w:pgMar").attribute("w:left").as_int())
        , m_width(section.child("w:pgSz").attribute("w:w").as_int() - m_left
              - section.child("w:pgMar").attribute("w:right").as_int())
        , m_top(std::abs(section.child("w:pgMar").attribute("w:top").as_int()))
    { }

    void passParagraph(const xml_node &paragraph)
    {
        clsWordTyped none;
        const std::vector<int> lines
            = clsWordCellText::ofParagraph(paragraph, {m_width, {}}, m_looks, none).lineHeights();
        m_top += std::accumulate(lines.begin(), lines.end(), 0);
    }

    // False if the places below can't be determined.
    bool passTable(const xml_node &table)
    {
        std::vector<int> edges = {m_left + table.child("w:tblPr").child("w:tblInd").attribute("w:w").as_int()};
        for (const xml_node &column : table.child("w:tblGrid").children("w:gridCol"))
            edges.push_back(edges.back() + column.attribute("w:w").as_int());
        for (xml_node row = WordXml::firstItem(table, WordXml::isRow); row;
             row = WordXml::nextItem(row, WordXml::isRow)) {
            if (!clsWordTableShape::isExact(row))
                return false;
            noteCells(row, edges);
            m_top += clsWordTableShape::heightSaidBy(row);
        }
        return true;
    }

    std::vector<clsPlaceholderPlace> places;

private:
    void noteCells(const xml_node &row, const std::vector<int> &edges)
    {
        static const QRegularExpression placeholder(QStringLiteral("\\{[^{}]+\\}"));
        const int last = int(edges.size()) - 1;
        const QRect whole(edges.front(), m_top, edges.back() - edges.front(), clsWordTableShape::heightSaidBy(row));
        int column = clsWordTableShape::firstColumnOf(row);
        for (xml_node cell = WordXml::firstItem(row, WordXml::isCell); cell;
             cell = WordXml::nextItem(cell, WordXml::isCell)) {
            const int next = column + clsWordTableShape::spanOf(cell);
            if (next <= last) {
                const QRect place(edges[size_t(column)], m_top, edges[size_t(next)] - edges[size_t(column)],
                    heightOf(row, cell, column));
                for (auto found = placeholder.globalMatch(textOf(cell)); found.hasNext();)
                    places.push_back({found.next().captured(), place, whole});
            }
            column = next;
        }
    }

    static int heightOf(xml_node row, const xml_node &cell, int column)
    {
        const xml_node last = clsWordTableShape::lastRowOf(row, cell, column);
        int height = clsWordTableShape::heightSaidBy(row);
        while (row != last) {
            row = WordXml::nextItem(row, WordXml::isRow);
            height += clsWordTableShape::heightSaidBy(row);
        }
        return height;
    }

    const clsWordLooks &m_looks;
    int m_left;
    int m_width;
    int m_top;
};

} // namespace

std::vector<clsPlaceholderPlace> mdPlaceholderPlaces(const xml_node &body, const clsWordLooks &looks)
{
    clsPlaceFinder finder(body.child("w:sectPr"), looks);
    for (xml_node block = WordXml::firstItem(body, WordXml::isBlock); block;
         block = WordXml::nextItem(block, WordXml::isBlock)) {
        if (!WordXml::is(block, "w:tbl"))
            finder.passParagraph(block);
        else if (!finder.passTable(block))
            break;
    }
    return finder.places;
}
