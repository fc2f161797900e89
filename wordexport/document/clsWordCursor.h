#pragma once

#include <pugixml.hpp>

/// The cursor in the main story: a position, or a selected range of one paragraph, or the whole of a table cell.
/// Pages and wrapped lines do not exist in the file, so a line is what the text itself makes one: a body paragraph
/// is one line, plus one for each line break in it, and a table row has as many lines as the cell that the cursor
/// is in.
class clsWordCursor {
public:
    /// `body` is what holds the story.
    explicit clsWordCursor(const pugi::xml_node &body);

    const pugi::xml_node &paragraph() const { return m_paragraph; }
    int from() const { return m_from; }
    int to() const { return m_to; }
    /// The selected cell, a null node where no whole cell is selected.
    const pugi::xml_node &selectedCell() const { return m_selectedCell; }

    void place(const pugi::xml_node &paragraph, int at) { select(paragraph, at, at); }
    void select(const pugi::xml_node &paragraph, int from, int to);

    void goToStart();
    /// To the end of the last paragraph of the body.
    void goToEnd();
    /// One line down; at the last line of the story nothing happens.
    void lineDown();
    /// One cell to the right, from the end of a row to the first cell of the next, and selects what it holds. In
    /// the table's last cell nothing happens; outside a table it is an error.
    void cellRight();
    /// To the start of the row's first cell; outside a table nothing happens.
    void rowStart();

private:
    bool nextLineOfParagraph();
    pugi::xml_node paragraphBelow();
    void placeKeepingColumn(const pugi::xml_node &paragraph, int at);
    pugi::xml_node cellBelow(const pugi::xml_node &cell);
    pugi::xml_node enterBlock(pugi::xml_node block);
    pugi::xml_node enterContainer(pugi::xml_node container);
    void selectCell(const pugi::xml_node &cell);

    pugi::xml_node m_body;
    pugi::xml_node m_paragraph;
    int m_from = 0;
    int m_to = 0;
    pugi::xml_node m_selectedCell;
    // The grid column that moves down keep to, also through rows in which a wide cell covers it; -1 for none.
    int m_column = -1;
};
