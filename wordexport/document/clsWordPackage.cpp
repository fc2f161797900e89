#include "wordexport/document/clsWordPackage.h"

#include "wordexport/document/mdDocumentError.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr const char *ContentTypesName = "[Content_Types].xml";
constexpr const char *RelationshipsType = "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr const char *StrictRelationships = "http://purl.oclc.org/ooxml/officeDocument/relationships";

// Real documents nest a few dozen levels. Deeper ones are refused, because each walk down a tree uses stack space.
constexpr int MaximumDepth = 400;

class clsByteWriter final : public pugi::xml_writer {
public:
    void write(const void *data, size_t size) override
    {
        bytes.append(static_cast<const char *>(data), qsizetype(size));
    }
    QByteArray bytes;
};

QByteArray serialise(pugi::xml_document &tree, qsizetype expected)
{
    // The part is written in UTF-8, whatever its encoding was.
    if (pugi::xml_attribute encoding = tree.first_child().attribute("encoding");
        encoding && tree.first_child().type() == pugi::node_declaration)
        encoding.set_value("UTF-8");
    clsByteWriter writer;
    writer.bytes.reserve(expected + expected / 4);
    tree.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
    return writer.bytes;
}

QString strictMessage(const QString &shownName)
{
    return QStringLiteral("The document %1 is in the strict form of its format, which is not supported. "
                          "Please save it again as an ordinary Word document.")
        .arg(shownName);
}

std::string lower(const QString &text)
{
    return text.toLower().toStdString();
}

std::string extensionOf(const QString &partName)
{
    return lower(partName.mid(partName.lastIndexOf(u'.') + 1));
}

// The name of the part that `target` refers to from a part called `source`; empty if it is outside the package.
QString resolve(const QString &source, const QString &target)
{
    QStringList segments;
    if (!target.startsWith(u'/'))
        segments = source.split(u'/').mid(0, source.count(u'/'));
    for (const QString &segment : target.split(u'/', Qt::SkipEmptyParts)) {
        if (segment == QLatin1String("."))
            continue;
        if (segment != QLatin1String("..")) {
            segments << segment;
            continue;
        }
        if (segments.isEmpty())
            return {};
        segments.removeLast();
    }
    return segments.join(u'/');
}

} // namespace

clsWordPackage clsWordPackage::fromFile(const QString &path, const QString &shownName)
{
    return clsWordPackage(clsZipPackage::fromFile(path, shownName), shownName);
}

clsWordPackage::clsWordPackage(clsZipPackage zip, const QString &shownName)
    : clsWordPackage(std::move(zip), shownName, pugi::xml_node())
{ }

clsWordPackage::clsWordPackage(clsZipPackage zip, const QString &shownName, const pugi::xml_node &mainPlace)
    : m_zip(std::move(zip))
    , m_shownName(shownName)
    , m_mainPlace(mainPlace)
{
    const int types = m_zip.indexOf(QLatin1String(ContentTypesName));
    if (types < 0)
        throw mdDocumentError(QStringLiteral("The document %1 is not a Word document.").arg(shownName));
    m_contentTypes = parse(types);
    for (const pugi::xml_node &type : m_contentTypes->child("Types").children()) {
        const char *contentType = type.attribute("ContentType").value();
        if (WordXml::is(type, "Default"))
            m_defaultTypes[lower(QString::fromUtf8(type.attribute("Extension").value()))] = contentType;
        else if (WordXml::is(type, "Override"))
            m_overrideTypes[lower(QString::fromUtf8(type.attribute("PartName").value()))] = contentType;
    }
    findMainPart();
}

void clsWordPackage::findMainPart()
{
    for (const Relationship &relation : relations(Package).list) {
        if (!QByteArrayView(relation.type).endsWith("/officeDocument"))
            continue;
        if (relation.type.starts_with(StrictRelationships))
            throw mdDocumentError(strictMessage(m_shownName));
        m_mainPart = targetOf(Package, relation);
        m_zip.setMainEntry(partName(m_mainPart));
        break;
    }
    if (m_mainPart < 0)
        throw mdDocumentError(QStringLiteral("The document %1 is not a Word document.").arg(m_shownName));

    if (m_mainPlace)
        parseInto(m_mainPlace, m_mainPart);
    const pugi::xml_node root = mainRoot();
    if (QByteArrayView(root.attribute("xmlns:w").value()) == WordXml::StrictNamespace)
        throw mdDocumentError(strictMessage(m_shownName));
    if (!WordXml::is(root, "w:document") || QByteArrayView(root.attribute("xmlns:w").value()) != WordXml::MainNamespace)
        throw mdDocumentError(QStringLiteral("The document %1 is not a Word document.").arg(m_shownName));
    if (!root.child("w:body"))
        throw mdDocumentDamaged(m_shownName);
}

pugi::xml_node clsWordPackage::mainRoot()
{
    if (!m_mainPlace)
        return partXml(m_mainPart).document_element();
    return m_mainPlace.find_child([](const pugi::xml_node &node) { return WordXml::isElement(node); });
}

std::unique_ptr<pugi::xml_document> clsWordPackage::parse(int part) const
{
    auto tree = std::make_unique<pugi::xml_document>();
    parseInto(*tree, part);
    return tree;
}

void clsWordPackage::parseInto(pugi::xml_node place, int part) const
{
    const QByteArray &bytes = m_zip.bytes(part);
    const bool utf16 = bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE") || bytes.left(2).contains('\0');
    // Inside another tree an XML declaration is not allowed: parsed there, it would be reported as damage.
    const unsigned flags
        = place.type() == pugi::node_document ? WordXml::ParseFlags : WordXml::ParseFlags & ~pugi::parse_declaration;
    const bool sound = (utf16 || bytes.isValidUtf8())
        && place.append_buffer(bytes.constData(), size_t(bytes.size()), flags)
        && WordXml::depth(place, MaximumDepth) < MaximumDepth;
    // A fragment with no root or two is not a document, although the parser accepts it.
    if (!sound || std::count_if(place.begin(), place.end(), WordXml::isElement) != 1) {
        WordXml::removeContent(place);
        throw mdPartDamaged(m_shownName, partName(part));
    }
}

pugi::xml_document &clsWordPackage::partXml(int part)
{
    Parsed &parsed = m_parsed[part];
    if (!parsed.tree)
        parsed.tree = parse(part);
    return *parsed.tree;
}

QByteArray clsWordPackage::currentBytes(int part)
{
    const auto parsed = m_parsed.find(part);
    if (parsed == m_parsed.end() || !parsed->second.changed)
        return m_zip.bytes(part);
    return serialise(*parsed->second.tree, m_zip.bytes(part).size());
}

void clsWordPackage::settleBody()
{
    pugi::xml_node body = mainRoot().child("w:body");
    clsByteWriter writer;
    writer.bytes.reserve(m_zip.bytes(m_mainPart).size());
    while (body.first_child()) {
        body.first_child().print(writer, "", pugi::format_raw, pugi::encoding_utf8);
        body.remove_child(body.first_child());
    }
    settleText(writer.bytes);
}

void clsWordPackage::settleText(QByteArrayView blocks)
{
    if (!m_settled) {
        m_settled = std::make_unique<clsDeflatedText>();
        m_settledHead = aroundSettledText().first;
        m_settled->append(m_settledHead);
    }
    m_settled->append(blocks);
}

void clsWordPackage::restoreBody()
{
    if (!m_settled)
        return;
    const QByteArray text = m_settled->packedWith({}).text().sliced(m_settledHead.size());
    m_settled.reset();
    pugi::xml_node body = mainRoot().child("w:body");
    pugi::xml_node staging = body.prepend_child("staging");
    staging.append_buffer(
        text.constData(), size_t(text.size()), (WordXml::ParseFlags & ~pugi::parse_declaration) | pugi::parse_fragment);
    while (const pugi::xml_node block = staging.first_child())
        body.insert_move_before(block, staging);
    body.remove_child(staging);
}

// The tree's text before and after the settled text, whose place a mark holds meanwhile.
std::pair<QByteArray, QByteArray> clsWordPackage::aroundSettledText()
{
    pugi::xml_document &tree = partXml(m_mainPart);
    pugi::xml_node body = mainRoot().child("w:body");
    std::string name = "settled";
    QByteArray bytes;
    QByteArray mark;
    do { // until the mark is unique in the text
        name += '-';
        const pugi::xml_node node = body.prepend_child(pugi::node_pi);
        body.first_child().set_name(name.c_str());
        bytes = serialise(tree, m_zip.bytes(m_mainPart).size());
        body.remove_child(node);
        mark = "<?" + QByteArray::fromStdString(name) + "?>";
    } while (bytes.count(mark) != 1);
    const qsizetype at = bytes.indexOf(mark);
    return {bytes.left(at), bytes.mid(at + mark.size())};
}

void clsWordPackage::writeMainPart()
{
    const auto [head, tail] = aroundSettledText();
    if (head != m_settledHead) { // a document appended since has declared prefixes there
        const QByteArray text = m_settled->packedWith({}).text().sliced(m_settledHead.size());
        m_settled.reset();
        settleText(text);
    }
    m_zip.setPacked(m_mainPart, m_settled->packedWith(tail));
    m_parsed[m_mainPart].changed = false;
}

const clsZipPackage &clsWordPackage::content()
{
    if (hasSettledText())
        writeMainPart();
    for (auto &[part, parsed] : m_parsed)
        if (parsed.changed) {
            m_zip.setBytes(part, serialise(*parsed.tree, m_zip.bytes(part).size()));
            parsed.changed = false;
        }
    writeRelationships();
    if (m_contentTypesChanged) {
        const int types = m_zip.indexOf(QLatin1String(ContentTypesName));
        m_zip.setBytes(types, serialise(*m_contentTypes, m_zip.bytes(types).size()));
        m_contentTypesChanged = false;
    }
    return m_zip;
}

void clsWordPackage::writeRelationships()
{
    for (auto &[part, relations] : m_relations) {
        if (!relations.changed)
            continue;
        pugi::xml_document tree;
        pugi::xml_node declaration = tree.append_child(pugi::node_declaration);
        declaration.append_attribute("version") = "1.0";
        declaration.append_attribute("encoding") = "UTF-8";
        declaration.append_attribute("standalone") = "yes";
        pugi::xml_node root = tree.append_child("Relationships");
        root.append_attribute("xmlns") = RelationshipsType;
        for (const Relationship &relation : relations.list) {
            pugi::xml_node node = root.append_child("Relationship");
            node.append_attribute("Id") = relation.id.c_str();
            node.append_attribute("Type") = relation.type.c_str();
            node.append_attribute("Target") = relation.target.c_str();
            if (relation.external)
                node.append_attribute("TargetMode") = "External";
        }
        const QByteArray bytes = serialise(tree, 256);
        const QString name = relationshipsName(part);
        if (const int index = m_zip.indexOf(name); index >= 0)
            m_zip.setBytes(index, bytes);
        else
            m_zip.add(name, bytes);
        relations.changed = false;
    }
}

std::string clsWordPackage::contentType(int part) const
{
    const auto own = m_overrideTypes.find('/' + lower(partName(part)));
    if (own != m_overrideTypes.end())
        return own->second;
    const auto common = m_defaultTypes.find(extensionOf(partName(part)));
    return common != m_defaultTypes.end() ? common->second : std::string();
}

int clsWordPackage::addPart(const QString &nameLike, const QByteArray &bytes, const std::string &contentType)
{
    const qsizetype dot = nameLike.lastIndexOf(u'.');
    QString stem = nameLike.left(dot);
    const QString extension = nameLike.mid(dot);
    while (!stem.isEmpty() && stem.back().isDigit())
        stem.chop(1);
    int &number = m_nextNumber[stem + extension];
    QString name = nameLike;
    while (m_zip.indexOf(name) >= 0)
        name = stem + QString::number(++number) + extension;

    const int part = m_zip.add(name, bytes);
    if (this->contentType(part) != contentType) {
        pugi::xml_node node = m_contentTypes->child("Types").append_child("Override");
        node.append_attribute("PartName") = ('/' + name.toStdString()).c_str();
        node.append_attribute("ContentType") = contentType.c_str();
        m_overrideTypes['/' + lower(name)] = contentType;
        m_contentTypesChanged = true;
    }
    return part;
}

QString clsWordPackage::relationshipsName(int part) const
{
    if (part == Package)
        return QStringLiteral("_rels/.rels");
    const QString &name = partName(part);
    const qsizetype slash = name.lastIndexOf(u'/') + 1;
    return name.left(slash) + QLatin1String("_rels/") + name.mid(slash) + QLatin1String(".rels");
}

clsWordPackage::Relations &clsWordPackage::relations(int part)
{
    const auto known = m_relations.find(part);
    if (known != m_relations.end())
        return known->second;

    Relations read;
    if (const int index = m_zip.indexOf(relationshipsName(part)); index >= 0) {
        const auto tree = parse(index);
        for (const pugi::xml_node &node : tree->document_element().children("Relationship")) {
            read.list.push_back({node.attribute("Id").value(), node.attribute("Type").value(),
                node.attribute("Target").value(), std::strcmp(node.attribute("TargetMode").value(), "External") == 0});
            // A number beyond the counter's reach can't collide with it.
            const std::string &id = read.list.back().id;
            if (id.starts_with("rId") && id.size() <= 10)
                read.nextId = std::max(read.nextId, std::atoi(id.c_str() + 3) + 1);
        }
    }
    return m_relations.emplace(part, std::move(read)).first->second;
}

const std::vector<clsWordPackage::Relationship> &clsWordPackage::relationships(int part)
{
    return relations(part).list;
}

const clsWordPackage::Relationship *clsWordPackage::relationship(int part, const char *id)
{
    for (const Relationship &relation : relations(part).list)
        if (relation.id == id)
            return &relation;
    return nullptr;
}

int clsWordPackage::findTarget(int part, const Relationship &relationship) const
{
    const QString source = part == Package ? QString() : partName(part);
    const QString name = resolve(source, QString::fromStdString(relationship.target));
    return name.isEmpty() ? -1 : m_zip.indexOf(name);
}

int clsWordPackage::targetOf(int part, const Relationship &relationship) const
{
    const int target = findTarget(part, relationship);
    if (target < 0)
        throw mdDocumentDamaged(m_shownName);
    return target;
}

int clsWordPackage::relatedPart(const char *typeName)
{
    const QByteArray ending = QByteArray("/") + typeName;
    for (const Relationship &relation : relations(m_mainPart).list)
        if (!relation.external && QByteArrayView(relation.type).endsWith(ending))
            return targetOf(m_mainPart, relation);
    return -1;
}

std::string clsWordPackage::referenceTo(int targetPart) const
{
    return '/' + partName(targetPart).toStdString();
}

std::string clsWordPackage::addRelationship(int part, const std::string &type, int targetPart)
{
    Relations &known = relations(part);
    known.list.push_back({"rId" + std::to_string(known.nextId++), type, referenceTo(targetPart), false});
    known.changed = true;
    return known.list.back().id;
}

std::string clsWordPackage::addExternalRelationship(int part, const std::string &type, const std::string &target)
{
    Relations &known = relations(part);
    known.list.push_back({"rId" + std::to_string(known.nextId++), type, target, true});
    known.changed = true;
    return known.list.back().id;
}

void clsWordPackage::setRelationships(int part, std::vector<Relationship> relationships)
{
    Relations &known = relations(part);
    known.list = std::move(relationships);
    known.changed = true;
}
