#include "shell/frmMain.h"

#include "formdata/clsClaimPlace.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdClaimLists.h"
#include "formdata/mdGlobals.h"
#include "preview/mdPreview.h"
#include "preview/oFormPages.h"
#include "preview/oPreviewGrid.h"
#include "shell/clsCheckState.h"
#include "shell/mdOpenPanels.h"
#include "shell/oCheckList.h"
#include "shell/oCheckPanel.h"
#include "shell/oPreviewArea.h"
#include "shell/oSectionPanel.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QStackedLayout>

// The check's findings in the main window.

namespace {

constexpr int NumberColumn = 1;
const QLatin1String ScheduleList("schedule");

/// The preview's row with this number; 0 if there is none. Captions have no number.
int rowOfNumber(const oPreviewGrid &grid, int number)
{
    const QString text = QString::number(number);
    for (int row = 1; row <= grid.Rows(); ++row)
        if (grid.Text(row, NumberColumn) == text)
            return row;
    return 0;
}

/// The row of the schedule item that had this order when the preview was drawn; 0 if it has none.
int rowOfItem(const oPreviewGrid &grid, clsPreviewKind kind, int order)
{
    return kind == clsPreviewKind::AdditionalInformation ? rowOfNumber(grid, order)
                                                         : grid.RowOf({clsPreviewOrigin::ScheduleItem, order});
}

/// Calls `look` with the element and order of each schedule item.
template <class Look> void eachScheduleItem(const clsZR3Form &form, Look look)
{
    for (const pugi::xml_node item : form.XMLNodeToRead().child(mdClaimList(QString(ScheduleList))->element).children())
        look(item.internal_object(), XMLDecodeText(item.child("orderid").child_value()).toInt());
}

} // namespace

void frmMain::buildCheck()
{
    auto *previews = new QWidget;
    previews->setLayout(m_previews);
    m_checkPanel = new oCheckPanel(*m_check);
    m_area = new oPreviewArea(previews, m_checkPanel);
    connect(m_area, &oPreviewArea::BesideChanged, this, &frmMain::fitPreview);
    connect(m_checkPanel, &oCheckPanel::CloseAsked, this, &frmMain::CloseCheck);
    connect(m_checkPanel->List(), &oCheckList::Opened, this, &frmMain::openFinding);
    connect(m_checkPanel->List(), &oCheckList::ChosenChanged, this, &frmMain::tintChosen);
    connect(m_checkPanel->List(), &oCheckList::AsideChanged, this,
        [this](bool aside) { m_check->PutAside(m_checkPanel->List()->ChosenFindings(), aside); });
    // Shortcuts of the main window only: on screens the function keys choose fee earners.
    for (const auto &[key, forward] :
        {std::pair(QKeySequence(Qt::Key_F8), true), std::pair(QKeySequence(Qt::SHIFT | Qt::Key_F8), false)})
        connect(new QShortcut(key, this), &QShortcut::activated, this,
            [this, toNext = forward] { StepThroughCheck(toNext); });
}

void frmMain::openCheck(bool open)
{
    if (open == m_area->isPanelOpen())
        return;
    m_area->setPanelOpen(open);
    tintChosen();
}

void frmMain::fitPreview()
{
    // The grid is drawn again when it replaces the form pages.
    if (!m_loaded || showsFormPages())
        return;
    mdFitPreview();
    m_drawnWidth = sgPreview->width();
}

void frmMain::showCheck()
{
    if (!m_area->isPanelOpen()) {
        openCheck(true);
        mdKeepPanelOpen(m_checkPanel->objectName(), true);
    }
    renewCheck();
}

void frmMain::CheckClaim()
{
    showCheck();
    m_checkPanel->TakeFocus();
}

void frmMain::CloseCheck()
{
    const bool hadFocus = m_checkPanel->isAncestorOf(focusWidget());
    openCheck(false);
    mdKeepPanelOpen(m_checkPanel->objectName(), false);
    if (!m_sections->isOpen())
        m_check->Postpone();
    if (hadFocus)
        focusPreview();
}

/// For a closing panel that had the focus.
void frmMain::focusPreview()
{
    if (showsFormPages())
        m_formPages->TakeFocus();
    else
        sgPreview->setFocus(Qt::OtherFocusReason);
}

void frmMain::renewCheck()
{
    if ((m_area->isPanelOpen() || m_sections->isOpen()) && Form)
        m_check->RenewPrint(false);
}

void frmMain::StepThroughCheck(bool forward)
{
    showCheck();
    m_checkPanel->List()->Step(forward);
    m_checkPanel->TakeFocus();
}

void frmMain::openFinding(int finding)
{
    const clsFinding found = m_check->Findings()[size_t(finding)].Finding;
    // The limit has a dialog instead of a tab.
    if (found.Rule == QLatin1String("costs-limit"))
        return CostsLimit();
    OpenPlace({found.Screen, found.List, found.Item, found.Property});
}

/// Notes the orders that the preview shows: opening a list may renumber its items without redrawing the preview.
void frmMain::tintDrawn()
{
    m_drawnItems.clear();
    if (Form)
        eachScheduleItem(*Form, [this](const void *item, int order) { m_drawnItems.insert(item, order); });
    tintChosen();
}

void frmMain::tintChosen()
{
    const int chosen = m_area->isPanelOpen() ? m_checkPanel->List()->Chosen() : -1;
    int drawn = 0;
    if (chosen >= 0 && Form) {
        const clsFinding &finding = m_check->Findings()[size_t(chosen)].Finding;
        if (finding.List == ScheduleList)
            eachScheduleItem(*Form, [&](const void *item, int order) {
                if (order == finding.Item)
                    drawn = m_drawnItems.value(item);
            });
    }
    sgPreview->setTintedRow(drawn > 0 ? rowOfItem(*sgPreview, m_previewKind, drawn) : 0);
}

void frmMain::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_area->panelLiesOver())
        CloseCheck();
    else
        QMainWindow::keyPressEvent(event);
}
