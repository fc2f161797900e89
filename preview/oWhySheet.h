#pragma once

#include "costing/checking/clsWhy.h"
#include "preview/oWhySteps.h"

#include <QPointer>

class QLabel;
class QScrollArea;
class oCloseButton;
class oCustomButton;

/// A place where something that a figure comes from can be changed.
struct clsWhyPlace {
    QString caption;
    clsWhySource source;
};

/// What the sheet says of a figure.
struct clsWhyText {
    QString title; ///< "Why 364.00"
    QString about {}; ///< "Item 18"
    std::vector<clsShownStep> steps {}; ///< the last is the figure
    std::vector<clsWhyStep> origins {}; ///< what the steps were made of
    std::vector<clsWhyPlace> places {}; ///< a button for each
};

/// A small sheet over its window that says how one figure comes about, with a point at the figure. It takes the focus
/// and gives it back. Esc, a click outside and whatever is chosen on it close it.
class oWhySheet : public QWidget {
    Q_OBJECT

public:
    explicit oWhySheet(QWidget *parent);
    ~oWhySheet() override;

    enum class Point { Down, Right };

    /// Shows a text. The point is at `at`, a place of the parent, and lies at the foot of the sheet or at its right.
    void Open(const clsWhyText &text, const QPoint &at, Point point);
    /// The focus goes back to where it was.
    void Close();
    bool isOpen() const { return isVisible(); }

    /// Up and Down go to the rows around that of the figure, and do not scroll.
    void setMovesRows(bool moves) { m_movesRows = moves; }

    const clsWhyText &Text() const { return m_text; }

signals:
    void PlaceChosen(const clsWhySource &place);
    /// A step is a figure that has steps too.
    void FigureAsked(const clsWhyAsked &asked, const QString &about);
    /// The figure of the row above or below is asked for: -1 or 1.
    void MoveRow(int rows);
    void Closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void fill();
    void fillPlaces();
    void placeAt(const QPoint &at, Point point);
    bool takeKey(int key);
    void chooseStep(int step);
    void choose(const clsWhySource &place);
    std::vector<QWidget *> stops() const;

    clsWhyText m_text;
    bool m_movesRows = false;
    Point m_pointSide = Point::Down;
    int m_pointAt = 0; ///< where the point is, along its side
    QPointer<QWidget> m_focusBefore;
    QLabel *lblTitle;
    QLabel *lblAbout;
    oCloseButton *cmdClose;
    QScrollArea *m_view;
    oWhySteps *m_steps;
    oWhySteps *m_sum;
    QWidget *m_placesLine;
    QWidget *m_placesRoom;
    std::vector<oCustomButton *> m_places;
};
