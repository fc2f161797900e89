#pragma once

#include "formdata/clsZR3Form.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

/// A claim that a test builds step by step, with a scripted user.
class clsTestClaim {
public:
    clsScriptedUserInterface user;

private:
    clsUserInterfaceScope m_scope {user};

public:
    clsZR3Form form;

    using Group = std::shared_ptr<clsZR3FeeEarnerGroup>;
    using FeeEarner = std::shared_ptr<clsZR3FeeEarner>;
    using Item = std::shared_ptr<clsZR3ScheduleOfTimeItem>;

    /// A group with a different rate for each kind of work.
    Group addGroup(const char *hourlyRate = "40.00")
    {
        const Group group = form.AddFeeEarnerGroup();
        group->HourlyRate = QString::fromLatin1(hourlyRate);
        group->AdvocacyRate = QStringLiteral("50.00");
        group->CounselRate = QStringLiteral("30.00");
        group->TravelAndWaitingRate = QStringLiteral("20.00");
        group->CallsRate = QStringLiteral("4.00");
        group->LettersInRate = QStringLiteral("2.00");
        group->LettersOutRate = QStringLiteral("5.00");
        return group;
    }
    FeeEarner addFeeEarner(const Group &group, const char *reference = "AB")
    {
        const FeeEarner feeEarner = form.AddFeeEarner();
        feeEarner->Reference = QString::fromLatin1(reference);
        feeEarner->GroupUniqueID = group->UniqueID();
        return feeEarner;
    }
    Item addItem(const FeeEarner &feeEarner, const char *time, const char *code = "ACT")
    {
        const Item item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = feeEarner->UniqueID();
        item->TTime = QString::fromLatin1(time);
        item->Code = QString::fromLatin1(code);
        return item;
    }
    std::shared_ptr<clsZR3Enhancement> addEnhancement(const char *rate)
    {
        const auto enhancement = form.AddEnhancement();
        enhancement->Rate = QString::fromLatin1(rate);
        return enhancement;
    }
    std::shared_ptr<clsZR3Disbursement> addDisbursement(const char *amount, const char *vat, bool counsel = false)
    {
        const auto disbursement = form.AddDisbursement();
        disbursement->Amount = QString::fromLatin1(amount);
        disbursement->VAT = QString::fromLatin1(vat);
        disbursement->Counsel = counsel;
        return disbursement;
    }
    /// An item of the Family Advocacy Scheme without fixed payments.
    std::shared_ptr<clsZR3FASItem> addFASItem(int units, const char *rate, const char *boltOn)
    {
        const auto item = form.AddFASItem();
        item->HearingUnits = units;
        item->RateForUnits = QString::fromLatin1(rate);
        item->BoltOnClaimed = QString::fromLatin1(boltOn);
        item->CourtBundlePayment = QStringLiteral("0.00");
        item->SettlementFee = QStringLiteral("0.00");
        item->ExceptionalTravel = QStringLiteral("0.00");
        return item;
    }
};

inline QString operator""_q(const char *text, size_t size)
{
    return QString::fromUtf8(text, qsizetype(size));
}

/// An amount as plain text, as one would write it by hand.
inline QString textOf(Money amount)
{
    return MoneyToText(amount);
}
