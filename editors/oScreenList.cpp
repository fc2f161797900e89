#include "editors/oScreenList.h"

#include "controls/mdTheme.h"
#include "controls/mdToolTip.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>

namespace {

constexpr int ShortWidth = 224;
constexpr int LongWidth = 560;
/// Width of the arrow and edges.
constexpr int Trimmings = 48;
constexpr int FewestCharacters = 8;

} // namespace

oScreenList::oScreenList(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(FewestCharacters);
}

int oScreenList::widthFor(const QString &text) const
{
    return fontMetrics().horizontalAdvance(text) + Theme::scaled(Trimmings);
}

int oScreenList::widestEntry() const
{
    int widest = 0;
    for (int entry = 0; entry < count(); ++entry)
        widest = qMax(widest, widthFor(itemText(entry)));
    return widest;
}

QSize oScreenList::sizeHint() const
{
    const int width = widestEntry() > Theme::scaled(ShortWidth) ? LongWidth : ShortWidth;
    return {Theme::scaled(width), QComboBox::sizeHint().height()};
}

void oScreenList::refill(const std::function<int()> &addEntries)
{
    {
        const QSignalBlocker quiet(this);
        clear();
        const int wanted = addEntries();
        const int first = count() > 0 ? 0 : -1;
        setCurrentIndex(wanted >= 0 && wanted < count() ? wanted : first);
    }
    updateGeometry();
}

void oScreenList::showPopup()
{
    const QRect room = screen()->availableGeometry();
    const QAbstractItemView &entries = *view();
    const int edges = 2 * entries.frameWidth() + entries.verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(qMax(width(), qMin(entries.sizeHintForColumn(0) + edges, room.width())));
    QComboBox::showPopup();
    QWidget &popup = *view()->window();
    if (const int beyond = popup.geometry().right() - room.right(); beyond > 0)
        popup.move(qMax(room.left(), popup.x() - beyond), popup.y());
}

bool oScreenList::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || widthFor(currentText()) <= width())
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), mdPlainToolTip(currentText()), this);
    return true;
}
