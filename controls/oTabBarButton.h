#pragma once

#include <QAbstractButton>
#include <QStyleOptionButton>
#include <QStyleOptionTab>

/// One button of a tab row, drawn as a text tab or as a button. Independent of its neighbours: the row sets the
/// selection and moves the focus at the button's request.
class oTabBarButton final : public QAbstractButton {
    Q_OBJECT

public:
    enum class Shape { Tab, Button };

    oTabBarButton(const QString &caption, Shape shape, QWidget *parent);

    QString Caption() const { return m_caption; }
    void setCaption(const QString &caption);
    bool Selected() const { return m_selected; }
    void setSelected(bool selected);
    /// Resets it to the unselected state of a new one.
    void Reset() { setSelected(false); }
    void setShape(Shape shape);
    Shape shape() const { return m_shape; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// An arrow key asks for a neighbour: -1 for the previous one, 1 for the next, less or more for the ends of the
    /// row.
    void Move(int steps);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QStyleOptionTab tabOption() const;
    QStyleOptionButton buttonOption() const;

    QString m_caption;
    Shape m_shape;
    bool m_selected = false;
};
