#pragma once

#include <QByteArray>

namespace pugi {
class xml_node;
}

/// What stands in an item of a list, but for its place in the order: the same wherever the item is moved.
QByteArray mdItemContent(pugi::xml_node item);
