#pragma once

#include "commands/clsTypedTexts.h"

#include <vector>

/// What was typed in screens of the open claim and not stored, since the user left them without a Save or the program
/// ended: one for each screen, the latest last. It is kept in the state folder by the claim's path, so that it is there
/// at the next start, and forgotten when it is stored after all or another claim takes the place of this one. Nothing
/// of it touches the claim, and where it can't be written it is kept no longer than the program runs.
class clsNotStored {
public:
    const std::vector<clsTypedTexts> &all() const { return m_all; }

    /// Keeps what was typed in a screen, in the place of what was kept of it before.
    void keep(clsTypedTexts texts) noexcept;
    /// Forgets what is kept of a screen.
    void forget(const QString &screen) noexcept;

    /// Another claim takes the place of the open one: all of it is forgotten.
    void leaveClaim() noexcept;
    /// A claim was opened: what an earlier run has kept for it is there again.
    void openClaim(const QString &path) noexcept;
    /// The claim was saved, and may have another path since.
    void claimSaved(const QString &path) noexcept;

private:
    void erase(const QString &screen);
    void write();

    std::vector<clsTypedTexts> m_all;
    QString m_path;
};

/// What was not stored of the program's one document.
clsNotStored &NotStored();
