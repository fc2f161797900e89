#include "editors/clsFrameRows.h"

#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "editors/mdScreenControls.h"
#include "editors/oTickLayout.h"

#include <QGridLayout>

namespace {

constexpr int NarrowestLabels = 120;
constexpr int TickRowGap = 6;
constexpr int AnswerGap = 6;

/// The rows that take whatever height is left over.
bool growsWithWindow(const clsScreenRow &row)
{
    return row.kind == clsRowKind::Other ? row.flags & MultiLine
                                         : row.kind == clsRowKind::Text && (row.flags & MultiLine);
}

} // namespace

clsFrameRows::clsFrameRows(oScreenFrame &frame, const clsScreenFrame &table)
    : m_frame(frame)
    , m_table(table)
{ }

void clsFrameRows::layOut()
{
    beginPart();
    if (m_table.tickColumns > 0) {
        m_answers = new oTickLayout(m_table.tickColumns);
        m_grid->addLayout(m_answers, m_line++, 0, 1, 2);
    }
    for (const clsScreenRow &row : m_table.rows) {
        switch (row.kind) {
        case clsRowKind::ColumnBreak:
            endPart();
            beginPart();
            break;
        case clsRowKind::Separator: addSeparator(); break;
        case clsRowKind::Question: addQuestion(row); break;
        default: addControl(row);
        }
    }
    endPart();
    m_frame.setLabelColumn(m_frame.m_labelColumn);
}

void clsFrameRows::beginPart()
{
    m_grid = new QGridLayout;
    m_grid->setSpacing(0);
    m_grid->setHorizontalSpacing(Theme::Space12);
    m_grid->setColumnStretch(1, 1);
    m_frame.m_parts->addLayout(m_grid, 1);
    m_line = 0;
    m_spaceBefore = 0;
    m_cell = nullptr;
    m_answers = nullptr;
    m_question = nullptr;
    m_lastWasTick = false;
}

/// What is left over of the height goes below the rows, unless one of them grows.
void clsFrameRows::endPart()
{
    bool grows = false;
    for (int line = 0; line < m_line; ++line)
        grows = grows || m_grid->rowStretch(line) > 0;
    if (!grows)
        m_grid->setRowStretch(m_line, 1);
    m_frame.m_grows = m_frame.m_grows || grows;
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
    m_frame.m_hairlines.push_back(hairline);
    m_grid->addWidget(hairline, m_line++, 0, 1, 2);
    m_spaceBefore = Theme::Space16;
    m_answers = nullptr;
}

void clsFrameRows::addQuestion(const clsScreenRow &row)
{
    addSpace(Theme::Space16);
    m_question = label(row, oFieldLabel::Place::Above, nullptr);
    m_grid->addWidget(m_question, m_line++, 0, 1, 2);
    addSpace(AnswerGap);
    m_answers = new oTickLayout;
    m_grid->addLayout(m_answers, m_line++, 0, 1, 2);
    m_spaceBefore = Theme::Space16;
}

void clsFrameRows::addControl(const clsScreenRow &row)
{
    QWidget *control = mdMakeControl(row, &m_frame);
    m_frame.m_fields.push_back({&row, control, nullptr});
    if (isAnswer(row))
        addAnswer(row, control);
    else if (row.flags & SameRow && m_cell)
        addToRowBefore(row, control);
    else if (row.flags & NoCaption || row.kind == clsRowKind::Button)
        addBelowCaption(row, control, false);
    else if (standsAbove(row))
        addBelowCaption(row, control, true);
    else
        addBesideCaption(row, control);
}

void clsFrameRows::addAnswer(const clsScreenRow &row, QWidget *control)
{
    oFieldLabel *caption = label(row, oFieldLabel::Place::Answer, control);
    m_answers->addTick(caption, control);
    if (!m_question)
        return;
    // The question's letter leads to its first answer and ticks nothing.
    m_question->setBuddy(control);
    m_question->setTicks(false);
    m_question = nullptr;
}

void clsFrameRows::addToRowBefore(const clsScreenRow &row, QWidget *control)
{
    // Before the stretch at the end.
    int place = m_cell->count() - 1;
    m_cell->insertSpacing(place++, Theme::Space24);
    if (row.kind != clsRowKind::Button && !(row.flags & NoCaption)) {
        m_cell->insertWidget(place++, label(row, oFieldLabel::Place::Beside, control));
        m_cell->insertSpacing(place++, Theme::Space8);
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
    m_grid->addLayout(cell(control, isTall(row)), m_line, 0, 1, 2);
    m_grid->setRowStretch(m_line++, grows ? 1 : 0);
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
    const int wanted = qBound(Theme::scaled(NarrowestLabels), caption->sizeHint().width(), oFieldLabel::WidestBeside());
    m_frame.m_labelColumn = qMax(m_frame.m_labelColumn, wanted);
    m_grid->addWidget(caption, m_line, 0);
    m_grid->addLayout(cell(control, false), m_line, 1);
    if (tick)
        m_grid->setRowMinimumHeight(m_line, Theme::scaled(Theme::Space24));
    m_grid->setRowStretch(m_line++, growsWithWindow(row) ? 1 : 0);
    m_spaceBefore = 0;
    m_lastWasTick = tick;
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

/// The place of a field: at the left, no wider than it asks for, unless it is to fill the frame.
QHBoxLayout *clsFrameRows::cell(QWidget *control, bool wholeWidth)
{
    m_cell = new QHBoxLayout;
    m_cell->setSpacing(0);
    m_cell->addWidget(control, wholeWidth ? 1 : 0);
    m_cell->addStretch(wholeWidth ? 0 : 1);
    return m_cell;
}

/// A caption that the column of labels has no room for stands above its field. Only a tick keeps it beside, wrapped,
/// since a tick on a line of its own would lose it.
bool clsFrameRows::standsAbove(const clsScreenRow &row) const
{
    const oFieldLabel beside(QString::fromUtf8(row.caption), oFieldLabel::Place::Beside, &m_frame);
    return row.kind != clsRowKind::Tick && beside.wordWrap();
}

bool clsFrameRows::isAnswer(const clsScreenRow &row) const
{
    return m_answers && row.kind == clsRowKind::Tick;
}

bool clsFrameRows::isTall(const clsScreenRow &row) const
{
    return row.kind == clsRowKind::Other ? row.other->tall : row.kind == clsRowKind::Text && (row.flags & MultiLine);
}
