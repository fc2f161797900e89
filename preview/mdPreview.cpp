#include "preview/mdPreview.h"

#include "base/clsRunTimeError.h"
#include "base/mdSetProgress.h"
#include "formdata/clsZR3Form.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"
#include "preview/mdExportPreview.h"
#include "preview/mdExportPreviewAdditionalInformation.h"
#include "preview/mdExportPreviewScheduleOfTime.h"
#include "preview/oPreviewGrid.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPointer>

namespace {

struct clsPreviewRoutines {
    clsPreviewKind kind;
    void (*init)();
    void (*draw)(const clsZR3Form &form);
    void (*deInit)();
};

// clang-format off
const clsPreviewRoutines Routines[] = {
    {clsPreviewKind::ScheduleOfTime,        mdExportPreviewScheduleOfTimeInit,
        mdExportPreviewScheduleOfTimeDraw,        mdExportPreviewScheduleOfTimeDeInit},
    {clsPreviewKind::AdditionalInformation, mdExportPreviewAdditionalInformationInit,
        mdExportPreviewAdditionalInformationDraw, mdExportPreviewAdditionalInformationDeInit},
};
// clang-format on

/// The focus before the menu bar took it, otherwise the first control after the bar. If the focus were restored to the
/// bar, it would stay there.
QWidget *focusOf(const QWidget &window)
{
    auto *bar = qobject_cast<QMenuBar *>(window.focusWidget());
    if (!bar)
        return window.focusWidget();
    QKeyEvent leave(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &leave);
    if (window.focusWidget() != bar)
        return window.focusWidget();
    QWidget *next = bar->nextInFocusChain();
    while (next != bar && !((next->focusPolicy() & Qt::TabFocus) && next->isVisible() && next->isEnabled()))
        next = next->nextInFocusChain();
    return next;
}

/// Disables the grid's window while this lives. If an error interrupts the drawing, empties the grid and switches
/// painting on again.
class clsDrawing {
public:
    explicit clsDrawing(oPreviewGrid &grid)
        : m_grid(grid)
        , m_window(grid.window())
        , m_focus(focusOf(*m_window))
    {
        m_window->setEnabled(false);
        m_grid.setDrawing(true);
    }
    ~clsDrawing()
    {
        if (!m_grid.Redraw()) {
            m_grid.RemoveAll();
            m_grid.setRedraw(true);
            mdClearProgress();
        }
        m_window->setEnabled(true);
        if (m_focus) // disabling removed it
            m_focus->setFocus();
        m_grid.setDrawing(false);
    }
    clsDrawing(const clsDrawing &) = delete;
    clsDrawing &operator=(const clsDrawing &) = delete;

private:
    oPreviewGrid &m_grid;
    QWidget *m_window;
    QPointer<QWidget> m_focus;
};

/// The progress bar may process events.
bool isDrawing()
{
    return PreviewGrid && PreviewGrid->IsDrawing();
}

clsZR3Form &form()
{
    if (!Form)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *Form;
}

void redraw(clsPreviewKind kind)
{
    const clsDrawing drawing(mdExportPreviewGrid());
    // Draws the lists as last built: by loading, the actions of the schedule's screen, or an export. A changed
    // property, such as the form type, doesn't rebuild them. Required behaviour; do not fix.
    for (const clsPreviewRoutines &routines : Routines)
        if (routines.kind == kind) {
            routines.init();
            routines.draw(form());
            routines.deInit();
        }
}

} // namespace

void mdDrawPreview(clsPreviewKind kind)
{
    if (!isDrawing())
        redraw(kind);
}

void mdRefreshPreview(clsPreviewKind kind)
{
    if (!Preferences)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    if (Preferences->AutoRefreshPreview())
        mdRedrawPreview(kind);
}

void mdRedrawPreview(clsPreviewKind kind)
{
    if (isDrawing())
        return;
    oPreviewGrid &grid = mdExportPreviewGrid();
    const int first = grid.FirstRowInView();
    const int last = grid.LastRowInView();
    const int hidden = first >= 1 ? grid.HiddenAbove(first) : 0;
    redraw(kind);
    // In this order, the second step scrolls the first row back to its position.
    if (first >= 1 && first <= grid.Rows())
        grid.BringIntoView(first, 1);
    if (last < 1 || last > grid.Rows())
        return;
    grid.BringIntoView(last, 1);
    // The first row is rarely scrolled exactly to its top: without this the preview would creep at each refresh.
    grid.SetHiddenAbove(first, hidden);
    if (grid.LastRowInView() < last)
        grid.BringIntoView(last, 1);
}

void mdFitPreview()
{
    if (isDrawing())
        return;
    oPreviewGrid &grid = mdExportPreviewGrid();
    const int first = grid.FirstRowInView();
    const int hidden = first >= 1 ? grid.HiddenAbove(first) : 0;
    grid.setRedraw(false);
    mdExportPreviewFitColumns();
    grid.setRedraw(true);
    if (first >= 1)
        grid.SetHiddenAbove(first, hidden);
}

void mdClearPreview()
{
    if (!isDrawing())
        mdExportPreviewGrid().RemoveAll();
}
