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

// What the main window does with the findings of the check.

namespace {

constexpr int NumberColumn = 1;
const QLatin1String ScheduleList("schedule");

/// The row of the preview that bears the number; 0 where there is none. The captions have none.
int rowOfNumber(const oPreviewGrid &grid, int number)
{
    const QString text = QString::number(number);
    for (int row = 1; row <= grid.Rows(); ++row)
        if (grid.Text(row, NumberColumn) == text)
            return row;
    return 0;
}

/// The row of the schedule item that had that order when the preview was drawn; 0 where it has none.
int rowOfItem(const oPreviewGrid &grid, clsPreviewKind kind, int order)
{
    return kind == clsPreviewKind::AdditionalInformation ? rowOfNumber(grid, order)
                                                         : grid.RowOf({clsPreviewOrigin::ScheduleItem, order});
}

/// Looks at each item of the schedule, by its element and its order.
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
    // The keys of the main window alone: on screens the function keys choose fee earners.
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
    // The grid is drawn anew when the form pages give way to it.
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

/// For the focus of a panel that closes.
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
    // The limit has a dialog, and no tab.
    if (found.Rule == QLatin1String("costs-limit"))
        return CostsLimit();
    OpenPlace({found.Screen, found.List, found.Item, found.Property});
}

/// The preview was drawn. An opened list may give its items other numbers, and the preview stays as it is.
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
