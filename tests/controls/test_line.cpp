#include "controls/mdLine.h"
#include "controls/mdTheme.h"
#include "controls/oHeaderBar.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

#include <gmock/gmock.h>

using testing::Each;
using testing::ElementsAre;

namespace {

constexpr QColor Ink {0, 0, 0};

/// A white image of a size in logical pixels, at a scale.
QImage paper(const QSize &size, double scale)
{
    QImage result(size * scale, QImage::Format_RGB32);
    result.setDevicePixelRatio(scale);
    result.fill(Qt::white);
    return result;
}

/// The thickness, in pixels, of each line of a colour down a column.
std::vector<int> thicknesses(const QImage &picture, int column, const QColor &colour)
{
    std::vector<int> result;
    bool inside = false;
    for (int y = 0; y < picture.height(); ++y) {
        const bool line = picture.pixelColor(column, y) == colour;
        if (line && !inside)
            result.push_back(0);
        if (line)
            ++result.back();
        inside = line;
    }
    return result;
}

std::vector<int> linesAt(double scale, Qt::Edge edge)
{
    QImage picture = paper({20, 90}, scale);
    QPainter painter(&picture);
    for (int i = 0; i < 8; ++i)
        mdPaintLine(painter, QRect(0, 11 * i, 20, 7), edge, Ink);
    return thicknesses(picture, 5, Ink);
}

} // namespace

TEST(Line, IsAsThickAtEveryPlace)
{
    const std::pair<double, int> rows[] = {{1, 1}, {1.25, 1}, {1.5, 1}, {1.75, 1}, {2, 2}, {2.5, 2}, {3, 3}};
    for (const auto &[scale, dots] : rows)
        for (const Qt::Edge edge : {Qt::TopEdge, Qt::BottomEdge}) {
            const std::vector<int> lines = linesAt(scale, edge);
            EXPECT_EQ(8u, lines.size()) << scale;
            EXPECT_THAT(lines, Each(dots)) << scale;
        }
}

TEST(Line, LiesInsideItsRectangleAlongItsEdges)
{
    QImage picture = paper({10, 10}, 1);
    {
        QPainter painter(&picture);
        mdPaintLine(painter, QRect(2, 2, 6, 6), Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge, Ink);
    }
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x) {
            const QRect outside(2, 2, 6, 6);
            const bool edge = outside.contains(x, y) && !outside.adjusted(1, 1, -1, -1).contains(x, y);
            EXPECT_EQ(edge ? Ink : QColor(Qt::white), picture.pixelColor(x, y)) << x << ' ' << y;
        }
}

TEST(Line, AWidgetsLineIsOneDotAtAScaleOfOneAndAQuarter)
{
    QWidget window;
    window.resize(40, 80);
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    window.setPalette(white);
    for (int i = 0; i < 8; ++i)
        mdHorizontalLine(&window)->setGeometry(0, 3 + 9 * i, 40, 1);
    QImage picture = paper(window.size(), 1.25);
    window.render(&picture);
    const std::vector<int> lines = thicknesses(picture, 5, Theme::Line);
    EXPECT_EQ(8u, lines.size());
    EXPECT_THAT(lines, Each(1));
}

TEST(Line, TheLineBelowAHeaderIsOneDotWhereverItsBottomIs)
{
    for (int height = 60; height < 68; ++height) {
        oHeaderBar header;
        header.resize(200, height);
        QImage picture = paper(header.size(), 1.25);
        header.render(&picture);
        EXPECT_THAT(thicknesses(picture, 5, Theme::Line), ElementsAre(1)) << height;
    }
}
