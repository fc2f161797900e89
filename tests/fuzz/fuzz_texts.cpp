// Texts on their way into a claim, out of it and to the sheets: the code page, the encoding, versions, and splitting
// into lines. The first byte is the width of a line; the rest is one text, or two separated by a line feed.

#include "base/mdCodePage.h"
#include "base/mdTrimmedOfBlanks.h"
#include "base/mdVersionComparison.h"
#include "formdata/mdReplacements.h"
#include "formdata/mdURLEncode.h"
#include "formdata/mdXMLControl.h"
#include "formdata/mdXMLReplaceProblemCharacters.h"
#include "tests/fuzz/mdFuzz.h"
#include "wordexport/mdSplitLineIntoCollection.h"

#include <algorithm>
#include <numeric>

namespace {

using Error = clsRunTimeError;

void attackEncoding(QByteArrayView bytes, const QString &text)
{
    mdFuzzSame(bytes.toByteArray(), mdToCodePage(text), "every byte survives the code page");
    const QByteArray encoded = URLEncode(text);
    mdFuzzRequire(std::all_of(encoded.begin(), encoded.end(),
                      [](char c) {
                          return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '+'
                              || c == '%';
                      }),
        "an encoded text holds letters, digits and two signs only");
    mdFuzzSame(text, URLDecode(QString::fromLatin1(encoded)), "an encoded text is decoded to itself");
    mdFuzzSame(ReplaceProblemCharacters(text), XMLDecodeText(XMLEncodeText(text).constData()),
        "a text survives its element but for the characters that are replaced");
    const QString decoded = URLDecode(text);
    mdFuzzRequire(decoded.size() <= text.size(), "decoding makes nothing longer");
    mdFuzzSame(mdFromCodePage(mdToCodePage(decoded)), URLDecode(QString::fromLatin1(URLEncode(decoded))),
        "what was decoded can be encoded");

    // As UTF-8, like the content of an element: not every input is valid, and none may do harm.
    const QByteArray content = bytes.toByteArray();
    const QString read = XMLDecodeText(content.constData());
    mdFuzzSame(URLDecode(QString::fromUtf8(content.constData())), read, "the short way of reading is the long one");
}

/// A text without its spaces.
QString joined(const QStringList &lines)
{
    return lines.join(QString()).remove(u' ');
}

void attackLines(const QString &text, int width)
{
    const QStringList lines = mdSplitLineIntoCollection(text, width);
    mdFuzzRequire(!lines.isEmpty(), "a text has a line");
    mdFuzzSame(QString(text).remove(u' '), joined(lines), "no character but blanks is lost in lines");
    for (const QString &line : lines)
        mdFuzzRequire(line.size() <= width || !line.contains(u' '), "only a single word is longer than its line");
    const QStringList pieces = mdCutIntoPieces(text, width);
    mdFuzzRequire(!pieces.isEmpty(), "a text has a piece");
    mdFuzzSame(QString(text).remove(u' '), joined(pieces), "no character but blanks is lost in pieces");
}

void attackVersions(const QString &a, const QString &b)
{
    enum { Older = 0, Same = 1, Newer = 2 };
    mdFuzzRequire(CompareVersions(a, a) == Same, "a version is the same as itself");
    int there = Same;
    int back = Same;
    const int error = mdFuzzErrorOf(
        {Error::SubscriptOutOfRange}, "a version fails by its error", [&] { there = CompareVersions(a, b); });
    const int errorBack = mdFuzzErrorOf(
        {Error::SubscriptOutOfRange}, "a version fails by its error", [&] { back = CompareVersions(b, a); });
    mdFuzzRequire(error == errorBack, "two versions fail in either order");
    if (error == 0 && a != b)
        mdFuzzRequire(
            there != Same && back != Same && !(there == Newer && back == Newer), "of two one is newer at most");
    if (a == b)
        mdFuzzRequire(there == Same && back == Same, "equal texts are the same version");
}

} // namespace

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    if (size == 0)
        return;
    const QString text = mdFuzzText(data + 1, size - 1);
    attackEncoding(QByteArrayView(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1)), text);
    attackLines(text, data[0]);
    attackVersions(text.section(u'\n', 0, 0), text.section(u'\n', 1));
    mdFuzzRequire(!IsValidInputText(text) || !text.contains(u' '), "an abbreviation is one word");
    mdFuzzSame(mdTrimmedOfBlanks(text), mdTrimmedOfBlanks(mdTrimmedOfBlanks(text)), "trimming once is enough");
}
