#pragma once

#include "base/clsRunTimeError.h"
#include "costing/mdGetCommsInfo.h"

#include <QString>

#include <vector>

class clsXMLRecord;
class clsZR3Disbursement;
class clsZR3Enhancement;
class clsZR3ExpertInvoice;
class clsZR3FASItem;
class clsZR3FeeEarner;
class clsZR3FeeEarnerGroup;
class clsZR3Form;
class clsZR3ScheduleOfTimeItem;

/// A reason why a figure can't be computed.
struct clsFigureFault {
    QString property; ///< of the item, its name in the code; empty if something else must be corrected
    QString words; ///< the fault: "names a fee earner that no longer exists"
    QString sentence; ///< with the item: "Schedule item 12 names a fee earner that no longer exists"
    int error; ///< the number of the resulting run-time error
};
using clsFigureFaults = std::vector<clsFigureFault>;

// The faults that prevent computing the figures of an item, in words, in the order of reporting; empty if all can be
// computed. This is the only source of these texts: lists, previews, messages and checks use them.

/// Fee earner or group, time, enhancement, and then faults outside the item, such as the group's rates.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3ScheduleOfTimeItem &item);
/// The amounts, and the counsel of a counsel's fee.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3Disbursement &disbursement);
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3ExpertInvoice &invoice);
/// The parts of the total, and the VAT, which may be empty.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3FASItem &item);
/// The fee earner's group.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3FeeEarner &feeEarner);
/// The rates; that of the enhancement only if the group has one.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3FeeEarnerGroup &group);
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3Enhancement &enhancement);
/// A line of the letters and calls.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, int line, clsCommsKind kind);
/// The fixed fee of the actual costs, which may be empty.
clsFigureFaults mdFixedFeeFaults(const clsZR3Form &form);

/// The sentence for an error: that of the first fault with its number, otherwise of the first fault; empty if there is
/// none.
QString mdSentenceFor(const clsRunTimeError &error, const clsFigureFaults &faults);

/// Runs a computation with an item. Adds the cause, in words, to an error.
template <class Item, class Compute> auto mdExplained(const clsZR3Form &form, const Item &item, Compute compute)
{
    try {
        return compute();
    } catch (const clsRunTimeError &error) {
        throw error.because(mdSentenceFor(error, mdFigureFaults(form, item)));
    }
}

/// The same for a computation with a line of the letters and calls.
template <class Compute> auto mdExplained(const clsZR3Form &form, int line, clsCommsKind kind, Compute compute)
{
    try {
        return compute();
    } catch (const clsRunTimeError &error) {
        throw error.because(mdSentenceFor(error, mdFigureFaults(form, line, kind)));
    }
}
