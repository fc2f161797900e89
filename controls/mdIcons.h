#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>

class QPainter;

/// Every icon of the program, drawn from paths and tinted: none depends on the desktop's icon theme, and all are sharp
/// at any scale.
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

/// Draws the glyph in the middle of the rectangle, as large as its shorter side.
void mdPaintGlyph(QPainter &painter, const QRectF &rectangle, Glyph glyph, const QColor &colour);

/// The glyph for a menu entry or a button: in the colour or, if disabled, in that of disabled text.
QIcon mdGlyphIcon(Glyph glyph, const QColor &colour);

/// The tile at the left of a header: its glyph, colour and shape (square or round).
struct clsTile {
    Glyph glyph;
    QColor colour;
    bool round;
};

/// The tile of an icon group. Group 12 is for the sections: its glyph is that of the window's family.
clsTile mdTile(int iconGroup, const QString &windowName);

/// Draws the tile to fill the rectangle.
void mdPaintTile(QPainter &painter, const QRectF &rectangle, const clsTile &tile);
