#include "editors/mdItemInShort.h"

#include "base/mdPrint.h"
#include "editors/clsScreenTable.h"
#include "formdata/mdLateProperty.h"

namespace {

/// A menu with more would be wider than many a window.
constexpr qsizetype Longest = 48;

} // namespace

QString mdItemInShort(const clsItemList &list, const clsXMLRecord &item)
{
    QStringList parts;
    for (const char *property : list.called)
        if (const QString part = ReadProperty(item, QString::fromLatin1(property)); !part.isEmpty())
            parts << part;
    const QString name = mdWithoutControls(parts.join(u' ').simplified());
    if (name.isEmpty())
        return list.editor ? QString::fromUtf8(list.editor().itemWord) : QString();
    return name.size() > Longest ? name.left(Longest - 1) + u'\u2026' : name;
}
