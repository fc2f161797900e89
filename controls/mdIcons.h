#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>

class QPainter;

/// Every sign of the program, drawn from paths and tinted: none comes from the desktop's icon theme, which differs from
/// desktop to desktop, and none is a picture, so that all are crisp at any scale.
enum class Glyph {
    None,
    Document,
    NewDocument,
    Folder,
    Disk,
    Export,
    Person,
    People,
    AddPerson,
    Clock,
    Receipt,
    Envelope,
    Coins,
    Sliders,
    Percent,
    Calendar,
    Scales,
    Exclamation,
    Question,
    Information,
    Tick,
    ChevronUp,
    ChevronDown,
    ChevronRight,
    Cross,
    Plus,
    Bin,
    Warning,
    List,
    RunsOn,
};

/// Draws the glyph into the middle of the rectangle, as large as its shorter side.
void mdPaintGlyph(QPainter &painter, const QRectF &rectangle, Glyph glyph, const QColor &colour);

/// The glyph for a menu entry or a button: in the colour, and in the colour of disabled text where it is disabled.
QIcon mdGlyphIcon(Glyph glyph, const QColor &colour);

/// The tile at the left of a header: what it shows, on which colour, square or round.
struct clsTile {
    Glyph glyph;
    QColor colour;
    bool round;
};

/// The tile of an icon group. Group 12 stands for the sections: its glyph is that of the window's family.
clsTile mdTile(int iconGroup, const QString &windowName);

/// Draws the tile to fill the rectangle.
void mdPaintTile(QPainter &painter, const QRectF &rectangle, const clsTile &tile);
