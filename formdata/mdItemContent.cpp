#include "formdata/mdItemContent.h"

#include <pugixml.hpp>

#include <cstring>

QByteArray mdItemContent(pugi::xml_node item)
{
    QByteArray content;
    for (const pugi::xml_node part : item.children())
        if (std::strcmp(part.name(), "orderid") != 0)
            content += QByteArray("\n") + part.name() + '=' + part.child_value();
    return content;
}
