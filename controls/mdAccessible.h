#pragma once

#include <QAccessible>

/// Installs a factory for the screen-reader interface of a class of widgets. Called by the constructor of each such
/// widget; only the first call has an effect.
template <QAccessible::InterfaceFactory Factory> void mdInstallAccessible()
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(Factory), true);
}
