#include "wordexport/mdExportRows.h"

#include "base/mdRequired.h"
#include "base/mdSumOf.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetDisbursementsTotals.h"
#include "wordexport/mdExportSources.h"

namespace {

using Form = clsZR3Form;
using enum clsCommsKind;

const clsZR3Disbursement &counselFee(const Form &form, int i)
{
    return *form.CounselDisbursement(i);
}

/// The account number and name of counsel of fee item `i`; the object error if it names none.
QString counselText(const Form &form, int i)
{
    const clsZR3Disbursement &fee = counselFee(form, i);
    return mdExplained(form, fee, [&] {
        const auto named = form.CounselByUniqueID(fee.CounselUniqueID());
        const clsZR3Counsel &counsel = mdRequired(named);
        return counsel.AccountNumber() + QStringLiteral(" - ") + counsel.Name();
    });
}

/// Amount plus VAT of an item; the type error if either is not a number.
template <class Item, class Amount, class VAT>
QString grossText(const Form &form, const Item &item, Amount amount, VAT vat)
{
    return mdExplained(form, item, [&] {
        return MoneyToText(mdSumOf({MoneyFromText((item.*amount)()), MoneyFromText((item.*vat)())}));
    });
}

QString grossText(const Form &form, const clsZR3Disbursement &disbursement)
{
    return grossText(form, disbursement, &clsZR3Disbursement::Amount, &clsZR3Disbursement::VAT);
}

QString grossText(const Form &form, const clsZR3ExpertInvoice &invoice)
{
    return grossText(form, invoice, &clsZR3ExpertInvoice::NetAmount, &clsZR3ExpertInvoice::VATAmount);
}

/// A figure of a line of the letters and calls, such as `atLine<CommsRateAtLine>`.
template <auto Figure> auto atLine(const Form &form, int line, clsCommsKind kind)
{
    return mdExplained(form, line, kind, [&] { return Figure(form, line, kind); });
}

constexpr auto rateAt = atLine<CommsRateAtLine>;
constexpr auto countAt = atLine<CommsCountAtLine>;
constexpr auto enhancementAt = atLine<CommsEnhancementAtLine>;
constexpr auto claimAt = atLine<CommsClaimAtLine>;

const clsZR3Disbursement &other(const Form &form, int i)
{
    return *form.NonCounselDisbursement(i);
}

constexpr auto expert = mdItemAt<&Form::ExpertInvoiceByOrderID>;
constexpr auto joint = mdItemAt<&Form::JointInstructionByOrderID>;

const clsPrintedCell CounselFees[] = {
    ZR3_CELL(QString::number(i), Text),
    ZR3_CELL(counselText(form, i), Text),
    ZR3_ITEM(counselFee(form, i), DateOfWork, Text),
    ZR3_CELL(grossText(form, counselFee(form, i)), Money),
};

const clsPlaceholderRow CounselFeesPlaceholders[] = {
    ZR3_FIGURE("{ctotal}", mdSumOf({CounselDisbursementsAmountTotal(form), CounselDisbursementsVATTotal(form)})),
    ZR3_TICK("{1}", CounselOutstandingClaims.OutstandingClaimsYes),
    ZR3_TICK("{2}", CounselOutstandingClaims.OutstandingClaimsNo),
};

const clsPrintedCell ExpertInvoices[] = {
    ZR3_ITEM(*expert(form, i), ExpertGroup, Text),
    ZR3_ITEM(*expert(form, i), ExpertType, Text),
    ZR3_CELL(expert(form, i)->PriorAuthorityObtained() ? QStringLiteral("Y") : QStringLiteral("N"), Text),
    ZR3_ITEM(*expert(form, i), PreparationHourlyRate, Text),
    ZR3_ITEM(*expert(form, i), TotalPrepCost, Text),
    ZR3_ITEM(*expert(form, i), CourtAttendanceHourlyRate, Text),
    ZR3_ITEM(*expert(form, i), TotalCourtCost, Text),
    ZR3_ITEM(*expert(form, i), TravelTimeCosts, Text),
    ZR3_ITEM(*expert(form, i), OtherCosts, Text),
    ZR3_ITEM(*expert(form, i), NetAmount, Text),
    ZR3_ITEM(*expert(form, i), VATAmount, Text),
    ZR3_CELL(grossText(form, *expert(form, i)), Money),
};

const clsPrintedCell JointInstructions[] = {
    ZR3_ITEM(*joint(form, i), ExpertType, Text),
    ZR3_ITEM(*joint(form, i), PartyName, Text),
    ZR3_ITEM(*joint(form, i), Solicitor, Text),
    ZR3_ITEM(*joint(form, i), CertificateReference, Text),
    ZR3_ITEM(*joint(form, i), PercentApportioned, Text),
};

const clsPrintedCell OtherDisbursements[] = {
    ZR3_ITEM(other(form, i), Description, Text),
    ZR3_ITEM(other(form, i), Amount, Money),
    ZR3_ITEM(other(form, i), VAT, Money),
    ZR3_CELL(grossText(form, other(form, i)), Money),
};

const clsPlaceholderRow FirstPage[] = {
    ZR3_TEXT("{stagenumber}", StageNumber),
    ZR3_TEXT("{typeofcase}", TypeOfCase),
    ZR3_TEXT("{casereferencenumber}", ClientDetails.CaseReferenceNumber),
    ZR3_TEXT("{title}", ClientDetails.Title),
    ZR3_TEXT("{firstname}", ClientDetails.FirstName),
    ZR3_TEXT("{surname}", ClientDetails.Surname),
    ZR3_TEXT("{dateofbirth}", ClientDetails.DateOfBirth),
    ZR3_TEXT("{morethan1certificate}", ClientDetails.MoreThan1Certificate),
    ZR3_TEXT("{accountnumber}", SolicitorDetails.AccountNumber),
    ZR3_TEXT("{rollnumber}", SolicitorDetails.RollNumber),
    ZR3_TEXT("{nameoffirm}", SolicitorDetails.NameOfFirm),
    ZR3_TEXT("{casereference}", SolicitorDetails.CaseReference),
    ZR3_TEXT("{contactnameforenquiries}", SolicitorDetails.ContactNameForEnquiries),
    ZR3_TEXT("{telephoneforenquiries}", SolicitorDetails.TelephoneForEnquiries),
    ZR3_TEXT("{emailforenquiries}", SolicitorDetails.EmailForEnquiries),
    ZR3_TICK("{3}", PreviousAdvice.LegalHelpYes),
    ZR3_TICK("{4}", PreviousAdvice.LegalHelpNo),
    ZR3_TEXT("{datelegalhelpformsigned}", PreviousAdvice.DateLegalHelpFormSigned),
    ZR3_MONEY("{totalcostsincurred}", PreviousAdvice.TotalCostsIncurred),
};

const clsPlaceholderRow CostsAwardedAmounts[] = {
    ZR3_MONEY("{precertcosts}", DetailsOfCostsAwarded.PreCertificateCosts),
    ZR3_MONEY("{duringcertlsc}", DetailsOfCostsAwarded.DuringCertificateCostsLSC),
    ZR3_MONEY("{duringcertmr}", DetailsOfCostsAwarded.DuringCertificateCostsMarketRates),
};

const clsPlaceholderRow CostsAwarded[] = {
    ZR3_TICK("{1}", DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsYes),
    ZR3_TICK("{2}", DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsNo),
    ZR3_MONEY("{lhipccamount}", DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsAmount),
    ZR3_MONEY("{interest}", DetailsOfCostsAwarded.InterestOnAllCosts),
    ZR3_TEXT("{dateinterestcommenced}", DetailsOfCostsAwarded.DateInterestCommenced),
    ZR3_TEXT("{interestbreakdown}", DetailsOfCostsAwarded.InterestBreakdown),
    ZR3_MONEY("{rcvrdtodate}", DetailsOfCostsAwarded.AmountRecoveredToDate),
    ZR3_TEXT("{dateorderserved}", DetailsOfCostsAwarded.DateOrderServed),
    ZR3_TEXT("{addressofservice}", DetailsOfCostsAwarded.AddressOfService),
    ZR3_TICK("{3}", DetailsOfCostsAwarded.LeaveYes),
    ZR3_TICK("{4}", DetailsOfCostsAwarded.LeaveNo),
    ZR3_TICK("{5}", DetailsOfCostsAwarded.DeterminationYes),
    ZR3_TICK("{6}", DetailsOfCostsAwarded.DeterminationNo),
    ZR3_MONEY("{detmamount}", DetailsOfCostsAwarded.DeterminationAmount),
    ZR3_TICK("{7}", DetailsOfCostsAwarded.OfferByDebtorYes),
    ZR3_TICK("{8}", DetailsOfCostsAwarded.OfferByDebtorNo),
    ZR3_TEXT("{offerbydebtordetails}", DetailsOfCostsAwarded.OfferByDebtorDetails),
};

const clsPlaceholderRow Communications[] = {
    ZR3_FIGURE("{loir1}", rateAt(form, 1, LettersOut)),
    ZR3_WORDS("{lo1}", countAt(form, 1, LettersOut)),
    ZR3_FIGURE("{loenh1}", enhancementAt(form, 1, LettersOut)),
    ZR3_FIGURE("{lototal1}", claimAt(form, 1, LettersOut)),
    ZR3_FIGURE("{loir2}", rateAt(form, 2, LettersOut)),
    ZR3_WORDS("{lo2}", countAt(form, 2, LettersOut)),
    ZR3_FIGURE("{loenh2}", enhancementAt(form, 2, LettersOut)),
    ZR3_FIGURE("{lototal2}", claimAt(form, 2, LettersOut)),
    ZR3_FIGURE("{liir1}", rateAt(form, 1, LettersIn)),
    ZR3_WORDS("{li1}", countAt(form, 1, LettersIn)),
    ZR3_FIGURE("{lienh1}", enhancementAt(form, 1, LettersIn)),
    ZR3_FIGURE("{litotal1}", claimAt(form, 1, LettersIn)),
    ZR3_FIGURE("{liir2}", rateAt(form, 2, LettersIn)),
    ZR3_WORDS("{li2}", countAt(form, 2, LettersIn)),
    ZR3_FIGURE("{lienh2}", enhancementAt(form, 2, LettersIn)),
    ZR3_FIGURE("{litotal2}", claimAt(form, 2, LettersIn)),
    ZR3_FIGURE("{tcir1}", rateAt(form, 1, Calls)),
    ZR3_WORDS("{tc1}", countAt(form, 1, Calls)),
    ZR3_FIGURE("{tcenh1}", enhancementAt(form, 1, Calls)),
    ZR3_FIGURE("{tctotal1}", claimAt(form, 1, Calls)),
    ZR3_FIGURE("{tcir2}", rateAt(form, 2, Calls)),
    ZR3_WORDS("{tc2}", countAt(form, 2, Calls)),
    ZR3_FIGURE("{tcenh2}", enhancementAt(form, 2, Calls)),
    ZR3_FIGURE("{tctotal2}", claimAt(form, 2, Calls)),
    ZR3_FIGURE("{cmtotal}", CommsTotal(form)),
};

const clsPlaceholderRow Debtor[] = {
    ZR3_TEXT("{title}", DebtorsDetails.Title),
    ZR3_TEXT("{initials}", DebtorsDetails.Initials),
    ZR3_TEXT("{surnameororganisation}", DebtorsDetails.SurnameOrOrganisation),
    ZR3_TEXT("{firstname}", DebtorsDetails.FirstName),
    ZR3_TEXT("{dateofbirth}", DebtorsDetails.DateOfBirth),
    ZR3_TEXT("{nationalinsurancenumber}", DebtorsDetails.NationalInsuranceNumber),
    ZR3_TEXT("{address}", DebtorsDetails.Address),
    ZR3_TEXT("{phonework}", DebtorsDetails.PhoneWork),
    ZR3_TEXT("{phonehome}", DebtorsDetails.PhoneHome),
    ZR3_TEXT("{mobile}", DebtorsDetails.Mobile),
    ZR3_TEXT("{fax}", DebtorsDetails.Fax),
    ZR3_TEXT("{email}", DebtorsDetails.Email),
    ZR3_TEXT("{solicitorsfirmname}", DebtorsDetails.SolicitorsFirmName),
    ZR3_TICK("{1}", DebtorsDetails.Employed),
    ZR3_TICK("{2}", DebtorsDetails.SelfEmployed),
    ZR3_TICK("{3}", DebtorsDetails.UnEmployed),
    ZR3_TEXT("{job}", DebtorsDetails.Job),
    ZR3_TEXT("{employersname}", DebtorsDetails.EmployersName),
    ZR3_TEXT("{employersaddress}", DebtorsDetails.EmployersAddress),
    ZR3_TEXT("{assets}", DebtorsDetails.Assets),
    ZR3_MONEY("{debtorsincome}", DebtorsDetails.DebtorsIncome),
    ZR3_TICK("{4}", DebtorsDetails.DebtorCLSFundedYes),
    ZR3_TICK("{5}", DebtorsDetails.DebtorCLSFundedNo),
    ZR3_TEXT("{casereference}", DebtorsDetails.CaseReference),
    ZR3_TEXT("{information}", DebtorsDetails.Information),
};

} // namespace

const std::span<const clsPrintedCell> CounselFeesCells = CounselFees;
const std::span<const clsPlaceholderRow> CounselFeesRows = CounselFeesPlaceholders;
const std::span<const clsPrintedCell> ExpertInvoiceCells = ExpertInvoices;
const std::span<const clsPrintedCell> JointInstructionCells = JointInstructions;
const std::span<const clsPrintedCell> OtherDisbursementCells = OtherDisbursements;
const std::span<const clsPlaceholderRow> FirstPageRows = FirstPage;
const std::span<const clsPlaceholderRow> CostsAwardedAmountsRows = CostsAwardedAmounts;
const std::span<const clsPlaceholderRow> CostsAwardedRows = CostsAwarded;
const std::span<const clsPlaceholderRow> CommunicationsRows = Communications;
const std::span<const clsPlaceholderRow> DebtorsDetailsRows = Debtor;
