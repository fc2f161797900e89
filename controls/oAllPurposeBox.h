#pragma once

#include "controls/oPrintSign.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class oSpellText;

/// The one box for free text, of one line or several. It counts what is left of the room that the printed form gives,
/// expands the user's abbreviations while he types, and marks misspelled words. The room is advice: no character is
/// ever refused.
class oAllPurposeBox : public QWidget {
    Q_OBJECT

public:
    explicit oAllPurposeBox(QWidget *parent = nullptr);

    /// Line breaks are CR LF; a box of one line has blanks in their place.
    QString Text() const;
    void setText(const QString &text);

    bool MultiLine() const;
    void setMultiLine(bool multiLine);

    bool SpellCheck() const;
    void setSpellCheck(bool spellCheck);

    bool AllowReplacements() const { return m_allowReplacements; }
    void setAllowReplacements(bool allowReplacements) { m_allowReplacements = allowReplacements; }

    /// Whether a longer text goes on to a continuation sheet.
    bool OverRun() const { return m_overRun; }
    void setOverRun(bool overRun);

    /// The number of characters that the printed box holds; 0 for a box without a count.
    int CharacterAllowance() const { return m_characterAllowance; }
    void setCharacterAllowance(int characterAllowance);

    /// What tells how a text is printed that doesn't fit its box on the form. It is asked a moment after each change.
    void setPrintNote(std::function<clsPrintNote(const QString &text)> note);

    /// The caret in characters of the text, a line break as two.
    int SelStart() const;
    void setSelStart(int position);

    /// The distance from the top of the box to the top of its first line, where a label beside it belongs.
    int topOfFirstLine() const;

signals:
    /// The text has been changed, by the user or the program. Raised before the count shows it.
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

/// What the entry "Edit Replacements..." in the menu of every box does; the preferences screen puts it here. Until
/// then the entry is greyed.
void SetEditReplacements(std::function<void()> edit);
