#pragma once

#include <QString>

#include <pugixml.hpp>

#include <unordered_map>

/// Which text of an open document was typed and is not part of the template. Stored by run while the document is open;
/// not saved in the file.
class clsWordTyped {
public:
    struct Mark {
        int before; ///< the positions before it in the run that are not typed
        QString placeholder; ///< the replaced placeholder; empty for text typed at the cursor
    };

    bool isEmpty() const { return m_marks.empty(); }
    /// The mark of a run; null if nothing was typed into it.
    const Mark *of(const pugi::xml_node &run) const;

    /// Records text typed into a run after `before` positions. An existing mark is kept.
    void typed(const pugi::xml_node &run, int before, const QString &placeholder);
    /// The content of a run after `at` positions has moved to another run.
    void split(const pugi::xml_node &run, const pugi::xml_node &tail, int at);
    /// Call before a run, or everything below a node, is removed.
    void forget(const pugi::xml_node &run) { m_marks.erase(run.internal_object()); }
    void forgetBelow(const pugi::xml_node &node);

private:
    std::unordered_map<const void *, Mark> m_marks;
};
