#include "controls/oStyle.h"

#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "controls/oGridView.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>
#include <QTextEdit>

// The style's drawing; mdPaintControls.h has a function for each kind of element.

namespace {

/// A line edit that is part of another box is on that box's panel.
bool isPartOfBox(const QWidget *widget)
{
    const QWidget *parent = widget ? widget->parentWidget() : nullptr;
    return qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent);
}

void drawLineEdit(QPainter &painter, const QStyleOption &option, const QWidget *widget)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    if (!frame || frame->lineWidth > 0)
        mdPaintTextBox(painter, option, widget);
    else if (!isPartOfBox(widget))
        painter.fillRect(option.rect, option.palette.brush(QPalette::Base));
}

void drawFrame(QPainter &painter, const QStyleOption &option, const QWidget *widget)
{
    if (qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget)) {
        mdPaintTextBox(painter, option, widget);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::Edge, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

} // namespace

void oStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (!option || !drawOurPrimitive(element, *option, *painter, widget))
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

bool oStyle::drawOurPrimitive(
    PrimitiveElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const
{
    switch (element) {
    case PE_PanelLineEdit: drawLineEdit(painter, option, widget); return true;
    // Already drawn by the panel.
    case PE_FrameLineEdit: return true;
    case PE_Frame: drawFrame(painter, option, widget); return true;
    case PE_IndicatorCheckBox: mdPaintTick(painter, option); return true;
    case PE_PanelTipLabel: mdPaintTooltip(painter, option); return true;
    case PE_PanelMenuBar: painter.fillRect(option.rect, Theme::Paper); return true;
    case PE_PanelItemViewRow:
        if (const auto *row = qstyleoption_cast<const QStyleOptionViewItem *>(&option)) {
            QStyleOptionViewItem whole = *row;
            // Qt marks the cell under the pointer; a grid tints its whole row itself.
            if (qobject_cast<const oGridView *>(widget))
                whole.state.setFlag(State_MouseOver, false);
            mdPaintRow(painter, whole, widget);
            return true;
        }
        return false;
    case PE_PanelItemViewItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(&option)) {
            if (item->backgroundBrush.style() != Qt::NoBrush)
                painter.fillRect(item->rect, item->backgroundBrush);
            // Tables and trees have already drawn the row background, a list has not.
            if (qobject_cast<const QListView *>(widget))
                mdPaintRow(painter, *item, widget);
            return true;
        }
        return false;
    case PE_FrameFocusRect:
        // Rows show the focus by their tint and the frame of their grid, ticks by their blue square.
        if (!qobject_cast<const QAbstractItemView *>(widget) && !qobject_cast<const QCheckBox *>(widget))
            mdPaintRing(painter, option.rect, Theme::Purple);
        return true;
    default: return false;
    }
}

void oStyle::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (element == CE_HeaderLabel) {
        if (const auto *header = qstyleoption_cast<const QStyleOptionHeader *>(option)) {
            QStyleOptionHeader ours = *header;
            ours.palette.setColor(QPalette::ButtonText, Theme::Ink2);
            QProxyStyle::drawControl(element, &ours, painter, widget);
            return;
        }
    }
    if (element == CE_ComboBoxLabel) {
        if (const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
            // A text too long for the closed list ends in an ellipsis, not within a letter.
            QStyleOptionComboBox ours = *list;
            const QRect room = subControlRect(CC_ComboBox, list, SC_ComboBoxEditField, widget);
            ours.currentText = list->fontMetrics.elidedText(list->currentText, Qt::ElideRight, room.width() - 2);
            QProxyStyle::drawControl(element, &ours, painter, widget);
            return;
        }
    }
    if (element == CE_MenuItem) {
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
            drawMenuItem(*item, painter, widget);
            return;
        }
    }
    if (!drawOurControl(element, *option, *painter, widget))
        QProxyStyle::drawControl(element, option, painter, widget);
}

bool oStyle::drawOurControl(
    ControlElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const
{
    const bool underline = styleHint(SH_UnderlineShortcut, &option, widget);
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(&option);
    const auto *menu = qstyleoption_cast<const QStyleOptionMenuItem *>(&option);
    const auto *progress = qstyleoption_cast<const QStyleOptionProgressBar *>(&option);
    if (element == CE_PushButton && button)
        mdPaintButton(painter, *button, widget, underline);
    else if (element == CE_HeaderSection || element == CE_HeaderEmptyArea)
        mdPaintHeading(painter, option);
    else if (element == CE_TabBarTabShape && tab)
        mdPaintTabShape(painter, *tab);
    else if (element == CE_TabBarTabLabel && tab)
        mdPaintTabLabel(painter, *tab, underline);
    else if (element == CE_MenuBarItem && menu)
        // After Alt is released the menu bar has the keyboard focus, and the letters work without Alt.
        mdPaintMenuBarItem(painter, *menu, underline || (widget && widget->hasFocus()));
    else if (element == CE_MenuBarEmptyArea)
        painter.fillRect(option.rect, Theme::Paper);
    else if (element == CE_ProgressBarGroove)
        mdPaintProgressGroove(painter, option);
    else if (element == CE_ProgressBarContents && progress)
        mdPaintProgress(painter, *progress);
    else
        return false;
    return true;
}

/// The captions of fields.
void oStyle::drawItemText(QPainter *painter, const QRect &rectangle, int flags, const QPalette &palette, bool enabled,
    const QString &text, QPalette::ColorRole role) const
{
    if (!(flags & Qt::TextShowMnemonic)) {
        QProxyStyle::drawItemText(painter, rectangle, flags, palette, enabled, text, role);
        return;
    }
    painter->save();
    if (role != QPalette::NoRole)
        painter->setPen(QPen(palette.brush(role), painter->pen().widthF()));
    mdPaintCaption(*painter, rectangle, flags & ~Qt::TextHideMnemonic, text, !(flags & Qt::TextHideMnemonic));
    painter->restore();
}

void oStyle::drawMenuItem(const QStyleOptionMenuItem &option, QPainter *painter, const QWidget *widget) const
{
    QStyleOptionMenuItem ours = option;
    const auto *menu = qobject_cast<const QMenu *>(widget);
    const QAction *action = menu ? menu->actionAt(option.rect.center()) : nullptr;
    if (action && action->isEnabled() && action->property("look").toString() == u"danger")
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::HighlightedText})
            ours.palette.setColor(role, Theme::Red);
    QProxyStyle::drawControl(CE_MenuItem, &ours, painter, widget);
}

void oStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    if (control == CC_ComboBox)
        if (const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
            mdPaintList(*painter, *list, widget);
            return;
        }
    if (control == CC_ScrollBar)
        if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option)) {
            mdPaintScrollBar(*painter, *bar, scrollBarRect(*bar, SC_ScrollBarSlider, widget), widget);
            return;
        }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}
