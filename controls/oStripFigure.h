#pragma once

#include "controls/oStripItem.h"

/// A label and a figure of the strip of totals. A figure that can't be computed is a red "!" with the error sign, and
/// its tooltip gives the reason.
class oStripFigure final : public oStripItem {
    Q_OBJECT

public:
    using oStripItem::oStripItem;

    void setWords(const QString &words);
    QString Words() const override { return m_words; }
    /// The figure in its printed form.
    void setFigure(const QString &figure);
    QString Figure() const { return m_figure; }
    void setFailure(const QString &whyNot);
    QString Failure() const { return m_whyNot; }
    /// Marks the most important figure.
    void setStrong(bool strong);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tell();
    QFont wordsFont() const;
    QFont figureFont() const;

    QString m_words;
    QString m_figure;
    QString m_whyNot;
    bool m_strong = false;
};
