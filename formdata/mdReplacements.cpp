#include "formdata/mdReplacements.h"

#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdGlobals.h"

#include <algorithm>

QString KeyCodeToCharacter(int KeyCode)
{
    switch (KeyCode) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return QStringLiteral("\r");
    case Qt::Key_Tab: return QStringLiteral("\t");
    case Qt::Key_Backspace: return QStringLiteral("\b");
    case Qt::Key_Escape: return QStringLiteral("\x1b");
    default: break;
    }
    // The codes of typing keys are those of their characters, letters as capitals; all others are far larger.
    if (KeyCode < Qt::Key_Space || KeyCode > Qt::Key_ydiaeresis)
        return {};
    return QString(QChar(char16_t(KeyCode))).toLower();
}

bool IsValidInputText(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return QStringView(u"0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ").contains(character);
    });
}

QString ExpandReplacements(const QString &text)
{
    // Without preferences there are no abbreviations yet.
    if (!Preferences)
        return text;
    const QString lineBreak = QStringLiteral("\r\n");
    const QString lineBreakAndBlank = QStringLiteral("\r\n ");
    // With a blank at the start of each line, every word is preceded by one.
    QString work = u' ' + text;
    work.replace(lineBreak, lineBreakAndBlank);
    const int count = int(Preferences->ReplacementsCollection().size());
    for (int index = 1; index <= count; ++index) {
        const auto replacement = Preferences->Replacement(index);
        // The blank after the abbreviation is removed. So of two equal abbreviations in succession only the first is
        // found: it consumes the blank before the second. A later abbreviation also applies to the result of an earlier
        // one. Required behaviour; do not fix.
        work.replace(u' ' + replacement->InputText() + u' ', u' ' + replacement->OutputText());
    }
    work.remove(0, 1);
    work.replace(lineBreakAndBlank, lineBreak);
    return work;
}
