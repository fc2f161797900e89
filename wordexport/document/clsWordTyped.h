#pragma once

#include <QString>

#include <pugixml.hpp>

#include <unordered_map>

/// Which of an open document's text was typed into it, and so is not the template's own. It is known by the runs and
/// lives as long as the document is open; nothing of it is in the file.
class clsWordTyped {
public:
    struct Mark {
        int before; ///< the positions at the run's front that were there already
        QString placeholder; ///< that the text replaced; empty where it was typed at the cursor
    };

    bool isEmpty() const { return m_marks.empty(); }
    /// The mark of a run; null where nothing was typed into it.
    const Mark *of(const pugi::xml_node &run) const;

    /// Text was typed into a run behind so many positions. One that has a mark keeps it.
    void typed(const pugi::xml_node &run, int before, const QString &placeholder);
    /// What stood in a run behind so many positions has moved to another.
    void split(const pugi::xml_node &run, const pugi::xml_node &tail, int at);
    /// A run is about to be removed, or everything below a node.
    void forget(const pugi::xml_node &run) { m_marks.erase(run.internal_object()); }
    void forgetBelow(const pugi::xml_node &node);

private:
    std::unordered_map<const void *, Mark> m_marks;
};
