#pragma once

#include "formdata/clsTreeShadow.h"

#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct clsXMLDocument;
class clsZR3Form;
class clsZR3Item;

/// The history of changes to the claim, for undo and redo. A step is found by comparing the tree with its state after
/// the previous step, so it includes changes made by any code. The identity counter, the time spent, the path and
/// similar values are not part of a step. Independent of whether the claim counts as changed.
///
/// Not a QUndoStack: that is in the windows' library, which the claim doesn't use, can't drop its oldest steps by
/// memory use, and doesn't let a change join the previous step.
class clsHistory {
public:
    /// The memory limit of the steps; beyond it the oldest are dropped.
    static constexpr size_t MostBytes = size_t(64) << 20;

    explicit clsHistory(std::unique_ptr<clsZR3Form> &form)
        : m_form(form)
    { }
    clsHistory(const clsHistory &) = delete;
    clsHistory &operator=(const clsHistory &) = delete;

    /// Discards everything, for another claim.
    void clear();

    /// Runs an action, and makes its changes one step with the name that it returns. Actions can be nested: each is a
    /// step, and none can be undone before the outermost ends.
    void run(const std::function<QString()> &action);
    /// Adds the changes since the last step to that step: lists number their items when they are opened.
    void join();
    /// Makes the changes since the last step, or since `join`, a step.
    void take(const QString &name);

    bool canUndo() const;
    bool canRedo() const;
    /// The name of the step that would be undone or redone; empty if there is none.
    QString undoName() const { return canUndo() ? m_steps[m_done - 1].name : QString(); }
    QString redoName() const { return canRedo() ? m_steps[m_done].name : QString(); }
    /// The list item that the step is about, if it is in the claim now; null for none.
    const clsZR3Item *undoItem() const
    {
        return canUndo() ? itemOf(m_steps[m_done - 1], clsTreeDirection::Forth) : nullptr;
    }
    const clsZR3Item *redoItem() const { return canRedo() ? itemOf(m_steps[m_done], clsTreeDirection::Back) : nullptr; }

    /// Undoes the last step, or redoes the next one; does nothing if there is none. Returns the item that it is about,
    /// if that is in the claim afterwards. Rebuilds the derived collections.
    const clsZR3Item *undo();
    const clsZR3Item *redo();

    size_t steps() const { return m_steps.size(); }
    size_t bytes() const { return m_bytes; }

    /// Called after each step, undo and redo, for maintaining a copy of the claim. Must not throw.
    std::function<void()> stepTaken;

private:
    /// The item that a step is about: its list, and its positions in the file before and after.
    struct clsLead {
        std::string list;
        int oldPlace = -1;
        int newPlace = -1;
    };
    struct clsStep {
        QString name;
        std::vector<clsTreeChange> changes;
        clsLead lead {};
    };

    pugi::xml_node root() const;
    bool knowsTree() const;
    bool isCaughtUp() const;
    void keep(clsTreeChange change);
    void dropUndone();
    void dropOldest();
    clsLead leadOf(const clsTreeChange &change) const;
    const clsZR3Item *itemOf(const clsStep &step, clsTreeDirection end) const;
    const clsZR3Item *turn(const clsStep &step, clsTreeDirection direction);
    static size_t bytesOf(const clsStep &step);
    static bool movesParts(const clsTreeChange &change, const clsZR3Form &form);

    std::unique_ptr<clsZR3Form> &m_form;
    std::weak_ptr<clsXMLDocument> m_tree; ///< of the claim to which the steps belong
    clsTreeShadow m_shadow;
    quint64 m_caughtUp = 0; ///< the count of changes when the shadow last caught up with the tree
    std::deque<clsStep> m_steps; ///< first those done, then those undone
    size_t m_done = 0;
    size_t m_bytes = 0;
    int m_running = 0;
};
