#include "wordexport/mdSplitLineIntoCollection.h"

#include "shell/mdTrimmedOfBlanks.h"

QStringList mdSplitLineIntoCollection(const QString &text, int width)
{
    QStringList lines;
    QString line;
    for (const QString &word : text.split(u' ')) {
        if (word.size() + line.size() + 1 > width) {
            lines << mdTrimmedOfBlanks(line);
            line.clear();
        }
        line += u' ' + word;
    }
    return lines << mdTrimmedOfBlanks(line);
}

QStringList mdCutIntoPieces(const QString &text, int cutLength)
{
    QStringList pieces;
    QString piece;
    for (const QString &word : text.split(u' ')) {
        piece += word + u' ';
        if (piece.size() > cutLength) {
            pieces << mdTrimmedOfBlanks(piece);
            piece.clear();
        }
    }
    return pieces << mdTrimmedOfBlanks(piece);
}
