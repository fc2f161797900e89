#include "controls/oLineBox.h"

#include "controls/mdBoxText.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

QString oLineBox::cleaned(const QString &text) const
{
    return PastedBoxText(text, false);
}

void oLineBox::pasteFrom(QClipboard::Mode mode)
{
    if (!isReadOnly())
        insert(cleaned(QGuiApplication::clipboard()->text(mode)));
}

void oLineBox::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The toolkit's own paste can't be overridden.
    const QList<QAction *> entries = menu->actions();
    for (QAction *entry : entries)
        if (entry->text().startsWith(QLineEdit::tr("&Paste"))) {
            disconnect(entry, &QAction::triggered, this, nullptr);
            connect(entry, &QAction::triggered, this, [this] { pasteFrom(QClipboard::Clipboard); });
        }
    menu->popup(event->globalPos());
}

void oLineBox::dropEvent(QDropEvent *event)
{
    if (event->source() == this || !event->mimeData()->hasText()) {
        QLineEdit::dropEvent(event);
        return;
    }
    QMimeData clean;
    clean.setText(cleaned(event->mimeData()->text()));
    QDropEvent drop(event->position(), event->possibleActions(), &clean, event->buttons(), event->modifiers());
    drop.setDropAction(event->dropAction());
    QLineEdit::dropEvent(&drop);
    event->setDropAction(drop.dropAction());
    event->setAccepted(drop.isAccepted());
}

void oLineBox::inputMethodEvent(QInputMethodEvent *event)
{
    // Blanks at its ends are kept: some input methods commit every key.
    const QString typed = PastedBoxText(event->commitString(), false);
    if (typed != event->commitString())
        event->setCommitString(typed, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

void oLineBox::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    if (event->matches(QKeySequence::Paste)) {
        // The desktop's second key for pasting inserts the present selection of any program.
        const bool selected = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        pasteFrom(selected ? QClipboard::Selection : QClipboard::Clipboard);
        event->accept();
    } else if (typed.size() == 1 && typed[0].category() == QChar::Separator_Space) {
        insert(QStringLiteral(" ")); // for any key that types a blank
        event->accept();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void oLineBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    pasteFrom(QClipboard::Selection);
}
