#include "wordexport/document/mdWordRun.h"

#include "wordexport/document/mdWordXml.h"

#include <cstring>

using pugi::xml_node;

namespace {

bool sameTree(const xml_node &a, const xml_node &b)
{
    if (a.type() != b.type() || std::strcmp(a.name(), b.name()) != 0 || std::strcmp(a.value(), b.value()) != 0)
        return false;
    pugi::xml_attribute attributeA = a.first_attribute();
    pugi::xml_attribute attributeB = b.first_attribute();
    for (; attributeA && attributeB; attributeA = attributeA.next_attribute(), attributeB = attributeB.next_attribute())
        if (std::strcmp(attributeA.name(), attributeB.name()) != 0
            || std::strcmp(attributeA.value(), attributeB.value()) != 0)
            return false;
    if (attributeA || attributeB)
        return false;
    xml_node childA = a.first_child();
    xml_node childB = b.first_child();
    for (; childA && childB; childA = childA.next_sibling(), childB = childB.next_sibling())
        if (!sameTree(childA, childB))
            return false;
    return !childA && !childB;
}

// Writes typed text into a run, element by element.
class clsTyper {
public:
    clsTyper(const xml_node &run, bool symbols)
        : m_run(run)
        , m_symbols(symbols)
    { }

    /// Returns the number of positions of the text.
    int type(const QString &typed)
    {
        qsizetype plainFrom = 0;
        for (qsizetype i = 0; i <= typed.size(); ++i) {
            if (i < typed.size() && isPlain(typed[i]))
                continue;
            addText(QStringView(typed).mid(plainFrom, i - plainFrom));
            if (i < typed.size())
                addElement(typed[i].unicode());
            plainFrom = i + 1;
        }
        return m_count;
    }

private:
    bool isTick(QChar c) const { return m_symbols && (c == QChar(0xFE) || c == QChar(0xA8)); }
    bool isPlain(QChar c) const { return c.unicode() >= 0x20 && !isTick(c); }

    void addText(QStringView text)
    {
        if (text.isEmpty())
            return;
        std::string utf8 = text.toUtf8().toStdString();
        m_count += int(utf8.size());
        xml_node last = m_run.last_child();
        if (WordXml::is(last, "w:t"))
            WordRun::setText(last, WordRun::textOf(last) + utf8);
        else
            WordRun::setText(m_run.append_child("w:t"), utf8);
    }

    void addElement(char16_t c)
    {
        // If the font is missing, the plain character would show as another letter; every word processor draws the
        // symbol element as a box.
        if (c == 0xFE || c == 0xA8) {
            xml_node symbol = m_run.append_child("w:sym");
            symbol.append_attribute("w:font") = "Wingdings";
            symbol.append_attribute("w:char") = c == 0xFE ? "F0FE" : "F0A8";
        } else if (c == u'\t') {
            m_run.append_child("w:tab");
        } else if (c == u'\f') {
            m_run.append_child("w:br").append_attribute("w:type") = "page";
        } else {
            m_run.append_child("w:br");
        }
        ++m_count;
    }

    xml_node m_run;
    bool m_symbols;
    int m_count = 0;
};

} // namespace

const char *WordRun::textOf(xml_node text)
{
    const xml_node first = text.first_child();
    if (!first)
        return "";
    if (first.type() == pugi::node_pcdata && !first.next_sibling())
        return first.value();
    std::string whole;
    for (const xml_node &piece : text.children())
        if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata)
            whole += piece.value();
    text.remove_children();
    text.append_child(pugi::node_pcdata).set_value(whole.c_str());
    return text.first_child().value();
}

void WordRun::setText(xml_node text, const std::string &value)
{
    text.remove_children();
    text.append_child(pugi::node_pcdata).set_value(value.c_str());
    WordXml::setAttribute(text, "xml:space", "preserve");
}

int WordRun::type(const xml_node &run, const QString &typed, bool symbols)
{
    return clsTyper(run, symbols).type(typed);
}

bool WordRun::sameFormat(const xml_node &a, const xml_node &b)
{
    if (!a.first_child() && !b.first_child())
        return true;
    return a && b && sameTree(a, b);
}

void WordRun::giveFormat(xml_node run, const xml_node &format)
{
    const xml_node own = run.child("w:rPr");
    const bool any = bool(format.first_child());
    if (any && own == format)
        return;
    run.remove_child(own);
    if (any)
        run.prepend_copy(format);
}

bool WordRun::removeIfEmpty(xml_node run)
{
    for (const xml_node &child : run.children())
        if (WordXml::isElement(child) && !WordXml::is(child, "w:rPr"))
            return false;
    run.parent().remove_child(run);
    return true;
}
