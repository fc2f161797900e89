#pragma once

#include "controls/mdSigns.h"

#include <QWidget>

#include <functional>

class oCustomButton;

/// A note beside a single-line box: how the box read what was typed, or why its value deserves a check. The value is
/// valid, so the box keeps its colours. Without room beside the box, the note is below it, in a line that the screen
/// keeps free, so that nothing moves. The next change of the box removes it.
class oBoxNote : public QWidget {
    Q_OBJECT

public:
    struct clsNote {
        QString words;
        Sign sign = Sign::Note;
        QString better = {}; ///< the text offered by the button "Use ..."; empty for no button
        QString shortWords = {}; ///< shown if there is no room for `words`; empty for the same
    };

    /// Shows a note at a box. `use` writes the better text, as if typed.
    static void Show(QWidget &box, const clsNote &note, std::function<void(const QString &text)> use = {});
    /// Removes the note of a box, if any.
    static void Clear(QWidget &box);
    /// The note of a box; null if none.
    static oBoxNote *of(const QWidget &box);

    QString Words() const { return m_note.words; }
    Sign gravity() const { return m_note.sign; }
    /// Whether all of its words are visible.
    bool isWhole() const;

    /// Places the notes of a box below it, if its screen keeps a line of this height free for them.
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
