#include "editors/oEnhancementsBox.h"

#include "editors/clsItemChoice.h"

namespace {

// clang-format off
constexpr clsChoiceSource EnhancementSource {
    .tick = "chkIncludeInEnhancements",
    .tickCaption = "Include in Enhancements",
    .list = "cmbEnhancement",
    .listCaption = "Enhancement",
    .members = "IncludeInEnhancements EnhancementUniqueID",
    .whyNoTick = "Add an enhancement first",
    .from = mdChoiceList<&clsZR3Form::EnhancementsCollection, &clsZR3Form::Enhancement, &clsZR3Form::EnhancementByUniqueID>(),
};
// clang-format on

} // namespace

const clsOtherControl EnhancementsOfItem = mdChoiceControl<oEnhancementsBox>();

oEnhancementsBox::oEnhancementsBox(QWidget *parent)
    : QFrame(parent)
    , m_choice(new clsItemChoice(*this, EnhancementSource))
{
    fill();
}

bool oEnhancementsBox::IncludeInEnhancements() const
{
    return m_choice->Ticked();
}

void oEnhancementsBox::setIncludeInEnhancements(bool include)
{
    m_choice->setTicked(include);
}

QString oEnhancementsBox::EnhancementUniqueID() const
{
    return m_choice->UniqueID();
}

void oEnhancementsBox::setEnhancementUniqueID(const QString &uniqueID)
{
    m_choice->setUniqueID(uniqueID);
}

void oEnhancementsBox::fill()
{
    m_choice->fill();
}
