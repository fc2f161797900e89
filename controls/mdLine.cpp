#include "controls/mdLine.h"

#include "controls/mdTheme.h"

#include <QPainter>
#include <QWidget>

#include <cmath>

namespace {

class oLine final : public QWidget {
public:
    oLine(Qt::Edge edge, QWidget *parent)
        : QWidget(parent)
        , m_edge(edge)
    { }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        mdPaintLine(painter, rect(), m_edge, Theme::Line);
    }

private:
    Qt::Edge m_edge;
};

} // namespace

void mdPaintLine(QPainter &painter, const QRect &rectangle, Qt::Edges edges, const QColor &colour)
{
    const QTransform toDots = painter.deviceTransform();
    const QRectF exact = toDots.mapRect(QRectF(rectangle));
    const QRectF whole(QPointF(std::round(exact.left()), std::round(exact.top())),
        QPointF(std::round(exact.right()), std::round(exact.bottom())));
    const double across = std::max(1.0, std::floor(toDots.m11()));
    const double down = std::max(1.0, std::floor(toDots.m22()));
    const struct {
        Qt::Edge edge;
        QRectF line;
    } lines[] = {
        {Qt::TopEdge, {whole.left(), whole.top(), whole.width(), down}},
        {Qt::BottomEdge, {whole.left(), whole.bottom() - down, whole.width(), down}},
        {Qt::LeftEdge, {whole.left(), whole.top(), across, whole.height()}},
        {Qt::RightEdge, {whole.right() - across, whole.top(), across, whole.height()}},
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const auto &[edge, line] : lines)
        if (edges & edge)
            painter.fillRect(toDots.inverted().mapRect(line), colour);
    painter.restore();
}

QWidget *mdHorizontalLine(QWidget *parent)
{
    auto *result = new oLine(Qt::TopEdge, parent);
    result->setFixedHeight(1);
    return result;
}

QWidget *mdVerticalLine(QWidget *parent)
{
    auto *result = new oLine(Qt::LeftEdge, parent);
    result->setFixedWidth(1);
    return result;
}
