#pragma once

#include "preview/clsPreviewModel.h"

#include <QFont>
#include <QRect>

#include <array>

class QPainter;

/// Measures and draws the rows of the preview. Its fonts are created once and shared by all cells.
class clsPreviewPainter {
public:
    explicit clsPreviewPainter(const clsPreviewModel &model);

    /// Updates the fonts after the desktop's font has changed.
    void takeFont();

    const QFont &font(bool bold, bool underline) const { return m_fonts[size_t(bold) + 2 * size_t(underline)]; }
    int itemHeight() const { return m_lineHeight + m_gap; }
    int spacerHeight() const { return m_gap; }
    /// The tinted row; 0 for none.
    int tintedRow() const { return m_tintedRow; }
    void setTintedRow(int row) { m_tintedRow = row; }

    /// The height that a row needs: small for one without cells, otherwise that of its tallest text.
    int heightOf(int row) const;
    /// Draws a row; `lefts` are the left edges of its columns and the right edge of the last.
    void paintRow(QPainter &painter, int row, int top, const std::vector<int> &lefts) const;
    /// Marks a row; 0 for none.
    void setMarkedRow(int row) { m_marked = row; }
    /// True if a cell's text is elided for lack of room.
    bool isElided(int row, int column) const;

private:
    /// Where a cell's text is drawn, whether it fits there in one line, and its font.
    struct clsPlaced {
        QRect rect;
        bool fits;
        QFont font;
    };
    clsPlaced place(int row, int column, const QRect &rect) const;
    void paintMark(QPainter &painter, int row, const QRect &rect) const;
    void paintSpacer(QPainter &painter, int row, int top, const std::vector<int> &lefts) const;
    void paintCell(QPainter &painter, int row, int column, const QRect &rect) const;
    int wrappedHeight(const clsPreviewCell &cell, const clsPlaced &placed) const;
    /// The cell's font, reduced until its unbreakable text fits.
    QFont fittingFont(const clsPreviewCell &cell, int room) const;

    const clsPreviewModel &m_model;
    std::array<QFont, 4> m_fonts;
    int m_lineHeight = 0;
    int m_gap = 0;
    int m_padding = 0;
    int m_marked = 0;
    int m_tintedRow = 0;
};
