#pragma once

#include "commands/clsTypedTexts.h"

#include <vector>

/// Text that was typed in screens of the open claim but not stored, because the user left them without Save or the
/// program ended: one entry per screen, the latest last. It is kept in the state folder under the claim's path, so that
/// it is there at the next start, and forgotten once it is stored or another claim is opened. The claim itself is never
/// changed. If the file can't be written, the text is kept only until the program ends.
class clsNotStored {
public:
    const std::vector<clsTypedTexts> &all() const { return m_all; }

    /// Keeps the text typed in a screen, replacing what was kept for that screen.
    void keep(clsTypedTexts texts) noexcept;
    /// Forgets what was kept for a screen.
    void forget(const QString &screen) noexcept;

    /// Forgets everything: another claim replaces the open one.
    void leaveClaim() noexcept;
    /// A claim was opened: restores what an earlier run kept for it.
    void openClaim(const QString &path) noexcept;
    /// The claim was saved, possibly under a new path.
    void claimSaved(const QString &path) noexcept;

private:
    void erase(const QString &screen);
    void write();

    std::vector<clsTypedTexts> m_all;
    QString m_path;
};

/// The text not stored in the open document.
clsNotStored &NotStored();
