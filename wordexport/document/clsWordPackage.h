#pragma once

#include "wordexport/document/clsZipPackage.h"

#include <pugixml.hpp>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// A document as a package of parts, each with a content type and relationships to others. A part is parsed only on
/// demand; an unchanged part is written back byte for byte.
class clsWordPackage {
public:
    struct Relationship {
        std::string id;
        std::string type;
        std::string target;
        bool external = false;
    };

    /// The package itself as the source of relationships.
    static constexpr int Package = -1;

    static clsWordPackage fromFile(const QString &path) { return fromFile(path, path); }
    static clsWordPackage fromFile(const QString &path, const QString &shownName);
    clsWordPackage(clsZipPackage zip, const QString &shownName);
    /// Parses the main part's tree below a node of another tree, so that its content can be moved there instead of
    /// copied. That node must outlive the package's use.
    clsWordPackage(clsZipPackage zip, const QString &shownName, const pugi::xml_node &mainPlace);

    QByteArray toBytes(clsZipPackage::Packing packing) { return content().toBytes(packing); }
    /// The parts with all changes.
    const clsZipPackage &content();

    /// The document's name in error messages.
    const QString &shownName() const { return m_shownName; }
    /// The part with the text: the target of the package's own relationship, whatever its name.
    int mainPart() const { return m_mainPart; }
    /// The root element of that part.
    pugi::xml_node mainRoot();
    /// The part to which the main part has a relationship of that type (its last word: "styles", "numbering"), or -1.
    int relatedPart(const char *typeName);

    /// Moves the present body to the finished text at the front of the main part, which is kept compressed: as a tree,
    /// a joined document would take a thousand times the memory.
    void settleBody();
    /// Adds text to it that was never in the tree, as whole blocks in their written form.
    void settleText(QByteArrayView blocks);
    /// Makes the finished text part of the tree again.
    void restoreBody();
    bool hasSettledText() const { return m_settled != nullptr; }

    int partCount() const { return int(m_zip.entries().size()); }
    const QString &partName(int part) const { return m_zip.entries()[size_t(part)].name; }
    const QByteArray &partBytes(int part) const { return m_zip.bytes(part); }
    /// The bytes of a part with all changes.
    QByteArray currentBytes(int part);
    /// The tree of a part, parsed on the first call. Callers that change it must call setChanged.
    pugi::xml_document &partXml(int part);
    void setChanged(int part) { m_parsed[part].changed = true; }
    std::string contentType(int part) const;

    int findPart(const QString &name) const { return m_zip.indexOf(name); }
    /// Adds a part under that name or, if it is taken, with another number in it ("word/media/image2.png").
    int addPart(const QString &nameLike, const QByteArray &bytes, const std::string &contentType);

    const std::vector<Relationship> &relationships(int part);
    const Relationship *relationship(int part, const char *id);
    /// The target of an internal relationship, or -1.
    int findTarget(int part, const Relationship &relationship) const;
    /// The same, but a missing target is an error.
    int targetOf(int part, const Relationship &relationship) const;
    /// Adds a relationship and returns its new id.
    std::string addRelationship(int part, const std::string &type, int targetPart);
    std::string addExternalRelationship(int part, const std::string &type, const std::string &target);
    /// Sets the relationships of a new part, including their ids.
    void setRelationships(int part, std::vector<Relationship> relationships);
    /// The reference to another part in absolute form, valid from any part.
    std::string referenceTo(int targetPart) const;

private:
    struct Parsed {
        std::unique_ptr<pugi::xml_document> tree;
        bool changed = false;
    };
    struct Relations {
        std::vector<Relationship> list;
        int nextId = 1;
        bool changed = false;
    };

    QString relationshipsName(int part) const;
    Relations &relations(int part);
    std::unique_ptr<pugi::xml_document> parse(int part) const;
    void parseInto(pugi::xml_node place, int part) const;
    void findMainPart();
    std::pair<QByteArray, QByteArray> aroundSettledText();
    void writeMainPart();
    void writeRelationships();

    clsZipPackage m_zip;
    QString m_shownName;
    int m_mainPart = -1;
    pugi::xml_node m_mainPlace; // of the main part's tree; a null node if it is a separate tree
    std::unique_ptr<clsDeflatedText> m_settled; // after the head of the main part
    QByteArray m_settledHead;
    std::map<int, Parsed> m_parsed;
    std::map<int, Relations> m_relations;
    std::unique_ptr<pugi::xml_document> m_contentTypes;
    std::map<std::string, std::string> m_defaultTypes; // by extension, lower case
    std::map<std::string, std::string> m_overrideTypes; // by part name, lower case
    bool m_contentTypesChanged = false;
    std::map<QString, int> m_nextNumber; // of part names, by the text around the number
};
