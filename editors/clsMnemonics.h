#pragma once

#include <QSet>
#include <QString>

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

    /// A caption without a letter, as a label or button has to be given it.
    static QString unmarked(const QString &caption);

private:
    QString markedAt(const QString &caption, qsizetype place);

    QSet<QChar> m_taken;
};
