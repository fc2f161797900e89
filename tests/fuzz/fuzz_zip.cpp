// The bytes of a document's package: the container, content types, relationships. The seeds' parts are stored
// uncompressed, and their checksums are corrected after each change, so that the changes reach their content.

#include "tests/fuzz/mdFuzz.h"
#include "tests/fuzz/mdFuzzZip.h"
#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/clsZipPackage.h"
#include "wordexport/document/mdCheckDocument.h"

#include <map>
#include <optional>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t longest);

namespace {

using Error = clsRunTimeError;

const QString ShownName = QStringLiteral("attacked");

std::map<QString, QByteArray> partsOf(const clsZipPackage &package)
{
    std::map<QString, QByteArray> parts;
    for (const clsZipPackage::Entry &entry : package.entries())
        mdFuzzRequire(parts.emplace(entry.name, entry.bytes).second, "no two parts have one name");
    return parts;
}

void attackContainer(const clsZipPackage &package)
{
    for (const clsZipPackage::Entry &entry : package.entries()) {
        const QString name = u'/' + entry.name + u'/';
        mdFuzzRequire(
            !name.contains(QLatin1String("/../")) && !name.startsWith(QLatin1String("//")) && !name.contains(u'\\'),
            "no part lies outside the package");
    }
    for (const auto packing : {clsZipPackage::Stored, clsZipPackage::Deflated}) {
        const QByteArray bytes = package.toBytes(packing);
        const clsZipPackage again = clsZipPackage::fromBytes(bytes, ShownName);
        mdFuzzRequire(partsOf(again) == partsOf(package), "a package that was written holds the same parts");
        mdFuzzSame(bytes, again.toBytes(packing), "a package is written in one way");
    }
}

void attackRelationships(clsWordPackage &package)
{
    for (int part = 0; part < package.partCount(); ++part)
        mdFuzzErrorOf({Error::InvalidFileFormat}, "a damaged relationship is a damaged document", [&] {
            const auto relationships = package.relationships(part);
            for (const clsWordPackage::Relationship &relation : relationships) {
                mdFuzzRequire(package.relationship(part, relation.id.c_str()) != nullptr, "a relationship is found");
                if (!relation.external) {
                    const int target = package.targetOf(part, relation);
                    mdFuzzRequire(target >= 0 && target < package.partCount(), "a relationship leads to a part");
                }
            }
        });
}

void attackDocument(const clsZipPackage &zip)
{
    std::optional<clsWordPackage> package;
    if (mdFuzzErrorOf({Error::InvalidFileFormat}, "a damaged document is told in one way",
            [&] { package.emplace(zip, ShownName); }))
        return;
    mdFuzzErrorOf(
        {Error::InvalidFileFormat}, "a damaged part is a damaged document", [&] { mdCheckDocument(*package); });
    attackRelationships(*package);
    for (const char *type : {"styles", "numbering", "settings"})
        mdFuzzErrorOf({Error::InvalidFileFormat}, "a damaged part is a damaged document", [&] {
            if (const int part = package->relatedPart(type); part >= 0)
                package->partXml(part);
        });

    // With another part, another relationship and the main part rewritten it is still a document.
    const int added = package->addPart(QStringLiteral("word/media/image1.png"), "picture", "image/png");
    const std::string id = package->addRelationship(package->mainPart(), "type/image", added);
    package->setChanged(package->mainPart());
    clsWordPackage again(clsZipPackage::fromBytes(package->toBytes(clsZipPackage::Stored), ShownName), ShownName);
    const auto *relation = again.relationship(again.mainPart(), id.c_str());
    mdFuzzRequire(relation != nullptr, "a relationship that was added is there");
    const int target = again.targetOf(again.mainPart(), *relation);
    mdFuzzSame(QByteArray("picture"), again.partBytes(target), "a part that was added is there");
    mdFuzzRequire(again.contentType(target) == "image/png", "a part that was added has its type");
}

} // namespace

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    std::optional<clsZipPackage> package;
    if (mdFuzzErrorOf({Error::InvalidFileFormat}, "a damaged package is told in one way",
            [&] { package = clsZipPackage::fromBytes(bytes, ShownName); }))
        return;
    if (package->entries().empty())
        return; // without parts it is not a document, and never written
    attackContainer(*package);
    attackDocument(*package);
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t longest, unsigned seed)
{
    const size_t changed = LLVMFuzzerMutate(data, size, longest);
    constexpr unsigned DamagedOnceIn = 8;
    if (seed % DamagedOnceIn != 0)
        mdFuzzMendZip(data, changed);
    return changed;
}
