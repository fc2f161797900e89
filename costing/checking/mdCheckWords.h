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

// How the check of a claim reads stored texts, and how its sentences name things.

/// The day of a stored date: "." and "-" and blanks between its parts count as "/". Nothing for a text without a year,
/// and for the one that stands for no date.
std::optional<QDate> mdStoredDate(const QString &text);

/// A stored amount; zero where the text is not an amount.
Money mdStoredAmount(const clsXMLField &field);

/// Whether there are only blanks and line breaks.
bool mdIsEmptyText(const QString &text);

/// The beginning of a sentence with one thing more of what it is about: "Item 14, 03/06/25,".
QString mdWithApposition(const QString &beginning, const QString &words);

/// "Disbursement 3, Court fee,": lists show no numbers, so that the description tells more.
QString mdInWords(const clsZR3Disbursement &disbursement);
/// "Expert invoice 2, Surveyor,".
QString mdInWords(const clsZR3ExpertInvoice &invoice);
/// "Group A".
QString mdInWords(const clsZR3FeeEarnerGroup &group);
/// "Fee earner AB".
QString mdInWords(const clsZR3FeeEarner &feeEarner);
