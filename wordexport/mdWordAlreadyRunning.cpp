#include "wordexport/mdWordAlreadyRunning.h"

#include <algorithm>
#include <utility>

namespace {

// Tests set which other programs are running.
clsProcessList current = mdProcessNames;

} // namespace

bool mdWordAlreadyRunning()
{
    const QStringList names = current();
    return std::any_of(names.begin(), names.end(), [](const QString &name) {
        const QString lower = name.toLower();
        return lower == QLatin1String("winword.exe") || lower == QLatin1String("soffice.bin");
    });
}

clsProcessListScope::clsProcessListScope(clsProcessList list)
    : m_previous(std::exchange(current, std::move(list)))
{ }

clsProcessListScope::~clsProcessListScope()
{
    current = m_previous;
}
