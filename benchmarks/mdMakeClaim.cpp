#include "benchmarks/mdMakeClaim.h"

#include "formdata/clsZR3Form.h"

#include <QStringList>

#include <random>

namespace {

/// Random choices that are the same in every run and with every library.
class Chooser {
public:
    int below(int bound) { return int(m_random() % unsigned(bound)); }
    bool oneIn(int count) { return below(count) == 0; }
    template <class List> auto &oneOf(List &list) { return list[below(int(list.size()))]; }
    QString money(int pounds)
    {
        return QStringLiteral("%1.%2").arg(below(pounds)).arg(below(100), 2, 10, QLatin1Char('0'));
    }
    QString date()
    {
        return QStringLiteral("%1/%2/%3")
            .arg(1 + below(28), 2, 10, QLatin1Char('0'))
            .arg(1 + below(12), 2, 10, QLatin1Char('0'))
            .arg(20 + below(6));
    }
    QString time() { return QStringLiteral("0%1:%2").arg(below(4)).arg(6 * below(10), 2, 10, QLatin1Char('0')); }

private:
    std::mt19937 m_random {20261115};
};

const QStringList Codes {"ATT", "CON", "DOC", "REX", "ROP", "HEA", "OTH", "TRA", "PRE", "DRA"};
const QStringList Deeds {"Perusing and considering", "Preparing", "Drafting and amending",
    "Attendance upon the client to discuss", "Conference with counsel concerning",
    "Telephone attendance upon the expert about"};
const QStringList Matters {"the statement of the social worker", "a schedule of issues for the hearing",
    "the expert's addendum report (pages 1-48)", "the disrepair at 14, Mill Road & the landlord's offer of \u00a3750",
    "the instructions to the joint expert", "the other side's letter of the 14th; 50% of the costs remain in dispute"};
const QStringList Ends {"; noting points for the next conference.",
    ". Considering the merits and advising on the prospects of success.", ", and next steps.", "."};

QString description(Chooser &chooser)
{
    QString text = chooser.oneOf(Deeds) + u' ' + chooser.oneOf(Matters) + chooser.oneOf(Ends);
    if (chooser.oneIn(5))
        text += QStringLiteral("\r\n") + chooser.oneOf(Deeds) + u' ' + chooser.oneOf(Matters) + chooser.oneOf(Ends);
    return text;
}

void addPeople(clsZR3Form &form, Chooser &chooser)
{
    for (int i = 0; i < 4; ++i) {
        const auto group = form.AddFeeEarnerGroup();
        group->Reference = QString(QChar(u'A' + i));
        group->Name = QStringLiteral("Group of fee earners %1").arg(i + 1);
        group->Enhance = i % 2 == 0;
        group->EnhancementRate = i % 2 == 0 ? QStringLiteral("33.33") : QStringLiteral("0.00");
        group->HourlyRate = chooser.money(80);
        group->CallsRate = chooser.money(6);
        group->LettersInRate = chooser.money(4);
        group->LettersOutRate = chooser.money(8);
        group->AdvocacyRate = chooser.money(90);
        group->CounselRate = chooser.money(50);
        group->TravelAndWaitingRate = chooser.money(40);
    }
    for (int i = 0; i < 8; ++i) {
        const auto feeEarner = form.AddFeeEarner();
        feeEarner->Reference = QStringLiteral("F%1").arg(i);
        feeEarner->GroupUniqueID = form.FeeEarnerGroup(1 + i % 4)->UniqueID();
        feeEarner->Calls = chooser.below(90);
        feeEarner->LettersIn = chooser.below(90);
        feeEarner->LettersOut = chooser.below(90);
    }
    for (int i = 0; i < 4; ++i) {
        const auto enhancement = form.AddEnhancement();
        enhancement->Name = QStringLiteral("Enhancement %1").arg(i + 1);
        enhancement->Rate = chooser.money(50);
    }
    for (int i = 0; i < 6; ++i) {
        const auto counsel = form.AddCounsel();
        counsel->Name = QStringLiteral("Counsel %1").arg(i + 1);
        counsel->AccountNumber = QStringLiteral("1%2X").arg(chooser.below(99999));
        counsel->VAT = i % 2 == 0;
    }
}

void addPayments(clsZR3Form &form, Chooser &chooser)
{
    for (int i = 0; i < 60; ++i) {
        const auto disbursement = form.AddDisbursement();
        disbursement->Counsel = i % 3 == 0;
        if (i % 3 == 0)
            disbursement->CounselUniqueID = form.Counsel(1 + i % 6)->UniqueID();
        disbursement->DateOfWork = chooser.date();
        disbursement->Description = chooser.oneOf(Matters);
        disbursement->Amount = chooser.money(900);
        disbursement->VAT = chooser.money(90);
    }
    for (int i = 0; i < 12; ++i) {
        const auto invoice = form.AddExpertInvoice();
        invoice->ExpertType = QStringLiteral("Psychologist");
        invoice->NetAmount = chooser.money(3000);
        invoice->VATAmount = chooser.money(600);
    }
}

void addSchedule(clsZR3Form &form, Chooser &chooser, int items)
{
    for (int i = 0; i < items; ++i) {
        const auto item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = form.FeeEarner(1 + chooser.below(8))->UniqueID();
        item->dDate = chooser.date();
        item->Code = chooser.oneOf(Codes);
        item->TTime = chooser.time();
        item->Advocacy = chooser.oneIn(6);
        item->Counsel = chooser.oneIn(8);
        item->Travel = chooser.oneIn(7);
        item->Waiting = chooser.oneIn(9);
        item->UseHourlyRate = chooser.oneIn(20);
        if (chooser.oneIn(4)) {
            item->IncludeInEnhancements = true;
            item->EnhancementUniqueID = form.Enhancement(1 + chooser.below(4))->UniqueID();
        }
        if (i % 3 == 0)
            item->Description = description(chooser);
    }
    // As if the user had sorted the schedule by date: its order is unrelated to that of creation. The step is a prime,
    // so every position is used once.
    constexpr qint64 Step = 7919;
    for (int i = 0; items % Step != 0 && i < items; ++i)
        form.ScheduleOfTimeItem(i + 1)->OrderID = int(i * Step % items) + 1;
}

} // namespace

void mdMakeClaim(clsZR3Form &form, int scheduleItems)
{
    Chooser chooser;
    form.FormType = QStringLiteral("Claim1");
    form.VAT = true;
    form.VATRate = QStringLiteral("20.00");
    addPeople(form, chooser);
    addPayments(form, chooser);
    addSchedule(form, chooser, scheduleItems);
}
