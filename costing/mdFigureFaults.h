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

/// Something that keeps a figure from being computed.
struct clsFigureFault {
    QString property; ///< of the item, by its name in the code; empty where something else has to be mended
    QString words; ///< what is wrong: "names a fee earner that no longer exists"
    QString sentence; ///< the same of the item: "Schedule item 12 names a fee earner that no longer exists"
    int error; ///< the number of the run-time error that comes of it
};
using clsFigureFaults = std::vector<clsFigureFault>;

// What keeps the figures of an item from being computed, in words, and in the order in which the user is told of it.
// There is none where they all can be. This is the one place that knows the words: lists, previews, messages and
// checks take them from here.

/// Fee earner or group, time, enhancement, and then what isn't the item's own, as the group's rates.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3ScheduleOfTimeItem &item);
/// The amounts, and the counsel of a counsel's fee.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3Disbursement &disbursement);
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3ExpertInvoice &invoice);
/// The parts of the total, and the VAT, which may be empty.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3FASItem &item);
/// The group that the fee earner names.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3FeeEarner &feeEarner);
/// The rates; that of the enhancement only while the group enhances.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3FeeEarnerGroup &group);
clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3Enhancement &enhancement);
/// A line of the letters and calls.
clsFigureFaults mdFigureFaults(const clsZR3Form &form, int line, clsCommsKind kind);
/// The fixed fee of the actual costs, which may be empty.
clsFigureFaults mdFixedFeeFaults(const clsZR3Form &form);

/// The sentence for an error: that of the first fault from which such an error comes, else of the first at all; empty
/// where there is none.
QString mdSentenceFor(const clsRunTimeError &error, const clsFigureFaults &faults);

/// Runs what computes with an item. An error goes on with its cause in words.
template <class Item, class Compute> auto mdExplained(const clsZR3Form &form, const Item &item, Compute compute)
{
    try {
        return compute();
    } catch (const clsRunTimeError &error) {
        throw error.because(mdSentenceFor(error, mdFigureFaults(form, item)));
    }
}

/// The same of what computes with a line of the letters and calls.
template <class Compute> auto mdExplained(const clsZR3Form &form, int line, clsCommsKind kind, Compute compute)
{
    try {
        return compute();
    } catch (const clsRunTimeError &error) {
        throw error.because(mdSentenceFor(error, mdFigureFaults(form, line, kind)));
    }
}
