#pragma once

#include <QSet>
#include <QStringList>

/// Assigns each caption of a screen its own Alt letter. A letter is assigned once; a caption gets none if all of its
/// letters are taken. Captions don't change except for the mark.
class clsMnemonics {
public:
    /// Reserves a letter that a menu or button always uses.
    void reserve(QChar letter) { m_taken.insert(letter.toUpper()); }

    /// The caption with a mark before its letter: the first free letter at the beginning of a word, otherwise the first
    /// free one. Existing "&" are doubled.
    QString marked(const QString &caption);
    /// The same with a given letter, which must occur in the caption.
    QString marked(const QString &caption, QChar letter);
    /// Marks captions together, so that as many as possible get a letter: a caption changes to another of its letters
    /// if a later one has no alternative.
    QStringList marked(const QStringList &captions);
    /// The next unassigned digit, for a caption without a letter; null if all are assigned.
    QChar digit();

    /// A caption without a letter, with each "&" doubled for use in a label or button.
    static QString unmarked(const QString &caption);

private:
    QString markedAt(const QString &caption, qsizetype place);
    QList<qsizetype> placesIn(const QString &caption) const;

    QSet<QChar> m_taken;
};
