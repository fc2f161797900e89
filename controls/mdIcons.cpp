#include "controls/mdIcons.h"

#include "controls/mdTheme.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStringList>

#include <array>

namespace {

constexpr double Side = 20;
constexpr double Stroke = 1.5;

struct clsGlyphRow {
    Glyph glyph;
    const char *strokes; ///< lines of width 1.5
    const char *fills; ///< areas, for dots
};

// On a square of 20 with the origin at its top left. M x y: move; L x y: line; C x y x y x y: curve; O x y r: circle; R
// x y w h r: rectangle with round corners; Z: close.
// clang-format off
constexpr clsGlyphRow Glyphs[] = {
    {Glyph::None,         "", ""},
    {Glyph::Document,     "M 5 2.5 L 11.5 2.5 L 15.5 6.5 L 15.5 17.5 L 5 17.5 Z M 11.5 2.5 L 11.5 6.5 L 15.5 6.5 M 7.5 10.5 L 13 10.5 M 7.5 13.5 L 13 13.5", ""},
    {Glyph::NewDocument,  "M 5 2.5 L 11.5 2.5 L 15.5 6.5 L 15.5 17.5 L 5 17.5 Z M 11.5 2.5 L 11.5 6.5 L 15.5 6.5 M 10.25 9 L 10.25 14.5 M 7.5 11.75 L 13 11.75", ""},
    {Glyph::Folder,       "M 2.5 5 L 7.5 5 L 9.5 7 L 17.5 7 L 17.5 16 L 2.5 16 Z M 2.5 9.75 L 17.5 9.75", ""},
    {Glyph::Disk,         "M 3 3 L 14 3 L 17 6 L 17 17 L 3 17 Z M 6.5 3 L 6.5 7 L 12.5 7 L 12.5 3 M 6 17 L 6 11.5 L 14 11.5 L 14 17", ""},
    {Glyph::Export,       "M 11 17.5 L 4 17.5 L 4 2.5 L 10.5 2.5 L 14.5 6.5 L 14.5 8.5 M 10.5 2.5 L 10.5 6.5 L 14.5 6.5 M 9 13 L 17.5 13 M 14.5 10 L 17.5 13 L 14.5 16", ""},
    {Glyph::Person,       "O 10 6.5 3.4 M 3.8 17.5 C 3.8 13.9 6.3 12.2 10 12.2 C 13.7 12.2 16.2 13.9 16.2 17.5", ""},
    {Glyph::People,       "O 7.5 6.8 3.1 M 1.8 17 C 1.8 13.7 4 12.1 7.5 12.1 C 11 12.1 13.2 13.7 13.2 17 M 12.6 3.9 C 14.4 4 15.6 5.2 15.6 6.9 C 15.6 8.4 14.7 9.5 13.4 9.8 M 14.6 12.2 C 17 12.6 18.3 14.2 18.3 17", ""},
    {Glyph::AddPerson,    "O 7.5 6.8 3.1 M 1.8 17 C 1.8 13.7 4 12.1 7.5 12.1 C 11 12.1 13.2 13.7 13.2 17 M 15.5 5.5 L 15.5 11.5 M 12.5 8.5 L 18.5 8.5", ""},
    {Glyph::Clock,        "O 10 10 7.5 M 10 5.5 L 10 10 L 13 12", ""},
    {Glyph::Receipt,      "M 4.5 2.5 L 6.3 3.9 L 8.2 2.5 L 10 3.9 L 11.8 2.5 L 13.7 3.9 L 15.5 2.5 L 15.5 17.5 L 13.7 16.1 L 11.8 17.5 L 10 16.1 L 8.2 17.5 L 6.3 16.1 L 4.5 17.5 Z M 7.5 8.2 L 12.5 8.2 M 7.5 11.8 L 12.5 11.8", ""},
    {Glyph::Envelope,     "R 2.5 4.5 15 11 1.5 M 3 5.5 L 10 11 L 17 5.5", ""},
    {Glyph::Coins,        "O 7.2 7.6 4.7 M 12.7 7.2 C 15.4 7.6 17.5 9.9 17.5 12.6 C 17.5 15.6 15 17.8 12.2 17.8 C 9.6 17.8 7.3 15.9 7 13.3 M 7.2 5.6 L 7.2 9.6", ""},
    {Glyph::Sliders,      "M 2.5 6.5 L 9.8 6.5 M 14.2 6.5 L 17.5 6.5 O 12 6.5 2.2 M 2.5 13.5 L 5.8 13.5 M 10.2 13.5 L 17.5 13.5 O 8 13.5 2.2", ""},
    {Glyph::Percent,      "M 15.5 4.5 L 4.5 15.5 O 6 6 2.2 O 14 14 2.2", ""},
    {Glyph::Calendar,     "R 3 4 14 13.5 1.5 M 3 8.5 L 17 8.5 M 6.5 2.2 L 6.5 5.6 M 13.5 2.2 L 13.5 5.6", "O 7 12.5 1 O 13 12.5 1 O 10 12.5 1"},
    {Glyph::Scales,       "M 10 2.5 L 10 17.5 M 6 17.5 L 14 17.5 M 3.5 5.5 L 16.5 5.5 M 4.5 5.5 L 2 11.5 C 2.4 13.8 6.6 13.8 7 11.5 Z M 15.5 5.5 L 13 11.5 C 13.4 13.8 17.6 13.8 18 11.5 Z", ""},
    {Glyph::Exclamation,  "M 10 3.5 L 10 11.8", "O 10 15.6 1.25"},
    {Glyph::Question,     "M 6.4 7 C 6.4 4.6 8 3.3 10.1 3.3 C 12.3 3.3 13.7 4.7 13.7 6.5 C 13.7 9.3 10 9.2 10 12.2", "O 10 15.8 1.2"},
    {Glyph::Information,  "M 8.4 8.4 L 10.2 8.4 L 10.2 15.8", "O 10 4.7 1.25"},
    {Glyph::Tick,         "M 4 10.5 L 8.2 14.7 L 16 6", ""},
    {Glyph::ChevronUp,    "M 4.5 12.6 L 10 7.2 L 15.5 12.6", ""},
    {Glyph::ChevronDown,  "M 4.5 7.4 L 10 12.8 L 15.5 7.4", ""},
    {Glyph::ChevronRight, "M 7.4 4.5 L 12.8 10 L 7.4 15.5", ""},
    {Glyph::Plus,         "M 10 3.5 L 10 16.5 M 3.5 10 L 16.5 10", ""},
    {Glyph::Bin,          "M 3 5 L 17 5 M 7.2 5 L 7.2 2.6 L 12.8 2.6 L 12.8 5 M 4.8 5 L 5.6 17.5 L 14.4 17.5 L 15.2 5 M 8.3 8.2 L 8.3 14.2 M 11.7 8.2 L 11.7 14.2", ""},
    {Glyph::Warning,      "M 10 2.6 L 18.4 17 L 1.6 17 Z M 10 7.6 L 10 11.8", "O 10 14.3 1"},
    {Glyph::List,         "R 2.5 1.25 15 17.5 1.9 M 6.25 6.25 L 13.75 6.25 M 6.25 10 L 13.75 10 M 6.25 13.75 L 13.75 13.75", ""},
    {Glyph::RunsOn,       "M 3.5 8 L 3.5 2.5 L 16.5 2.5 L 16.5 8 M 10 7 L 10 17.5 M 6.2 13.7 L 10 17.5 L 13.8 13.7", ""},
    {Glyph::Cross,        "M 5 5 L 15 15 M 15 5 L 5 15", ""},
};

/// One glyph for each family of screens.
constexpr struct {
    const char *window;
    Glyph glyph;
} Families[] = {
    {"frmMain",                    Glyph::Document},
    {"frmFormSetup",               Glyph::Sliders},
    {"frmPreferences",             Glyph::Sliders},
    {"frmReplacementEdit",         Glyph::Sliders},
    {"frmPreferencesRateSetEdit",  Glyph::Sliders},
    {"frmFeeEarnerGroups",         Glyph::People},
    {"frmFeeEarnerGroupEdit",      Glyph::People},
    {"frmFeeEarnerEdit",           Glyph::People},
    {"frmFirmAndTeam",             Glyph::People},
    {"frmFirmGroupEdit",           Glyph::People},
    {"frmFirmFeeEarnerEdit",       Glyph::People},
    {"frmFirmCounselEdit",         Glyph::Person},
    {"frmClientDetails",           Glyph::Person},
    {"frmSolicitorDetails",        Glyph::Person},
    {"frmDebtorsDetails",          Glyph::Person},
    {"frmCounsel",                 Glyph::Person},
    {"frmCounselEdit",             Glyph::Person},
    {"frmCounselOutstandingClaims", Glyph::Person},
    {"frmEnhancements",            Glyph::Percent},
    {"frmEnhancementEdit",         Glyph::Percent},
    {"frmScheduleOfTime",          Glyph::Clock},
    {"frmScheduleOfTimeItemEdit",  Glyph::Clock},
    {"frmDisbursements",           Glyph::Receipt},
    {"frmDisbursementEdit",        Glyph::Receipt},
    {"frmExpertInvoiceEdit",       Glyph::Receipt},
    {"frmJointInstructionEdit",    Glyph::Receipt},
    {"frmCommunications",          Glyph::Envelope},
    {"frmCorrespondences",         Glyph::Envelope},
    {"frmChangeSelected",          Glyph::List},
    {"frmCostsLimit",              Glyph::Coins},
    {"frmCodeWords",               Glyph::Clock},
    {"frmFamilyAdvocacyScheme",    Glyph::Scales},
    {"frmFASItemEdit",             Glyph::Scales},
    {"frmActualCostsIncurred",     Glyph::Coins},
    {"frmDetailsOfCostsAwarded",   Glyph::Coins},
    {"frmDetailsOfMonies",         Glyph::Coins},
    {"frmLateSubmission",          Glyph::Calendar},
    {"frmExportAsPdf",             Glyph::Export},
    {"frmPasteItems",              Glyph::List},
    {"frmExportToWord",            Glyph::Export},
    {"frmFolderOfClaims",          Glyph::Folder},
    {"frmFolderResults",           Glyph::List},
};
// clang-format on

/// Parses such a text to a path. The texts are constants of this file and are not checked.
QPainterPath parsed(const char *text)
{
    QPainterPath path;
    const QStringList words = QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
    qsizetype next = 0;
    const auto number = [&] { return words[next++].toDouble(); };
    const auto point = [&] {
        const double x = number();
        return QPointF(x, number());
    };
    while (next < words.size()) {
        switch (words[next++][0].toLatin1()) {
        case 'M': path.moveTo(point()); break;
        case 'L': path.lineTo(point()); break;
        case 'C': {
            const QPointF first = point();
            const QPointF second = point();
            path.cubicTo(first, second, point());
            break;
        }
        case 'O': {
            const QPointF centre = point();
            const double radius = number();
            path.addEllipse(centre, radius, radius);
            break;
        }
        case 'R': {
            const QPointF corner = point();
            const QPointF size = point();
            const double radius = number();
            path.addRoundedRect(QRectF(corner, QSizeF(size.x(), size.y())), radius, radius);
            break;
        }
        case 'Z': path.closeSubpath(); break;
        }
    }
    return path;
}

struct clsPaths {
    QPainterPath strokes;
    QPainterPath fills;
};

/// Each glyph is parsed once.
const clsPaths &paths(Glyph glyph)
{
    static const auto all = [] {
        std::array<clsPaths, std::size(Glyphs)> result;
        for (const clsGlyphRow &row : Glyphs)
            result[size_t(row.glyph)] = {parsed(row.strokes), parsed(row.fills)};
        return result;
    }();
    return all[size_t(glyph)];
}

class clsGlyphEngine final : public QIconEngine {
public:
    clsGlyphEngine(Glyph glyph, const QColor &colour)
        : m_glyph(glyph)
        , m_colour(colour)
    { }

    void paint(QPainter *painter, const QRect &rectangle, QIcon::Mode mode, QIcon::State) override
    {
        mdPaintGlyph(*painter, rectangle, m_glyph, mode == QIcon::Disabled ? Theme::Ink3 : m_colour);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }
    QIconEngine *clone() const override { return new clsGlyphEngine(m_glyph, m_colour); }

private:
    Glyph m_glyph;
    QColor m_colour;
};

} // namespace

void mdPaintGlyph(QPainter &painter, const QRectF &rectangle, Glyph glyph, const QColor &colour)
{
    const double side = qMin(rectangle.width(), rectangle.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rectangle.center() - QPointF(side, side) / 2);
    painter.scale(side / Side, side / Side);
    painter.setBrush(Qt::NoBrush);
    // The line width is for glyphs of 16 to 20; it scales up with larger ones, but not down with smaller ones.
    const double width = Stroke * qMax(1.0, 16 / qMax(side, 1.0));
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(paths(glyph).strokes);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(paths(glyph).fills);
    painter.restore();
}

QIcon mdGlyphIcon(Glyph glyph, const QColor &colour)
{
    return QIcon(new clsGlyphEngine(glyph, colour));
}

clsTile mdTile(int iconGroup, const QString &windowName)
{
    switch (iconGroup) {
    case 1: return {Glyph::Coins, Theme::Purple, false};
    case 2: return {Glyph::Exclamation, Theme::Red, true};
    case 3: return {Glyph::Information, Theme::Blue, true};
    case 4: return {Glyph::Question, Theme::Purple, true};
    case 5: return {Glyph::Person, Theme::Purple, false};
    default:
        for (const auto &family : Families)
            if (windowName == QLatin1String(family.window))
                return {family.glyph, Theme::Purple, false};
        return {Glyph::Document, Theme::Purple, false};
    }
}

void mdPaintTile(QPainter &painter, const QRectF &rectangle, const clsTile &tile)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tile.colour);
    if (tile.round)
        painter.drawEllipse(rectangle);
    else
        painter.drawRoundedRect(rectangle, Theme::FrameCorner, Theme::FrameCorner);
    // Symbols of one or two strokes are drawn larger than pictures.
    const double inset = rectangle.width() / (tile.round ? 5 : 4);
    mdPaintGlyph(painter, rectangle.adjusted(inset, inset, -inset, -inset), tile.glyph, Theme::Paper);
    painter.restore();
}
