#include "wordexport/document/mdCheckDocument.h"

#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/mdDocumentError.h"
#include "wordexport/document/mdStrictXml.h"
#include "wordexport/document/mdWordXml.h"

#include <QSet>

#include <algorithm>
#include <string_view>

namespace {

// Limits the strict reader's comparisons: no real part has a tenth of this.
constexpr int MostAttributes = 500;
constexpr int MostPrefixes = 1000;

[[noreturn]] void failReference(const clsWordPackage &package, const QString &part)
{
    throw mdDocumentError(QStringLiteral("The document %1 is damaged: its part %2 refers to a part that is missing.")
                              .arg(package.shownName(), part));
}

bool isXml(std::string_view contentType)
{
    return contentType.ends_with("+xml") || contentType.ends_with("/xml");
}

bool isModest(const pugi::xml_node &element, int prefixes)
{
    int count = 0;
    for (const pugi::xml_attribute &attribute : element.attributes()) {
        ++count;
        prefixes += std::string_view(attribute.name()).starts_with("xmlns");
    }
    const auto children = element.children();
    return count <= MostAttributes && prefixes <= MostPrefixes
        && std::all_of(children.begin(), children.end(),
            [prefixes](const pugi::xml_node &child) { return isModest(child, prefixes); });
}

// Returns the ids of the relationships that the part refers to.
QStringList readXml(clsWordPackage &package, int part)
{
    const clsStrictReading reading
        = isModest(package.partXml(part), 0) ? mdReadStrictly(package.partBytes(part)) : clsStrictReading();
    if (!reading.isSound)
        throw mdPartDamaged(package.shownName(), package.partName(part));
    return reading.relationshipIds;
}

// The ids of the part's relationships; an error if one has no target or a duplicate id.
QSet<QString> checkRelationships(clsWordPackage &package, int part, const QString &name)
{
    QSet<QString> ids;
    const auto relationships = package.relationships(part);
    for (const clsWordPackage::Relationship &relationship : relationships) {
        if (!relationship.external && package.findTarget(part, relationship) < 0)
            failReference(package, name);
        ids.insert(QString::fromStdString(relationship.id));
    }
    if (size_t(ids.size()) < relationships.size())
        throw mdPartDamaged(package.shownName(), name);
    return ids;
}

// The part that a relationships part belongs to: "word/document.xml" for "word/_rels/document.xml.rels".
QString sourceOf(QString relationshipsName)
{
    return relationshipsName.remove(QLatin1String("_rels/")).chopped(int(strlen(".rels")));
}

void checkRelationshipsPart(clsWordPackage &package, int part)
{
    (void)readXml(package, part);
    const QString &name = package.partName(part);
    if (const QString source = sourceOf(name); !source.isEmpty() && package.findPart(source) < 0)
        failReference(package, name);
}

void checkPart(clsWordPackage &package, int part)
{
    const QString &name = package.partName(part);
    const std::string type = package.contentType(part);
    if (type.empty())
        throw mdPartDamaged(package.shownName(), name);
    const QSet<QString> known = checkRelationships(package, part, name);
    if (!isXml(type))
        return;
    for (const QString &id : readXml(package, part))
        if (!known.contains(id))
            failReference(package, name);
}

} // namespace

void mdCheckDocument(clsWordPackage &package)
{
    (void)checkRelationships(package, clsWordPackage::Package, QStringLiteral("_rels/.rels"));
    for (int part = 0; part < package.partCount(); ++part) {
        const QString &name = package.partName(part);
        if (name == QLatin1String("[Content_Types].xml"))
            (void)readXml(package, part);
        else if (name.endsWith(QLatin1String(".rels"), Qt::CaseInsensitive))
            checkRelationshipsPart(package, part);
        else
            checkPart(package, part);
    }
}
