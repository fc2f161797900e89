#include "tests/fuzz/mdFuzzWords.h"

#include "formdata/mdXMLTemplate.h"

namespace {

const std::vector<std::string> Values = {"", "0", "1", "2", "3", "-1", "True", "False", "true", "maybe", "0.00",
    "0.005", "1%2C234.565", "17.50", "20.00", "99.99", "-0.01", "2147483647", "2147483648", "-2147483648", "9999999999",
    "922337203685477.5807", "922337203685477.5808", "01%3A30", "00%3A00", "1%3A2%3A3", "90", "99999999%3A59",
    "31%2F12%2F29", "01%2F02%2F24", "29%2F02%2F23", "ID1", "ID2", "ID3", "%", "%4", "%zz", "+", "%A3", "%00",
    "a+b%0D%0Ac", "\xC2\xA3", "\xE4\xB8\xAD", "Claim1", "Claim1A", "Preparation", "HA", "DA", "A1", "T", "W", "%80",
    "1e5", "0x10", ".", "-", " "};

void collectNames(pugi::xml_node node, std::vector<std::string> &names)
{
    for (const pugi::xml_node child : node.children())
        if (child.type() == pugi::node_element) {
            names.emplace_back(child.name());
            collectNames(child, names);
        }
}

} // namespace

clsFuzzWords mdFuzzWordsOf(std::initializer_list<const char *> templates, std::initializer_list<const char *> further)
{
    clsFuzzWords words;
    for (const char *name : templates)
        collectNames(mdXMLTemplate(name), words.elements);
    words.elements.insert(words.elements.end(), further.begin(), further.end());
    words.values = Values;
    return words;
}
