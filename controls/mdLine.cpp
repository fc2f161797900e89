#include "controls/mdLine.h"

#include "controls/mdTheme.h"

#include <QWidget>

namespace {

QWidget *line(QWidget *parent)
{
    auto *result = new QWidget(parent);
    QPalette palette;
    palette.setColor(QPalette::Window, Theme::Line);
    result->setPalette(palette);
    result->setAutoFillBackground(true);
    return result;
}

} // namespace

QWidget *mdHorizontalLine(QWidget *parent)
{
    QWidget *result = line(parent);
    result->setFixedHeight(1);
    return result;
}

QWidget *mdVerticalLine(QWidget *parent)
{
    QWidget *result = line(parent);
    result->setFixedWidth(1);
    return result;
}
