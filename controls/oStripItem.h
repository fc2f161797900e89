#pragma once

#include <QAbstractButton>

class QPainter;

/// Something of the strip of totals that can be chosen, by a click, Enter or Space. It knows nothing of its neighbours:
/// the strip moves the focus when it is asked to.
class oStripItem : public QAbstractButton {
    Q_OBJECT

public:
    explicit oStripItem(QWidget *parent);

    /// Identifies the figure in the signals of the strip.
    void setKey(const QString &key) { m_key = key; }
    QString Key() const { return m_key; }
    /// What the item's figure is of.
    virtual QString Words() const = 0;

    QSize minimumSizeHint() const override { return sizeHint(); }

    /// The room at either end, for the ring of the focus.
    static int padding();
    /// The side of the sign of an error or a warning.
    static int signSide();

signals:
    /// An arrow key asks for a neighbour: -1 for the one before, 1 for the next, less or more for the ends.
    void Move(int steps);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// The back of an item under the pointer, and the ring of the focus.
    void paintState(QPainter &painter) const;

private:
    QString m_key;
};
