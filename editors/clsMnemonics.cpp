#include "editors/clsMnemonics.h"

#include <QHash>

#include <algorithm>
#include <string_view>

namespace {

/// Letters and digits that every keyboard can type with Alt.
bool isKey(QChar c)
{
    return c.unicode() < 128 && c.isLetterOrNumber();
}

/// Assigns letters to captions, one caption at a time.
class clsSeating {
public:
    /// Assigns a caption one of these letters: the first free one, otherwise one whose caption can change to another.
    void seat(const QString &letters)
    {
        m_letters << letters;
        QSet<QChar> asked;
        seat(int(m_letters.size()) - 1, asked);
    }
    /// The index of a caption's letter among those passed to `seat`, or -1.
    qsizetype choice(int caption) const
    {
        for (auto holder = m_holders.begin(); holder != m_holders.end(); ++holder)
            if (holder.value() == caption)
                return m_letters[caption].indexOf(holder.key());
        return -1;
    }

private:
    bool seat(int caption, QSet<QChar> &asked)
    {
        const QString letters = m_letters[caption];
        const auto isFree = [this](QChar letter) { return !m_holders.contains(letter); };
        const auto canBecomeFree = [this, &asked](QChar letter) {
            if (asked.contains(letter))
                return false;
            asked.insert(letter);
            return seat(m_holders.value(letter), asked);
        };
        auto letter = std::find_if(letters.begin(), letters.end(), isFree);
        if (letter == letters.end())
            letter = std::find_if(letters.begin(), letters.end(), canBecomeFree);
        if (letter == letters.end())
            return false;
        m_holders[*letter] = caption;
        return true;
    }

    QStringList m_letters; ///< of each caption
    QHash<QChar, int> m_holders;
};

} // namespace

QString clsMnemonics::unmarked(const QString &caption)
{
    return QString(caption).replace(u'&', QLatin1String("&&"));
}

QString clsMnemonics::markedAt(const QString &caption, qsizetype place)
{
    m_taken.insert(caption[place].toUpper());
    return unmarked(caption.left(place)) + u'&' + unmarked(caption.mid(place));
}

/// Positions of letters that can be assigned, best first.
QList<qsizetype> clsMnemonics::placesIn(const QString &caption) const
{
    QList<qsizetype> beginnings;
    QList<qsizetype> others;
    for (qsizetype place = 0; place < caption.size(); ++place) {
        if (!isKey(caption[place]) || m_taken.contains(caption[place].toUpper()))
            continue;
        const bool begins = place == 0 || !caption[place - 1].isLetterOrNumber();
        (begins ? beginnings : others) << place;
    }
    return beginnings + others;
}

QString clsMnemonics::marked(const QString &caption)
{
    const QList<qsizetype> places = placesIn(caption);
    return places.isEmpty() ? unmarked(caption) : markedAt(caption, places.first());
}

QString clsMnemonics::marked(const QString &caption, QChar letter)
{
    const qsizetype place = caption.indexOf(letter, 0, Qt::CaseInsensitive);
    return place < 0 ? unmarked(caption) : markedAt(caption, place);
}

QStringList clsMnemonics::marked(const QStringList &captions)
{
    clsSeating seating;
    QList<QList<qsizetype>> places;
    for (const QString &caption : captions) {
        places << placesIn(caption);
        QString letters;
        for (const qsizetype place : places.last())
            letters += caption[place].toUpper();
        seating.seat(letters);
    }
    QStringList result;
    for (int caption = 0; caption < captions.size(); ++caption) {
        const qsizetype choice = seating.choice(caption);
        result << (choice < 0 ? unmarked(captions[caption]) : markedAt(captions[caption], places[caption][choice]));
    }
    return result;
}

QChar clsMnemonics::digit()
{
    for (const char16_t digit : std::u16string_view(u"1234567890")) {
        if (m_taken.contains(digit))
            continue;
        m_taken.insert(digit);
        return digit;
    }
    return {};
}
