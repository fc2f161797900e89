#pragma once

#include <pugixml.hpp>

/// The cursor in the main story: a position, a selected range in one paragraph, or a whole table cell. The file
/// contains no pages or wrapped lines, so lines come from the text alone: a body paragraph is one line plus one for
/// each line break in it, and a table row has as many lines as the cell with the cursor.
class clsWordCursor {
public:
    /// `body` is the element that contains the story.
    explicit clsWordCursor(const pugi::xml_node &body);

    const pugi::xml_node &paragraph() const { return m_paragraph; }
    int from() const { return m_from; }
    int to() const { return m_to; }
    /// The selected cell; a null node if no whole cell is selected.
    const pugi::xml_node &selectedCell() const { return m_selectedCell; }

    void place(const pugi::xml_node &paragraph, int at) { select(paragraph, at, at); }
    void select(const pugi::xml_node &paragraph, int from, int to);

    void goToStart();
    /// To the end of the last paragraph of the body.
    void goToEnd();
    /// One line down; does nothing at the last line of the story.
    void lineDown();
    /// Moves one cell to the right, from the end of a row to the first cell of the next, and selects its content. Does
    /// nothing in the table's last cell; raises an error outside a table.
    void cellRight();
    /// Moves to the start of the row's first cell; does nothing outside a table.
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
    // The grid column kept when moving down, also through rows where a wide cell covers it; -1 for none.
    int m_column = -1;
};
