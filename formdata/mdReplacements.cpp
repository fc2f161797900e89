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
    // The codes of the keys that type are those of their characters, letters as capitals; all others lie far above.
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
    // With a blank at the beginning of each line, every word stands behind one.
    QString work = u' ' + text;
    work.replace(lineBreak, lineBreakAndBlank);
    const int count = int(Preferences->ReplacementsCollection().size());
    for (int index = 1; index <= count; ++index) {
        const auto replacement = Preferences->Replacement(index);
        // The blank behind the abbreviation isn't given back. So of two equal ones side by side only the first is
        // found: it takes the blank that the second would have to begin with. A later abbreviation sees what an earlier
        // one has put in. Both are meant.
        work.replace(u' ' + replacement->InputText() + u' ', u' ' + replacement->OutputText());
    }
    work.remove(0, 1);
    work.replace(lineBreakAndBlank, lineBreak);
    return work;
}
