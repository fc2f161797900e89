#include "editors/oEnhancementsBox.h"

#include "editors/clsItemChoice.h"
#include "editors/clsScreenTable.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

// clang-format off
constexpr clsChoiceSource EnhancementSource {
    .tick = "chkIncludeInEnhancements",
    .tickCaption = "Include in Enhancements",
    .list = "cmbEnhancement",
    .listCaption = "Enhancement",
    .members = "IncludeInEnhancements EnhancementUniqueID",
    .whyNoTick = "Add an enhancement first",
    .items = [] { return mdChoiceItems(Form->EnhancementsCollection()); },
    .uniqueIDOf = [](int index) { return Form->Enhancement(index)->UniqueID(); },
    .indexOf = [](const QString &uniqueID) {
        const auto enhancement = Form->EnhancementByUniqueID(uniqueID);
        return enhancement ? enhancement->Index : 0;
    },
};
// clang-format on

} // namespace

const clsOtherControl EnhancementsOfItem {
    .make = [](const clsScreenRow &, QWidget *parent) -> QWidget * { return new oEnhancementsBox(parent); },
    .load = [](const clsScreenRow &row, QWidget &control,
                clsXMLRecord &record) { static_cast<oEnhancementsBox &>(control).choice().load(row, record); },
    .store = [](const clsScreenRow &row, const QWidget &control,
                 clsXMLRecord &record) { static_cast<const oEnhancementsBox &>(control).choice().store(row, record); },
};

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
