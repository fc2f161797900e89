#include "wordexport/mdSplitLineIntoCollection.h"

#include "base/mdTrimmedOfBlanks.h"

QStringList mdSplitLineIntoCollection(const QString &text, int width)
{
    QStringList lines;
    QString line;
    for (const QStringView word : QStringView(text).split(u' ')) {
        if (word.size() + line.size() + 1 > width) {
            lines << mdTrimmedOfBlanks(line);
            line.clear();
        }
        line += u' ';
        line += word;
    }
    return lines << mdTrimmedOfBlanks(line);
}

QStringList mdCutIntoPieces(const QString &text, int cutLength)
{
    QStringList pieces;
    QString piece;
    for (const QStringView word : QStringView(text).split(u' ')) {
        piece += word;
        piece += u' ';
        if (piece.size() > cutLength) {
            pieces << mdTrimmedOfBlanks(piece);
            piece.clear();
        }
    }
    return pieces << mdTrimmedOfBlanks(piece);
}
