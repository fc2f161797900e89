#pragma once

#include <QString>

class clsXMLRecord;

// What the user is told of a record and of what stands in it, where something is wrong with it.

/// What a record is called: "Schedule item 12", "Fee earner AB", "Outcome of Case", "The claim". Empty for a record of
/// something else than a claim.
QString mdRecordInWords(const clsXMLRecord &record);

/// A property's name as words: "HearingUnits" is "Hearing Units".
QString mdPropertyInWords(const QString &property);

/// A text of a file in quotes, cut short where it is long.
QString mdQuoted(const QString &text);

/// A sentence of what a record is called and what is wrong with it: "Disbursement 3: Amount is empty".
QString mdSentenceOf(const clsXMLRecord &record, const QString &clause);
