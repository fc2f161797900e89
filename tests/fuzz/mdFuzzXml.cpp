#include "tests/fuzz/mdFuzzXml.h"

#include <pugixml.hpp>

#include <cstring>
#include <functional>
#include <random>
#include <sstream>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t longest);

namespace {

using pugi::xml_node;

constexpr unsigned ParseFlags
    = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_fragment | pugi::parse_comments | pugi::parse_pi;

std::string changedBytes(std::string text, size_t longest)
{
    const size_t size = text.size();
    text.resize(std::max(longest, size));
    text.resize(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(text.data()), std::min(size, longest), longest));
    return text;
}

/// One change of a tree.
class clsTreeChange {
public:
    clsTreeChange(pugi::xml_document &tree, unsigned seed, const clsFuzzWords &words)
        : m_random(seed)
        , m_words(words)
    {
        collect(tree);
    }

    bool apply()
    {
        if (m_elements.empty())
            return false;
        using Change = void (clsTreeChange::*)(xml_node);
        static constexpr Change Changes[] = {&clsTreeChange::remove, &clsTreeChange::doubled, &clsTreeChange::setValue,
            &clsTreeChange::setValue, &clsTreeChange::changeValue, &clsTreeChange::insert, &clsTreeChange::insert,
            &clsTreeChange::copyElsewhere, &clsTreeChange::moveElsewhere, &clsTreeChange::rename,
            &clsTreeChange::setAttribute, &clsTreeChange::setAttribute};
        for (size_t times = 1 + below(3); times > 0; --times) {
            (this->*Changes[below(std::size(Changes))])(any());
            m_elements.clear();
            collect(m_root);
            if (m_elements.empty())
                break;
        }
        return true;
    }

private:
    size_t below(size_t count) { return m_random() % count; }
    xml_node any() { return m_elements[below(m_elements.size())]; }
    const std::string &from(const std::vector<std::string> &list)
    {
        static const std::string none("x");
        return list.empty() ? none : list[below(list.size())];
    }

    void collect(xml_node node)
    {
        m_root = node.root();
        for (const xml_node child : node.children()) {
            if (child.type() == pugi::node_element)
                m_elements.push_back(child);
            collect(child);
        }
    }

    void remove(xml_node node) { node.parent().remove_child(node); }
    void doubled(xml_node node) { node.parent().insert_copy_after(node, node); }
    void setValue(xml_node node)
    {
        while (node.first_child() && below(2))
            node = node.first_child();
        if (node.type() != pugi::node_element)
            node.set_value(from(m_words.values).c_str());
        else
            node.text().set(from(m_words.values).c_str());
    }
    void changeValue(xml_node node)
    {
        constexpr size_t LongestValue = 48;
        const std::string changed = changedBytes(node.text().get(), LongestValue);
        node.text().set(changed.c_str());
    }
    void insert(xml_node node)
    {
        constexpr size_t AnywhereOnceIn = 8;
        if (m_words.insertFitting && below(AnywhereOnceIn)
            && m_words.insertFitting(below(4) ? node : m_root, m_random()))
            return;
        xml_node child = below(2) ? node.append_child(from(m_words.elements).c_str())
                                  : node.parent().insert_child_before(from(m_words.elements).c_str(), node);
        if (below(2))
            child.text().set(from(m_words.values).c_str());
    }
    /// Usually one with the same name as the node's own parent, where the node fits.
    xml_node anyParentFor(xml_node node)
    {
        constexpr int Attempts = 8;
        for (int i = 0; i < Attempts; ++i)
            if (const xml_node parent = any(); std::strcmp(parent.name(), node.parent().name()) == 0)
                return parent;
        return any();
    }
    void copyElsewhere(xml_node node)
    {
        xml_node parent = anyParentFor(node);
        const xml_node place = parent.first_child();
        if (place && below(2) == 0)
            parent.insert_copy_before(node, place);
        else
            parent.append_copy(node);
    }
    void moveElsewhere(xml_node node) { anyParentFor(node).append_move(node); } // refused if it would contain itself
    void rename(xml_node node) { node.set_name(from(m_words.elements).c_str()); }
    void setAttribute(xml_node node)
    {
        if (m_words.attributes.empty())
            return setValue(node);
        const std::string &name = from(m_words.attributes);
        node.remove_attribute(name.c_str());
        if (below(4))
            node.append_attribute(name.c_str()) = from(m_words.values).c_str();
    }

    std::minstd_rand m_random;
    const clsFuzzWords &m_words;
    xml_node m_root;
    std::vector<xml_node> m_elements;
};

} // namespace

std::string mdFuzzChangedXml(const std::string &xml, size_t longest, unsigned seed, const clsFuzzWords &words)
{
    constexpr unsigned BytesOnceIn = 5;
    pugi::xml_document tree;
    if (seed % BytesOnceIn == 0 || !tree.load_buffer(xml.data(), xml.size(), ParseFlags, pugi::encoding_utf8)
        || !clsTreeChange(tree, seed, words).apply())
        return changedBytes(xml, longest);
    std::ostringstream out;
    tree.print(out, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    std::string changed = out.str();
    return changed.size() <= longest ? changed : changedBytes(xml, longest);
}

size_t mdFuzzChangeXml(uint8_t *data, size_t size, size_t longest, unsigned seed, const clsFuzzWords &words)
{
    const std::string changed
        = mdFuzzChangedXml(std::string(reinterpret_cast<const char *>(data), size), longest, seed, words);
    const size_t newSize = std::min(changed.size(), longest);
    std::memcpy(data, changed.data(), newSize);
    return newSize;
}
