#pragma once

#include "costing/checking/clsWhy.h"
#include "preview/oWhySteps.h"

#include <QPointer>

class QLabel;
class QScrollArea;
class oCloseButton;
class oCustomButton;

/// A place where one of the sources of a figure can be changed.
struct clsWhyPlace {
    QString caption;
    clsWhySource source;
};

/// The sheet's text about a figure.
struct clsWhyText {
    QString title; ///< "Why 364.00"
    QString about {}; ///< "Item 18"
    std::vector<clsShownStep> steps {}; ///< the last is the figure
    std::vector<clsWhyStep> origins {}; ///< the sources of the steps
    std::vector<clsWhyPlace> places {}; ///< a button for each
};

/// A small sheet over its window that explains a figure, with an arrow pointing at it. It takes the focus and returns
/// it. Esc, a click outside or a choice on the sheet closes it.
class oWhySheet : public QWidget {
    Q_OBJECT

public:
    explicit oWhySheet(QWidget *parent);
    ~oWhySheet() override;

    enum class Point { Down, Right };

    /// Shows a text. The arrow points at `at`, in the parent's coordinates, from the bottom or the right side of the
    /// sheet.
    void Open(const clsWhyText &text, const QPoint &at, Point point);
    /// Returns the focus to its previous owner.
    void Close();
    bool isOpen() const { return isVisible(); }

    /// Makes Up and Down move to the rows above and below that of the figure instead of scrolling.
    void setMovesRows(bool moves) { m_movesRows = moves; }

    const clsWhyText &Text() const { return m_text; }

signals:
    void PlaceChosen(const clsWhySource &place);
    /// The user chose a step that is itself an explained figure.
    void FigureAsked(const clsWhyAsked &asked, const QString &about);
    /// The user asked for the figure of the row above (-1) or below (1).
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
    int m_pointAt = 0; ///< the arrow's position along its side
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
