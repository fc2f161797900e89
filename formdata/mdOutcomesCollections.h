#pragma once

#include <QStringList>

class clsXMLField;
class clsXMLRecord;

// The code lists of the outcome of a case, fixed by the government forms and the same for both. A claim stores the
// position in the list, 0 for none; the forms print only the code before the bracket. The blank before "No Selection",
// and the trailing one in the first text of the public benefits, are part of the texts.

QStringList StageOfCaseEndCollection();
QStringList HowDidCaseEndCollection();
QStringList ResultCollection();
QStringList ADRProposedCollection();
QStringList PublicBenefitsAchievedCollection();

/// The part of a text before the first ")"; empty if there is none.
QString OutcomeCode(const QString &text);
/// The code of the entry at the position stored in a field of the outcome; the subscript error for a position outside
/// the list.
QString OutcomeCodeOf(const QStringList &list, const clsXMLRecord &outcome, const clsXMLField &field);
