#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>

/// The look of the program: every colour, space and size used by a window. There is one light theme. The colours are
/// chosen for white surfaces; a dark desktop does not change them.
namespace Theme {

// clang-format off
inline constexpr QColor Purple        {110,  15, 108}; ///< "you are here": focus, chosen tab, default button, tick
inline constexpr QColor PurpleHover   {0x56, 0x0C, 0x55};
inline constexpr QColor PurplePressed {0x43, 0x09, 0x3F};
inline constexpr QColor Blue          {  0, 114, 188}; ///< the focused tick; a count that continues on another sheet
inline constexpr QColor Green         {  0, 127,  62}; ///< plenty left
inline constexpr QColor Orange        {224, 134,  26}; ///< nearly full; too pale for text unless semibold
inline constexpr QColor Amber         {0x8F, 0x53, 0x00}; ///< the same for text and the edges of its signs
inline constexpr QColor Red           {177,  17,  22}; ///< over the allowance, invalid, danger
inline constexpr QColor Pink          {255, 246, 241}; ///< background of an invalid box, always with its red edge and
                                                       /// sign
inline constexpr QColor InformationTint {0xEE, 0xF5, 0xFA}; ///< background of a neutral notice, and of a line in the
                                                            /// footer
inline constexpr QColor CautionTint   {0xFD, 0xF4, 0xE7}; ///< background of a warning notice
inline constexpr QColor Grey          {204, 204, 204}; ///< frame of a grid without the focus
inline constexpr QColor Stripe        {250, 250, 250}; ///< every second column of the preview
inline constexpr QColor Ink           {0x23, 0x1F, 0x26}; ///< text
inline constexpr QColor Ink2          {0x5B, 0x55, 0x62}; ///< secondary text, headings of columns
inline constexpr QColor Ink3          {0x8A, 0x84, 0x91}; ///< disabled text, the cross in a grid
inline constexpr QColor SteppedBack   {0x74, 0x6E, 0x7B}; ///< rows without the words searched for
inline constexpr QColor Edge          {0x8F, 0x88, 0x96}; ///< border of boxes and buttons
inline constexpr QColor EdgeOff       {0xCF, 0xCA, 0xD3}; ///< the same, disabled
inline constexpr QColor Line          {0xDD, 0xD8, 0xE0}; ///< border of frames and bars
inline constexpr QColor Hairline      {0xEC, 0xE8, 0xEE}; ///< between rows
inline constexpr QColor Paper         {255, 255, 255}; ///< frames, boxes, header
inline constexpr QColor Canvas        {0xF4, 0xF2, 0xF5}; ///< the window background, disabled boxes
inline constexpr QColor Band          {0xEB, 0xE7, 0xED}; ///< second tab row
inline constexpr QColor Hover         {0xF6, 0xEF, 0xF6}; ///< row or button under the pointer
inline constexpr QColor Selected      {0xEF, 0xDF, 0xEF}; ///< selected row, pressed button
inline constexpr QColor TooltipBack   {0x2F, 0x2A, 0x33};
inline constexpr QColor RedHover      {0x8B, 0x0D, 0x11}; ///< danger button under the pointer
inline constexpr QColor RedPressed    {0x69, 0x0A, 0x0D};
inline constexpr QColor PageEdge      {0xC9, 0xB0, 0xC9}; ///< border of the open page of a content switcher

/// Distances in logical pixels.
inline constexpr int Space4  =  4;
inline constexpr int Space8  =  8;
inline constexpr int Space12 = 12;
inline constexpr int Space16 = 16;
inline constexpr int Space24 = 24;
inline constexpr int Space32 = 32;
inline constexpr int ControlCorner = 4;
inline constexpr int FrameCorner   = 6;
// clang-format on

/// The desktop's font, larger or smaller by some points, optionally semibold.
QFont font(double morePoints = 0, bool semibold = false);

/// Scales a length given for a 10-point font to the desktop's font.
int scaled(double pixels);

/// Height of a text box or list of one line: the line plus 6 above and below; 30 at 10 points for any font family.
int boxHeight(const QFontMetrics &metrics);

/// Width of the room for the focus ring outside the visible edge of buttons and ticks.
inline constexpr int RingRoom = 4;

} // namespace Theme
