#include "editors/mdUnloadAndDummyTabClick.h"

#include <QDialog>

#include <utility>

namespace {

std::function<void(const QString &)> &openSectionInForce()
{
    // Screens open each other through the main window, which is on a higher floor.
    static std::function<void(const QString &)> openSection;
    return openSection;
}

} // namespace

void SetOpenSection(std::function<void(const QString &)> openSection)
{
    openSectionInForce() = std::move(openSection);
}

void mdUnloadAndDummyTabClick(QDialog &form, const QString &sectionCaption)
{
    form.done(QDialog::Accepted);
    if (const auto &openSection = openSectionInForce())
        openSection(sectionCaption);
}
