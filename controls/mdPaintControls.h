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

// What the style draws, one function for each thing. They read the tokens of the theme and the state in the option,
// and measure by the option's font, so that all of them hold at any scale.

/// A box with round corners, whose edge of the given width lies inside the rectangle and stays crisp at any scale.
void mdPaintBox(QPainter &painter, const QRectF &rectangle, const QColor &back, const QColor &edge, double width = 1);

/// The focus ring: 2 wide, along the inside of the rectangle.
void mdPaintRing(QPainter &painter, const QRectF &rectangle, const QColor &colour);

/// A caption with a marked letter. The mark changes nothing but the line below the letter, so that the text stays where
/// it is when Alt is pressed.
void mdPaintCaption(QPainter &painter, const QRect &rectangle, int flags, const QString &caption, bool underline);

/// Boxes of text, in all their states: back, edge, and the sign of an invalid one.
void mdPaintTextBox(QPainter &painter, const QStyleOption &option, const QWidget *widget);
/// Room that the sign of an invalid box takes at its right end.
int mdInvalidSignRoom(const QWidget *widget);
/// A list's box with its chevron; its text is drawn over it.
void mdPaintList(QPainter &painter, const QStyleOptionComboBox &option, const QWidget *widget);
/// The tick: a white box in a larger square, which turns blue with the focus.
void mdPaintTick(QPainter &painter, const QStyleOption &option);
void mdPaintTooltip(QPainter &painter, const QStyleOption &option);

/// A button with its caption and glyph, by its dynamic properties "look" and "glyph".
void mdPaintButton(QPainter &painter, const QStyleOptionButton &option, const QWidget *widget, bool underline);
/// The size of a button, with the room for its ring, around a caption of this size.
QSize mdButtonSize(const QStyleOptionButton &option, const QSize &caption, const QWidget *widget);

/// Headings of columns: canvas with a line below.
void mdPaintHeading(QPainter &painter, const QStyleOption &option);
/// A row's tint, with the bar at the left of a selected one.
void mdPaintRow(QPainter &painter, const QStyleOptionViewItem &option, const QWidget *widget);

void mdPaintTabShape(QPainter &painter, const QStyleOptionTab &option);
void mdPaintTabLabel(QPainter &painter, const QStyleOptionTab &option, bool underline);

void mdPaintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &slider, const QWidget *widget);
/// The slider's place; `minimum` is its shortest length.
QRect mdScrollBarSlider(const QStyleOptionSlider &option, int minimum);
void mdPaintProgressGroove(QPainter &painter, const QStyleOption &option);
void mdPaintProgress(QPainter &painter, const QStyleOptionProgressBar &option);
void mdPaintMenuBarItem(QPainter &painter, const QStyleOptionMenuItem &option, bool underline);
