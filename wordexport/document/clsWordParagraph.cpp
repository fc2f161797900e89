#include "wordexport/document/clsWordParagraph.h"

#include "wordexport/document/mdWordRun.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <cstring>

using pugi::xml_node;

namespace {

constexpr const char *Invisible[] = {
    "w:rPr",
    "w:instrText",
    "w:delText",
    "w:delInstrText",
    "w:fldChar",
    "w:lastRenderedPageBreak",
    "w:commentReference",
    "w:annotationRef",
};

bool isInvisible(const xml_node &node)
{
    if (!WordXml::isElement(node))
        return true;
    for (const char *name : Invisible)
        if (WordXml::is(node, name))
            return true;
    return false;
}

} // namespace

clsWordParagraph::clsWordParagraph(const xml_node &paragraph, clsWordTyped *marks)
    : m_paragraph(paragraph)
    , m_marks(marks)
{ }

bool clsWordParagraph::mayHold(const xml_node &paragraph, char c)
{
    for (xml_node run = WordXml::firstItem(paragraph, WordXml::isRun); run;
         run = WordXml::nextItem(run, WordXml::isRun))
        for (xml_node child = run.first_child(); child; child = child.next_sibling())
            if (WordXml::is(child, "w:t"))
                for (xml_node piece = child.first_child(); piece; piece = piece.next_sibling())
                    if (std::strchr(piece.value(), c) != nullptr)
                        return true;
    return false;
}

void clsWordParagraph::read() const
{
    m_isRead = true;
    m_leaves.clear();
    m_text.clear();
    std::vector<bool> fieldCodes; // for each open field: whether this is its code (not yet its result)
    for (xml_node run = WordXml::firstItem(m_paragraph, WordXml::isRun); run;
         run = WordXml::nextItem(run, WordXml::isRun))
        readRun(run, fieldCodes);
}

void clsWordParagraph::readRun(const xml_node &run, std::vector<bool> &fieldCodes) const
{
    for (xml_node node = run.first_child(); node; node = node.next_sibling()) {
        if (WordXml::is(node, "w:fldChar")) {
            const QByteArrayView kind(node.attribute("w:fldCharType").value());
            if (kind == "begin")
                fieldCodes.push_back(true);
            else if (kind == "separate" && !fieldCodes.empty())
                fieldCodes.back() = false;
            else if (kind == "end" && !fieldCodes.empty())
                fieldCodes.pop_back();
        }
        const bool inCode = std::find(fieldCodes.begin(), fieldCodes.end(), true) != fieldCodes.end();
        if (!inCode && !isInvisible(node))
            addLeaf(run, node);
    }
}

void clsWordParagraph::addLeaf(const xml_node &run, const xml_node &node) const
{
    const auto start = int(m_text.size());
    if (WordXml::is(node, "w:t"))
        m_text += WordRun::textOf(node);
    else if (WordXml::is(node, "w:tab"))
        m_text += Tab;
    else if (WordXml::is(node, "w:br") || WordXml::is(node, "w:cr"))
        m_text += LineBreak;
    else
        m_text += Other;
    m_leaves.push_back({run, node, start, int(m_text.size()) - start});
}

const clsWordParagraph::Leaf *clsWordParagraph::leafEndingAt(int at) const
{
    for (const Leaf &leaf : leaves())
        if (leaf.length > 0 && leaf.start < at && leaf.start + leaf.length >= at)
            return &leaf;
    return nullptr;
}

const clsWordParagraph::Leaf *clsWordParagraph::leafStartingAt(int at) const
{
    for (const Leaf &leaf : leaves())
        if (leaf.length > 0 && leaf.start <= at && leaf.start + leaf.length > at)
            return &leaf;
    return nullptr;
}

std::vector<xml_node> clsWordParagraph::formatsIn(int from, int to) const
{
    std::vector<xml_node> formats;
    for (const Leaf &leaf : leaves())
        if (leaf.length > 0 && leaf.start < to && leaf.start + leaf.length > from)
            formats.push_back(leaf.run.child("w:rPr"));
    return formats;
}

xml_node clsWordParagraph::formatAt(int from, int to) const
{
    const Leaf *leaf = to > from || from == 0 ? leafStartingAt(from) : leafEndingAt(from);
    return leaf ? leaf->run.child("w:rPr") : m_paragraph.child("w:pPr").child("w:rPr");
}

int clsWordParagraph::type(
    int from, int to, const QString &typed, const xml_node &format, bool symbols, const QString &placeholder)
{
    if (typed.isEmpty()) {
        erase(from, to);
        return from;
    }
    const xml_node run = runForTyping(from, to, format);
    if (m_marks)
        m_marks->typed(run, std::max(0, from - startOf(run)), placeholder);
    const int count = WordRun::type(run, typed, symbols);
    m_isRead = false; // re-read on demand only: typing is usually the last change to a paragraph
    return from + count;
}

xml_node clsWordParagraph::runForTyping(int from, int to, const xml_node &format)
{
    if (to > from) {
        // The run of the first selected character stays in place and is emptied: it may be in a hyperlink or between
        // bookmarks, and the new text must be too.
        splitRunAt(to);
        const xml_node run = splitRunAt(from);
        for (const Leaf &leaf : leaves())
            if (leaf.start >= from && leaf.start + leaf.length <= to) {
                xml_node owner = leaf.run;
                owner.remove_child(leaf.node);
                if (owner != run)
                    removeIfEmpty(owner);
            }
        WordRun::giveFormat(run, format);
        return run;
    }
    splitRunAt(from);
    xml_node run;
    if (const Leaf *leaf = from > 0 ? leafEndingAt(from) : nullptr) {
        if (WordRun::sameFormat(leaf->run.child("w:rPr"), format) && leaf->run.last_child() == leaf->node)
            return leaf->run;
        run = leaf->run.parent().insert_child_after("w:r", leaf->run);
    } else if (leaves().empty()) {
        run = m_paragraph.append_child("w:r");
    } else if (const xml_node properties = m_paragraph.child("w:pPr")) {
        run = m_paragraph.insert_child_after("w:r", properties);
    } else {
        run = m_paragraph.prepend_child("w:r");
    }
    WordRun::giveFormat(run, format);
    return run;
}

void clsWordParagraph::removeIfEmpty(xml_node run)
{
    if (WordRun::removeIfEmpty(run) && m_marks)
        m_marks->forget(run);
}

// The start of a run's text as last read; for a new run the position of typing.
int clsWordParagraph::startOf(const xml_node &run) const
{
    for (const Leaf &leaf : leaves())
        if (leaf.run == run)
            return leaf.start;
    return length();
}

xml_node clsWordParagraph::splitRunAt(int at)
{
    const Leaf *found = leafStartingAt(at);
    if (!found)
        return {};
    const Leaf leaf = *found;
    const bool within = leaf.start < at;
    xml_node firstMoved = leaf.node;
    if (!within) {
        xml_node before = leaf.node.previous_sibling();
        while (before && !WordXml::isElement(before))
            before = before.previous_sibling();
        if (!before || WordXml::is(before, "w:rPr"))
            return leaf.run;
    }

    xml_node run = leaf.run;
    xml_node tail = run.parent().insert_child_after("w:r", run);
    if (const xml_node format = run.child("w:rPr"))
        tail.append_copy(format);
    if (within) {
        const std::string text = WordRun::textOf(leaf.node);
        const size_t cut = size_t(at - leaf.start);
        WordRun::setText(tail.append_child("w:t"), text.substr(cut));
        firstMoved = leaf.node.next_sibling();
        WordRun::setText(leaf.node, text.substr(0, cut));
    }
    while (firstMoved) {
        const xml_node next = firstMoved.next_sibling();
        tail.append_move(firstMoved);
        firstMoved = next;
    }
    if (m_marks)
        m_marks->split(run, tail, at - startOf(run));
    m_isRead = false;
    return tail;
}

void clsWordParagraph::erase(int from, int to)
{
    if (to <= from)
        return;
    splitRunAt(to);
    splitRunAt(from);
    for (const Leaf &leaf : leaves())
        if (leaf.start >= from && leaf.start + leaf.length <= to) {
            xml_node run = leaf.run;
            run.remove_child(leaf.node);
            removeIfEmpty(run);
        }
    m_isRead = false;
}

xml_node clsWordParagraph::split(int at)
{
    xml_node following = splitRunAt(at);
    while (following && following.parent() != m_paragraph)
        following = following.parent(); // wrappers of the run move with it

    xml_node properties = m_paragraph.child("w:pPr");
    xml_node next = m_paragraph.parent().insert_child_after("w:p", m_paragraph);
    if (properties) {
        xml_node copy = next.append_copy(properties);
        copy.remove_child("w:pageBreakBefore");
        // A section ends with its last paragraph, now the new one.
        properties.remove_child("w:sectPr");
    }
    while (following) {
        const xml_node after = following.next_sibling();
        next.append_move(following);
        following = after;
    }
    m_isRead = false;
    return next;
}

void clsWordParagraph::join(xml_node next)
{
    // Removing the mark between the two would also lose the end of a section in the second one.
    if (const xml_node section = next.child("w:pPr").child("w:sectPr")) {
        xml_node properties = WordXml::ensureProperties(m_paragraph, "w:pPr");
        properties.remove_child("w:sectPr");
        const xml_node place = WordXml::addChild(properties, "w:sectPr");
        properties.insert_copy_after(section, place);
        properties.remove_child(place);
    }
    next.remove_child("w:pPr");
    for (xml_node child = next.first_child(); child;) {
        const xml_node after = child.next_sibling();
        m_paragraph.append_move(child);
        child = after;
    }
    next.parent().remove_child(next);
    m_isRead = false;
}

int clsWordParagraph::before(int at) const
{
    int start = at - 1;
    while (start > 0 && (uchar(text()[size_t(start)]) & 0xC0) == 0x80)
        --start;
    return start;
}
