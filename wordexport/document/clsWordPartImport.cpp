#include "wordexport/document/clsWordPartImport.h"

#include "wordexport/document/mdDocumentError.h"
#include "wordexport/document/mdWordXml.h"

#include <QCryptographicHash>

namespace {

using Relationships = std::vector<clsWordPackage::Relationship>;

bool isHeaderOrFooter(const std::string &contentType)
{
    return contentType.ends_with(".header+xml") || contentType.ends_with(".footer+xml");
}

void addField(QCryptographicHash &hash, QByteArrayView field)
{
    // Preceded by its length, so that adjacent fields can't be confused.
    hash.addData(QByteArray::number(field.size()) + ':');
    hash.addData(field);
}

std::string contentKey(const std::string &contentType, const QByteArray &bytes, const Relationships &relationships,
    const QByteArray &styles)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    addField(hash, contentType);
    addField(hash, bytes);
    if (isHeaderOrFooter(contentType))
        addField(hash, styles);
    for (const clsWordPackage::Relationship &relation : relationships) {
        addField(hash, relation.id);
        addField(hash, relation.type);
        addField(hash, relation.target);
        addField(hash, relation.external ? "external" : "internal");
    }
    return hash.result().toStdString();
}

} // namespace

clsWordPartImport::clsWordPartImport(clsWordPackage &target, clsWordKnownParts &known, const QByteArray &targetStyles,
    clsWordPackage &source, const QByteArray &sourceStyles, ContentMap mapContent)
    : m_target(target)
    , m_known(known)
    , m_targetStyles(targetStyles)
    , m_source(source)
    , m_sourceStyles(sourceStyles)
    , m_mapContent(std::move(mapContent))
{ }

void clsWordPartImport::checkSource()
{
    for (const clsWordPackage::Relationship &relation : m_source.relationships(m_source.mainPart()))
        if (!relation.external)
            (void)m_source.targetOf(m_source.mainPart(), relation);
}

std::string clsWordPartImport::relationshipFor(const char *id)
{
    const auto mapped = m_relationships.find(id);
    if (mapped != m_relationships.end())
        return mapped->second;
    const clsWordPackage::Relationship *found = m_source.relationship(m_source.mainPart(), id);
    if (!found)
        throw mdDocumentDamaged(m_source.shownName());
    const clsWordPackage::Relationship relation = *found;
    learnTarget();
    const std::string targetId = relation.external
        ? externalRelationship(relation)
        : relationshipTo(relation.type, copyPart(m_source.targetOf(m_source.mainPart(), relation)));
    m_relationships.emplace(id, targetId);
    return targetId;
}

std::string clsWordPartImport::relationshipTo(const std::string &type, int targetPart)
{
    std::string &id = m_known.relationships[{type, m_target.referenceTo(targetPart)}];
    if (id.empty())
        id = m_target.addRelationship(m_target.mainPart(), type, targetPart);
    return id;
}

std::string clsWordPartImport::externalRelationship(const clsWordPackage::Relationship &relation)
{
    std::string &id = m_known.relationships[{relation.type, "external " + relation.target}];
    if (id.empty())
        id = m_target.addExternalRelationship(m_target.mainPart(), relation.type, relation.target);
    return id;
}

// The relationships of a part's copy. Their ids are kept, since they are local to the part.
Relationships clsWordPartImport::copiedRelationships(int sourcePart)
{
    Relationships copied;
    const Relationships originals = m_source.relationships(sourcePart);
    for (const clsWordPackage::Relationship &original : originals) {
        copied.push_back(original);
        if (!original.external)
            copied.back().target = m_target.referenceTo(copyPart(m_source.targetOf(sourcePart, original)));
    }
    return copied;
}

int clsWordPartImport::copyPart(int sourcePart)
{
    const auto done = m_parts.find(sourcePart);
    if (done != m_parts.end())
        return done->second;
    // Word processors write no parts that refer to each other in a cycle, and no chains that would exhaust the stack.
    constexpr size_t LongestChain = 100;
    if (sourcePart == m_source.mainPart() || !m_inProgress.insert(sourcePart).second
        || m_inProgress.size() > LongestChain)
        throw mdDocumentDamaged(m_source.shownName());

    const std::string contentType = m_source.contentType(sourcePart);
    Relationships relationships = copiedRelationships(sourcePart);
    const std::string key = contentKey(contentType, m_source.partBytes(sourcePart), relationships, m_sourceStyles);
    auto known = m_known.byContent.find(key);
    if (known == m_known.byContent.end()) {
        if (isHeaderOrFooter(contentType)) {
            const pugi::xml_node root = m_source.partXml(sourcePart).document_element();
            if (!WordXml::is(root, "w:hdr") && !WordXml::is(root, "w:ftr"))
                throw mdDocumentDamaged(m_source.shownName());
            m_mapContent(root);
            m_source.setChanged(sourcePart);
        }
        const int part
            = m_target.addPart(m_source.partName(sourcePart), m_source.currentBytes(sourcePart), contentType);
        if (!relationships.empty())
            m_target.setRelationships(part, std::move(relationships));
        known = m_known.byContent.emplace(key, part).first;
    }
    m_inProgress.erase(sourcePart);
    m_parts.emplace(sourcePart, known->second);
    return known->second;
}

void clsWordPartImport::learnTarget()
{
    if (m_known.learned)
        return;
    m_known.learned = true;
    const Relationships ofMain = m_target.relationships(m_target.mainPart());
    for (const clsWordPackage::Relationship &relation : ofMain) {
        if (relation.external) {
            m_known.relationships.emplace(std::pair(relation.type, "external " + relation.target), relation.id);
            continue;
        }
        const int part = m_target.targetOf(m_target.mainPart(), relation);
        m_known.relationships.emplace(std::pair(relation.type, m_target.referenceTo(part)), relation.id);
        Relationships ofPart = m_target.relationships(part);
        for (clsWordPackage::Relationship &inner : ofPart)
            if (!inner.external)
                inner.target = m_target.referenceTo(m_target.targetOf(part, inner));
        m_known.byContent.emplace(
            contentKey(m_target.contentType(part), m_target.partBytes(part), ofPart, m_targetStyles), part);
    }
}
