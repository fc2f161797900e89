#include "editors/oCounselBox.h"

#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "editors/clsItemChoice.h"
#include "editors/mdEditItem.h"
#include "editors/mdScreens.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdRunStep.h"

#include <QHBoxLayout>

namespace {

// clang-format off
constexpr clsChoiceSource CounselSource {
    .tick = "chkCounsel",
    .tickCaption = "Counsel",
    .list = "cmbCounsel",
    .listCaption = "Name of counsel",
    .members = "Counsel CounselUniqueID",
    .whyNoTick = "Add a counsel first",
    .from = mdChoiceList<&clsZR3Form::CounselCollection, &clsZR3Form::Counsel, &clsZR3Form::CounselByUniqueID>(),
};
// clang-format on

} // namespace

const clsOtherControl CounselOfItem = mdChoiceControl<oCounselBox>();

oCounselBox::oCounselBox(QWidget *parent)
    : QFrame(parent)
    , m_choice(new clsItemChoice(*this, CounselSource))
    , cmdAddCounsel(addButton("cmdAddCounsel", "Add", "Add counsel"))
    , cmdEditCounsel(addButton("cmdEditCounsel", "Edit", "Edit counsel"))
{
    connect(m_choice, &clsItemChoice::Click, this, &oCounselBox::enableEdit);
    connect(m_choice, &clsItemChoice::Change, this, [this] {
        enableEdit();
        emit Change(selected());
    });
    connect(cmdAddCounsel, &oCustomButton::Click, this, [this] { edit(nullptr); });
    connect(cmdEditCounsel, &oCustomButton::Click, this, [this] { edit(selected()); });
    fill();
}

/// Adds a button without a letter: letters are assigned only to the screen's rows.
oCustomButton *oCounselBox::addButton(const char *name, const char *caption, const char *spokenCaption)
{
    auto *button = new oCustomButton(this);
    button->setObjectName(QString::fromUtf8(name));
    button->setCaption(QString::fromUtf8(caption));
    button->setAccessibleName(QString::fromUtf8(spokenCaption));
    m_choice->row().addWidget(button);
    return button;
}

bool oCounselBox::Counsel() const
{
    return m_choice->Ticked();
}

void oCounselBox::setCounsel(bool counsel)
{
    m_choice->setTicked(counsel);
}

QString oCounselBox::CounselUniqueID() const
{
    return m_choice->UniqueID();
}

void oCounselBox::setCounselUniqueID(const QString &uniqueID)
{
    m_choice->setUniqueID(uniqueID);
}

void oCounselBox::fill()
{
    m_choice->fill();
    enableEdit();
    // The caption's letter leads to the tick or, if there is no counsel yet, to the button that adds one.
    setFocusProxy(m_choice->tick().isEnabled() ? static_cast<QWidget *>(&m_choice->tick()) : cmdAddCounsel);
}

std::shared_ptr<clsZR3Counsel> oCounselBox::selected() const
{
    const int index = m_choice->SelectedIndex();
    return index ? Form->Counsel(index) : nullptr;
}

void oCounselBox::enableEdit()
{
    cmdEditCounsel->setEnabled(m_choice->Ticked() && m_choice->SelectedIndex());
}

/// Opens the editor of a counsel, or of a new one; a changed name is shown at once.
void oCounselBox::edit(const std::shared_ptr<clsZR3Counsel> &counsel)
{
    // A step of its own, kept even if the item's editor below is cancelled.
    RunStep(counsel ? QStringLiteral("Edit Counsel") : QStringLiteral("Add Counsel"), [&] {
        mdEditItem(window(), ScreenCounselEdit(), counsel.get());
        fill();
    });
}
