#pragma once

#include <QString>

class clsXMLRecord;
struct clsItemList;

/// A short name of a list's item for a step, such as "15/12/25 HFN 03:20", made of the properties that the list's table
/// specifies; the kind of item if all of them are empty.
QString mdItemInShort(const clsItemList &list, const clsXMLRecord &item);

/// The same for the message of "Save and Add": "15/12/25 DVE HFN 03:20".
QString mdItemAsStored(const clsItemList &list, const clsXMLRecord &item);
