// A claim's file: read, brought up to date, priced, rewritten, saved and read again.

#include "base/mdCodePage.h"
#include "costing/checking/mdCheckClaim.h"
#include "costing/checking/mdWhy.h"
#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"
#include "tests/fuzz/mdFuzz.h"
#include "tests/fuzz/mdFuzzRecord.h"
#include "tests/fuzz/mdFuzzWords.h"
#include "tests/fuzz/mdFuzzXml.h"

#include <memory>

namespace {

using Error = clsRunTimeError;

clsFuzzUser &user()
{
    static clsFuzzUser user;
    return user;
}

const clsFuzzWords &words()
{
    static const clsFuzzWords words
        = mdFuzzWordsOf({"xmlZR3Form", "xmlZR3Counsel", "xmlZR3Disbursement", "xmlZR3Enhancement",
                            "xmlZR3ExpertInvoice", "xmlZR3FASItem", "xmlZR3FeeEarner", "xmlZR3FeeEarnerGroup",
                            "xmlZR3JointInstruction", "xmlZR3ScheduleOfTimeItem"},
            {"vzrform", "item"});
    return words;
}

/// Whether the claim was read. A file that is not a claim is reported once; a list that can't be ordered is an error.
bool load(clsZR3Form &form, const QString &path)
{
    user().messages = 0;
    bool loaded = false;
    const int error = mdFuzzErrorOf({Error::TypeMismatch, Error::Overflow, Error::ObjectNotSet},
        "a claim that can't be read fails by its errors", [&] { loaded = form.LoadXML(path); });
    mdFuzzRequire(user().messages == (loaded || error ? 0 : 1), "a file that is no claim is told of once");
    return loaded;
}

/// Every figure of the bill, and both lists of the export.
QByteArray figures(clsZR3Form &form)
{
    QByteArray json;
    mdFuzzErrorOf({Error::TypeMismatch, Error::Overflow, Error::ObjectNotSet}, "pricing fails by its errors", [&] {
        form.RenderScheduleOfTimeItemsForExport();
        form.RenderAdditionalInformationItems();
        json = mdTotalsReport(form).json;
    });
    mdFuzzRequire(form.ScheduleOfTimeItemsForExportCollection().size() <= form.ScheduleOfTimeItemsCollection().size(),
        "the export has no items of its own");
    return json;
}

/// The check of the claim, and the explanations of some figures. Neither changes the claim, and the check never fails.
void lookThrough(const clsZR3Form &form)
{
    const QString before = form.XMLOutput();
    clsCheckFacts facts {.Today = QDate(2026, 11, 22)};
    facts.CostsLimit = mdStoredCostsLimit(form);
    for (const clsFinding &finding : mdCheckClaim(form, facts))
        mdFuzzRequire(!finding.Text.isEmpty() && !finding.Screen.isEmpty(), "a finding says where and what");
    mdFuzzErrorOf({Error::TypeMismatch, Error::Overflow, Error::ObjectNotSet}, "reasons fail by their errors", [&] {
        const clsBill bill(form);
        for (const auto &[kind, which] : {std::pair("schedule", "1"), std::pair("communications", "0/1"),
                 std::pair("fas", "1"), std::pair("total", "vtotal"), std::pair("list", "all")})
            mdWhy(bill, QString::fromLatin1(kind), QString::fromLatin1(which));
    });
    mdFuzzRequire(form.XMLOutput() == before, "a claim that is looked through stays as it is");
}

QByteArray savedBytes(const clsZR3Form &form, const char *name)
{
    const QString path = mdFuzzFolder() + u'/' + QLatin1String(name);
    form.SaveXML(path);
    return mdFuzzBytesOf(path);
}

template <class Collection> void rewriteAll(const Collection &collection)
{
    for (const auto &item : collection)
        mdFuzzRewrite(*item);
}

void rewrite(clsZR3Form &form)
{
    mdFuzzRewrite(form);
    rewriteAll(form.FeeEarnerGroupsCollection());
    rewriteAll(form.FeeEarnersCollection());
    rewriteAll(form.CounselCollection());
    rewriteAll(form.EnhancementsCollection());
    rewriteAll(form.FASItemsCollection());
    rewriteAll(form.ScheduleOfTimeItemsCollection());
    rewriteAll(form.ExpertInvoicesCollection());
    rewriteAll(form.JointInstructionsCollection());
    rewriteAll(form.DisbursementsCollection());
    for (clsXMLRecord *section : std::initializer_list<clsXMLRecord *> {&form.ClientDetails, &form.SolicitorDetails,
             &form.PreviousAdvice, &form.CaseInformation, &form.OutcomeOfCase, &form.LateSubmission,
             &form.NatureOfProceedings, &form.ActualCostsIncurred, &form.DetailsOfWork, &form.CounselOutstandingClaims,
             &form.Communications, &form.DetailsOfMonies, &form.DetailsOfCostsAwarded, &form.DebtorsDetails})
        mdFuzzRewrite(*section);
}

/// Adds an item to each list. If the counter of identities is not a number, this is an error and nothing is added.
void enlarge(clsZR3Form &form)
{
    mdFuzzErrorOf({Error::TypeMismatch, Error::Overflow}, "adding fails by the errors of the counter", [&] {
        const QString first = form.GenerateUniqueID();
        mdFuzzRequire(form.GenerateUniqueID() != first, "no identity is given twice");
        const auto group = form.AddFeeEarnerGroup();
        const auto feeEarner = form.AddFeeEarner();
        feeEarner->GroupUniqueID = group->UniqueID();
        const auto counsel = form.AddCounsel();
        const auto enhancement = form.AddEnhancement();
        mdFuzzRequire(counsel->UniqueID() != enhancement->UniqueID(), "no identity is given twice");
        const auto item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = feeEarner->UniqueID();
        item->EnhancementUniqueID = enhancement->UniqueID();
        mdFuzzRequire(form.ScheduleOfTimeItem(int(form.ScheduleOfTimeItemsCollection().size())) == item,
            "what is added is the last in its list");
        form.AddFASItem();
        form.AddExpertInvoice();
        form.AddJointInstruction();
        form.AddDisbursement();
    });
}

/// Saves the claim and reads it again: the bytes and the figures must be the same.
void attackRoundTrip(clsZR3Form &form, const QByteArray &expectedFigures)
{
    const QByteArray saved = savedBytes(form, "saved.zr3");
    mdFuzzSame(mdToCodePage(form.XMLOutput()), saved, "a claim is saved as it stands");
    clsZR3Form again;
    mdFuzzRequire(load(again, mdFuzzFolder() + QStringLiteral("/saved.zr3")), "a claim that was saved is read again");
    mdFuzzSame(expectedFigures, figures(again), "a claim that was saved has its figures");
    mdFuzzSame(saved, savedBytes(again, "again.zr3"), "a claim that was saved is saved again as it is");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static const clsUserInterfaceScope scope(user());
    return 0;
}

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    const QString path
        = mdFuzzPut(QStringLiteral("claim.zr3"), QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    clsZR3Form form;
    if (!load(form, path))
        return;
    // Not every input is changed in every way, so that more inputs can be tried.
    if (size % 2 == 0)
        rewrite(form);
    if (size % 4 == 1)
        enlarge(form);
    lookThrough(form);
    const QByteArray priced = figures(form);
    // An invalid flag is found only now if the claim had no item that reads it: the user has then been told, and the
    // claim can't be read any more.
    if (!priced.isEmpty())
        attackRoundTrip(form, priced);
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t longest, unsigned seed)
{
    return mdFuzzChangeXml(data, size, longest, seed, words());
}
