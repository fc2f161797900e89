#pragma once

#include <QWidget>

#include <vector>

/// A step on the sheet.
struct clsShownStep {
    QString text;
    QString reason {}; ///< in a second line; may be empty
    QString value {};
    bool failed = false;
    bool leadsOn = false; ///< there is a place where it can be changed
};

/// Steps one below the other, each with its value at the right and a line between them. If they are walkable, a click
/// or Enter chooses one that leads somewhere.
class oWhySteps : public QWidget {
    Q_OBJECT

public:
    explicit oWhySteps(QWidget *parent = nullptr);

    void setSteps(std::vector<clsShownStep> steps);
    /// The steps are a sum: semibold, with a strong line above.
    void setSum(bool sum);
    /// Lets the user move to the steps and choose them.
    void setWalked(bool walked);

    int heightFor(int width) const;
    /// The marked step; -1 for none.
    int Marked() const { return m_marked; }
    /// Marks the next step in a direction that leads somewhere; false if there is none.
    bool MoveMark(int direction);
    QRect PlaceOf(int step) const;

    QSize sizeHint() const override;

signals:
    void Chosen(int step);
    void MarkMoved();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int heightOf(const clsShownStep &step, int width) const;
    void paintStep(QPainter &painter, const clsShownStep &step, const QRect &place, bool under) const;
    int stepAt(const QPoint &place) const;

    std::vector<clsShownStep> m_steps;
    bool m_sum = false;
    bool m_walked = false;
    int m_marked = -1;
    int m_under = -1;
};
