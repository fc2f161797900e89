#include "editors/mdItemInShort.h"

#include "base/clsRunTimeError.h"
#include "base/mdPrint.h"
#include "editors/clsScreenTable.h"
#include "formdata/mdLateProperty.h"

namespace {

/// A longer text would make the menu wider than many windows.
constexpr qsizetype Longest = 48;

QString named(const clsItemList &list, const clsXMLRecord &item, const std::vector<const char *> &properties)
{
    QStringList parts;
    for (const char *property : properties)
        if (const QString part = ReadProperty(item, QString::fromLatin1(property)); !part.isEmpty())
            parts << part;
    const QString name = mdWithoutControls(parts.join(u' ').simplified());
    if (name.isEmpty())
        return list.editor ? QString::fromUtf8(list.editor().itemWord) : QString();
    return name.size() > Longest ? name.left(Longest - 1) + u'\u2026' : name;
}

} // namespace

QString mdItemInShort(const clsItemList &list, const clsXMLRecord &item)
{
    return named(list, item, list.called);
}

QString mdItemAsStored(const clsItemList &list, const clsXMLRecord &item)
{
    try {
        return named(list, item, list.told.empty() ? list.called : list.told);
    } catch (const clsRunTimeError &) {
        // In a file, the referenced item may be missing.
        return mdItemInShort(list, item);
    }
}
