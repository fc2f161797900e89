#include "editors/frmSection.h"

#include "editors/mdClearControl.h"
#include "editors/mdFieldTexts.h"
#include "editors/mdScreenControls.h"
#include "editors/oScreenBar.h"
#include "editors/oStoredNote.h"

// The editor of an item that goes on with the next one, or begins like another.

void frmSection::StartLike(clsXMLRecord &other)
{
    for (const clsScreenField &field : m_fields)
        mdLoadControl(*field.row, *field.control, other);
    m_loadedTexts = mdFieldTexts(m_fields);
}

void frmSection::SaveAndAdd()
{
    if (!m_screen.add || !mayStore())
        return;
    Store(clsStoring::Closing);
    m_bar->storedNote()->Tell(m_added ? m_added() : QString::fromUtf8(m_screen.itemWord));
    m_record = nullptr;
    // It goes to where the next item begins, also within the box that it is in.
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
