#include "controls/oStyle.h"

#include "controls/mdPaintControls.h"
#include "controls/mdTheme.h"
#include "controls/oInputFilter.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextEdit>

namespace {

bool isTextEdit(const QWidget *widget)
{
    return qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget);
}

bool isBox(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget);
}

/// The room around a tick box, which the focus fills.
int tickRoom()
{
    return (Theme::scaled(24) - Theme::scaled(16)) / 2;
}

/// Width of the part of a list with its chevron.
int listArrow()
{
    return Theme::scaled(14) + Theme::Space16;
}

} // namespace

oStyle::oStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{ }

void oStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (isBox(widget) || isTextEdit(widget))
        widget->setAttribute(Qt::WA_Hover);
    // Turning the wheel over a list must not give it the focus.
    const bool turns = qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget);
    if (turns && widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
}

int oStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        // Wide enough to keep the page of a text edit clear of the round corners of its frame.
        return isTextEdit(widget) ? 3 : isBox(widget) ? 2 : 1;
    case PM_ComboBoxFrameWidth: return 2;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight: return Theme::scaled(24);
    case PM_CheckBoxLabelSpacing: return Theme::Space8;
    case PM_ScrollBarExtent: return Theme::scaled(12);
    case PM_ScrollBarSliderMin: return Theme::scaled(Theme::Space32);
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ButtonDefaultIndicator:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_MenuBarPanelWidth:
    case PM_MenuBarItemSpacing:
    case PM_MenuBarVMargin:
    case PM_TabBarBaseHeight:
    case PM_TabBarBaseOverlap:
    case PM_TabBarTabShiftVertical: return 0;
    case PM_FocusFrameHMargin:
    case PM_HeaderMargin: return 7;
    case PM_ToolTipLabelFrameWidth: return 6;
    case PM_MenuBarHMargin: return Theme::Space8;
    case PM_MenuHMargin:
    case PM_MenuVMargin: return Theme::Space4;
    case PM_SmallIconSize: return Theme::scaled(16);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing: return Theme::Space8;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin: return Theme::Space16;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int oStyle::styleHint(
    StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_UnderlineShortcut: return oInputFilter::UnderlineMnemonics();
    case SH_FormLayoutLabelAlignment: return int(Qt::AlignRight | Qt::AlignVCenter);
    case SH_MessageBox_TextInteractionFlags: return Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    case SH_ItemView_ShowDecorationSelected: return true;
    case SH_EtchDisabledText:
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
    case SH_ScrollBar_Transient:
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
    default: return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize oStyle::sizeFromContents(
    ContentsType type, const QStyleOption *option, const QSize &size, const QWidget *widget) const
{
    const auto atLeast = [&](int height) {
        const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
        return QSize(whole.width(), qMax(whole.height(), height));
    };
    switch (type) {
    case CT_PushButton:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option))
            return mdButtonSize(*button, size, widget);
        break;
    case CT_LineEdit:
        return {
            QProxyStyle::sizeFromContents(type, option, size, widget).width(), Theme::boxHeight(option->fontMetrics)};
    case CT_ComboBox: return {size.width() + Theme::Space12 + listArrow(), Theme::boxHeight(option->fontMetrics)};
    case CT_CheckBox:
        if (const auto *box = qstyleoption_cast<const QStyleOptionButton *>(option); box && box->text.isEmpty())
            return {Theme::scaled(24), Theme::scaled(24)};
        break;
    case CT_HeaderSection: return atLeast(Theme::scaled(28));
    case CT_ItemViewItem: return atLeast(Theme::scaled(26));
    case CT_MenuItem:
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option))
            return atLeast(item->menuItemType == QStyleOptionMenuItem::Separator ? 0 : Theme::scaled(28));
        break;
    case CT_MenuBarItem: return size + QSize(2 * 10, 2 * 6);
    case CT_TabBarTab:
        if (const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option))
            return sizeOfTab(*tab, size, widget);
        break;
    default: break;
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

QSize oStyle::sizeOfTab(const QStyleOptionTab &option, const QSize &size, const QWidget *widget) const
{
    QFont font = widget ? widget->font() : QFont();
    font.setWeight(QFont::DemiBold);
    // As wide as when selected, so that nothing moves.
    const int width = QFontMetrics(font).size(Qt::TextShowMnemonic, option.text).width() + 2 * Theme::Space16;
    return {qMax(width, size.width()), qMax(option.fontMetrics.height() + 20, Theme::scaled(38))};
}

QRect oStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    const auto without = [option](int room) { return option->rect.adjusted(room, room, -room, -room); };
    switch (element) {
    // Layouts align the visible edges: sizeFromContents adds the room for the ring, this subtracts it.
    case SE_PushButtonLayoutItem: return without(Theme::RingRoom);
    case SE_CheckBoxLayoutItem: return without(tickRoom());
    case SE_FrameLayoutItem:
        if (widget && widget->property("ringRoom").toBool())
            return without(Theme::RingRoom);
        return QProxyStyle::subElementRect(element, option, widget);
    case SE_LineEditContents: {
        QRect contents = QProxyStyle::subElementRect(element, option, widget);
        contents.setRight(contents.right() - mdInvalidSignRoom(widget));
        return contents;
    }
    default: return QProxyStyle::subElementRect(element, option, widget);
    }
}

QRect oStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex *option, SubControl part, const QWidget *widget) const
{
    if (control == CC_ScrollBar)
        if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option))
            return scrollBarRect(*bar, part, widget);
    if (control == CC_ComboBox)
        if (const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option))
            return listRect(*list, part, widget);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect oStyle::scrollBarRect(const QStyleOptionSlider &option, SubControl part, const QWidget *widget) const
{
    const QRect whole = option.rect;
    const QRect slider = mdScrollBarSlider(option, pixelMetric(PM_ScrollBarSliderMin, &option, widget));
    const bool horizontal = option.orientation == Qt::Horizontal;
    QRect result = whole;
    switch (part) {
    case SC_ScrollBarSlider: result = slider; break;
    case SC_ScrollBarGroove: break;
    case SC_ScrollBarSubPage:
        horizontal ? result.setRight(slider.left() - 1) : result.setBottom(slider.top() - 1);
        break;
    case SC_ScrollBarAddPage:
        horizontal ? result.setLeft(slider.right() + 1) : result.setTop(slider.bottom() + 1);
        break;
    // There are no arrows.
    default: return {};
    }
    return visualRect(option.direction, whole, result);
}

QRect oStyle::listRect(const QStyleOptionComboBox &option, SubControl part, const QWidget *widget) const
{
    QRect result = option.rect;
    switch (part) {
    // A line edit inside has its own small margin.
    case SC_ComboBoxEditField: result.adjust(option.editable ? 6 : 8, 2, -listArrow(), -2); break;
    case SC_ComboBoxArrow: result.setLeft(result.right() + 1 - listArrow()); break;
    case SC_ComboBoxListBoxPopup:
    case SC_ComboBoxFrame: return result;
    default: return QProxyStyle::subControlRect(CC_ComboBox, &option, part, widget);
    }
    return visualRect(option.direction, option.rect, result);
}
