#include "controls/oBoxNote.h"

#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int SignSide = 14;
constexpr int SignGap = 7;
constexpr int WidestBeside = 320;
constexpr int GapBeneath = 6;
constexpr int LineBeneath = 24;
constexpr int MostLines = 2;
constexpr char Beneath[] = "noteBeneath";

/// The part of a box to describe to screen readers: the one with the focus.
QWidget &describedPart(QWidget &box)
{
    QWidget *part = &box;
    while (part->focusProxy())
        part = part->focusProxy();
    return *part;
}

} // namespace

oBoxNote *oBoxNote::of(const QWidget &box)
{
    if (const QWidget *parent = box.parentWidget())
        for (oBoxNote *note : parent->findChildren<oBoxNote *>(QString(), Qt::FindDirectChildrenOnly))
            if (&note->m_box == &box)
                return note;
    return nullptr;
}

void oBoxNote::Clear(QWidget &box)
{
    oBoxNote *note = of(box);
    if (!note)
        return;
    describedPart(box).setAccessibleDescription(QString());
    // Deleted later: the note's button "Use ..." may be the one being pressed.
    note->parentWidget()->removeEventFilter(note);
    box.removeEventFilter(note);
    note->hide();
    note->setParent(nullptr);
    note->deleteLater();
}

void oBoxNote::Show(QWidget &box, const clsNote &note, std::function<void(const QString &)> use)
{
    Clear(box);
    if (!box.parentWidget() || !box.isVisible())
        return;
    auto *shown = new oBoxNote(box, note, std::move(use));
    shown->place();
    shown->show();
    describedPart(box).setAccessibleDescription(note.words);
    QAccessibleEvent alert(shown, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

oBoxNote::oBoxNote(QWidget &box, const clsNote &note, std::function<void(const QString &)> use)
    : QWidget(box.parentWidget())
    , m_box(box)
    , m_note(note)
{
    setObjectName(QStringLiteral("oBoxNote"));
    setAccessibleName(note.words);
    setToolTip(note.words);
    if (m_note.shortWords.isEmpty())
        m_note.shortWords = note.words;
    setFont(Theme::font(-1));
    if (!note.better.isEmpty()) {
        m_use = new oCustomButton(this);
        m_use->setObjectName(QStringLiteral("cmdUse"));
        m_use->setLook(oCustomButton::Look::Small);
        m_use->setCaption(QStringLiteral("Use %1").arg(note.better));
        m_use->setAccessibleDescription(note.words);
        setTabOrder(&describedPart(box), m_use);
        connect(m_use, &oCustomButton::Click, this, [better = note.better, use = std::move(use)] { use(better); });
    }
    parentWidget()->installEventFilter(this);
    box.installEventFilter(this);
}

void oBoxNote::PutBeneath(QWidget &box)
{
    box.setProperty(Beneath, true);
}

int oBoxNote::lineBeneath()
{
    return GapBeneath + Theme::scaled(LineBeneath);
}

int oBoxNote::textLeft() const
{
    return Theme::scaled(SignSide) + SignGap;
}

/// The end of the free room to the right of the box, on these lines: a neighbour or the edge of the frame.
int oBoxNote::freeUntil(int top, int bottom) const
{
    int end = parentWidget()->contentsRect().right() - Theme::Space16;
    for (const QWidget *other : neighbours(top, bottom))
        if (other->x() > m_box.geometry().right())
            end = qMin(end, other->x() - Theme::Space12);
    return end;
}

/// The other widgets on these lines, except notes.
QList<QWidget *> oBoxNote::neighbours(int top, int bottom) const
{
    QList<QWidget *> all = parentWidget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    all.removeIf([&](QWidget *other) {
        return qobject_cast<oBoxNote *>(other) || !other->isVisible() || other->y() > bottom
            || other->geometry().bottom() < top;
    });
    return all;
}

void oBoxNote::place()
{
    if (m_box.property(Beneath).toBool())
        placeBeneath();
    else
        placeBeside();
    raise();
    update();
}

/// The button is after the words, or below them if the words would then need three lines.
void oBoxNote::placeBeside()
{
    const QRect box = m_box.geometry();
    const int left = box.right() + 1 + Theme::Space12;
    const int room = qMin(freeUntil(box.top(), box.bottom()) - left, Theme::scaled(WidestBeside));
    const QSize button = m_use ? m_use->sizeHint() : QSize();
    const int line = fontMetrics().height();
    const int behind = room - textLeft() - (m_use ? button.width() + Theme::Space8 : 0);
    const bool whole = heightOf(m_note.words, behind) <= MostLines * line;
    m_shown = whole ? m_note.words : m_note.shortWords;
    m_buttonBelow = heightOf(m_shown, behind) > MostLines * line;
    // No higher than one row of the screen, since each may have a note.
    const int height = m_buttonBelow ? qMin(line + button.height(), box.height() + Theme::Space8)
                                     : qMax(box.height(), MostLines * line);
    setGeometry(left, box.center().y() - height / 2, room, height);
    if (m_use)
        m_use->setGeometry(QRect(m_buttonBelow ? QPoint(textLeft(), height - button.height())
                                               : QPoint(room - button.width(), (height - button.height()) / 2),
            button));
}

/// The left end of the widgets before the box in its line, going left until a gap.
int oBoxNote::columnLeft() const
{
    const QRect box = m_box.geometry();
    QList<QWidget *> line = neighbours(box.top(), box.bottom());
    std::sort(line.begin(), line.end(), [](const QWidget *one, const QWidget *other) { return one->x() > other->x(); });
    int left = box.left();
    for (const QWidget *other : line)
        if (other->x() < left && left - other->geometry().right() <= Theme::Space32)
            left = other->x();
    return left;
}

/// Below the box; starts at its caption if the words need the width.
void oBoxNote::placeBeneath()
{
    const QRect box = m_box.geometry();
    const QSize button = m_use ? m_use->sizeHint() : QSize();
    const int words = textLeft() + fontMetrics().horizontalAdvance(m_note.words) + 1;
    const int needed = words + (m_use ? Theme::Space8 + button.width() : 0);
    const int top = box.bottom() + 1 + GapBeneath;
    const int height = Theme::scaled(LineBeneath);
    const int end = freeUntil(top, top + height - 1);
    const int left = qBound(columnLeft(), end - needed, box.left());
    m_shown = needed > end - left ? m_note.shortWords : m_note.words;
    m_buttonBelow = false;
    setGeometry(left, top, qMin(needed, end - left), height);
    if (m_use)
        m_use->setGeometry(QRect(QPoint(width() - button.width(), (height - button.height()) / 2), button));
}

int oBoxNote::heightOf(const QString &words, int width) const
{
    return fontMetrics().boundingRect(0, 0, width, QWIDGETSIZE_MAX, Qt::TextWordWrap, words).height();
}

QRect oBoxNote::roomOfWords() const
{
    if (m_buttonBelow)
        return {textLeft(), 0, width() - textLeft(), fontMetrics().height()};
    const int end = m_use ? m_use->x() - Theme::Space8 : width();
    return {textLeft(), 0, end - textLeft(), height()};
}

bool oBoxNote::isWhole() const
{
    const QRect room = roomOfWords();
    return heightOf(m_shown, room.width()) <= room.height() && parentWidget()->rect().contains(geometry());
}

bool oBoxNote::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move || event->type() == QEvent::LayoutRequest)
        place();
    return QWidget::eventFilter(watched, event);
}

void oBoxNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const double side = Theme::scaled(SignSide);
    const QRect room = roomOfWords();
    const int top = qMax(0, (room.height() - heightOf(m_shown, room.width())) / 2);
    mdPaintSign(painter, QRectF(0, top + (fontMetrics().height() - side) / 2, side, side), m_note.sign);
    painter.setPen(Theme::Ink);
    painter.drawText(room, Qt::TextWordWrap | Qt::AlignVCenter, m_shown);
}
