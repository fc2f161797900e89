#pragma once

#include "controls/oStripLimit.h"

#include <optional>
#include <vector>

class oStripFigure;

/// A figure for the strip.
struct clsStripTotal {
    QString key; ///< identifies it when it is chosen
    QString words;
    QString figure; ///< as it is printed
    QString failure {}; ///< why it can't be computed; empty if it can
    /// How it makes room if the strip is too narrow.
    enum clsPlace { Stays, GoesIntoOther, GoesAltogether } place = Stays;
    int turn = 0; ///< for GoesAltogether: the order in which figures are left out; 1 is the first
    bool strong = false;
    bool standsApart = false; ///< shown after the line
};

/// The totals of the claim, in one line above the footer: labels, figures, and the used part of the costs limit. It
/// only shows them and signals which was chosen. It is one tab stop; Left and Right move between the figures.
class oTotalsStrip : public QWidget {
    Q_OBJECT

public:
    explicit oTotalsStrip(QWidget *parent = nullptr);

    /// Shows these, in order; `other` replaces those that may be merged into it while there is no room for them.
    void setTotals(const std::vector<clsStripTotal> &totals, const clsStripTotal &other);
    /// Shows no totals, after the claim was closed.
    void Clear();
    void setLimit(const std::optional<clsStripLimit> &limit);
    /// Reduces the height for a low window.
    void setLow(bool low);

    /// The visible figures, in order, as label and figure.
    QStringList Shown() const;
    /// The item with that key; null if it is not visible.
    oStripItem *Item(const QString &key) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    static constexpr char LimitKey[] = "limit";

signals:
    void Chosen(const QString &key);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct clsForm;
    struct clsFigure {
        oStripFigure *figure;
        clsStripTotal::clsPlace place;
        int turn;
        bool apart;
        bool isOther;
    };

    oStripItem *prepared(oStripItem *item);
    void showTotal(const clsStripTotal &total, size_t place, bool isOther);
    void layOut();
    int widthIn(const clsForm &form) const;
    bool shows(const clsFigure &figure, const clsForm &form) const;
    void placeItems(const clsForm &form);
    std::vector<oStripItem *> shownItems() const;
    void move(const oStripItem *from, int steps);
    void setTabStop(const QWidget *stop);

    std::vector<clsFigure> m_figures;
    oStripLimit *m_limit;
    bool m_hasLimit = false;
    bool m_low = false;
    int m_line = -1; ///< position of the line before the separate figures
};
