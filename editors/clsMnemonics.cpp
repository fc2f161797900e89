#include "editors/clsMnemonics.h"

namespace {

/// Letters and digits that every keyboard has under Alt.
bool isKey(QChar c)
{
    return c.unicode() < 128 && c.isLetterOrNumber();
}

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

QString clsMnemonics::marked(const QString &caption)
{
    for (const bool beginningsOnly : {true, false}) {
        for (qsizetype place = 0; place < caption.size(); ++place) {
            if (!isKey(caption[place]) || m_taken.contains(caption[place].toUpper()))
                continue;
            if (!beginningsOnly || place == 0 || !caption[place - 1].isLetterOrNumber())
                return markedAt(caption, place);
        }
    }
    return unmarked(caption);
}

QString clsMnemonics::marked(const QString &caption, QChar letter)
{
    const qsizetype place = caption.indexOf(letter, 0, Qt::CaseInsensitive);
    return place < 0 ? unmarked(caption) : markedAt(caption, place);
}
