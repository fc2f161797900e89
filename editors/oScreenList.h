#pragma once

#include <QComboBox>

/// A list of a screen, in one of two widths: that of a short text, or, for long entries, whatever the frame has. Its
/// entries never make a screen wider than its window.
class oScreenList : public QComboBox {
    Q_OBJECT

public:
    explicit oScreenList(QWidget *parent = nullptr);

    QSize sizeHint() const override;
};
