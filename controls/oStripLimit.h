#pragma once

#include "controls/oStripItem.h"

/// The used part of a limit, for the strip of totals.
struct clsStripLimit {
    enum clsState { Plenty, Near, Over, Failed };

    clsState state = Plenty;
    double share = 0; ///< of the limit; 1 is all of it
    QString figures; ///< "9,457.12 of 12,000.00"
    QString words; ///< the same in a sentence, or why the costs can't be computed
};

/// A thin bar that shows the used part of the costs limit, with the figures above it.
class oStripLimit final : public oStripItem {
    Q_OBJECT

public:
    /// The forms for different amounts of room.
    enum class clsForm {
        WholeCaption, ///< the caption is before the bar
        ShortCaption, ///< the caption is above the bar, if there is room beside the figures
        BarOnly,
    };

    using oStripItem::oStripItem;

    void setLimit(const clsStripLimit &limit);
    const clsStripLimit &Limit() const { return m_limit; }
    void setForm(clsForm form);
    clsForm Form() const { return m_form; }
    QString Words() const override;

    QSize sizeHint() const override;
    /// The width in another form than the present one.
    int widthIn(clsForm form) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintFigures(QPainter &painter, const QRect &line) const;
    int paintSign(QPainter &painter, int right, const QRect &line) const;
    void paintBar(QPainter &painter, const QRectF &bar) const;

    clsStripLimit m_limit;
    clsForm m_form = clsForm::ShortCaption;
};
