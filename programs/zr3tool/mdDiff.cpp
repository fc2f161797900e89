#include "programs/zr3tool/mdDiff.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsJsonWriter.h"
#include "base/mdClaimPaths.h"
#include "base/mdPrint.h"
#include "costing/comparing/mdChangesInWords.h"
#include "costing/comparing/mdChangesReport.h"
#include "costing/comparing/mdCompareClaims.h"
#include "costing/comparing/mdPairFiles.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/mdClaimSteps.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

using Status = clsExitStatus;

/// The result of comparing two claims.
struct clsComparedClaims {
    Status status = Status::Done;
    QString error {}; ///< why one of them can't be read
    clsClaimChanges changes {};
};

class clsDiff {
public:
    clsDiff(clsConsoleUserInterface &console, const clsToolCommand &command)
        : m_console(console)
        , m_command(command)
    { }

    Status ofClaims(const QString &old, const QString &now);
    Status ofFolders(const QString &old, const QString &now);

private:
    clsComparedClaims compared(const QString &old, const QString &now) const;
    bool canRead(clsZR3Form &form, const QString &path, clsComparedClaims &result) const;
    QStringList claimsOf(const QString &folder, Status &status) const;
    Status writePair(clsJsonWriter &json, const clsFilePair &pair) const;

    clsConsoleUserInterface &m_console;
    const clsToolCommand &m_command;
};

bool clsDiff::canRead(clsZR3Form &form, const QString &path, clsComparedClaims &result) const
{
    m_console.beginSubject(path + QStringLiteral(": "));
    result.status = mdLoadClaim(m_console, form, path, clsSoundness::InSome);
    if (result.status == Status::Done)
        return true;
    if (result.error.isEmpty())
        result.error = m_console.lastText();
    return false;
}

clsComparedClaims clsDiff::compared(const QString &old, const QString &now) const
{
    clsComparedClaims result;
    clsZR3Form before;
    clsZR3Form after;
    // Tries to read both, so that all failures are reported at once.
    const bool readsOld = canRead(before, old, result);
    if (!canRead(after, now, result) || !readsOld) {
        result.status = Status::NoClaim;
        return result;
    }
    result.changes = mdCompareClaims(before, after);
    if (!m_command.json || m_command.words)
        result.changes = mdChangesInWords(std::move(result.changes), before, after);
    result.status = result.changes.isEmpty() ? Status::Done : Status::Differs;
    return result;
}

Status clsDiff::ofClaims(const QString &old, const QString &now)
{
    const clsComparedClaims result = compared(old, now);
    if (result.status == Status::NoClaim)
        return result.status;
    if (!m_command.json) {
        mdPrint(stdout, mdChangesInLines(result.changes));
        return result.status;
    }
    clsJsonWriter json;
    json.beginObject();
    mdWriteChanges(json, result.changes, m_command.words);
    json.endObject();
    mdPrintBytes(json.bytes());
    return result.status;
}

Status clsDiff::writePair(clsJsonWriter &json, const clsFilePair &pair) const
{
    const bool isOnlyOld = pair.New.isEmpty();
    const bool isAlone = isOnlyOld || pair.Old.isEmpty();
    const QString only = !isAlone ? QString() : isOnlyOld ? QStringLiteral("old") : QStringLiteral("new");
    const clsComparedClaims result = isAlone ? clsComparedClaims {Status::Differs} : compared(pair.Old, pair.New);
    json.beginObject();
    json.text("Name", pair.Name);
    json.text("Only", only);
    if (result.status == Status::NoClaim)
        json.text("Error", result.error);
    else
        mdWriteChanges(json, result.changes, m_command.words);
    json.endObject();
    if (m_command.json)
        return result.status;
    const QString before = pair.Name + QStringLiteral(": ");
    mdPrint(stdout,
        isAlone ? before + QStringLiteral("only in the %1 folder\r\n").arg(only)
                : mdChangesInLines(result.changes, before));
    return result.status;
}

/// The claims in a folder; failures to read it are reported.
QStringList clsDiff::claimsOf(const QString &folder, Status &status) const
{
    QStringList claims;
    for (const clsClaimPath &claim : mdClaimPaths(folder)) {
        if (claim.error.isEmpty()) {
            claims << claim.path;
            continue;
        }
        m_console.beginSubject(claim.path + QStringLiteral(": "));
        m_console.tell(claim.errorTitle, claim.error);
        status = Status::NoClaim;
    }
    return claims;
}

Status clsDiff::ofFolders(const QString &old, const QString &now)
{
    clsJsonWriter json;
    json.beginObject();
    json.beginArray("Claims");
    Status status = Status::Done;
    const QStringList oldClaims = claimsOf(old, status);
    const QStringList newClaims = claimsOf(now, status);
    for (const clsFilePair &pair : mdPairFiles(old, oldClaims, now, newClaims))
        status = std::max(status, writePair(json, pair));
    json.endArray();
    json.endObject();
    if (m_command.json)
        mdPrintBytes(json.bytes());
    return status;
}

} // namespace

Status mdDiff(clsConsoleUserInterface &console, const clsToolCommand &command)
{
    const QString &old = command.claims.front();
    const QString &now = command.claims.back();
    const bool areFolders = QFileInfo(old).isDir() && QFileInfo(now).isDir();
    clsDiff diff(console, command);
    return areFolders ? diff.ofFolders(old, now) : diff.ofClaims(old, now);
}
