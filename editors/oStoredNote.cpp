#include "editors/oStoredNote.h"

#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace {

/// Modifier keys, which are held for the next key, such as Ctrl+Enter again.
bool isHeld(int key)
{
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_AltGr
        || key == Qt::Key_Meta;
}

} // namespace

oStoredNote::oStoredNote(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("lblStored"));
    setTextFormat(Qt::PlainText);
    setFont(Theme::font(-1));
}

void oStoredNote::Tell(const QString &item)
{
    setText(QStringLiteral("Stored: ") + item);
    setToolTip(mdPlainToolTip(text()));
    qApp->installEventFilter(this);
    QAccessibleEvent said(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

QSize oStoredNote::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()};
}

bool oStoredNote::event(QEvent *event)
{
    const bool done = QLabel::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(Theme::font(-1));
    return done;
}

bool oStoredNote::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *box = qobject_cast<const QWidget *>(watched);
    if (!box || box->window() != window() || qobject_cast<const QAbstractButton *>(box)
        || isHeld(static_cast<QKeyEvent *>(event)->key()))
        return false;
    clear();
    setToolTip({});
    qApp->removeEventFilter(this);
    return false;
}

void oStoredNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Theme::Ink2);
    painter.drawText(
        rect(), Qt::AlignLeft | Qt::AlignVCenter, fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}
