#pragma once

#include "base/clsRunTimeError.h"
#include "base/clsUserInterface.h"

/// Shows the plain system box for a failure that ends an operation on a file or a stored setting: what was tried, on
/// what, and the error's number and text. The caller then abandons the operation and continues.
inline void mdSystemFailure(
    const QString &title, const QString &whatWasTried, const QString &name, const clsRunTimeError &error)
{
    const QString line = QStringLiteral("\r\n\r\n");
    UserInterface().systemMessage(whatWasTried + line + name + line + QStringLiteral("The error reported is:") + line
            + QString::number(error.number()) + QStringLiteral(" - ") + error.description(),
        title, clsUserInterface::Critical, clsUserInterface::OKOnly);
}
