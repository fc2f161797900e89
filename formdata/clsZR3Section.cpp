#include "formdata/clsZR3Section.h"

#include "formdata/mdXMLGenerateNodes.h"
#include "formdata/mdXMLTemplate.h"

void clsZR3Section::XMLNode(pugi::xml_node node)
{
    bind(node);
    GenerateNodes(node, mdXMLTemplate("xmlZR3Form").child(m_elementName));
}
