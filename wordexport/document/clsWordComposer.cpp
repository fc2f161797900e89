#include "wordexport/document/clsWordComposer.h"

#include "wordexport/document/clsWordContentMap.h"
#include "wordexport/document/mdDocumentError.h"
#include "wordexport/document/mdDocumentFile.h"
#include "wordexport/document/mdWordNamespaces.h"
#include "wordexport/document/mdWordXml.h"

#include <string_view>

using pugi::xml_node;

namespace {

xml_node bodyOf(clsWordPackage &package)
{
    return package.mainRoot().child("w:body");
}

// A node in the target's tree, after its root, in which a document's text is prepared before it is moved. Always
// removed before the tree is written.
class clsStaging {
public:
    explicit clsStaging(pugi::xml_document &tree)
        : m_tree(tree)
        , m_place(tree.append_child("staging"))
    { }
    ~clsStaging() { m_tree.remove_child(m_place); }
    clsStaging(const clsStaging &) = delete;
    clsStaging &operator=(const clsStaging &) = delete;

    const xml_node &place() const { return m_place; }

private:
    pugi::xml_document &m_tree;
    xml_node m_place;
};

// The last section of the body; created with default values if missing.
xml_node ensureFinalSection(xml_node body)
{
    const xml_node present = body.child("w:sectPr");
    return present ? present : body.append_child("w:sectPr");
}

// Visits the sections of a body in order. All but the last end in a paragraph of the body itself.
template <class Visitor> void visitSections(const xml_node &body, Visitor visitor)
{
    for (const xml_node &child : body.children())
        if (WordXml::is(child, "w:p")) {
            if (const xml_node section = child.child("w:pPr").child("w:sectPr"))
                visitor(section);
        } else if (WordXml::is(child, "w:sectPr")) {
            visitor(child);
        }
}

bool isHeaderReference(const xml_node &node)
{
    return WordXml::is(node, "w:headerReference") || WordXml::is(node, "w:footerReference");
}

std::string typeOf(const xml_node &headerReference)
{
    const std::string type = headerReference.attribute("w:type").value();
    return type.empty() ? "default" : type;
}

xml_node lastBlock(const xml_node &body)
{
    for (xml_node child = body.last_child(); child; child = child.previous_sibling())
        if (WordXml::is(child, "w:p") || WordXml::is(child, "w:tbl") || WordXml::isWrapper(child))
            return child;
    return {};
}

} // namespace

clsWordComposer::clsWordComposer(clsWordPackage &target)
    : m_target(target)
    , m_identities(target)
    , m_styles(target)
{
    noteHeaders(targetBody());
}

xml_node clsWordComposer::targetBody()
{
    return bodyOf(m_target);
}

void clsWordComposer::append(const QString &path, const QString &shownName, const clsPlainText *plain)
{
    if (plain && appendAsItStands(path, *plain))
        return;
    const clsStaging staging(m_target.partXml(m_target.mainPart()));
    clsWordPackage source(clsZipPackage::fromFile(path, shownName), shownName, staging.place());
    append(source);
}

void clsWordComposer::append(clsWordPackage &source)
{
    xml_node sourceBody = bodyOf(source);
    const xml_node finalSection = ensureFinalSection(sourceBody);
    mapContent(source, sourceBody);

    xml_node firstSection;
    visitSections(sourceBody, [&](const xml_node &section) { firstSection = firstSection ? firstSection : section; });
    beginSection(sourceBody, firstSection);
    settleTarget();
    moveBlocks(sourceBody, finalSection);
}

// Only the last paragraphs and the section are added to the tree, since later steps may change them. The rest is
// appended directly to the finished text: parsing it would take most of the time of joining.
bool clsWordComposer::appendAsItStands(const QString &path, const clsPlainText &plain)
{
    if (plain.styles != m_styles.originalBytes())
        return false;
    const QByteArray file = mdReadDocumentFile(path, ZipLimits::PackageBytes);
    if (file.size() != plain.place.fileSize || plain.place.at + plain.place.size > file.size())
        return false;
    const auto body = mdPlainBody(QByteArrayView(file).sliced(plain.place.at, plain.place.size));
    if (!body)
        return false;
    const clsStaging staging(m_target.partXml(m_target.mainPart()));
    xml_node end = staging.place();
    for (const QByteArrayView piece : {body->end, body->section})
        if (!end.append_buffer(piece.data(), size_t(piece.size()), WordXml::ParseFlags & ~pugi::parse_declaration))
            return false;
    const xml_node section = end.last_child();
    beginSection(end, section);
    settleTarget();
    m_target.settleText(body->blocks);
    moveBlocks(end, section);
    return true;
}

void clsWordComposer::beginSection(const xml_node &sourceBody, xml_node firstSection)
{
    beginOnNewPage(firstSection);
    fillMissingHeaders(firstSection);
    noteHeaders(sourceBody);
}

void clsWordComposer::settleTarget()
{
    sealLastSection(targetBody());
    m_target.settleBody();
}

void clsWordComposer::moveBlocks(const xml_node &sourceBody, const xml_node &finalSection)
{
    xml_node body = targetBody();
    for (xml_node block = sourceBody.first_child(); block;) {
        const xml_node next = block.next_sibling();
        if (WordXml::isElement(block) && block != finalSection)
            body.append_move(block);
        block = next;
    }
    body.append_move(finalSection);
    m_target.setChanged(m_target.mainPart());
}

void clsWordComposer::mapContent(clsWordPackage &source, xml_node body)
{
    clsWordNumberingImport *listsOfStyles = nullptr;
    clsWordStyleImport styles(
        m_styles, source, [&listsOfStyles](const std::string &id) { return listsOfStyles->numberFor(id); });
    clsWordNumberingImport lists(
        m_target, m_lists, source, [&styles](const std::string &id) { return styles.styleFor(id); });
    listsOfStyles = &lists;
    clsWordContentMap content(
        styles, [&lists](const std::string &id) { return lists.numberFor(id); }, m_identities);
    clsWordPartImport parts(m_target, m_parts, m_styles.originalBytes(), source, styles.sourceBytes(),
        [&content](const xml_node &root) { content.mapOther(root); });
    parts.checkSource();

    xml_node sourceRoot = body.parent();
    xml_node targetRoot = targetBody().parent();
    mdMergeNamespaces(sourceRoot, targetRoot);
    content.mapMain(body, targetRoot, [&parts](const std::string &id) { return parts.relationshipFor(id.c_str()); });
    if (content.hadNotes())
        throw mdDocumentError(QStringLiteral("The document %1 holds footnotes or endnotes, so that it can't be "
                                             "appended to another.")
                                  .arg(source.shownName()));
}

// A section's type decides how it starts: with "continuous", two sheets would share a page.
void clsWordComposer::beginOnNewPage(xml_node firstSection)
{
    const xml_node type = firstSection.child("w:type");
    const std::string_view value = WordXml::val(type);
    if (value == "continuous" || value == "nextColumn")
        WordXml::setAttribute(type, "w:val", "nextPage");
}

// A section without a header of its own inherits that of the section before it, here another document's.
void clsWordComposer::fillMissingHeaders(xml_node firstSection)
{
    std::set<HeaderKind> missing = m_headers;
    for (const xml_node &child : firstSection.children())
        if (isHeaderReference(child))
            missing.erase({child.name(), typeOf(child)});
    for (const auto &[reference, type] : missing) {
        xml_node added = WordXml::addChild(firstSection, reference.c_str());
        added.append_attribute("w:type") = type.c_str();
        const std::string prefix = mdPrefixFor("r", WordXml::RelationshipNamespace, targetBody().parent());
        added.append_attribute((prefix + ":id").c_str()) = emptyHeader(reference).c_str();
    }
}

void clsWordComposer::noteHeaders(const xml_node &body)
{
    visitSections(body, [this](const xml_node &section) {
        for (const xml_node &child : section.children())
            if (isHeaderReference(child))
                m_headers.insert({child.name(), typeOf(child)});
    });
}

std::string clsWordComposer::emptyHeader(const std::string &reference)
{
    std::string &id = m_emptyHeaders[reference];
    if (!id.empty())
        return id;
    const bool header = reference == "w:headerReference";
    const char *root = header ? "w:hdr" : "w:ftr";
    const std::string kind = header ? "header" : "footer";
    const QByteArray bytes = QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><") + root
        + " xmlns:w=\"" + WordXml::MainNamespace + "\"><w:p/></" + root + '>';
    const int part = m_target.addPart(QStringLiteral("word/") + QString::fromStdString(kind) + QStringLiteral("1.xml"),
        bytes, "application/vnd.openxmlformats-officedocument.wordprocessingml." + kind + "+xml");
    id = m_target.addRelationship(m_target.mainPart(), std::string(WordXml::RelationshipNamespace) + '/' + kind, part);
    return id;
}

// Moves the last section's properties into the last paragraph, so that another section can follow.
void clsWordComposer::sealLastSection(xml_node body)
{
    const xml_node section = ensureFinalSection(body);
    xml_node last = lastBlock(body);
    if (!WordXml::is(last, "w:p") || last.child("w:pPr").child("w:sectPr"))
        last = WordXml::insertTinyParagraph(body, last);
    xml_node properties = WordXml::ensureProperties(last, "w:pPr");
    const xml_node place = WordXml::addChild(properties, "w:sectPr");
    properties.insert_move_after(section, place);
    properties.remove_child(place);
}
