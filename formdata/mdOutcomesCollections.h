#pragma once

#include <QStringList>

class clsXMLField;
class clsXMLRecord;

// The code lists of the outcome of a case, fixed by the government forms and the same for both. A claim stores the
// place in the list, 0 for none; the forms print only the code in front of the bracket. The blank before "No
// Selection", and the one that ends the first text of the public benefits, are part of the texts.

QStringList StageOfCaseEndCollection();
QStringList HowDidCaseEndCollection();
QStringList ResultCollection();
QStringList ADRProposedCollection();
QStringList PublicBenefitsAchievedCollection();

/// What stands before the first ")" of a text; empty where there is none.
QString OutcomeCode(const QString &text);
/// The code of the entry whose place in the list a field of the outcome stores; a place outside the list is the
/// subscript error.
QString OutcomeCodeOf(const QStringList &list, const clsXMLRecord &outcome, const clsXMLField &field);
