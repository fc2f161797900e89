#pragma once

#include <QString>

class clsXMLRecord;

// The user's terms for records and their properties, for messages about faults.

/// The name of a record: "Schedule item 12", "Fee earner AB", "Outcome of Case", "The claim". Empty for a record
/// outside claims.
QString mdRecordInWords(const clsXMLRecord &record);

/// A property's name as words: "HearingUnits" is "Hearing Units".
QString mdPropertyInWords(const QString &property);

/// A text of a file in quotes, shortened if long.
QString mdQuoted(const QString &text);

/// A sentence with the name of a record and its fault: "Disbursement 3: Amount is empty".
QString mdSentenceOf(const clsXMLRecord &record, const QString &clause);
