#pragma once

#include "controls/mdSigns.h"

#include <QWidget>

#include <functional>

class oCustomButton;

/// A note beside a box of one line: how the box read what was typed, or why its value deserves a look. The value is
/// valid, so the box keeps its colours. Where there is no room beside the box, the note stands beneath it, in a line
/// that the screen keeps free, so that nothing moves. It goes at the next change of the box.
class oBoxNote : public QWidget {
    Q_OBJECT

public:
    struct clsNote {
        QString words;
        Sign sign = Sign::Note;
        QString better = {}; ///< what the button "Use ..." offers; empty for no button
        QString shortWords = {}; ///< what is shown where there is no room for the words; empty for the same
    };

    /// Shows a note at a box. `use` writes the better text, as if typed.
    static void Show(QWidget &box, const clsNote &note, std::function<void(const QString &text)> use = {});
    /// Takes the note of a box away, if there is one.
    static void Clear(QWidget &box);
    /// The note of a box, or nothing.
    static oBoxNote *of(const QWidget &box);

    QString Words() const { return m_note.words; }
    Sign gravity() const { return m_note.sign; }
    /// Whether all of its words can be seen.
    bool isWhole() const;

    /// Has the notes of a box stand beneath it, where its screen keeps a line of this height free for them.
    static void PutBeneath(QWidget &box);
    static int lineBeneath();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    oBoxNote(QWidget &box, const clsNote &note, std::function<void(const QString &)> use);
    void place();
    void placeBeside();
    void placeBeneath();
    int freeUntil(int top, int bottom) const;
    QList<QWidget *> neighbours(int top, int bottom) const;
    int columnLeft() const;
    int textLeft() const;
    QRect roomOfWords() const;
    int heightOf(const QString &words, int width) const;

    QWidget &m_box;
    clsNote m_note;
    QString m_shown;
    bool m_buttonBelow = false;
    oCustomButton *m_use = nullptr;
};
