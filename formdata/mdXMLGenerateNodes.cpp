#include "formdata/mdXMLGenerateNodes.h"

#include "formdata/mdXMLChanges.h"

#include <cstring>

void GenerateNodes(pugi::xml_node node, const QString &templateXML)
{
    const QByteArray utf8 = templateXML.toUtf8();
    pugi::xml_document document;
    if (document.load_buffer(utf8.constData(), size_t(utf8.size()), pugi::parse_default, pugi::encoding_utf8))
        GenerateNodes(node, document.document_element());
}

void GenerateNodes(pugi::xml_node node, pugi::xml_node templateRoot)
{
    if (!node)
        return;
    // Most elements are complete and in the template's order: then each child follows the previous one, and only a
    // child out of order needs a search.
    pugi::xml_node expected = node.first_child();
    for (const pugi::xml_node wanted : templateRoot.children()) {
        if (wanted.type() != pugi::node_element)
            continue;
        if (expected && std::strcmp(expected.name(), wanted.name()) == 0) {
            expected = expected.next_sibling();
        } else if (const pugi::xml_node found = node.child(wanted.name())) {
            expected = found.next_sibling();
        } else {
            node.append_copy(wanted);
            XMLChanges::note();
        }
    }
}
