#pragma once

#include <QByteArray>

namespace pugi {
class xml_node;
}

/// The content of a list item without its order: the same wherever the item is moved.
QByteArray mdItemContent(pugi::xml_node item);
