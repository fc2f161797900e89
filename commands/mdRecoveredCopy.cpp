#include "commands/mdRecoveredCopy.h"

#include "base/clsFileSystem.h"
#include "base/mdCodePage.h"
#include "base/mdDatabasePath.h"
#include "base/mdStateFolder.h"
#include "commands/mdDatedCopy.h"
#include "commands/mdLossCause.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <exception>

namespace {

bool lastCopyHolds(const QByteArray &bytes)
{
    const auto &last = Document().lastCopy;
    try {
        return !last.path.isEmpty() && bytes == last.bytes && FileSystem().ReadFile(last.path) == bytes;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// Writes the copy to the first folder that accepts it.
void writeNew(clsRecoveredCopy &copy, const QByteArray &bytes)
{
    // The database folder may be missing or belong to others; the last copy must not depend on it.
    for (const QString &parent : {StoredDatabasePath(), StateFolder()}) {
        const QString folder = parent + QStringLiteral("/Recovered");
        if (parent != StateFolder() || MakeStateFolder())
            copy.path = WriteDatedCopy(folder, bytes);
        if (!copy.path.isEmpty())
            return;
        copy.tried << folder;
    }
}

clsRecoveredCopy writeCopy()
{
    clsRecoveredCopy copy;
    copy.cause = FormLossCause();
    if (copy.cause == clsLossCause::None)
        return copy;
    const QByteArray bytes = mdToCodePage(Form->XMLOutput());
    // A desktop that ends its session may ask more than once.
    if (lastCopyHolds(bytes)) {
        copy.path = Document().lastCopy.path;
        return copy;
    }
    writeNew(copy, bytes);
    Document().lastCopy = {copy.path, bytes};
    return copy;
}

} // namespace

clsRecoveredCopy WriteRecoveredCopy() noexcept
{
    try {
        return writeCopy();
    } catch (...) {
        return {clsLossCause::UnsavedChanges, {}, {}};
    }
}
