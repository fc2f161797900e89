#pragma once

#include "editors/oFieldLabel.h"
#include "editors/oScreenFrame.h"

#include <map>

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;
class oTickLayout;

/// Turns the rows of a frame's table, or of one of its pages, into widgets, one after the other: it makes each control
/// and its caption and finds them a place. It lives while a frame is made.
class clsFrameRows {
public:
    /// `parts` takes what the rows give.
    clsFrameRows(oScreenFrame &frame, QBoxLayout &parts, const std::vector<clsScreenRow> &rows, int page = 0);

    /// With a number of columns, all ticks stand in a grid of so many.
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
    int m_spaceBefore = 0; ///< what the next row asks for above it, once there is one
    QHBoxLayout *m_cell = nullptr; ///< of the last field, for one that stands behind it
    bool m_cellHasTotal = false; ///< a total stands at the right end of the last field's line
    std::map<QString, QHBoxLayout *> m_tickCells; ///< by the ticks' names, for those that stand beside them
    std::vector<oFieldLabel *> m_secondColumn; ///< the captions of those
    oTickLayout *m_answers = nullptr; ///< of the question that is open
    oFieldLabel *m_question = nullptr; ///< the open question, until its first answer is known
    QString m_asked; ///< what the open question asks, which is read out with each of its answers
    bool m_lastWasTick = false;
};
