#include "formdata/mdOutcomesCollections.h"

#include "base/clsRunTimeError.h"
#include "formdata/clsXMLRecord.h"
#include "formdata/mdRecordInWords.h"

QStringList StageOfCaseEndCollection()
{
    return {
        QStringLiteral(" No Selection"),
        QStringLiteral("A) No proceedings issued"),
        QStringLiteral("B) Proceedings issued, no final hearing"),
        QStringLiteral("C) Determined at final hearing"),
        QStringLiteral("D) Determined on appeal"),
        QStringLiteral("E1) No proceedings issued"),
        QStringLiteral(
            "E2) Proceedings issued, case concluded before decision on whether or not to grant permission is made"),
        QStringLiteral("F1) Permission refused, concluded at first application stage (usually papers)"),
        QStringLiteral("F2) Permission refused, concluded at a rolled - up hearing"),
        QStringLiteral("G) Permission not granted, concluded after renewed application"),
        QStringLiteral("H) Permission granted, no final hearing took place"),
        QStringLiteral("I1) Permission granted, no final hearing took place"),
        QStringLiteral("I2) Permission granted, determined at a rolled up hearing"),
        QStringLiteral("J) Permission granted, determined on appeal"),
        QStringLiteral("K) Interim bill fixed fee cases only - change of solicitor"),
        QStringLiteral("L) Interim bill fixed fee cases only - Aspect concluded"),
        QStringLiteral("M) Interim Bill VHCC - Stage concluded"),
    };
}

QStringList HowDidCaseEndCollection()
{
    return {
        QStringLiteral(" No Selection"),
        QStringLiteral("A) Case withdrawn on solicitor or counsel recommendation"),
        QStringLiteral("B) Client withdrew or ceased to give instructions"),
        QStringLiteral("C) Case otherwise withdrawn/not proceeded with on merits"),
        QStringLiteral("D) Settled"),
        QStringLiteral("E) Determined by court/contested hearing"),
        QStringLiteral("F) Legal aid withdrawn, not merits related"),
        QStringLiteral("G) Interim bill fixed fee cases only - change of solicitor"),
        QStringLiteral("H) Interim bill fixed fee cases only - Aspect concluded"),
        QStringLiteral("I) Interim Bill VHCC - Stage concluded"),
    };
}

QStringList ResultCollection()
{
    return {
        QStringLiteral(" No Selection"),
        QStringLiteral("A) Lump sum/property adjustment and periodical payments"),
        QStringLiteral("B) Lump sum/property adjustment only"),
        QStringLiteral("C) Periodical payments only"),
        QStringLiteral(
            "D) Client is respondent - clients liability to other party reduced, avoided or less than claimed"),
        QStringLiteral("E) Possession proceedings dismissed or withdrawn"),
        QStringLiteral("F) Postponed or suspended possession order made"),
        QStringLiteral("G) Possession proceedings adjourned on terms"),
        QStringLiteral("H) Client obtains order or agreement for repairs and compensation"),
        QStringLiteral("I) Client obtains order or agreement for repairs only"),
        QStringLiteral("J) Client obtains compensation only"),
        QStringLiteral("K) Damages recovered in full"),
        QStringLiteral("L) Reduced damages recovered (see guidance)"),
        QStringLiteral("M) Client is defendant - claimant recovers no damages or reduced damages only"),
        QStringLiteral("N) Substantive order in favour of the client"),
        QStringLiteral("O) Settlement - with significant benefits for the client"),
        QStringLiteral("P) Explanation or apology secured"),
        QStringLiteral("Q) Outcome not known/client proceeding by other means"),
        QStringLiteral("R) None of the above apply (i.e. concluded with no favourable order or settlement)"),
    };
}

QStringList ADRProposedCollection()
{
    return {
        QStringLiteral(" No Selection"),
        QStringLiteral("A) ADR was not considered appropriate to the case and neither side proposed any form of ADR"),
        QStringLiteral("B) We proposed but opponent declined"),
        QStringLiteral("C) Opponent proposed but we declined"),
        QStringLiteral("D) Both sides agreed to ADR but case concluded without its use"),
        QStringLiteral("E) Case resolved through mediation"),
        QStringLiteral("F) Mediation led to a significant narrowing of the issues or earlier settlement"),
        QStringLiteral("G) Case continued and was not significantly assisted by mediation"),
        QStringLiteral("H) Case resolved through ADR"),
        QStringLiteral("I) ADR led to a significant narrowing of the issues or earlier settlement"),
        QStringLiteral("J) Case continued and was not significantly assisted by ADR"),
    };
}

QStringList PublicBenefitsAchievedCollection()
{
    return {
        QStringLiteral(" No Selection"),
        QStringLiteral("P) The case achieved significant benefits for individuals other than the client "),
        QStringLiteral("N) No such wider public benefits achieved"),
    };
}

QString OutcomeCode(const QString &text)
{
    const qsizetype bracket = text.indexOf(u')');
    return bracket < 0 ? QString() : text.left(bracket);
}

QString OutcomeCodeOf(const QStringList &list, const clsXMLRecord &outcome, const clsXMLField &field)
{
    const int place = field.readLong();
    if (place < 0 || place >= list.size())
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange)
            .because(mdSentenceOf(outcome,
                QStringLiteral("%1 has no entry %2")
                    .arg(mdPropertyInWords(QString::fromLatin1(field.property().name)))
                    .arg(place)));
    return OutcomeCode(list[place]);
}
