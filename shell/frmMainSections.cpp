#include "shell/frmMain.h"

#include "controls/mdShowModal.h"
#include "controls/oTabBar.h"
#include "editors/frmScreen.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdBegunSections.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdSectionTabs.h"
#include "preview/oFormPages.h"
#include "preview/oPreviewGrid.h"
#include "shell/clsCheckState.h"
#include "shell/mdOpenPanels.h"
#include "shell/oApplication.h"
#include "shell/oPreviewArea.h"
#include "shell/oSectionList.h"
#include "shell/oSectionPanel.h"

#include <QAction>
#include <QLayout>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTimer>

#include <utility>

// Opens the screens of sections from the main window: by the two rows of tabs and the section list.

void frmMain::buildTabs()
{
    tbSection->setDoRedraw(false);
    for (const QString &text : mdSectionTabs())
        tbSection->AddButton(text, text);
    tbSection->SwitchTo(1);
    tbSection->setDoRedraw(true);
    tbSection_Click();
}

void frmMain::tbSection_Click()
{
    // Only here: after New, Open or a change of the form type the tabs stay as of the last click.
    tbSubSection->setDoRedraw(false);
    tbSubSection->Clear();
    for (const QString &text : mdSubSectionTabs(tbSection->SelectedIndex(), Form->FormType()))
        tbSubSection->AddButton(text, text);
    tbSubSection->setDoRedraw(true);
}

void frmMain::tbSubSection_Click(int index, const QString &tag)
{
    // A screen opened from another screen doesn't belong to the marked tab.
    if (index < 0)
        tbSubSection->SwitchTo(0);
    m_nextSection = tag;
    if (m_sectionOpen)
        return;
    const QScopedValueRollback<bool> open(m_sectionOpen, true);
    bool shown = false;
    while (!m_nextSection.isEmpty() && !oApplication::ending()) {
        const QString section = std::exchange(m_nextSection, QString());
        const std::unique_ptr<QDialog> screen(createScreen(section, this));
        if (!screen)
            continue;
        shown = true;
        m_sections->List()->Choose(section);
        auto *made = qobject_cast<frmScreen *>(screen.get());
        if (const auto way = std::exchange(m_nextWay, nullptr); made && way)
            QTimer::singleShot(0, made, [made, way] { way(*made); });
        const QScopedValueRollback<bool> modal(m_modal, true);
        mdShowModal(*screen);
    }
    if (shown)
        Activate();
}

void frmMain::buildSections()
{
    m_sections = new oSectionPanel;
    connect(m_sections, &oSectionPanel::CloseAsked, this, [this] { keepSectionsOpen(false); });
    connect(
        m_sections->List(), &oSectionList::Opened, this, [this](const QString &text) { tbSubSection_Click(-1, text); });
    connect(m_check, &clsCheckState::Changed, this, &frmMain::renewSections);
    // Screens use these keys too; boxes of the main window don't need them.
    for (const auto &[key, forward] : {std::pair(Qt::Key_PageDown, true), std::pair(Qt::Key_PageUp, false)})
        connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, this,
            [this, toNext = forward] { walkSections(toNext); });
}

void frmMain::walkSections(bool forward)
{
    if (!m_sections->isVisible())
        return;
    m_sections->List()->Step(forward);
    m_sections->List()->setFocus(Qt::OtherFocusReason);
}

/// The list takes its width from everything beside it.
void frmMain::fitSections(int windowWidth)
{
    m_sections->fit(windowWidth);
    auto *entry = findChild<QAction *>(QStringLiteral("mnuSectionList"));
    entry->setEnabled(oSectionPanel::hasRoom(windowWidth));
    entry->setChecked(m_sections->isOpen());
    if (std::exchange(m_sectionsWidth, m_sections->shownWidth()) == m_sections->shownWidth())
        return;
    // Applies the layout now: the preview's column widths depend on its width.
    centralWidget()->layout()->activate();
    fitPreview();
}

void frmMain::openSections(bool open)
{
    const bool hadFocus = m_sections->isAncestorOf(focusWidget());
    m_sections->setOpen(open);
    fitSections(width());
    renewCheck();
    renewSections();
    if (!open && hadFocus)
        focusPreview();
}

void frmMain::keepSectionsOpen(bool open)
{
    openSections(open);
    mdKeepPanelOpen(m_sections->objectName(), open);
}

void frmMain::SectionList()
{
    keepSectionsOpen(!m_sections->isOpen());
    if (m_sections->isVisible())
        m_sections->List()->setFocus(Qt::OtherFocusReason);
}

void frmMain::renewSections()
{
    if (m_sections->isOpen() && Form)
        m_sections->List()->ShowSections(
            Form->FormType(), mdBegunSections(*Form), mdFindingsByScreen(m_check->Findings(), m_check->Groups()));
}
