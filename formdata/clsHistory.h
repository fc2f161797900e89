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

/// What was done to the claim, step by step, and the way back: a step is found by comparing the tree with what it was
/// after the step before, so that it holds whatever changed it. The identities given out, the time spent, the path and
/// the like are in no step. Whether the claim counts as changed is none of its business.
///
/// It is no QUndoStack: that one is part of the windows' library, which the claim does without, can't drop its oldest
/// steps by the memory that they take, and doesn't let a change join the step before it.
class clsHistory {
public:
    /// What the steps may take of the memory; beyond it the oldest go.
    static constexpr size_t MostBytes = size_t(64) << 20;

    explicit clsHistory(std::unique_ptr<clsZR3Form> &form)
        : m_form(form)
    { }
    clsHistory(const clsHistory &) = delete;
    clsHistory &operator=(const clsHistory &) = delete;

    /// Forgets everything, for another claim.
    void clear();

    /// Runs an action, and makes what it has changed one step of the name that it returns. Actions may run inside each
    /// other: each is a step, and none can be undone before the outermost ends.
    void run(const std::function<QString()> &action);
    /// What has changed since the last step joins that one: lists number their items when they are opened.
    void join();
    /// Makes what has changed since the last step, or since `join`, a step.
    void take(const QString &name);

    bool canUndo() const;
    bool canRedo() const;
    /// The name of the step that would be undone or done again; empty where there is none.
    QString undoName() const { return canUndo() ? m_steps[m_done - 1].name : QString(); }
    QString redoName() const { return canRedo() ? m_steps[m_done].name : QString(); }
    /// The item of a list that it is about, as long as it stands in the claim; nothing where it is about none.
    const clsZR3Item *undoItem() const
    {
        return canUndo() ? itemOf(m_steps[m_done - 1], clsTreeDirection::Forth) : nullptr;
    }
    const clsZR3Item *redoItem() const { return canRedo() ? itemOf(m_steps[m_done], clsTreeDirection::Back) : nullptr; }

    /// Takes the last step back, or does the next one again; nothing where there is none. Returns the item that it is
    /// about, where that stands in the claim after it. The collections that the claim derives are made anew.
    const clsZR3Item *undo();
    const clsZR3Item *redo();

    size_t steps() const { return m_steps.size(); }
    size_t bytes() const { return m_bytes; }

    /// Called after each step, undo and redo, for a copy of the claim that is kept beside it. It must not throw.
    std::function<void()> stepTaken;

private:
    /// The item that a step is about: its list, and its places in the file before and after.
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
    std::weak_ptr<clsXMLDocument> m_tree; ///< of the claim that the steps are of
    clsTreeShadow m_shadow;
    quint64 m_caughtUp = 0; ///< the count of changes when the shadow last caught up with the tree
    std::deque<clsStep> m_steps; ///< those that are done, then those undone
    size_t m_done = 0;
    size_t m_bytes = 0;
    int m_running = 0;
};
