#include "shell/mdCopyOfClaim.h"

#include "base/clsQuietUserInterface.h"
#include "base/mdLog.h"
#include "formdata/clsZR3Form.h"

std::unique_ptr<clsZR3Form> mdCopyOfClaim(const clsZR3Form &form)
{
    const clsNoLogScope noLog;
    clsQuietUserInterface quiet;
    const clsUserInterfaceScope scope(quiet);
    auto copy = std::make_unique<clsZR3Form>();
    copy->takeCopyOf(form);
    return copy;
}
