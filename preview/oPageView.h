#pragma once

#include "controls/oPrintSign.h"

#include <QAbstractScrollArea>
#include <QRectF>
#include <QString>

#include <vector>

class clsPdfPages;

/// A box of a page that leads to the screen where it is filled in.
struct clsPageBox {
    int page; ///< from 0
    QRectF points; ///< from the corner of the paper
    QString words; ///< what a click does, for the tooltip and the screen reader
    QString target; ///< for the slot that opens it
};

/// A sign in a page's margin.
struct clsPageSign {
    int page; ///< from 0
    double left; ///< points, of the text beside it; 0 if unknown
    double middle; ///< points, from the top of the paper
    clsPrintNote note;
};

/// The pages of a document one below the other, each as a sheet of paper. Draws only those in view, so that three
/// hundred pages scroll as smoothly as one. Pages are counted from 0.
class oPageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit oPageView(QWidget *parent = nullptr);

    /// Shows other pages at the same scroll position. They must live as long as they are shown; null for none.
    void setPages(clsPdfPages *pages);

    /// The areas that can be clicked, in page order.
    void setBoxes(std::vector<clsPageBox> boxes);
    /// The signs in the margins, about the texts beside them.
    void setSigns(std::vector<clsPageSign> signs);
    const std::vector<clsPageSign> &Signs() const { return m_signs; }
    /// The position of a sign in the view.
    QRect PlaceOfSign(int sign) const;
    /// The marked box; -1 for none.
    int MarkedBox() const { return m_marked; }
    /// The position of a box in the view.
    QRect PlaceOfBox(int box) const;

    /// The size of the pages, in per cent of their paper size.
    int Zoom() const;
    void setZoom(int percent);
    /// Fits the widest page to the width of the view, at most a quarter larger than on paper; also whenever that width
    /// changes, until the zoom is set.
    void FitWidth();
    bool FitsWidth() const { return m_fitsWidth; }

    /// The page in the middle of the view, or the last target of GoTo; -1 without pages.
    int CurrentPage() const { return m_current; }
    void GoTo(int page);

signals:
    void CurrentPageChanged();
    void ZoomChanged();
    void BoxMarked(const QString &words);
    void BoxChosen(const QString &target);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void layOut();
    void takeZoom(double scale);
    double scaleThatFits() const;
    int pageAt(int y) const;
    int pageInView() const;
    int boxAt(const QPoint &place) const;
    QString wordsAt(const QPoint &place) const;
    void paintSigns(QPainter &painter) const;
    void markBox(int box);
    QRect placeOf(int page) const;
    void noteCurrentPage();

    clsPdfPages *m_pages = nullptr;
    double m_scale = 1;
    bool m_fitsWidth = true;
    std::vector<int> m_tops; ///< of the pages, and the end
    int m_width = 0;
    int m_current = -1;
    std::vector<clsPageBox> m_boxes;
    int m_marked = -1;
    std::vector<clsPageSign> m_signs;
};
