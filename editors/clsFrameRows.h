#pragma once

#include "editors/oFieldLabel.h"
#include "editors/oScreenFrame.h"

#include <map>

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;
class oTickLayout;

/// Creates the widgets for the rows of a frame's table, or of one of its pages, with their captions, and lays them out.
/// Exists only while a frame is built.
class clsFrameRows {
public:
    /// The rows are added to `parts`.
    clsFrameRows(oScreenFrame &frame, QBoxLayout &parts, const std::vector<clsScreenRow> &rows, int page = 0);

    /// If a number of columns is given, all ticks are arranged in a grid of that many.
    void layOut(int tickColumns = 0);

private:
    void beginPart(QBoxLayout &parts);
    void endPart();
    void addSpace(int height);
    void addSeparator();
    void addQuestion(const clsScreenRow &row);
    void addControl(const clsScreenRow &row);
    void addBehind(const clsScreenRow &row);
    void addAnswer(const clsScreenRow &row, QWidget *control);
    void addToRowBefore(const clsScreenRow &row, QWidget *control);
    void addBelowCaption(const clsScreenRow &row, QWidget *control, bool captioned);
    void addBesideCaption(const clsScreenRow &row, QWidget *control);
    void addItems(const clsScreenRow &row, QWidget *grid);
    void addInSecondColumn(const clsScreenRow &row, QWidget *tick);

    oFieldLabel *label(const clsScreenRow &row, oFieldLabel::Place place, QWidget *control);
    QHBoxLayout *cell(QWidget *control, bool wholeWidth);
    bool standsAbove(const clsScreenRow &row) const;
    bool followsButton(const clsScreenRow &row) const;
    bool isAnswer(const clsScreenRow &row) const;

    oScreenFrame &m_frame;
    QBoxLayout &m_parts;
    const std::vector<clsScreenRow> &m_rows;
    const int m_page;
    QGridLayout *m_grid = nullptr; ///< the part being filled: labels in column 0, fields in column 1
    int m_line = 0;
    int m_spaceBefore = 0; ///< spacing requested by the next row, above it
    QHBoxLayout *m_cell = nullptr; ///< of the last field, for a field to its right
    bool m_cellHasTotal = false; ///< the last field's line ends with a total
    std::map<QString, QHBoxLayout *> m_tickCells; ///< by the ticks' names, for fields beside them
    std::vector<oFieldLabel *> m_secondColumn; ///< captions of those fields
    oTickLayout *m_answers = nullptr; ///< of the question that is open
    oFieldLabel *m_question = nullptr; ///< the open question, until its first answer has been created
    QString m_asked; ///< text of the open question, read out with each of its answers
    bool m_lastWasTick = false;
};
