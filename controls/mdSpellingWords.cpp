#include "controls/mdSpellingWords.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

bool isApostrophe(QChar character)
{
    return character == u'\'' || character == u'\u2019';
}

bool isWordCharacter(QChar character)
{
    // Letters outside the first plane come as surrogate pairs.
    return character.isLetter() || character.isMark() || isApostrophe(character) || character.isSurrogate();
}

bool canBeJudged(QStringView word)
{
    if (word.size() < 2 || !std::all_of(word.begin(), word.end(), isWordCharacter))
        return false;
    return std::any_of(word.begin(), word.end(), [](QChar character) { return character.isLower(); });
}

/// Whether a character joins its two neighbours to an address, such as "@" or a full stop without a blank.
bool isJoint(const QString &text, int at)
{
    if (at <= 0 || at + 1 >= text.size())
        return false;
    return text[at] == u'@' || (text[at] == u'.' && text[at - 1].isLetterOrNumber() && text[at + 1].isLetterOrNumber());
}

bool isPartOfAddress(const QString &text, const clsWordPlace &word)
{
    return isJoint(text, word.start - 1) || isJoint(text, word.end());
}

} // namespace

std::vector<clsWordPlace> SpellingWords(const QString &text)
{
    std::vector<clsWordPlace> result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    int start = -1;
    for (qsizetype at = 0; at != -1; at = finder.toNextBoundary()) {
        const auto reasons = finder.boundaryReasons();
        if (start >= 0 && reasons.testFlag(QTextBoundaryFinder::EndOfItem)) {
            const clsWordPlace word {start, int(at) - start};
            if (canBeJudged(QStringView(text).mid(word.start, word.length)) && !isPartOfAddress(text, word))
                result.push_back(word);
            start = -1;
        }
        if (reasons.testFlag(QTextBoundaryFinder::StartOfItem))
            start = int(at);
    }
    return result;
}
