#pragma once

#include <QAccessible>

/// Lets a factory say what screen readers are told of a kind of widget. To be called by each such widget as it is made;
/// the first call installs it.
template <QAccessible::InterfaceFactory Factory> void mdInstallAccessible()
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(Factory), true);
}
