#pragma once

#include "controls/mdTheme.h"

#include <QLabel>

/// The caption of a field or of a question. Its letter leads to the field; a tick is ticked by its own letter, but not
/// by that of the question whose first answer it is. A caption without a letter may have a digit instead, which shows
/// behind it while Alt is held.
class oFieldLabel : public QLabel {
    Q_OBJECT

public:
    enum class Place {
        Beside, ///< left of its field, in the column of labels, and wrapped where it is wider than the column
        Above, ///< over its field or answers, as wide as the frame
        Answer, ///< left of one of several answers to a question
    };

    /// The room behind a caption beside its field, where its digit shows; the ring of a tick may begin behind it.
    static constexpr int Gap = Theme::Space12 - Theme::RingRoom;
    /// The widest that the column of labels becomes.
    static int WidestBeside();

    oFieldLabel(const QString &caption, Place place, QWidget *parent);

    /// The caption as the table has it.
    const QString &Caption() const { return m_caption; }
    Place place() const { return m_place; }
    /// Makes this the caption of a field: leads to it, and is pale while it is disabled.
    void setField(QWidget *field);
    /// Whether a tick is ticked by this label's letter.
    void setTicks(bool ticks) { m_ticks = ticks; }
    /// A key that leads to the field under Alt although the caption doesn't hold it.
    void setDigit(QChar digit);
    QChar Digit() const { return m_digit; }
    /// Keeps a long caption in one line, where it has the whole width of the frame and not only the column of labels.
    void setOneLine();
    /// Keeps the label level with a tall box's first line.
    void setTopOfFirstLine(int top);

    int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect placeOfDigit() const;

    QString m_caption;
    Place m_place;
    bool m_ticks = true;
    QChar m_digit;
};
