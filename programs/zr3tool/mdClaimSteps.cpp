#include "programs/zr3tool/mdClaimSteps.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsProgramEnd.h"
#include "base/clsRunTimeError.h"
#include "formdata/clsZR3Form.h"

#include <new>

clsExitStatus mdGuarded(
    clsConsoleUserInterface &console, clsExitStatus onError, const std::function<clsExitStatus()> &step)
{
    try {
        return step();
    } catch (const clsRunTimeError &error) {
        const QString cause = error.cause().isEmpty() ? QString() : QStringLiteral("\r\n") + error.cause();
        console.tell(QStringLiteral("Run-time error '%1'").arg(error.number()), error.description() + cause);
    } catch (const clsProgramEnd &) {
        // The user has been told why.
    } catch (const std::bad_alloc &) {
        console.tell(QStringLiteral("Run-time error '7'"), clsRunTimeError::standardDescription(7));
    } catch (const std::exception &error) {
        console.tell(QStringLiteral("Run-time error"), QString::fromUtf8(error.what()));
    }
    return onError;
}

clsExitStatus mdLoadClaim(
    clsConsoleUserInterface &console, clsZR3Form &form, const QString &path, clsSoundness soundness)
{
    // If the file can't be read, only that is reported, and not also that it is not a claim.
    console.showsOnlyFirstMessage = true;
    const clsExitStatus status = mdGuarded(console, clsExitStatus::NoClaim, [&] {
        if (!form.LoadXML(path))
            return clsExitStatus::NoClaim;
        // Unlike in the window, the user has no way to correct the claim here.
        if (soundness == clsSoundness::InAllParts)
            form.CheckDerivedCollections();
        return clsExitStatus::Done;
    });
    console.showsOnlyFirstMessage = false;
    return status;
}
