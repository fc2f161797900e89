#pragma once

#include "controls/oPrintSign.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class oSpellText;

/// The box for free text, of one line or several. It counts the characters left in the printed box, expands the user's
/// abbreviations while typing, and marks misspelt words. The limit is advisory: no character is ever rejected.
class oAllPurposeBox : public QWidget {
    Q_OBJECT

public:
    explicit oAllPurposeBox(QWidget *parent = nullptr);

    /// Line breaks are CR LF; a single-line box replaces them with blanks.
    QString Text() const;
    void setText(const QString &text);

    bool MultiLine() const;
    void setMultiLine(bool multiLine);

    bool SpellCheck() const;
    void setSpellCheck(bool spellCheck);

    bool AllowReplacements() const { return m_allowReplacements; }
    void setAllowReplacements(bool allowReplacements) { m_allowReplacements = allowReplacements; }

    /// Whether a longer text continues on a continuation sheet.
    bool OverRun() const { return m_overRun; }
    void setOverRun(bool overRun);

    /// The number of characters that the printed box holds; 0 for a box without a count.
    int CharacterAllowance() const { return m_characterAllowance; }
    void setCharacterAllowance(int characterAllowance);

    /// Sets the function that describes how a text that doesn't fit is printed on the form. It is called a moment after
    /// each change.
    void setPrintNote(std::function<clsPrintNote(const QString &text)> note);

    /// The caret position in characters of the text; a line break counts as two.
    int SelStart() const;
    void setSelStart(int position);

    /// The distance from the top of the box to the top of its first line, for aligning a label beside it.
    int topOfFirstLine() const;

signals:
    /// The user or the program has changed the text. Raised before the count is updated.
    void Change();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keyReleased(int KeyCode);
    void refreshCount();
    void refreshPrintNote();
    void describe();
    void placeSign();
    void layOut();
    void passNameOn();

    oSpellText *m_text;
    QLabel *m_count;
    oPrintSign *m_sign;
    std::function<clsPrintNote(const QString &text)> m_printNote;
    QTimer m_printNoteIsDue;
    QString m_countInWords;
    bool m_allowReplacements = true;
    bool m_overRun = false;
    int m_characterAllowance = 0;
};

/// Sets the action of the entry "Edit Replacements..." in the menu of every box; the preferences screen provides it.
/// Without one the entry is disabled.
void SetEditReplacements(std::function<void()> edit);
