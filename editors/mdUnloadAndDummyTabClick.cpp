#include "editors/mdUnloadAndDummyTabClick.h"

#include <QDialog>

#include <utility>

namespace {

std::function<void(const QString &)> &openSectionInForce()
{
    // A screen leads to another by way of the main window, which stands above it.
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
