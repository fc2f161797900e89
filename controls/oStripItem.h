#pragma once

#include <QAbstractButton>

class QPainter;

/// An item of the strip of totals, selected by a click, Enter or Space. Independent of its neighbours: the strip moves
/// the focus at the item's request.
class oStripItem : public QAbstractButton {
    Q_OBJECT

public:
    explicit oStripItem(QWidget *parent);

    /// Identifies the figure in the signals of the strip.
    void setKey(const QString &key) { m_key = key; }
    QString Key() const { return m_key; }
    /// The label of the item's figure.
    virtual QString Words() const = 0;

    QSize minimumSizeHint() const override { return sizeHint(); }

    /// The room at either end, for the focus ring.
    static int padding();
    /// The side of the error or warning sign.
    static int signSide();

signals:
    /// An arrow key asks for a neighbour: -1 for the previous one, 1 for the next, less or more for the ends.
    void Move(int steps);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    /// Paints the background under the pointer, and the focus ring.
    void paintState(QPainter &painter) const;

private:
    QString m_key;
};
