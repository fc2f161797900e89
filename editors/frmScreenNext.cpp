#include "editors/frmScreen.h"

#include "editors/mdClearControl.h"
#include "editors/mdFieldTexts.h"
#include "editors/mdScreenControls.h"
#include "editors/oScreenBar.h"
#include "editors/oStoredNote.h"

// Item editors that continue with the next item, or start from another one.

void frmScreen::StartLike(clsXMLRecord &other)
{
    for (const clsScreenField &field : m_fields)
        mdLoadControl(*field.row, *field.control, other);
    m_loadedTexts = mdFieldTexts(m_fields);
}

void frmScreen::SaveAndAdd()
{
    if (!m_screen.add || !mayStore())
        return;
    Store(clsStoring::Closing);
    m_bar->storedNote()->Tell(m_added ? m_added() : QString::fromUtf8(m_screen.itemWord));
    m_record = nullptr;
    // Moves the focus to where the next item starts, even within the same box.
    if (QWidget *focused = focusWidget())
        focused->clearFocus();
    for (const clsScreenField &field : m_fields)
        if (!(field.row->flags & Kept))
            mdClearControl(*field.row, *field.control);
    startFiguresAtZero();
    emit Loaded();
    m_loadedTexts = mdFieldTexts(m_fields);
    enterFirst(Kept);
}
