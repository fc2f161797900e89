#pragma once

#include "controls/mdTheme.h"

#include <QLabel>

/// The caption of a field or question. Its letter leads to the field and toggles a tick, except for the letter of a
/// question, which only leads to its first answer. A caption without a letter may have a digit instead, shown after it
/// while Alt is held.
class oFieldLabel : public QLabel {
    Q_OBJECT

public:
    enum class Place {
        Beside, ///< left of its field, in the label column; wrapped if it is too wide for the column
        Above, ///< above its field or answers, as wide as the frame
        Answer, ///< left of one of several answers to a question
    };

    /// The space between a caption and its field, where the digit is shown; a tick's focus ring may begin there.
    static constexpr int Gap = Theme::Space12 - Theme::RingRoom;
    /// The maximum width of the label column.
    static int WidestBeside();

    oFieldLabel(const QString &caption, Place place, QWidget *parent);

    /// The caption in the table.
    const QString &Caption() const { return m_caption; }
    Place place() const { return m_place; }
    /// Makes this the caption of a field: leads to it, and is pale while the field is disabled.
    void setField(QWidget *field);
    /// Whether this label's letter toggles a tick.
    void setTicks(bool ticks) { m_ticks = ticks; }
    /// Sets an Alt key for the field that isn't in the caption.
    void setDigit(QChar digit);
    QChar Digit() const { return m_digit; }
    /// Keeps a long caption on one line if it has the whole width of the frame, not only the label column.
    void setOneLine();
    /// Keeps the label level with the first line of a tall box.
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
