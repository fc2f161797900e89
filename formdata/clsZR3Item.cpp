#include "formdata/clsZR3Item.h"

#include "formdata/mdXMLTemplate.h"

void clsZR3Item::takeOver(pugi::xml_node element)
{
    bindAndLearn(element);
    complete(m_templateName);
}

void clsZR3Item::appendTo(pugi::xml_node listNode)
{
    bindAndLearn(listNode.append_copy(mdXMLTemplate(m_templateName)));
    XMLChanges::note();
}

void clsZR3Item::standAlone()
{
    m_own = std::make_shared<pugi::xml_document>();
    bindAndLearn(m_own->append_copy(mdXMLTemplate(m_templateName)));
}

void clsZR3Item::detach(std::shared_ptr<pugi::xml_document> own)
{
    const pugi::xml_node listed = node();
    m_own = std::move(own);
    bindAndLearn(m_own->append_copy(listed));
    listed.parent().remove_child(listed);
    XMLChanges::note();
    reportKeyWritesTo(nullptr);
}

void clsZR3Item::release()
{
    bind({});
    reportKeyWritesTo(nullptr);
}
