#pragma once

#include "base/Money.h"

#include <QDate>
#include <QString>

#include <optional>

class clsXMLField;
class clsZR3Disbursement;
class clsZR3ExpertInvoice;
class clsZR3FeeEarner;
class clsZR3FeeEarnerGroup;

// How the check of a claim reads stored texts, and the names of items in its sentences.

/// The day of a stored date: ".", "-" and blanks between its parts count as "/". Nothing for a text without a year, or
/// for the no-date text.
std::optional<QDate> mdStoredDate(const QString &text);

/// A stored amount; zero if the text is not an amount.
Money mdStoredAmount(const clsXMLField &field);

/// Whether there are only blanks and line breaks.
bool mdIsEmptyText(const QString &text);

/// The start of a sentence with a further detail: "Item 14, 03/06/25,".
QString mdWithApposition(const QString &beginning, const QString &words);

/// "Disbursement 3, Court fee,": with the description, because lists show no numbers.
QString mdInWords(const clsZR3Disbursement &disbursement);
/// "Expert invoice 2, Surveyor,".
QString mdInWords(const clsZR3ExpertInvoice &invoice);
/// "Group A".
QString mdInWords(const clsZR3FeeEarnerGroup &group);
/// "Fee earner AB".
QString mdInWords(const clsZR3FeeEarner &feeEarner);
