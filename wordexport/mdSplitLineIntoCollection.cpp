#include "wordexport/mdSplitLineIntoCollection.h"

namespace {

/// The text without the blanks at its ends; other white space belongs to it.
QString trimmedOfBlanks(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == u' ')
        ++first;
    while (last > first && text[last - 1] == u' ')
        --last;
    return text.mid(first, last - first);
}

} // namespace

QStringList mdSplitLineIntoCollection(const QString &text, int width)
{
    QStringList lines;
    QString line;
    for (const QString &word : text.split(u' ')) {
        if (word.size() + line.size() + 1 > width) {
            lines << trimmedOfBlanks(line);
            line.clear();
        }
        line += u' ' + word;
    }
    return lines << trimmedOfBlanks(line);
}

QStringList mdCutIntoPieces(const QString &text, int cutLength)
{
    QStringList pieces;
    QString piece;
    for (const QString &word : text.split(u' ')) {
        piece += word + u' ';
        if (piece.size() > cutLength) {
            pieces << trimmedOfBlanks(piece);
            piece.clear();
        }
    }
    return pieces << trimmedOfBlanks(piece);
}
