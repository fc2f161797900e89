#pragma once

#include <QString>

class clsXMLRecord;
struct clsItemList;

/// What an item of a list is called in the name of a step, such as "15/12/25 HFN 03:20", by the properties that its
/// list's table names for that; what kind of item it is where all of them are empty.
QString mdItemInShort(const clsItemList &list, const clsXMLRecord &item);

/// The same for what "Save and Add" says of it: "15/12/25 DVE HFN 03:20".
QString mdItemAsStored(const clsItemList &list, const clsXMLRecord &item);
