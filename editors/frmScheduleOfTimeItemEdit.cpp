#include "editors/mdScreens.h"

#include "controls/oCheckBox.h"
#include "controls/oDateBox.h"
#include "controls/oTimeBox.h"
#include "editors/clsFeeEarnerKeys.h"
#include "editors/frmScreen.h"
#include "editors/mdDateIsGiven.h"
#include "editors/oCodeCombo.h"
#include "editors/oCodeNote.h"
#include "editors/oEnhancementsBox.h"
#include "editors/oFeeEarnerCombo.h"
#include "editors/oPriceLine.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

clsZR3ScheduleOfTimeItem &itemOf(clsXMLRecord &record)
{
    return static_cast<clsZR3ScheduleOfTimeItem &>(record);
}

void loadFeeEarner(const clsScreenRow &, QWidget &control, clsXMLRecord &record)
{
    static_cast<oFeeEarnerCombo &>(control).setSelectedFeeEarner(itemOf(record).FeeEarner());
}

/// If a file's fee earner is missing, the item keeps its identity until the user chooses another.
void storeFeeEarner(const clsScreenRow &, const QWidget &control, clsXMLRecord &record)
{
    const auto &list = static_cast<const oFeeEarnerCombo &>(control);
    if (list.SelectedFeeEarner())
        itemOf(record).FeeEarnerUniqueID = list.SelectedFeeEarnerUniqueID();
}

const clsOtherControl FeeEarner {
    .make = mdMakeOther<oFeeEarnerCombo>,
    .load = loadFeeEarner,
    .store = storeFeeEarner,
};

void loadCode(const clsScreenRow &, QWidget &control, clsXMLRecord &record)
{
    static_cast<oCodeCombo &>(control).setCode(itemOf(record).Code());
}

void storeCode(const clsScreenRow &, const QWidget &control, clsXMLRecord &record)
{
    itemOf(record).Code = static_cast<const oCodeCombo &>(control).Code();
}

const clsOtherControl Code {
    .make = mdMakeOther<oCodeCombo>,
    .load = loadCode,
    .store = storeCode,
};

void rules(frmScreen &screen)
{
    new clsFeeEarnerKeys(screen);
    screen.setMayStore([&screen] { return mdDateIsGiven(screen.Box<oDateBox>("txtDate")); });
    QObject::connect(&screen.Box<oCheckBox>("chkAdvocacy"), &oCheckBox::Click, &screen, [&screen](bool advocacy) {
        auto &useHourlyRate = screen.Box<oCheckBox>("chkUseHourlyRate");
        useHourlyRate.setEnabled(advocacy);
        if (!advocacy)
            useHourlyRate.setChecked(false);
    });
    // A new time starts with a colon: without one the item could not be priced.
    QObject::connect(&screen, &frmScreen::Loaded, &screen, [&screen] {
        auto &time = screen.Box<oTimeBox>("txtTime");
        if (time.Text().isEmpty())
            time.setText(QStringLiteral("00:00"));
    });
    screen.findChild<oPriceLine *>()->Follow(screen);
    screen.findChild<oCodeNote *>()->Follow(screen.Box<oCodeCombo>("cmbCode"));
}

} // namespace

/// A piece of work: the fee earner, date, code, time and capacity, which determines the rate. Advocacy can be combined
/// with each of three exclusive ticks: an advocate may attend counsel, travel or wait.
const clsScreen &ScreenScheduleOfTimeItemEdit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmScheduleOfTimeItemEdit",
        .header = "Schedule of Time Item",
        .subCaption = "Change a schedule of time item's settings",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Schedule of Time Item", {
                {.kind = Other, .control = "cmbFeeEarner", .caption = "Fee Earner:*", .flags = Kept,
                 .other = &FeeEarner},
                {.kind = Date,  .control = "txtDate", .caption = "Date:*", .flags = DateTick | Kept,
                 .member = "dDate"},
                {.kind = Other, .control = "cmbCode", .caption = "Code:*", .other = &Code,
                 .behind = [](QWidget *parent) -> QWidget * { return new oCodeNote(parent); }},
                {.kind = Text,  .control = "txtDescription", .caption = "Description:", .flags = SpellCheck},
                {.kind = Time,  .control = "txtTime", .caption = "Time:*", .member = "TTime",
                 .beneath = [](QWidget *parent) -> QWidget * { return new oPriceLine(parent); }},
                {Separator},
                {.kind = Tick,  .control = "chkAdvocacy", .caption = "Advocacy:"},
                {.kind = Tick,  .control = "chkCounsel", .caption = "Counsel:", .group = 'c'},
                {.kind = Tick,  .control = "chkTravel", .caption = "Travel:", .group = 'c'},
                {.kind = Tick,  .control = "chkWaiting", .caption = "Waiting:", .group = 'c', .beside = "chkAdvocacy"},
                {.kind = Tick,  .control = "chkUseHourlyRate", .caption = "Use Hourly Rate:", .flags = StartsDisabled,
                 .beside = "chkCounsel"},
                {Separator},
                {.kind = Other, .control = "oEnhancement", .caption = "Include in Enhancements:",
                 .other = &EnhancementsOfItem},
            }},
        },
        .rules = rules,
        .itemWord = "Schedule of Time Item",
        .add = []() -> clsXMLRecord * { return Form->AddScheduleOfTimeItem().get(); },
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}
