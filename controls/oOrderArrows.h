#pragma once

#include "controls/mdIcons.h"

#include <QWidget>

class oCustomButton;

/// The pair of arrows that moves the selected row of a grid up or down. The grid handles the equivalent keys, so the
/// arrows never take the focus from the row.
class oOrderArrows : public QWidget {
    Q_OBJECT

public:
    explicit oOrderArrows(QWidget *parent = nullptr);

    void setMovable(bool up, bool down);

signals:
    void UpClick();
    void DownClick();

private:
    oCustomButton *addArrow(const QString &objectName, const QString &accessibleName, Glyph glyph);

    oCustomButton *m_up;
    oCustomButton *m_down;
};
