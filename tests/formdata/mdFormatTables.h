#pragma once

#include "formdata/clsXMLRecord.h"

#include <map>
#include <string>
#include <vector>

// clang-format off
// Tables, one row per line.

// The file format, written a second time by hand: a change to a template or property must be made here too, so it can't
// happen by accident. Existing claims depend on all these names.

enum FormatKind { Text, Boolean, Long, List, Section, Carried };

struct FormatRow {
    std::string name;
    FormatKind kind;
    std::string initially = {}; ///< the content of a fresh element
};

/// By the name of the parent element.
using FormatTables = std::map<std::string, std::vector<FormatRow>>;

/// The children of each element, in the order of a new file. A carried element is never read: it has only a name.
inline const FormatTables &elementTables()
{
    static const FormatTables tables = {
        {"vzrform",
         {
             {"path", Text}, {"version", Text}, {"idcounter", Long, "0"}, {"exportpath", Text},
             {"timespent", Text, "00%3A00"}, {"formtype", Text, "Claim1"}, {"vat", Boolean, "True"},
             {"vatrate", Text, "17.50"}, {"includepanelmembershipcontsheet", Boolean, "False"},
             {"costsassessedbylsc", Boolean, "False"}, {"costsassessedbycourt", Boolean, "False"},
             {"exceptionalcasefunding", Boolean, "False"}, {"mentalhealth", Boolean, "False"},
             {"vhcc", Boolean, "False"}, {"stagenumber", Text}, {"typeofcase", Text},
             {"includepage1", Boolean, "True"}, {"includepage2", Boolean, "True"}, {"includepage3", Boolean, "True"},
             {"includepage4", Boolean, "True"}, {"includepage5", Boolean, "True"}, {"includepage6", Boolean, "True"},
             {"includepage7", Boolean, "True"}, {"includepage8", Boolean, "True"}, {"includepage9", Boolean, "True"},
             {"includepage10", Boolean, "True"}, {"includepage11", Boolean, "True"},
             {"includepage12", Boolean, "True"}, {"includepage13", Boolean, "True"}, {"notes", Text},
             {"feeearnergroups", List}, {"excludenonadvocacy", Boolean, "False"}, {"feeearners", List},
             {"defaultfeeearnerlistindex", Long, "0"}, {"counsel", List}, {"enhancements", List},
             {"clientdetails", Section}, {"solicitordetails", Section}, {"previousadvice", Section},
             {"caseinformation", Section}, {"outcomeofcase", Section}, {"latesubmission", Section},
             {"natureofproceedings", Section}, {"actualcostsincurred", Section}, {"detailsofwork", Section},
             {"fasitems", List}, {"scheduleoftimeitems", List}, {"counselunderfgf", Carried},
             {"counseloutstandingclaims", Section}, {"expertinvoices", List},
             {"expertsmeetmojstandardyes", Boolean, "False"}, {"expertsmeetmojstandardno", Boolean, "False"},
             {"expertsmeetmojstandardreasons", Text}, {"jointinstructions", List}, {"disbursements", List},
             {"communications", Section}, {"detailsofmonies", Section}, {"detailsofcostsawarded", Section},
             {"debtorsdetails", Section},
         }},
        {"clientdetails",
         {
             {"casereferencenumber", Text}, {"title", Text}, {"firstname", Text}, {"surname", Text},
             {"dateofbirth", Text}, {"morethan1certificate", Text},
         }},
        {"solicitordetails",
         {
             {"accountnumber", Text}, {"rollnumber", Text}, {"nameoffirm", Text}, {"casereference", Text},
             {"contactnameforenquiries", Text}, {"telephoneforenquiries", Text}, {"emailforenquiries", Text},
         }},
        {"previousadvice",
         {
             {"legalhelpyes", Boolean, "False"}, {"legalhelpno", Boolean, "False"}, {"totalcostsincurred", Text},
             {"datelegalhelpformsigned", Text}, {"inclusiveofallsolicitorsyes", Boolean, "False"},
             {"inclusiveofallsolicitorsno", Boolean, "False"}, {"inclusiveofallsolicitorsreasons", Text},
             {"furtherclaimsyes", Boolean, "False"}, {"furtherclaimsno", Boolean, "False"},
         }},
        {"caseinformation",
         {
             {"issueofproceedingsdate", Text}, {"dateoffinalworkdate", Text}, {"nameofcourt", Text},
             {"emergencycertificatedate", Text}, {"substantivecertificatedate", Text},
         }},
        {"outcomeofcase",
         {
             {"issueofproceedingsdate", Text}, {"emergencycertificatedate", Text},
             {"substantivecertificatedate", Text}, {"stageofcaseend", Long, "0"}, {"howdidcaseend", Long, "0"},
             {"result", Long, "0"}, {"adrproposed", Long, "0"}, {"publicbenefitsachieved", Long, "0"},
             {"dateoffinalorder", Text}, {"costs", Boolean, "False"}, {"damages", Boolean, "False"},
             {"property", Boolean, "False"}, {"wastedcostsorderyes", Boolean, "False"},
             {"wastedcostsorderno", Boolean, "False"},
         }},
        {"latesubmission",
         {
             {"ddate", Text}, {"explanation", Text},
         }},
        {"natureofproceedings",
         {
             {"detailsofcase", Text}, {"careandsupervision", Boolean, "False"},
             {"otherpubiclawchildren", Boolean, "False"}, {"privatelawchildren", Boolean, "False"},
             {"finance", Boolean, "False"}, {"domesticabuse", Boolean, "False"},
             {"otherprovidersyes", Boolean, "False"}, {"otherprovidersno", Boolean, "False"},
             {"changeofsolicitorhalffeeyes", Boolean, "False"}, {"changeofsolicitorhalffeeno", Boolean, "False"},
         }},
        {"actualcostsincurred",
         {
             {"careandsupervisionprofitcosts", Text}, {"careandsupervisionprofitcostsvat", Text},
             {"careandsupervisionmidlands", Boolean, "False"}, {"careandsupervisionnorth", Boolean, "False"},
             {"careandsupervisionsouth", Boolean, "False"}, {"careandsupervisionwales", Boolean, "False"},
             {"careandsupervisionachild", Boolean, "False"}, {"careandsupervisionaparent", Boolean, "False"},
             {"careandsupervisionjoined", Boolean, "False"}, {"careandsupervisionacting1", Boolean, "False"},
             {"careandsupervisionacting2ormore", Boolean, "False"},
             {"careandsupervisioncourthigh", Boolean, "False"}, {"careandsupervisioncourtcounty", Boolean, "False"},
             {"careandsupervisioncourtfamilyproceeding", Boolean, "False"}, {"privatelawprofitcosts", Text},
             {"privatelawprofitcostsvat", Text}, {"privatelawlondon", Boolean, "False"},
             {"privatelawnonlondon", Boolean, "False"}, {"privatelawpreviousclaimyes", Boolean, "False"},
             {"privatelawpreviousclaimno", Boolean, "False"}, {"privatelawcourthigh", Boolean, "False"},
             {"privatelawcourtcounty", Boolean, "False"}, {"privatelawcourtfamilyproceeding", Boolean, "False"},
             {"privatelawsettlementfeeyes", Boolean, "False"}, {"privatelawsettlementfeeno", Boolean, "False"},
             {"privatelawlevel3", Boolean, "False"}, {"privatelawlevel4", Boolean, "False"},
             {"privatelawenforcement", Boolean, "False"}, {"privatelawworkatalllevelsreasons", Text},
             {"exceptionalcaseyes", Boolean, "False"}, {"exceptionalcaseno", Boolean, "False"}, {"fixedfee", Text},
         }},
        {"detailsofwork",
         {
             {"detailsofcase", Text}, {"detailsofenhancement", Text}, {"familyproceedings", Carried},
         }},
        {"counseloutstandingclaims",
         {
             {"outstandingclaimsyes", Boolean, "False"}, {"outstandingclaimsno", Boolean, "False"},
         }},
        {"communications",
         {
             {"enhancelettersout", Boolean, "False"}, {"lettersoutenhancementuniqueid", Text},
             {"enhancelettersin", Boolean, "False"}, {"lettersinenhancementuniqueid", Text},
             {"enhancecalls", Boolean, "False"}, {"callsenhancementuniqueid", Text},
         }},
        {"detailsofmonies",
         {
             {"value", Text}, {"amountrecovered", Text},
         }},
        {"detailsofcostsawarded",
         {
             {"precertificatecosts", Text}, {"duringcertificatecostslsc", Text},
             {"duringcertificatecostsmarketrates", Text}, {"totalcostsawarded", Text},
             {"legalhelpinprecertificatecostsyes", Boolean, "False"},
             {"legalhelpinprecertificatecostsno", Boolean, "False"}, {"legalhelpinprecertificatecostsamount", Text},
             {"interestonallcosts", Text}, {"dateinterestcommenced", Text}, {"interestbreakdown", Text},
             {"amountrecoveredtodate", Text}, {"dateorderserved", Text}, {"addressofservice", Text},
             {"leaveyes", Boolean, "False"}, {"leaveno", Boolean, "False"}, {"determinationyes", Boolean, "False"},
             {"determinationno", Boolean, "False"}, {"determinationamount", Text},
             {"offerbydebtoryes", Boolean, "False"}, {"offerbydebtorno", Boolean, "False"},
             {"offerbydebtordetails", Text},
         }},
        {"debtorsdetails",
         {
             {"title", Text}, {"initials", Text}, {"surnameororganisation", Text}, {"firstname", Text},
             {"dateofbirth", Text}, {"nationalinsurancenumber", Text}, {"address", Text}, {"phonework", Text},
             {"phonehome", Text}, {"mobile", Text}, {"fax", Text}, {"email", Text}, {"solicitorsfirmname", Text},
             {"employed", Boolean, "False"}, {"selfemployed", Boolean, "False"}, {"unemployed", Boolean, "False"},
             {"job", Text}, {"employersname", Text}, {"employersaddress", Text}, {"assets", Text},
             {"debtorsincome", Text}, {"debtorclsfundedyes", Boolean, "False"},
             {"debtorclsfundedno", Boolean, "False"}, {"casereference", Text}, {"information", Text},
         }},
        {"counselunderfgf",
         {
             {"namesofcounsel", Carried}, {"outstandingclaimsyes", Carried}, {"outstandingclaimsno", Carried},
             {"escapedyes", Carried}, {"escapedno", Carried},
         }},
        {"feeearnergroup",
         {
             {"orderid", Long}, {"uniqueid", Text}, {"reference", Text}, {"name", Text},
             {"enhance", Boolean, "False"}, {"enhancementrate", Text, "0.00"}, {"enhancecomms", Boolean, "False"},
             {"hourlyrate", Text, "0.00"}, {"callsrate", Text, "0.00"}, {"lettersinrate", Text, "0.00"},
             {"lettersoutrate", Text, "0.00"}, {"advocacyrate", Text, "0.00"}, {"counselrate", Text, "0.00"},
             {"travelandwaitingrate", Text, "0.00"},
         }},
        {"feeearner",
         {
             {"orderid", Long}, {"uniqueid", Text}, {"reference", Text}, {"groupuniqueid", Text},
             {"calls", Long, "0"}, {"lettersin", Long, "0"}, {"lettersout", Long, "0"},
         }},
        {"counsel",
         {
             {"orderid", Long}, {"uniqueid", Text}, {"name", Text}, {"accountnumber", Text},
             {"vat", Boolean, "False"},
         }},
        {"enhancement",
         {
             {"orderid", Long}, {"uniqueid", Text}, {"name", Text}, {"rate", Text, "0.00"},
         }},
        {"fasitem",
         {
             {"orderid", Long}, {"ddate", Text}, {"levelofcourt", Text}, {"fdr", Text}, {"actualtimespent", Long},
             {"hearingunits", Long}, {"rateforunits", Text}, {"boltonclaimed", Text}, {"boltondescription", Text},
             {"courtbundlepayment", Text}, {"settlementfee", Text}, {"exceptionaltravel", Text},
             {"exceptionaltraveldistance", Text}, {"exceptionaltravelreason", Text}, {"vatforfas", Text},
         }},
        {"scheduleoftimeitem",
         {
             {"orderid", Long}, {"feeearneruniqueid", Text}, {"ddate", Text}, {"code", Text}, {"description", Text},
             {"ttime", Text}, {"advocacy", Boolean, "False"}, {"counsel", Boolean, "False"},
             {"travel", Boolean, "False"}, {"waiting", Boolean, "False"}, {"usehourlyrate", Boolean, "False"},
             {"includeinenhancements", Boolean, "False"}, {"enhancementuniqueid", Text},
         }},
        {"expertinvoice",
         {
             {"orderid", Long}, {"expertgroup", Text}, {"experttype", Text},
             {"priorauthorityobtained", Boolean, "False"}, {"preparationhourlyrate", Text, "0.00"},
             {"totalprepcost", Text, "0.00"}, {"courtattendancehourlyrate", Text, "0.00"},
             {"totalcourtcost", Text, "0.00"}, {"traveltimecosts", Text, "0.00"}, {"othercosts", Text, "0.00"},
             {"netamount", Text, "0.00"}, {"vatamount", Text, "0.00"},
         }},
        {"jointinstruction",
         {
             {"orderid", Long}, {"experttype", Text}, {"partyname", Text}, {"solicitor", Text},
             {"certificatereference", Text}, {"percentapportioned", Text, "0"},
         }},
        {"disbursement",
         {
             {"orderid", Long}, {"counsel", Boolean, "False"}, {"counseluniqueid", Text}, {"dateofwork", Text},
             {"description", Text}, {"amount", Text, "0.00"}, {"vat", Text, "0.00"},
         }},
        {"preferencesdatabase",
         {
             {"defaultvatrate", Text, "17.50"}, {"autobackup", Boolean, "False"}, {"autobackuppath", Text},
             {"autodeletebackups", Boolean, "False"}, {"autorefreshpreview", Boolean, "False"},
             {"playsound", Boolean, "True"}, {"log", Boolean, "False"}, {"replacements", List}, {"ratesets", List},
         }},
        {"replacement",
         {
             {"inputtext", Text}, {"outputtext", Text},
         }},
        {"rateset",
         {
             {"name", Text}, {"hourlyrate", Text, "0.00"}, {"callsrate", Text, "0.00"},
             {"lettersinrate", Text, "0.00"}, {"lettersoutrate", Text, "0.00"}, {"advocacyrate", Text, "0.00"},
             {"counselrate", Text, "0.00"}, {"travelandwaitingrate", Text, "0.00"},
         }},
    };
    return tables;
}

/// The properties of each record, in the order of its members.
inline const FormatTables &propertyTables()
{
    static const FormatTables tables = {
        {"vzrform",
         {
             {"Version", Text}, {"path", Text}, {"ExportPath", Text}, {"TimeSpent", Text},
             {"DefaultFeeEarnerListIndex", Long}, {"FormType", Text}, {"VAT", Boolean}, {"VATRate", Text},
             {"IncludePanelMembershipContSheet", Boolean}, {"CostsAssessedByLSC", Boolean},
             {"CostsAssessedByCourt", Boolean}, {"ExceptionalCaseFunding", Boolean}, {"MentalHealth", Boolean},
             {"VHCC", Boolean}, {"StageNumber", Text}, {"TypeOfCase", Text}, {"Notes", Text},
             {"IncludePage1", Boolean}, {"IncludePage2", Boolean}, {"IncludePage3", Boolean},
             {"IncludePage4", Boolean}, {"IncludePage5", Boolean}, {"IncludePage6", Boolean},
             {"IncludePage7", Boolean}, {"IncludePage8", Boolean}, {"IncludePage9", Boolean},
             {"IncludePage10", Boolean}, {"IncludePage11", Boolean}, {"IncludePage12", Boolean},
             {"IncludePage13", Boolean}, {"ExcludeNonAdvocacy", Boolean}, {"ExpertsMeetMOJStandardYes", Boolean},
             {"ExpertsMeetMOJStandardNo", Boolean}, {"ExpertsMeetMOJStandardReasons", Text},
         }},
        {"clientdetails",
         {
             {"CaseReferenceNumber", Text}, {"Title", Text}, {"FirstName", Text}, {"Surname", Text},
             {"DateOfBirth", Text}, {"MoreThan1Certificate", Text},
         }},
        {"solicitordetails",
         {
             {"AccountNumber", Text}, {"RollNumber", Text}, {"NameOfFirm", Text}, {"CaseReference", Text},
             {"ContactNameForEnquiries", Text}, {"TelephoneForEnquiries", Text}, {"EmailForEnquiries", Text},
         }},
        {"previousadvice",
         {
             {"LegalHelpYes", Boolean}, {"LegalHelpNo", Boolean}, {"DateLegalHelpFormSigned", Text},
             {"TotalCostsIncurred", Text}, {"InclusiveOfAllSolicitorsYes", Boolean},
             {"InclusiveOfAllSolicitorsNo", Boolean}, {"InclusiveOfAllSolicitorsReasons", Text},
             {"FurtherClaimsYes", Boolean}, {"FurtherClaimsNo", Boolean},
         }},
        {"caseinformation",
         {
             {"IssueOfProceedingsDate", Text}, {"DateOfFinalWorkDate", Text}, {"NameOfCourt", Text},
             {"EmergencyCertificateDate", Text}, {"SubstantiveCertificateDate", Text},
         }},
        {"outcomeofcase",
         {
             {"IssueOfProceedingsDate", Text}, {"EmergencyCertificateDate", Text},
             {"SubstantiveCertificateDate", Text}, {"StageOfCaseEnd", Long}, {"HowDidCaseEnd", Long},
             {"Result", Long}, {"ADRProposed", Long}, {"PublicBenefitsAchieved", Long}, {"DateOfFinalOrder", Text},
             {"Costs", Boolean}, {"Damages", Boolean}, {"Property", Boolean}, {"WastedCostsOrderYes", Boolean},
             {"WastedCostsOrderNo", Boolean},
         }},
        {"latesubmission",
         {
             {"dDate", Text}, {"Explanation", Text},
         }},
        {"natureofproceedings",
         {
             {"DetailsOfCase", Text}, {"CareAndSupervision", Boolean}, {"OtherPubicLawChildren", Boolean},
             {"PrivateLawChildren", Boolean}, {"Finance", Boolean}, {"DomesticAbuse", Boolean},
             {"OtherProvidersYes", Boolean}, {"OtherProvidersNo", Boolean}, {"ChangeOfSolicitorHalfFeeYes", Boolean},
             {"ChangeOfSolicitorHalfFeeNo", Boolean},
         }},
        {"actualcostsincurred",
         {
             {"CareAndSupervisionProfitCosts", Text}, {"CareAndSupervisionProfitCostsVAT", Text},
             {"CareAndSupervisionMidlands", Boolean}, {"CareAndSupervisionNorth", Boolean},
             {"CareAndSupervisionSouth", Boolean}, {"CareAndSupervisionWales", Boolean},
             {"CareAndSupervisionAChild", Boolean}, {"CareAndSupervisionAParent", Boolean},
             {"CareAndSupervisionJoined", Boolean}, {"CareAndSupervisionActing1", Boolean},
             {"CareAndSupervisionActing2OrMore", Boolean}, {"CareAndSupervisionCourtHigh", Boolean},
             {"CareAndSupervisionCourtCounty", Boolean}, {"CareAndSupervisionCourtFamilyProceeding", Boolean},
             {"PrivateLawProfitCosts", Text}, {"PrivateLawProfitCostsVAT", Text}, {"PrivateLawLondon", Boolean},
             {"PrivateLawNonLondon", Boolean}, {"PrivateLawPreviousClaimYes", Boolean},
             {"PrivateLawPreviousClaimNo", Boolean}, {"PrivateLawCourtHigh", Boolean},
             {"PrivateLawCourtCounty", Boolean}, {"PrivateLawcourtFamilyProceeding", Boolean},
             {"PrivateLawSettlementFeeYes", Boolean}, {"PrivateLawSettlementFeeNo", Boolean},
             {"PrivateLawLevel3", Boolean}, {"PrivateLawLevel4", Boolean}, {"PrivateLawEnforcement", Boolean},
             {"PrivateLawWorkAtAllLevelsReasons", Text}, {"ExceptionalCaseYes", Boolean},
             {"ExceptionalCaseNo", Boolean}, {"FixedFee", Text},
         }},
        {"detailsofwork",
         {
             {"DetailsOfCase", Text}, {"DetailsOfEnhancement", Text},
         }},
        {"counseloutstandingclaims",
         {
             {"OutstandingClaimsYes", Boolean}, {"OutstandingClaimsNo", Boolean},
         }},
        {"communications",
         {
             {"EnhanceLettersOut", Boolean}, {"LettersOutEnhancementUniqueID", Text}, {"EnhanceLettersIn", Boolean},
             {"LettersInEnhancementUniqueID", Text}, {"EnhanceCalls", Boolean}, {"CallsEnhancementUniqueID", Text},
         }},
        {"detailsofmonies",
         {
             {"Value", Text}, {"AmountRecovered", Text},
         }},
        {"detailsofcostsawarded",
         {
             {"PreCertificateCosts", Text}, {"DuringCertificateCostsLSC", Text},
             {"DuringCertificateCostsMarketRates", Text}, {"TotalCostsAwarded", Text},
             {"LegalHelpInPreCertificateCostsYes", Boolean}, {"LegalHelpInPreCertificateCostsNo", Boolean},
             {"LegalHelpInPreCertificateCostsAmount", Text}, {"InterestOnAllCosts", Text},
             {"DateInterestCommenced", Text}, {"InterestBreakdown", Text}, {"AmountRecoveredToDate", Text},
             {"DateOrderServed", Text}, {"AddressOfService", Text}, {"LeaveYes", Boolean}, {"LeaveNo", Boolean},
             {"DeterminationYes", Boolean}, {"DeterminationNo", Boolean}, {"DeterminationAmount", Text},
             {"OfferByDebtorYes", Boolean}, {"OfferByDebtorNo", Boolean}, {"OfferByDebtorDetails", Text},
         }},
        {"debtorsdetails",
         {
             {"Title", Text}, {"Initials", Text}, {"SurnameOrOrganisation", Text}, {"FirstName", Text},
             {"DateOfBirth", Text}, {"NationalInsuranceNumber", Text}, {"Address", Text}, {"PhoneWork", Text},
             {"PhoneHome", Text}, {"Mobile", Text}, {"Fax", Text}, {"Email", Text}, {"SolicitorsFirmName", Text},
             {"Employed", Boolean}, {"SelfEmployed", Boolean}, {"UnEmployed", Boolean}, {"Job", Text},
             {"EmployersName", Text}, {"EmployersAddress", Text}, {"Assets", Text}, {"DebtorsIncome", Text},
             {"DebtorCLSFundedYes", Boolean}, {"DebtorCLSFundedNo", Boolean}, {"CaseReference", Text},
             {"Information", Text},
         }},
        {"feeearnergroup",
         {
             {"OrderID", Long}, {"UniqueID", Text}, {"Reference", Text}, {"Name", Text}, {"Enhance", Boolean},
             {"EnhancementRate", Text}, {"EnhanceComms", Boolean}, {"HourlyRate", Text}, {"CallsRate", Text},
             {"LettersInRate", Text}, {"LettersOutRate", Text}, {"AdvocacyRate", Text}, {"CounselRate", Text},
             {"TravelAndWaitingRate", Text},
         }},
        {"feeearner",
         {
             {"OrderID", Long}, {"UniqueID", Text}, {"Reference", Text}, {"GroupUniqueID", Text}, {"Calls", Long},
             {"LettersIn", Long}, {"LettersOut", Long},
         }},
        {"counsel",
         {
             {"OrderID", Long}, {"UniqueID", Text}, {"Name", Text}, {"AccountNumber", Text}, {"VAT", Boolean},
         }},
        {"enhancement",
         {
             {"OrderID", Long}, {"UniqueID", Text}, {"Name", Text}, {"Rate", Text},
         }},
        {"fasitem",
         {
             {"OrderID", Long}, {"dDate", Text}, {"LevelOfCourt", Text}, {"FDR", Text}, {"ActualTimeSpent", Long},
             {"HearingUnits", Long}, {"RateForUnits", Text}, {"BoltOnClaimed", Text}, {"BoltOnDescription", Text},
             {"CourtBundlePayment", Text}, {"SettlementFee", Text}, {"ExceptionalTravel", Text},
             {"ExceptionalTravelDistance", Text}, {"ExceptionalTravelReason", Text}, {"VATForFAS", Text},
         }},
        {"scheduleoftimeitem",
         {
             {"OrderID", Long}, {"FeeEarnerUniqueID", Text}, {"dDate", Text}, {"Code", Text}, {"Description", Text},
             {"TTime", Text}, {"TypeOfCase", Long}, {"Advocacy", Boolean}, {"Counsel", Boolean}, {"Travel", Boolean},
             {"Waiting", Boolean}, {"UseHourlyRate", Boolean}, {"IncludeInEnhancements", Boolean},
             {"EnhancementUniqueID", Text},
         }},
        {"expertinvoice",
         {
             {"OrderID", Long}, {"ExpertGroup", Text}, {"ExpertType", Text}, {"PriorAuthorityObtained", Boolean},
             {"PreparationHourlyRate", Text}, {"TotalPrepCost", Text}, {"CourtAttendanceHourlyRate", Text},
             {"TotalCourtCost", Text}, {"TravelTimeCosts", Text}, {"OtherCosts", Text}, {"NetAmount", Text},
             {"VATAmount", Text},
         }},
        {"jointinstruction",
         {
             {"OrderID", Long}, {"ExpertType", Text}, {"PartyName", Text}, {"Solicitor", Text},
             {"CertificateReference", Text}, {"PercentApportioned", Text},
         }},
        {"disbursement",
         {
             {"OrderID", Long}, {"Counsel", Boolean}, {"CounselUniqueID", Text}, {"DateOfWork", Text},
             {"Description", Text}, {"Amount", Text}, {"VAT", Text},
         }},
        {"preferencesdatabase",
         {
             {"DefaultVATRate", Text}, {"AutoBackup", Boolean}, {"AutoBackupPath", Text},
             {"AutoDeleteBackups", Boolean}, {"AutoRefreshPreview", Boolean}, {"PlaySound", Boolean},
             {"Log", Boolean},
         }},
        {"replacement",
         {
             {"InputText", Text}, {"OutputText", Text},
         }},
        {"rateset",
         {
             {"Name", Text}, {"HourlyRate", Text}, {"CallsRate", Text}, {"LettersInRate", Text},
             {"LettersOutRate", Text}, {"AdvocacyRate", Text}, {"CounselRate", Text}, {"TravelAndWaitingRate", Text},
         }},
    };
    return tables;
}
