#include "wordexport/document/clsWordTyped.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>

using pugi::xml_node;

const clsWordTyped::Mark *clsWordTyped::of(const xml_node &run) const
{
    const auto found = m_marks.find(run.internal_object());
    return found == m_marks.end() ? nullptr : &found->second;
}

void clsWordTyped::typed(const xml_node &run, int before, const QString &placeholder)
{
    m_marks.try_emplace(run.internal_object(), Mark {before, placeholder});
}

void clsWordTyped::split(const xml_node &run, const xml_node &tail, int at)
{
    if (const Mark *mark = of(run))
        typed(tail, std::max(0, mark->before - at), mark->placeholder);
}

void clsWordTyped::forgetBelow(const xml_node &node)
{
    if (isEmpty())
        return;
    forget(node);
    for (const xml_node &child : node.children())
        if (WordXml::isElement(child))
            forgetBelow(child);
}
