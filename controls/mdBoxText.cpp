#include "controls/mdBoxText.h"

QString BoxText(QString text, bool multiLine)
{
    const QChar lineBreak = multiLine ? u'\n' : u' ';
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    // Word processors copy a break within a paragraph as a vertical tab, and a page break as a form feed.
    for (const char16_t other : {u'\n', u'\r', u'\v', u'\f', u'\u2028', u'\u2029'})
        text.replace(QChar(other), lineBreak);
    return text;
}

QString PastedBoxText(const QString &text, bool multiLine)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : BoxText(text, multiLine)) {
        if (character == u'\n')
            result += character;
        else if (character == u'\t' || character.category() == QChar::Separator_Space)
            result += u' ';
        else if (character.category() != QChar::Other_Control && character.category() != QChar::Other_Format
            && character != QChar::ObjectReplacementCharacter)
            result += character;
    }
    return result;
}

QString WithLineBreaks(QString editorText)
{
    for (const char16_t other : {u'\u2028', u'\u2029'})
        editorText.replace(QChar(other), u'\n');
    return editorText.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}
