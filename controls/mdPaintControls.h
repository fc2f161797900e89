#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QStyleOption;
class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionMenuItem;
class QStyleOptionProgressBar;
class QStyleOptionSlider;
class QStyleOptionTab;
class QStyleOptionViewItem;
class QWidget;

// The drawing functions of the style, one for each kind of element. They use the theme's colours and the state and font
// in the option, so that they work at any scale.

/// A box with round corners; its edge of the given width is inside the rectangle and sharp at any scale.
void mdPaintBox(QPainter &painter, const QRectF &rectangle, const QColor &back, const QColor &edge, double width = 1);

/// The focus ring: 2 wide, inside the edge of the rectangle.
void mdPaintRing(QPainter &painter, const QRectF &rectangle, const QColor &colour);

/// A caption with a mnemonic. The mnemonic only adds the line below its letter, so that the text doesn't move when Alt
/// is pressed.
void mdPaintCaption(QPainter &painter, const QRect &rectangle, int flags, const QString &caption, bool underline);

/// Text boxes in all states: background, edge, and the sign of an invalid one.
void mdPaintTextBox(QPainter &painter, const QStyleOption &option, const QWidget *widget);
/// The room for the sign of an invalid box at its right end.
int mdInvalidSignRoom(const QWidget *widget);
/// A list's box with its chevron; its text is drawn over it.
void mdPaintList(QPainter &painter, const QStyleOptionComboBox &option, const QWidget *widget);
/// A tick box: white in a larger square, which turns blue with the focus.
void mdPaintTick(QPainter &painter, const QStyleOption &option);
void mdPaintTooltip(QPainter &painter, const QStyleOption &option);

/// A button with its caption and glyph, according to its dynamic properties "look" and "glyph".
void mdPaintButton(QPainter &painter, const QStyleOptionButton &option, const QWidget *widget, bool underline);
/// The size of a button, including its ring, for a caption of this size.
QSize mdButtonSize(const QStyleOptionButton &option, const QSize &caption, const QWidget *widget);

/// Column headings: the canvas colour with a line below.
void mdPaintHeading(QPainter &painter, const QStyleOption &option);
/// A row's tint, with the bar at the left of a selected one.
void mdPaintRow(QPainter &painter, const QStyleOptionViewItem &option, const QWidget *widget);

void mdPaintTabShape(QPainter &painter, const QStyleOptionTab &option);
void mdPaintTabLabel(QPainter &painter, const QStyleOptionTab &option, bool underline);

void mdPaintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &slider, const QWidget *widget);
/// The slider's rectangle; `minimum` is its smallest length.
QRect mdScrollBarSlider(const QStyleOptionSlider &option, int minimum);
void mdPaintProgressGroove(QPainter &painter, const QStyleOption &option);
void mdPaintProgress(QPainter &painter, const QStyleOptionProgressBar &option);
void mdPaintMenuBarItem(QPainter &painter, const QStyleOptionMenuItem &option, bool underline);
