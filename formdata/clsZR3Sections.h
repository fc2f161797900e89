#pragma once

#include "formdata/clsZR3Section.h"

// The single sections of a claim, each a table of its properties. A Yes/No question is two booleans, so that it can be
// unanswered; a file can contain both, and only the screens keep them exclusive.

/// The client. `MoreThan1Certificate` is a text despite its name.
class clsZR3ClientDetails : public clsZR3Section {
public:
    clsZR3ClientDetails()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3ClientDetails>(), "clientdetails")
    { }

    clsXMLText<"CaseReferenceNumber"> CaseReferenceNumber {*this};
    clsXMLText<"Title"> Title {*this};
    clsXMLText<"FirstName"> FirstName {*this};
    clsXMLText<"Surname"> Surname {*this};
    clsXMLText<"DateOfBirth"> DateOfBirth {*this};
    clsXMLText<"MoreThan1Certificate"> MoreThan1Certificate {*this};
};

/// The firm that claims.
class clsZR3SolicitorDetails : public clsZR3Section {
public:
    clsZR3SolicitorDetails()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3SolicitorDetails>(), "solicitordetails")
    { }

    clsXMLText<"AccountNumber"> AccountNumber {*this};
    clsXMLText<"RollNumber"> RollNumber {*this};
    clsXMLText<"NameOfFirm"> NameOfFirm {*this};
    clsXMLText<"CaseReference"> CaseReference {*this};
    clsXMLText<"ContactNameForEnquiries"> ContactNameForEnquiries {*this};
    clsXMLText<"TelephoneForEnquiries"> TelephoneForEnquiries {*this};
    clsXMLText<"EmailForEnquiries"> EmailForEnquiries {*this};
};

/// Advice under legal help before the certificate, and whether this bill is the last.
class clsZR3PreviousAdvice : public clsZR3Section {
public:
    clsZR3PreviousAdvice()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3PreviousAdvice>(), "previousadvice")
    { }

    clsXMLBoolean<"LegalHelpYes"> LegalHelpYes {*this};
    clsXMLBoolean<"LegalHelpNo"> LegalHelpNo {*this};
    clsXMLText<"DateLegalHelpFormSigned"> DateLegalHelpFormSigned {*this};
    clsXMLText<"TotalCostsIncurred"> TotalCostsIncurred {*this};
    clsXMLBoolean<"InclusiveOfAllSolicitorsYes"> InclusiveOfAllSolicitorsYes {*this};
    clsXMLBoolean<"InclusiveOfAllSolicitorsNo"> InclusiveOfAllSolicitorsNo {*this};
    clsXMLText<"InclusiveOfAllSolicitorsReasons"> InclusiveOfAllSolicitorsReasons {*this};
    clsXMLBoolean<"FurtherClaimsYes"> FurtherClaimsYes {*this};
    clsXMLBoolean<"FurtherClaimsNo"> FurtherClaimsNo {*this};
};

/// The dates and courts of the case. Shown on `Claim1` only.
class clsZR3CaseInformation : public clsZR3Section {
public:
    clsZR3CaseInformation()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3CaseInformation>(), "caseinformation")
    { }

    clsXMLText<"IssueOfProceedingsDate"> IssueOfProceedingsDate {*this};
    clsXMLText<"DateOfFinalWorkDate"> DateOfFinalWorkDate {*this};
    clsXMLText<"NameOfCourt"> NameOfCourt {*this};
    clsXMLText<"EmergencyCertificateDate"> EmergencyCertificateDate {*this};
    clsXMLText<"SubstantiveCertificateDate"> SubstantiveCertificateDate {*this};
};

/// How the case ended. The five longs are positions in the lists of mdOutcomesCollections, 0 for none.
class clsZR3OutcomeOfCase : public clsZR3Section {
public:
    clsZR3OutcomeOfCase()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3OutcomeOfCase>(), "outcomeofcase")
    { }

    clsXMLText<"IssueOfProceedingsDate"> IssueOfProceedingsDate {*this};
    clsXMLText<"EmergencyCertificateDate"> EmergencyCertificateDate {*this};
    clsXMLText<"SubstantiveCertificateDate"> SubstantiveCertificateDate {*this};
    clsXMLLong<"StageOfCaseEnd"> StageOfCaseEnd {*this};
    clsXMLLong<"HowDidCaseEnd"> HowDidCaseEnd {*this};
    clsXMLLong<"Result"> Result {*this};
    clsXMLLong<"ADRProposed"> ADRProposed {*this};
    clsXMLLong<"PublicBenefitsAchieved"> PublicBenefitsAchieved {*this};
    clsXMLText<"DateOfFinalOrder"> DateOfFinalOrder {*this};
    clsXMLBoolean<"Costs"> Costs {*this};
    clsXMLBoolean<"Damages"> Damages {*this};
    clsXMLBoolean<"Property"> Property {*this};
    clsXMLBoolean<"WastedCostsOrderYes"> WastedCostsOrderYes {*this};
    clsXMLBoolean<"WastedCostsOrderNo"> WastedCostsOrderNo {*this};
};

/// Why the claim is late. Shown on `Claim1` only.
class clsZR3LateSubmission : public clsZR3Section {
public:
    clsZR3LateSubmission()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3LateSubmission>(), "latesubmission")
    { }

    clsXMLText<"dDate"> dDate {*this};
    clsXMLText<"Explanation"> Explanation {*this};
};

/// The kind of family proceedings. Shown on `Claim1A` only. `OtherPubicLawChildren` lacks a letter, like its element:
/// existing files depend on it.
class clsZR3NatureOfProceedings : public clsZR3Section {
public:
    clsZR3NatureOfProceedings()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3NatureOfProceedings>(), "natureofproceedings")
    { }

    clsXMLText<"DetailsOfCase"> DetailsOfCase {*this};
    clsXMLBoolean<"CareAndSupervision"> CareAndSupervision {*this};
    clsXMLBoolean<"OtherPubicLawChildren"> OtherPubicLawChildren {*this};
    clsXMLBoolean<"PrivateLawChildren"> PrivateLawChildren {*this};
    clsXMLBoolean<"Finance"> Finance {*this};
    clsXMLBoolean<"DomesticAbuse"> DomesticAbuse {*this};
    clsXMLBoolean<"OtherProvidersYes"> OtherProvidersYes {*this};
    clsXMLBoolean<"OtherProvidersNo"> OtherProvidersNo {*this};
    clsXMLBoolean<"ChangeOfSolicitorHalfFeeYes"> ChangeOfSolicitorHalfFeeYes {*this};
    clsXMLBoolean<"ChangeOfSolicitorHalfFeeNo"> ChangeOfSolicitorHalfFeeNo {*this};
};

/// Actual costs of care and of private law work. Shown on `Claim1A` only. The small c in
/// `PrivateLawcourtFamilyProceeding` is required.
class clsZR3ActualCostsIncurred : public clsZR3Section {
public:
    clsZR3ActualCostsIncurred()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3ActualCostsIncurred>(), "actualcostsincurred")
    { }

    clsXMLText<"CareAndSupervisionProfitCosts"> CareAndSupervisionProfitCosts {*this};
    clsXMLText<"CareAndSupervisionProfitCostsVAT"> CareAndSupervisionProfitCostsVAT {*this};
    clsXMLBoolean<"CareAndSupervisionMidlands"> CareAndSupervisionMidlands {*this};
    clsXMLBoolean<"CareAndSupervisionNorth"> CareAndSupervisionNorth {*this};
    clsXMLBoolean<"CareAndSupervisionSouth"> CareAndSupervisionSouth {*this};
    clsXMLBoolean<"CareAndSupervisionWales"> CareAndSupervisionWales {*this};
    clsXMLBoolean<"CareAndSupervisionAChild"> CareAndSupervisionAChild {*this};
    clsXMLBoolean<"CareAndSupervisionAParent"> CareAndSupervisionAParent {*this};
    clsXMLBoolean<"CareAndSupervisionJoined"> CareAndSupervisionJoined {*this};
    clsXMLBoolean<"CareAndSupervisionActing1"> CareAndSupervisionActing1 {*this};
    clsXMLBoolean<"CareAndSupervisionActing2OrMore"> CareAndSupervisionActing2OrMore {*this};
    clsXMLBoolean<"CareAndSupervisionCourtHigh"> CareAndSupervisionCourtHigh {*this};
    clsXMLBoolean<"CareAndSupervisionCourtCounty"> CareAndSupervisionCourtCounty {*this};
    clsXMLBoolean<"CareAndSupervisionCourtFamilyProceeding"> CareAndSupervisionCourtFamilyProceeding {*this};
    clsXMLText<"PrivateLawProfitCosts"> PrivateLawProfitCosts {*this};
    clsXMLText<"PrivateLawProfitCostsVAT"> PrivateLawProfitCostsVAT {*this};
    clsXMLBoolean<"PrivateLawLondon"> PrivateLawLondon {*this};
    clsXMLBoolean<"PrivateLawNonLondon"> PrivateLawNonLondon {*this};
    clsXMLBoolean<"PrivateLawPreviousClaimYes"> PrivateLawPreviousClaimYes {*this};
    clsXMLBoolean<"PrivateLawPreviousClaimNo"> PrivateLawPreviousClaimNo {*this};
    clsXMLBoolean<"PrivateLawCourtHigh"> PrivateLawCourtHigh {*this};
    clsXMLBoolean<"PrivateLawCourtCounty"> PrivateLawCourtCounty {*this};
    clsXMLBoolean<"PrivateLawcourtFamilyProceeding"> PrivateLawcourtFamilyProceeding {*this};
    clsXMLBoolean<"PrivateLawSettlementFeeYes"> PrivateLawSettlementFeeYes {*this};
    clsXMLBoolean<"PrivateLawSettlementFeeNo"> PrivateLawSettlementFeeNo {*this};
    clsXMLBoolean<"PrivateLawLevel3"> PrivateLawLevel3 {*this};
    clsXMLBoolean<"PrivateLawLevel4"> PrivateLawLevel4 {*this};
    clsXMLBoolean<"PrivateLawEnforcement"> PrivateLawEnforcement {*this};
    clsXMLText<"PrivateLawWorkAtAllLevelsReasons"> PrivateLawWorkAtAllLevelsReasons {*this};
    clsXMLBoolean<"ExceptionalCaseYes"> ExceptionalCaseYes {*this};
    clsXMLBoolean<"ExceptionalCaseNo"> ExceptionalCaseNo {*this};
    clsXMLText<"FixedFee"> FixedFee {*this};
};

/// The work done, and the reasons for an enhancement.
class clsZR3DetailsOfWork : public clsZR3Section {
public:
    clsZR3DetailsOfWork()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3DetailsOfWork>(), "detailsofwork")
    { }

    clsXMLText<"DetailsOfCase"> DetailsOfCase {*this};
    clsXMLText<"DetailsOfEnhancement"> DetailsOfEnhancement {*this};
};

/// Whether counsel's claims for payment have been paid. Only the class has the short name.
class clsZR3CounselOutstandingClms : public clsZR3Section {
public:
    clsZR3CounselOutstandingClms()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3CounselOutstandingClms>(), "counseloutstandingclaims")
    { }

    clsXMLBoolean<"OutstandingClaimsYes"> OutstandingClaimsYes {*this};
    clsXMLBoolean<"OutstandingClaimsNo"> OutstandingClaimsNo {*this};
};

/// Money or property awarded. Shown on `Claim1` only.
class clsZR3DetailsOfMonies : public clsZR3Section {
public:
    clsZR3DetailsOfMonies()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3DetailsOfMonies>(), "detailsofmonies")
    { }

    clsXMLText<"Value"> Value {*this};
    clsXMLText<"AmountRecovered"> AmountRecovered {*this};
};

/// Costs awarded to the client, and their recovery.
class clsZR3DetailsOfCostsAwarded : public clsZR3Section {
public:
    clsZR3DetailsOfCostsAwarded()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3DetailsOfCostsAwarded>(), "detailsofcostsawarded")
    { }

    clsXMLText<"PreCertificateCosts"> PreCertificateCosts {*this};
    clsXMLText<"DuringCertificateCostsLSC"> DuringCertificateCostsLSC {*this};
    clsXMLText<"DuringCertificateCostsMarketRates"> DuringCertificateCostsMarketRates {*this};
    clsXMLText<"TotalCostsAwarded"> TotalCostsAwarded {*this};
    clsXMLBoolean<"LegalHelpInPreCertificateCostsYes"> LegalHelpInPreCertificateCostsYes {*this};
    clsXMLBoolean<"LegalHelpInPreCertificateCostsNo"> LegalHelpInPreCertificateCostsNo {*this};
    clsXMLText<"LegalHelpInPreCertificateCostsAmount"> LegalHelpInPreCertificateCostsAmount {*this};
    clsXMLText<"InterestOnAllCosts"> InterestOnAllCosts {*this};
    clsXMLText<"DateInterestCommenced"> DateInterestCommenced {*this};
    clsXMLText<"InterestBreakdown"> InterestBreakdown {*this};
    clsXMLText<"AmountRecoveredToDate"> AmountRecoveredToDate {*this};
    clsXMLText<"DateOrderServed"> DateOrderServed {*this};
    clsXMLText<"AddressOfService"> AddressOfService {*this};
    clsXMLBoolean<"LeaveYes"> LeaveYes {*this};
    clsXMLBoolean<"LeaveNo"> LeaveNo {*this};
    clsXMLBoolean<"DeterminationYes"> DeterminationYes {*this};
    clsXMLBoolean<"DeterminationNo"> DeterminationNo {*this};
    clsXMLText<"DeterminationAmount"> DeterminationAmount {*this};
    clsXMLBoolean<"OfferByDebtorYes"> OfferByDebtorYes {*this};
    clsXMLBoolean<"OfferByDebtorNo"> OfferByDebtorNo {*this};
    clsXMLText<"OfferByDebtorDetails"> OfferByDebtorDetails {*this};
};

/// The debtor of the costs.
class clsZR3DebtorsDetails : public clsZR3Section {
public:
    clsZR3DebtorsDetails()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3DebtorsDetails>(), "debtorsdetails")
    { }

    clsXMLText<"Title"> Title {*this};
    clsXMLText<"Initials"> Initials {*this};
    clsXMLText<"SurnameOrOrganisation"> SurnameOrOrganisation {*this};
    clsXMLText<"FirstName"> FirstName {*this};
    clsXMLText<"DateOfBirth"> DateOfBirth {*this};
    clsXMLText<"NationalInsuranceNumber"> NationalInsuranceNumber {*this};
    clsXMLText<"Address"> Address {*this};
    clsXMLText<"PhoneWork"> PhoneWork {*this};
    clsXMLText<"PhoneHome"> PhoneHome {*this};
    clsXMLText<"Mobile"> Mobile {*this};
    clsXMLText<"Fax"> Fax {*this};
    clsXMLText<"Email"> Email {*this};
    clsXMLText<"SolicitorsFirmName"> SolicitorsFirmName {*this};
    clsXMLBoolean<"Employed"> Employed {*this};
    clsXMLBoolean<"SelfEmployed"> SelfEmployed {*this};
    clsXMLBoolean<"UnEmployed"> UnEmployed {*this};
    clsXMLText<"Job"> Job {*this};
    clsXMLText<"EmployersName"> EmployersName {*this};
    clsXMLText<"EmployersAddress"> EmployersAddress {*this};
    clsXMLText<"Assets"> Assets {*this};
    clsXMLText<"DebtorsIncome"> DebtorsIncome {*this};
    clsXMLBoolean<"DebtorCLSFundedYes"> DebtorCLSFundedYes {*this};
    clsXMLBoolean<"DebtorCLSFundedNo"> DebtorCLSFundedNo {*this};
    clsXMLText<"CaseReference"> CaseReference {*this};
    clsXMLText<"Information"> Information {*this};
};
