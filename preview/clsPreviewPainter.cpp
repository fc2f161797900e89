#include "preview/clsPreviewPainter.h"

#include "controls/mdLine.h"
#include "controls/mdTheme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

// For a desktop font of this size; scales with it.
constexpr double OrdinaryPoints = 10;
constexpr int Gap = 5;
constexpr int Padding = 6;
constexpr int NumbersColumn = 1;
/// Text too wide for its column is drawn smaller, down to this part of its size, before it is cut off.
constexpr double SmallestPart = 0.5;
constexpr double FontStep = 0.5;
/// The space kept on either side of a text that fills its column, so that neighbouring texts don't touch.
constexpr int LeastPadding = 2;

/// The texts of a claim have the line ends of its file; the layout requires its own separator.
QString laidOut(QString text)
{
    text.replace(QLatin1String("\r\n"), QString(QChar::LineSeparator));
    text.replace(u'\n', QChar::LineSeparator);
    text.replace(u'\r', QChar::LineSeparator);
    return text;
}

bool hasLineEnd(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c == u'\n' || c == u'\r'; });
}

Qt::Alignment across(clsGridAlignment alignment)
{
    return mdGridAlignment(alignment) & Qt::AlignHorizontal_Mask;
}

/// The width of the part that can't be broken: the text or, if it wraps between words, the longest word.
int unbrokenWidth(const clsPreviewCell &cell, const QFont &font)
{
    const QFontMetrics metrics(font);
    if (!cell.wraps())
        return metrics.horizontalAdvance(cell.text);
    int widest = 0;
    for (const QString &word : cell.text.split(u' '))
        widest = std::max(widest, metrics.horizontalAdvance(word));
    return widest;
}

/// Breaks a text into lines of a width; used for both measuring and drawing, so that they agree.
double layOut(QTextLayout &layout, int width, Qt::Alignment alignment)
{
    QTextOption option(alignment);
    // In notes even a word without blanks is broken, so that nothing is cut off; the one or two words of a caption are
    // never broken.
    option.setWrapMode(
        alignment == Qt::AlignHCenter ? QTextOption::WordWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    return height;
}

} // namespace

clsPreviewPainter::clsPreviewPainter(const clsPreviewModel &model)
    : m_model(model)
{
    takeFont();
}

void clsPreviewPainter::takeFont()
{
    const QFont plain = Theme::font(-1);
    const double growth = QApplication::font().pointSizeF() / OrdinaryPoints;
    m_gap = std::max(1, qRound(Gap * growth));
    m_padding = qRound(Padding * growth);
    m_lineHeight = 0;
    for (size_t i = 0; i < m_fonts.size(); ++i) {
        m_fonts[i] = plain;
        m_fonts[i].setBold(i % 2 != 0);
        m_fonts[i].setUnderline(i >= 2);
        m_lineHeight = std::max(m_lineHeight, QFontMetrics(m_fonts[i]).height());
    }
}

int clsPreviewPainter::heightOf(int row) const
{
    if (m_model.cells.IsSpacer(row))
        return spacerHeight();
    if (!m_model.cells.Wraps(row))
        return itemHeight();
    int tallest = itemHeight();
    for (int column = 1; column <= m_model.cells.Columns(); ++column) {
        const clsPreviewCell &cell = m_model.cells.Cell(row, column);
        const clsPlaced placed = place(row, column, QRect(0, 0, m_model.cells.ColumnWidth(column), 1));
        if (cell.wraps() && !placed.fits)
            tallest = std::max(tallest, wrappedHeight(cell, placed) + m_gap);
    }
    return tallest;
}

int clsPreviewPainter::wrappedHeight(const clsPreviewCell &cell, const clsPlaced &placed) const
{
    QTextLayout layout(laidOut(cell.text), placed.font);
    return int(std::ceil(layOut(layout, placed.rect.width(), across(cell.alignment))));
}

QFont clsPreviewPainter::fittingFont(const clsPreviewCell &cell, int room) const
{
    QFont result = font(cell.bold, cell.underline);
    const double smallest = SmallestPart * result.pointSizeF();
    while (unbrokenWidth(cell, result) > room && result.pointSizeF() - FontStep >= smallest)
        result.setPointSizeF(result.pointSizeF() - FontStep);
    return result;
}

clsPreviewPainter::clsPlaced clsPreviewPainter::place(int row, int column, const QRect &rect) const
{
    const clsPreviewCell &cell = m_model.cells.Cell(row, column);
    const QFont &own = font(cell.bold, cell.underline);
    const int advance = QFontMetrics(own).horizontalAdvance(cell.text);
    if (m_model.cells.RowLook(row) == clsPreviewRowLook::Joined) {
        // Extends into the neighbouring column, which is empty, so that the word is never broken.
        const int beyond = std::max(0, advance - rect.width());
        const bool right = across(cell.alignment) & Qt::AlignRight;
        return {rect.adjusted(right ? -beyond : 0, 0, right ? 0 : beyond, 0), true, own};
    }
    const int padding = cell.alignment == clsGridAlignment::CentreWrapped ? LeastPadding : m_padding;
    const QRect padded = rect.adjusted(padding, 0, -padding, 0);
    if (cell.text.isEmpty())
        return {padded, true, own};
    const bool oneLine = !hasLineEnd(cell.text);
    if (advance <= padded.width())
        return {padded, oneLine, own};
    if (cell.alignment == clsGridAlignment::CentreWrapped)
        return {padded, false, fittingFont(cell, padded.width())};
    if (cell.wraps())
        return {padded, false, own};
    // A figure that doesn't fit uses the padding too.
    const QRect whole = rect.adjusted(LeastPadding, 0, -LeastPadding, 0);
    const QFont smaller = fittingFont(cell, whole.width());
    return {whole, oneLine && QFontMetrics(smaller).horizontalAdvance(cell.text) <= whole.width(), smaller};
}

void clsPreviewPainter::paintRow(QPainter &painter, int row, int top, const std::vector<int> &lefts) const
{
    const int height = m_model.cells.RowHeight(row);
    for (auto back = m_model.columnBacks.begin(); back != m_model.columnBacks.end(); ++back)
        if (back.key() < int(lefts.size()))
            painter.fillRect(QRect(lefts[size_t(back.key() - 1)], top,
                                 lefts[size_t(back.key())] - lefts[size_t(back.key() - 1)], height),
                back.value());
    paintMark(painter, row, QRect(lefts.front(), top, lefts.back() - lefts.front(), height));
    if (row == m_tintedRow)
        painter.fillRect(QRect(lefts.front(), top, lefts.back() - lefts.front(), height), Theme::Hover);
    if (m_model.cells.IsSpacer(row)) {
        paintSpacer(painter, row, top, lefts);
        return;
    }
    for (int column = 1; column < int(lefts.size()); ++column) {
        const int left = lefts[size_t(column - 1)];
        paintCell(painter, row, column, QRect(left, top, lefts[size_t(column)] - left, height));
    }
}

/// The mark covers the row and half of the spacers above and below.
void clsPreviewPainter::paintMark(QPainter &painter, int row, const QRect &rect) const
{
    constexpr int BarWidth = 3;
    if (m_marked == 0 || std::abs(row - m_marked) > 1)
        return;
    QRect part = rect;
    if (row < m_marked)
        part.setTop(rect.top() + rect.height() / 2);
    else if (row > m_marked)
        part.setHeight(rect.height() / 2);
    painter.fillRect(part, Theme::Selected);
    part.setWidth(BarWidth);
    painter.fillRect(part, Theme::Purple);
}

void clsPreviewPainter::paintSpacer(QPainter &painter, int row, int top, const std::vector<int> &lefts) const
{
    using Look = clsPreviewRowLook;
    if (row == 1 || row == m_model.cells.Rows())
        return;
    const Look above = m_model.cells.RowLook(row - 1);
    const Look below = m_model.cells.RowLook(row + 1);
    if (above == Look::Joined)
        return;
    const bool strong = above == Look::Captions || below == Look::Totals;
    const int middle = top + m_model.cells.RowHeight(row) / 2;
    mdPaintLine(painter, QRect(lefts.front(), middle, lefts.back() - lefts.front(), 1), Qt::TopEdge,
        strong ? Theme::Edge : Theme::Hairline);
}

void clsPreviewPainter::paintCell(QPainter &painter, int row, int column, const QRect &rect) const
{
    const clsPreviewCell &cell = m_model.cells.Cell(row, column);
    if (cell.text.isEmpty())
        return;
    const clsPlaced placed = place(row, column, rect);
    const Qt::Alignment alignment = across(cell.alignment);
    painter.setFont(placed.font);
    if (!m_model.cells.WhyNot(row, column).isEmpty())
        painter.setPen(Theme::Red);
    else
        painter.setPen(column == NumbersColumn && !cell.bold ? Theme::Ink2 : Theme::Ink);
    // Captions are centred vertically in their row; the number of a tall note is aligned with its first line.
    const bool middle = alignment == Qt::AlignHCenter;
    if (!placed.fits && cell.wraps()) {
        QTextLayout layout(laidOut(cell.text), placed.font);
        const double height = layOut(layout, placed.rect.width(), alignment);
        const double above = middle ? (placed.rect.height() - height) / 2 : m_gap / 2;
        layout.draw(&painter, QPointF(placed.rect.left(), placed.rect.top() + above));
        return;
    }
    QRect line = placed.rect;
    if (!middle)
        line = QRect(line.left(), line.top() + m_gap / 2, line.width(), m_lineHeight);
    const QString shown
        = placed.fits ? cell.text : QFontMetrics(placed.font).elidedText(cell.text, Qt::ElideRight, line.width());
    painter.drawText(line, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

bool clsPreviewPainter::isElided(int row, int column) const
{
    return !m_model.cells.Cell(row, column).wraps()
        && !place(row, column, QRect(0, 0, m_model.cells.ColumnWidth(column), itemHeight())).fits;
}
