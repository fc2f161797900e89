#include "preview/clsPreviewPainter.h"

#include "controls/mdTheme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

// At a desktop font of this size; everything grows with it.
constexpr double OrdinaryPoints = 10;
constexpr int Gap = 5;
constexpr int Padding = 6;
constexpr int NumbersColumn = 1;

/// The texts of a claim have the line ends of its file; the layout knows one sign for all of them.
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

/// Breaks a text into lines of a width; measuring and drawing go through here, so that they agree.
double layOut(QTextLayout &layout, int width, Qt::Alignment alignment)
{
    QTextOption option(alignment);
    // Nothing of a word without blanks is lost in a note; a caption is a word or two that are never broken.
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
            tallest = std::max(tallest, wrappedHeight(cell, placed.rect.width()) + m_gap);
    }
    return tallest;
}

int clsPreviewPainter::wrappedHeight(const clsPreviewCell &cell, int width) const
{
    QTextLayout layout(laidOut(cell.text), font(cell.bold, cell.underline));
    return int(std::ceil(layOut(layout, width, across(cell.alignment))));
}

clsPreviewPainter::clsPlaced clsPreviewPainter::place(int row, int column, const QRect &rect) const
{
    const clsPreviewCell &cell = m_model.cells.Cell(row, column);
    int padding = m_padding;
    if (m_model.cells.RowLook(row) == clsPreviewRowLook::Joined)
        padding = 0;
    else if (cell.alignment == clsGridAlignment::CentreWrapped)
        padding = 1;
    const QRect padded = rect.adjusted(padding, 0, -padding, 0);
    if (cell.text.isEmpty())
        return {padded, true};
    const int advance = QFontMetrics(font(cell.bold, cell.underline)).horizontalAdvance(cell.text);
    const bool oneLine = !hasLineEnd(cell.text);
    // A figure that fails to fit takes the padding too, before any of it is lost.
    if (!cell.wraps() && advance > padded.width())
        return {rect, oneLine && advance <= rect.width()};
    return {padded, oneLine && advance <= padded.width()};
}

void clsPreviewPainter::paintRow(QPainter &painter, int row, int top, const std::vector<int> &lefts) const
{
    const int height = m_model.cells.RowHeight(row);
    for (auto back = m_model.columnBacks.begin(); back != m_model.columnBacks.end(); ++back)
        if (back.key() < int(lefts.size()))
            painter.fillRect(QRect(lefts[size_t(back.key() - 1)], top,
                                 lefts[size_t(back.key())] - lefts[size_t(back.key() - 1)], height),
                back.value());
    if (m_model.cells.IsSpacer(row)) {
        paintSpacer(painter, row, top, lefts);
        return;
    }
    for (int column = 1; column < int(lefts.size()); ++column) {
        const int left = lefts[size_t(column - 1)];
        paintCell(painter, row, column, QRect(left, top, lefts[size_t(column)] - left, height));
    }
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
    painter.fillRect(
        QRect(lefts.front(), middle, lefts.back() - lefts.front(), 1), strong ? Theme::Edge : Theme::Hairline);
}

void clsPreviewPainter::paintCell(QPainter &painter, int row, int column, const QRect &rect) const
{
    const clsPreviewCell &cell = m_model.cells.Cell(row, column);
    if (cell.text.isEmpty())
        return;
    const QFont &own = font(cell.bold, cell.underline);
    const clsPlaced placed = place(row, column, rect);
    const Qt::Alignment alignment = across(cell.alignment);
    painter.setFont(own);
    if (!m_model.cells.WhyNot(row, column).isEmpty())
        painter.setPen(Theme::Red);
    else
        painter.setPen(column == NumbersColumn && !cell.bold ? Theme::Ink2 : Theme::Ink);
    // Captions stand in the middle of their row; the number of a tall note stands beside its first line.
    const bool middle = alignment == Qt::AlignHCenter;
    if (!placed.fits && cell.wraps()) {
        QTextLayout layout(laidOut(cell.text), own);
        const double height = layOut(layout, placed.rect.width(), alignment);
        const double above = middle ? (placed.rect.height() - height) / 2 : m_gap / 2;
        layout.draw(&painter, QPointF(placed.rect.left(), placed.rect.top() + above));
        return;
    }
    QRect line = placed.rect;
    if (!middle)
        line = QRect(line.left(), line.top() + m_gap / 2, line.width(), m_lineHeight);
    const QString shown
        = placed.fits ? cell.text : QFontMetrics(own).elidedText(cell.text, Qt::ElideRight, line.width());
    painter.drawText(line, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

bool clsPreviewPainter::isElided(int row, int column) const
{
    return !m_model.cells.Cell(row, column).wraps()
        && !place(row, column, QRect(0, 0, m_model.cells.ColumnWidth(column), itemHeight())).fits;
}
