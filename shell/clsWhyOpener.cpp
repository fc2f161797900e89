#include "shell/clsWhyOpener.h"

#include "controls/oTotalsStrip.h"
#include "costing/checking/mdWhy.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdClaimState.h"
#include "formdata/mdGlobals.h"
#include "preview/mdWhyText.h"
#include "preview/oPreviewGrid.h"
#include "shell/mdCopyOfClaim.h"

namespace {

constexpr int RateColumn = 10; ///< from here on the sheet leaves the preview visible
} // namespace

clsWhyOpener::clsWhyOpener(oTotalsStrip &strip, oPreviewGrid &grid, QWidget &window, QObject *parent)
    : QObject(parent)
    , m_strip(strip)
    , m_grid(grid)
    , m_sheet(new oWhySheet(&window))
{
    connect(&m_strip, &oTotalsStrip::Chosen, this, &clsWhyOpener::AskStrip);
    connect(&m_grid, &oPreviewGrid::WhyAsked, this, &clsWhyOpener::AskPreview);
    connect(m_sheet, &oWhySheet::MoveRow, this, &clsWhyOpener::moveRow);
    connect(m_sheet, &oWhySheet::FigureAsked, this, &clsWhyOpener::goOn);
    connect(m_sheet, &oWhySheet::PlaceChosen, this, &clsWhyOpener::PlaceChosen);
    connect(m_sheet, &oWhySheet::Closed, this, [this] {
        m_bill.reset();
        m_copy.reset();
    });
}

clsWhyOpener::~clsWhyOpener() = default;

const clsBill &clsWhyOpener::bill()
{
    if (!m_copy) {
        m_copy = mdCopyOfClaim(*Form);
        m_bill = std::make_unique<clsBill>(*m_copy);
    }
    return *m_bill;
}

void clsWhyOpener::Close()
{
    m_sheet->Close();
}

void clsWhyOpener::AskStrip(const QString &key)
{
    const oStripItem *item = m_strip.Item(key);
    if (!item || !Form)
        return;
    m_at = item->mapTo(m_sheet->parentWidget(), QPoint(item->width() / 2, 0));
    m_point = oWhySheet::Point::Down;
    m_sheet->setMovesRows(false);
    open(mdWhyClaimTotal(bill(), key), item->Words());
}

void clsWhyOpener::TakeDrawnState()
{
    if (Form && std::exchange(m_drawnIsDue, false))
        m_drawn = mdClaimState(*Form);
}

void clsWhyOpener::AskPreview()
{
    if (const int row = m_grid.AskedRow(); row > 0 && Form)
        openAtRow(row);
}

void clsWhyOpener::openAtRow(int row)
{
    m_grid.MarkRow(row);
    const QRect place = m_grid.PlaceOf(row);
    const QPoint at(m_grid.LeftOf(RateColumn), place.center().y());
    m_at = m_grid.mapTo(m_sheet->parentWidget(), at);
    m_point = oWhySheet::Point::Right;
    m_sheet->setMovesRows(true);
    TakeDrawnState();
    if (m_drawn != mdClaimState(*Form))
        return open(clsWhyText {QStringLiteral("The preview is older than the claim (Ctrl+T)")});
    const clsPreviewOrigin origin = m_grid.Origin(row);
    const bool isItem = origin.kind == clsPreviewOrigin::ScheduleItem;
    open(whyOf(origin), isItem ? QStringLiteral("Item %1").arg(m_grid.Text(row, 1)) : QStringLiteral("Schedule"));
}

std::optional<clsWhy> clsWhyOpener::whyOf(clsPreviewOrigin origin)
{
    switch (origin.kind) {
    case clsPreviewOrigin::ScheduleItem: return mdWhyScheduleItem(bill(), origin.order);
    case clsPreviewOrigin::ScheduleTotal: return mdWhyTotal(bill(), QStringLiteral("ScheduleTotal"));
    case clsPreviewOrigin::Nothing: break;
    }
    return {};
}

void clsWhyOpener::moveRow(int rows)
{
    const int before = m_grid.MarkedRow();
    m_grid.MoveMark(rows);
    if (m_grid.MarkedRow() != before)
        openAtRow(m_grid.MarkedRow());
}

void clsWhyOpener::goOn(const clsWhyAsked &asked, const QString &about)
{
    m_sheet->setMovesRows(false); // no longer the row's figure
    open(mdWhy(bill(), asked.Kind, asked.Which), about);
}

void clsWhyOpener::open(const std::optional<clsWhy> &why, const QString &about)
{
    if (why)
        open(mdWhyText(*m_copy, *why, about));
}

void clsWhyOpener::open(const clsWhyText &text)
{
    m_sheet->Open(text, m_at, m_point);
}
