#pragma once

#include <QSet>
#include <QStringList>

/// Gives each caption of a screen a letter of its own for the Alt key. A letter is given once; a caption for which none
/// is left goes without. The captions themselves are never changed: only the mark is put in.
class clsMnemonics {
public:
    /// Keeps a letter from being given, since a menu or a button has it for good.
    void reserve(QChar letter) { m_taken.insert(letter.toUpper()); }

    /// The caption with the mark before the letter picked for it: the first free one that begins a word, else the first
    /// free one at all. Every "&" of the caption's own is doubled.
    QString marked(const QString &caption);
    /// The same with a letter that is fixed. The caption must hold it.
    QString marked(const QString &caption, QChar letter);
    /// The same for captions together, so that as many as can have a letter get one: a caption gives its letter up for
    /// another of its own where a later one has no choice.
    QStringList marked(const QStringList &captions);
    /// The next digit that nothing has, for a caption that has to go without a letter; nothing when all are given.
    QChar digit();

    /// A caption without a letter, as a label or button has to be given it.
    static QString unmarked(const QString &caption);

private:
    QString markedAt(const QString &caption, qsizetype place);
    QList<qsizetype> placesIn(const QString &caption) const;

    QSet<QChar> m_taken;
};
