#include "formdata/clsZR3Item.h"

#include "formdata/mdXMLGenerateNodes.h"
#include "formdata/mdXMLTemplate.h"

clsZR3Item::clsZR3Item(clsXMLPropertyTable &table, const char *templateName, pugi::xml_node node)
    : clsXMLRecord(table)
    , m_templateName(templateName)
{
    if (node)
        XMLNode(node);
    else
        own(mdXMLTemplate(templateName));
}

void clsZR3Item::XMLNode(pugi::xml_node node)
{
    m_own.reset();
    bind(node);
    GenerateNodes(node, mdXMLTemplate(m_templateName));
}

void clsZR3Item::attachTo(pugi::xml_node listNode)
{
    bind(listNode.append_copy(XMLNode()));
    m_own.reset();
}

void clsZR3Item::detach()
{
    const pugi::xml_node listed = XMLNode();
    own(listed);
    listed.parent().remove_child(listed);
    reportKeyWritesTo(nullptr);
}

void clsZR3Item::release()
{
    bind({});
    reportKeyWritesTo(nullptr);
}

void clsZR3Item::own(pugi::xml_node original)
{
    auto document = std::make_unique<pugi::xml_document>();
    bind(document->append_copy(original));
    m_own = std::move(document);
}
