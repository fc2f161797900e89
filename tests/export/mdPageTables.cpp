#include "tests/export/mdPageTables.h"

// clang-format off
// Tables, one row per line.

using enum PageClass;

std::vector<PageRow> FirstPageOfBoth()
{
    return {
        {"{stagenumber}", "StageNumber", Text},
        {"{typeofcase}", "TypeOfCase", Text},
        {"{casereferencenumber}", "ClientDetails.CaseReferenceNumber", Text},
        {"{title}", "ClientDetails.Title", Text},
        {"{firstname}", "ClientDetails.FirstName", Text},
        {"{surname}", "ClientDetails.Surname", Text},
        {"{dateofbirth}", "ClientDetails.DateOfBirth", Text},
        {"{morethan1certificate}", "ClientDetails.MoreThan1Certificate", Text},
        {"{accountnumber}", "SolicitorDetails.AccountNumber", Text},
        {"{rollnumber}", "SolicitorDetails.RollNumber", Text},
        {"{nameoffirm}", "SolicitorDetails.NameOfFirm", Text},
        {"{casereference}", "SolicitorDetails.CaseReference", Text},
        {"{contactnameforenquiries}", "SolicitorDetails.ContactNameForEnquiries", Text},
        {"{telephoneforenquiries}", "SolicitorDetails.TelephoneForEnquiries", Text},
        {"{emailforenquiries}", "SolicitorDetails.EmailForEnquiries", Text},
        {"{3}", "PreviousAdvice.LegalHelpYes", Tick},
        {"{4}", "PreviousAdvice.LegalHelpNo", Tick},
        {"{datelegalhelpformsigned}", "PreviousAdvice.DateLegalHelpFormSigned", Text},
        {"{totalcostsincurred}", "PreviousAdvice.TotalCostsIncurred", Money},
    };
}

std::vector<PageRow> CommunicationsOfBoth()
{
    return {
        {"{loir1}", nullptr, Money}, {"{lo1}", nullptr, Text},
        {"{loenh1}", nullptr, Money}, {"{lototal1}", nullptr, Money},
        {"{loir2}", nullptr, Money}, {"{lo2}", nullptr, Text},
        {"{loenh2}", nullptr, Money}, {"{lototal2}", nullptr, Money},
        {"{liir1}", nullptr, Money}, {"{li1}", nullptr, Text},
        {"{lienh1}", nullptr, Money}, {"{litotal1}", nullptr, Money},
        {"{liir2}", nullptr, Money}, {"{li2}", nullptr, Text},
        {"{lienh2}", nullptr, Money}, {"{litotal2}", nullptr, Money},
        {"{tcir1}", nullptr, Money}, {"{tc1}", nullptr, Text},
        {"{tcenh1}", nullptr, Money}, {"{tctotal1}", nullptr, Money},
        {"{tcir2}", nullptr, Money}, {"{tc2}", nullptr, Text},
        {"{tcenh2}", nullptr, Money}, {"{tctotal2}", nullptr, Money},
        {"{cmtotal}", nullptr, Money},
    };
}

std::vector<PageRow> CostsAwardedAmountsOfBoth()
{
    return {
        {"{precertcosts}", "DetailsOfCostsAwarded.PreCertificateCosts", Money},
        {"{duringcertlsc}", "DetailsOfCostsAwarded.DuringCertificateCostsLSC", Money},
        {"{duringcertmr}", "DetailsOfCostsAwarded.DuringCertificateCostsMarketRates", Money},
    };
}

std::vector<PageRow> CostsAwardedOfBoth()
{
    return {
        {"{1}", "DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsYes", Tick},
        {"{2}", "DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsNo", Tick},
        {"{lhipccamount}", "DetailsOfCostsAwarded.LegalHelpInPreCertificateCostsAmount", Money},
        {"{interest}", "DetailsOfCostsAwarded.InterestOnAllCosts", Money},
        {"{dateinterestcommenced}", "DetailsOfCostsAwarded.DateInterestCommenced", Text},
        {"{interestbreakdown}", "DetailsOfCostsAwarded.InterestBreakdown", Text},
        {"{rcvrdtodate}", "DetailsOfCostsAwarded.AmountRecoveredToDate", Money},
        {"{dateorderserved}", "DetailsOfCostsAwarded.DateOrderServed", Text},
        {"{addressofservice}", "DetailsOfCostsAwarded.AddressOfService", Text},
        {"{3}", "DetailsOfCostsAwarded.LeaveYes", Tick},
        {"{4}", "DetailsOfCostsAwarded.LeaveNo", Tick},
        {"{5}", "DetailsOfCostsAwarded.DeterminationYes", Tick},
        {"{6}", "DetailsOfCostsAwarded.DeterminationNo", Tick},
        {"{detmamount}", "DetailsOfCostsAwarded.DeterminationAmount", Money},
        {"{7}", "DetailsOfCostsAwarded.OfferByDebtorYes", Tick},
        {"{8}", "DetailsOfCostsAwarded.OfferByDebtorNo", Tick},
        {"{offerbydebtordetails}", "DetailsOfCostsAwarded.OfferByDebtorDetails", Text},
    };
}

PageTable DebtorsPageOfBoth(int number)
{
    return {number, {
        {"{title}", "DebtorsDetails.Title", Text},
        {"{initials}", "DebtorsDetails.Initials", Text},
        {"{surnameororganisation}", "DebtorsDetails.SurnameOrOrganisation", Text},
        {"{firstname}", "DebtorsDetails.FirstName", Text},
        {"{dateofbirth}", "DebtorsDetails.DateOfBirth", Text},
        {"{nationalinsurancenumber}", "DebtorsDetails.NationalInsuranceNumber", Text},
        {"{address}", "DebtorsDetails.Address", Text},
        {"{phonework}", "DebtorsDetails.PhoneWork", Text},
        {"{phonehome}", "DebtorsDetails.PhoneHome", Text},
        {"{mobile}", "DebtorsDetails.Mobile", Text},
        {"{fax}", "DebtorsDetails.Fax", Text},
        {"{email}", "DebtorsDetails.Email", Text},
        {"{solicitorsfirmname}", "DebtorsDetails.SolicitorsFirmName", Text},
        {"{1}", "DebtorsDetails.Employed", Tick},
        {"{2}", "DebtorsDetails.SelfEmployed", Tick},
        {"{3}", "DebtorsDetails.UnEmployed", Tick},
        {"{job}", "DebtorsDetails.Job", Text},
        {"{employersname}", "DebtorsDetails.EmployersName", Text},
        {"{employersaddress}", "DebtorsDetails.EmployersAddress", Text},
        {"{assets}", "DebtorsDetails.Assets", Text},
        {"{debtorsincome}", "DebtorsDetails.DebtorsIncome", Money},
        {"{4}", "DebtorsDetails.DebtorCLSFundedYes", Tick},
        {"{5}", "DebtorsDetails.DebtorCLSFundedNo", Tick},
        {"{casereference}", "DebtorsDetails.CaseReference", Text},
        {"{information}", "DebtorsDetails.Information", Text},
        {"{or}", nullptr, Text},
    }};
}
// clang-format on

std::vector<PageRow> Joined(std::initializer_list<std::vector<PageRow>> tables)
{
    std::vector<PageRow> rows;
    for (const std::vector<PageRow> &table : tables)
        rows.insert(rows.end(), table.begin(), table.end());
    return rows;
}
