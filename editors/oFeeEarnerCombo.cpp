#include "editors/oFeeEarnerCombo.h"

#include "base/clsRunTimeError.h"
#include "editors/mdComboboxSelectByItemData.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdInOrder.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace {

struct clsKeyTier {
    Qt::KeyboardModifiers held;
    int offset;
    const char *prefix;
};

// The last prefix has no space at its end: its labels read "Shift-Control-AltF1" and so on. Required behaviour; do not
// fix.
// clang-format off
constexpr clsKeyTier Tiers[] = {
    {Qt::NoModifier,                                              0, ""},
    {Qt::ShiftModifier,                                          12, "Shift "},
    {Qt::ControlModifier,                                        24, "Control "},
    {Qt::AltModifier,                                            36, "Alt "},
    {Qt::ShiftModifier | Qt::ControlModifier,                    48, "Shift-Control "},
    {Qt::ControlModifier | Qt::AltModifier,                      60, "Control-Alt "},
    {Qt::ShiftModifier | Qt::AltModifier,                        72, "Shift-Alt "},
    {Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier,  84, "Shift-Control-Alt"},
};
// clang-format on

constexpr int FirstKeyCode = 112;
constexpr int LastKeyCode = 123;
constexpr int KeysOfTier = 12;

int offsetOf(Qt::KeyboardModifiers modifiers)
{
    const Qt::KeyboardModifiers held = modifiers & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    for (const clsKeyTier &tier : Tiers)
        if (tier.held == held)
            return tier.offset;
    return 0;
}

/// The key shown before the reference at a position, counted from 0; empty if no key reaches it.
QString labelOf(int place)
{
    for (const clsKeyTier &tier : Tiers)
        if (place >= tier.offset && place < tier.offset + KeysOfTier)
            return QLatin1String(tier.prefix) + u'F' + QString::number(place - tier.offset + 1) + QStringLiteral(" - ");
    return {};
}

/// The position of the fee earner chosen last; a file may hold an invalid number.
int lastChosen()
{
    try {
        return Form->DefaultFeeEarnerListIndex();
    } catch (const clsRunTimeError &) {
        return 0;
    }
}

} // namespace

oFeeEarnerCombo::oFeeEarnerCombo(QWidget *parent)
    : oScreenList(parent)
{
    connect(this, &QComboBox::currentIndexChanged, this, &oFeeEarnerCombo::Change);
    // The next new item starts with the fee earner that the user chose for this one.
    connect(this, &QComboBox::activated, this, [](int place) { Form->DefaultFeeEarnerListIndex = place; });
    view()->installEventFilter(this);
    fill();
}

void oFeeEarnerCombo::fill()
{
    refill([this] {
        for (const auto &feeEarner : mdInOrder(Form->FeeEarnersCollection()))
            addItem(labelOf(count()) + feeEarner->Reference(), feeEarner->Index);
        return lastChosen();
    });
    emit Change();
}

std::shared_ptr<clsZR3FeeEarner> oFeeEarnerCombo::SelectedFeeEarner() const
{
    return currentIndex() < 0 ? nullptr : Form->FeeEarner(currentData().toInt());
}

void oFeeEarnerCombo::setSelectedFeeEarner(const std::shared_ptr<clsZR3FeeEarner> &feeEarner)
{
    if (feeEarner)
        mdComboboxSelectByItemData(*this, feeEarner->Index);
    else
        setCurrentIndex(-1);
}

QString oFeeEarnerCombo::SelectedFeeEarnerUniqueID() const
{
    const auto selected = SelectedFeeEarner();
    return selected ? selected->UniqueID() : QString();
}

bool oFeeEarnerCombo::SelectByKeyCode(int keyCode, Qt::KeyboardModifiers modifiers)
{
    if (keyCode < FirstKeyCode || keyCode > LastKeyCode)
        return false;
    const int place = keyCode - FirstKeyCode + offsetOf(modifiers);
    if (place < count()) {
        setCurrentIndex(place);
        emit activated(place);
    }
    // Also consumed beyond the end of the list, so that a key doesn't do something else just because the claim has few
    // fee earners.
    return true;
}

int oFeeEarnerCombo::KeyCodeOf(int key)
{
    return key >= Qt::Key_F1 && key <= Qt::Key_F12 ? FirstKeyCode + key - Qt::Key_F1 : 0;
}

bool oFeeEarnerCombo::takeKey(const QKeyEvent &event)
{
    return SelectByKeyCode(KeyCodeOf(event.key()), event.modifiers());
}

bool oFeeEarnerCombo::event(QEvent *event)
{
    // While the list has the focus, function keys go neither to menus nor to shortcuts.
    if (event->type() == QEvent::ShortcutOverride && KeyCodeOf(static_cast<QKeyEvent *>(event)->key())) {
        event->accept();
        return true;
    }
    return oScreenList::event(event);
}

bool oFeeEarnerCombo::eventFilter(QObject *watched, QEvent *event)
{
    // In the open list, choosing by a key closes it.
    if (watched == view() && event->type() == QEvent::KeyPress && takeKey(*static_cast<QKeyEvent *>(event))) {
        hidePopup();
        return true;
    }
    return oScreenList::eventFilter(watched, event);
}

void oFeeEarnerCombo::keyPressEvent(QKeyEvent *event)
{
    if (takeKey(*event))
        event->accept();
    else
        oScreenList::keyPressEvent(event);
}
