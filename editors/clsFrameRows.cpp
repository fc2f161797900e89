#include "editors/clsFrameRows.h"

#include "controls/mdCaption.h"
#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oBoxNote.h"
#include "controls/oCustomButton.h"
#include "controls/oFindLine.h"
#include "controls/oSGrid.h"
#include "editors/mdScreenControls.h"
#include "editors/oListTotal.h"
#include "editors/oTickLayout.h"

#include <QGridLayout>

namespace {

constexpr int NarrowestLabels = 120;
constexpr int TickRowGap = 6;
constexpr int AnswerGap = 6;
constexpr int BeneathGap = 6;
constexpr int SecondColumnGap = 80;
/// A list takes all spare height. Boxes take nearly all of it until they reach their maximum; the rest is then left
/// below the rows.
constexpr int ListStretch = 1;
constexpr int BoxStretch = 1000;
constexpr int BehindStretch = 1000;

/// Rows that take the spare height and, below their captions, the whole width.
bool growsWithWindow(const clsScreenRow &row)
{
    return row.kind == clsRowKind::Text && (row.flags & MultiLine);
}

} // namespace

clsFrameRows::clsFrameRows(oScreenFrame &frame, QBoxLayout &parts, const std::vector<clsScreenRow> &rows, int page)
    : m_frame(frame)
    , m_parts(parts)
    , m_rows(rows)
    , m_page(page)
{ }

void clsFrameRows::layOut(int tickColumns)
{
    beginPart(m_parts);
    if (tickColumns > 0) {
        m_answers = new oTickLayout(tickColumns);
        m_grid->addLayout(m_answers, m_line++, 0, 1, 2);
    }
    for (const clsScreenRow &row : m_rows) {
        switch (row.kind) {
        case clsRowKind::ColumnBreak:
            endPart();
            beginPart(m_parts);
            break;
        case clsRowKind::ColumnsEnd:
            endPart();
            beginPart(m_frame.belowColumns());
            break;
        case clsRowKind::Separator: addSeparator(); break;
        case clsRowKind::Question: addQuestion(row); break;
        default: addControl(row);
        }
    }
    endPart();
}

void clsFrameRows::beginPart(QBoxLayout &parts)
{
    m_grid = new QGridLayout;
    m_grid->setSpacing(0);
    m_grid->setHorizontalSpacing(Theme::Space12 - oFieldLabel::Gap);
    m_grid->setColumnStretch(1, 1);
    parts.addLayout(m_grid, 1);
    m_frame.m_grids.push_back(m_grid);
    m_line = 0;
    m_spaceBefore = 0;
    m_cell = nullptr;
    m_answers = nullptr;
    m_question = nullptr;
    m_asked.clear();
    m_lastWasTick = false;
}

void clsFrameRows::endPart()
{
    int stretch = 0;
    for (int line = 0; line < m_line; ++line)
        stretch = qMax(stretch, m_grid->rowStretch(line));
    if (stretch != ListStretch)
        m_grid->setRowStretch(m_line, 1);
    int captions = 0;
    for (const oFieldLabel *caption : m_secondColumn)
        captions = qMax(captions, caption->sizeHint().width());
    for (oFieldLabel *caption : m_secondColumn)
        caption->setMinimumWidth(captions);
    m_secondColumn.clear();
    m_frame.m_grows = m_frame.m_grows || stretch > 0;
}

void clsFrameRows::addSpace(int height)
{
    if (m_line > 0)
        m_grid->setRowMinimumHeight(m_line++, height);
}

void clsFrameRows::addSeparator()
{
    addSpace(Theme::Space16);
    auto *hairline = new QWidget(&m_frame);
    hairline->setFixedHeight(1);
    if (m_page == 0) {
        m_frame.m_hairlines.push_back(hairline);
    } else {
        // A page covers what the frame paints, so here the widget draws the hairline, as wide as the fields.
        QPalette palette = hairline->palette();
        palette.setColor(QPalette::Window, Theme::Hairline);
        hairline->setPalette(palette);
        hairline->setAutoFillBackground(true);
    }
    m_grid->addWidget(hairline, m_line++, 0, 1, 2);
    m_spaceBefore = Theme::Space16;
    m_answers = nullptr;
}

void clsFrameRows::addQuestion(const clsScreenRow &row)
{
    addSpace(Theme::Space16);
    m_question = label(row, oFieldLabel::Place::Above, nullptr);
    m_asked = mdSpokenCaption(m_question->Caption());
    m_grid->addWidget(m_question, m_line++, 0, 1, 2);
    addSpace(AnswerGap);
    m_answers = new oTickLayout;
    m_grid->addLayout(m_answers, m_line++, 0, 1, 2);
    m_spaceBefore = Theme::Space16;
}

void clsFrameRows::addControl(const clsScreenRow &row)
{
    QWidget *control = mdMakeControl(row, &m_frame);
    m_frame.m_fields.push_back({&row, control, nullptr, m_page});
    if (row.kind == clsRowKind::Items)
        addItems(row, control);
    else if (row.beside)
        addInSecondColumn(row, control);
    else if (isAnswer(row))
        addAnswer(row, control);
    else if (row.flags & SameRow && m_cell)
        addToRowBefore(row, control);
    else if (row.flags & NoCaption || row.kind == clsRowKind::Button)
        addBelowCaption(row, control, false);
    else if (standsAbove(row))
        addBelowCaption(row, control, true);
    else
        addBesideCaption(row, control);
    if (row.behind)
        addBehind(row);
    if (row.beneath) {
        addSpace(BeneathGap);
        m_grid->addWidget(row.beneath(&m_frame), m_line++, 1);
    }
    if (row.flags & NoteBeneath) {
        oBoxNote::PutBeneath(*control);
        addSpace(oBoxNote::lineBeneath());
    }
}

/// Adds a widget with all the width that the stretch at the end would get.
void clsFrameRows::addBehind(const clsScreenRow &row)
{
    m_cell->insertSpacing(m_cell->count() - 1, Theme::Space12);
    m_cell->insertWidget(m_cell->count() - 1, row.behind(&m_frame), BehindStretch);
}

void clsFrameRows::addAnswer(const clsScreenRow &row, QWidget *control)
{
    oFieldLabel *caption = label(row, oFieldLabel::Place::Answer, control);
    m_answers->addTick(caption, control);
    control->setAccessibleDescription(m_asked);
    if (!m_question)
        return;
    // The question's letter leads to its first answer without ticking it.
    m_question->setBuddy(control);
    m_question->setTicks(false);
    m_question = nullptr;
}

void clsFrameRows::addToRowBefore(const clsScreenRow &row, QWidget *control)
{
    // Before the stretch at the end, and before a total after that.
    int place = m_cell->count() - (m_cellHasTotal ? 2 : 1);
    m_cell->insertSpacing(place++, followsButton(row) ? Theme::Space8 : Theme::Space24);
    if (row.kind != clsRowKind::Button && !(row.flags & NoCaption)) {
        oFieldLabel *caption = label(row, oFieldLabel::Place::Beside, control);
        if (m_cellHasTotal)
            caption->setOneLine();
        m_cell->insertWidget(place++, caption);
    }
    m_cell->insertWidget(place, control);
    m_lastWasTick = false;
}

void clsFrameRows::addBelowCaption(const clsScreenRow &row, QWidget *control, bool captioned)
{
    m_answers = nullptr;
    if (captioned) {
        addSpace(m_spaceBefore ? m_spaceBefore : int(Theme::Space16));
        m_grid->addWidget(label(row, oFieldLabel::Place::Above, control), m_line++, 0, 1, 2);
        addSpace(AnswerGap);
    } else {
        addSpace(m_spaceBefore ? m_spaceBefore : int(Theme::Space8));
    }
    const bool grows = growsWithWindow(row);
    m_grid->addLayout(cell(control, grows), m_line, 0, 1, 2);
    m_grid->setRowStretch(m_line++, grows ? BoxStretch : 0);
    m_spaceBefore = captioned ? int(Theme::Space16) : 0;
    m_lastWasTick = false;
}

void clsFrameRows::addBesideCaption(const clsScreenRow &row, QWidget *control)
{
    m_answers = nullptr;
    const bool tick = row.kind == clsRowKind::Tick;
    addSpace(m_spaceBefore ? m_spaceBefore : tick && m_lastWasTick ? TickRowGap : int(Theme::Space8));
    oFieldLabel *caption = label(row, oFieldLabel::Place::Beside, control);
    if (const auto *box = qobject_cast<oAllPurposeBox *>(control); box && box->MultiLine())
        caption->setTopOfFirstLine(box->topOfFirstLine());
    const int narrowest = Theme::scaled(NarrowestLabels) + oFieldLabel::Gap;
    const int wanted = qBound(narrowest, caption->sizeHint().width(), oFieldLabel::WidestBeside());
    m_frame.m_labelColumn = qMax(m_frame.m_labelColumn, wanted);
    m_grid->addWidget(caption, m_line, 0);
    m_grid->addLayout(cell(control, false), m_line, 1);
    if (tick) {
        m_grid->setRowMinimumHeight(m_line, Theme::scaled(Theme::Space24));
        m_tickCells[control->objectName()] = m_cell;
    }
    m_grid->setRowStretch(m_line++, growsWithWindow(row) ? BoxStretch : 0);
    m_spaceBefore = 0;
    m_lastWasTick = tick;
}

/// A grid fills the frame; its "Add" and total are in a line below.
void clsFrameRows::addItems(const clsScreenRow &row, QWidget *grid)
{
    m_answers = nullptr;
    addSpace(m_spaceBefore ? m_spaceBefore : int(Theme::Space8));
    auto *find = new oFindLine(static_cast<oSGrid &>(*grid), &m_frame);
    find->setObjectName(grid->objectName() + QStringLiteral("Find"));
    m_grid->addWidget(find, m_line++, 0, 1, 2);
    m_grid->addLayout(cell(grid, true), m_line, 0, 1, 2);
    m_grid->setRowStretch(m_line++, ListStretch);
    m_frame.m_grows = true;
    m_spaceBefore = 0;
    m_lastWasTick = false;
    if (!row.items->add && !row.items->total)
        return;
    addSpace(row.items->add ? Theme::Space12 : Theme::Space8);
    m_cell = new QHBoxLayout;
    m_cell->setSpacing(0);
    m_cellHasTotal = row.items->total;
    if (row.items->add) {
        auto *add = mdMakeAddButton(row, &m_frame);
        m_frame.m_fields.push_back({&row, add, nullptr, m_page});
        m_cell->addWidget(add);
    }
    m_cell->addStretch(1);
    if (row.items->total) {
        auto &list = static_cast<oSGrid &>(*grid);
        auto *total = new oListTotal(row.items->total, row.items->sum, list, &m_frame);
        total->setObjectName(grid->objectName() + QStringLiteral("Total"));
        total->setContentsMargins(0, 0, list.roomForArrows(), 0); // ends where the rows end
        m_cell->addWidget(total);
    }
    m_grid->addLayout(m_cell, m_line++, 0, 1, 2);
}

/// The captions of the second column are right-aligned, so that their ticks line up.
void clsFrameRows::addInSecondColumn(const clsScreenRow &row, QWidget *tick)
{
    QHBoxLayout *line = m_tickCells.at(QString::fromUtf8(row.beside));
    oFieldLabel *caption = label(row, oFieldLabel::Place::Beside, tick);
    m_secondColumn.push_back(caption);
    int place = line->count() - 1;
    line->insertSpacing(place++, Theme::scaled(SecondColumnGap));
    line->insertWidget(place++, caption);
    line->insertWidget(place, tick);
}

oFieldLabel *clsFrameRows::label(const clsScreenRow &row, oFieldLabel::Place place, QWidget *control)
{
    auto *result = new oFieldLabel(QString::fromUtf8(row.caption), place, &m_frame);
    m_frame.m_labels.push_back(result);
    if (!control)
        return result;
    result->setField(control);
    m_frame.m_fields.back().label = result;
    return result;
}

/// Places a field at the left with its preferred width, or makes it fill the frame.
QHBoxLayout *clsFrameRows::cell(QWidget *control, bool wholeWidth)
{
    m_cell = new QHBoxLayout;
    m_cellHasTotal = false;
    m_cell->setSpacing(0);
    m_cell->addWidget(control, wholeWidth ? 1 : 0);
    m_cell->addStretch(wholeWidth ? 0 : 1);
    return m_cell;
}

/// Whether a caption is too wide for the label column and goes above its field. A tick's caption is wrapped beside it
/// instead, because a tick alone on a line would look lost.
bool clsFrameRows::standsAbove(const clsScreenRow &row) const
{
    const oFieldLabel beside(QString::fromUtf8(row.caption), oFieldLabel::Place::Beside, &m_frame);
    return row.flags & CaptionAbove || (row.kind != clsRowKind::Tick && beside.wordWrap());
}

/// Whether a button follows a button on the same line.
bool clsFrameRows::followsButton(const clsScreenRow &row) const
{
    const clsScreenField &before = *(m_frame.m_fields.end() - 2);
    return row.kind == clsRowKind::Button && before.row->kind == clsRowKind::Button;
}

bool clsFrameRows::isAnswer(const clsScreenRow &row) const
{
    return m_answers && row.kind == clsRowKind::Tick;
}
