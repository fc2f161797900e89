#pragma once

#include "base/clsRunTimeError.h"
#include "formdata/clsXMLRecord.h"
#include "formdata/clsZR3Communications.h"
#include "formdata/clsZR3Counsel.h"
#include "formdata/clsZR3Disbursement.h"
#include "formdata/clsZR3Enhancement.h"
#include "formdata/clsZR3ExpertInvoice.h"
#include "formdata/clsZR3FASItem.h"
#include "formdata/clsZR3FeeEarner.h"
#include "formdata/clsZR3FeeEarnerGroup.h"
#include "formdata/clsZR3JointInstruction.h"
#include "formdata/clsZR3List.h"
#include "formdata/clsZR3ScheduleOfTimeItem.h"
#include "formdata/clsZR3Sections.h"

#include <optional>

// clang-format off
/// The lists of the claim. `Plural` names the element, the collection and the render routine, `Single` the item class and
/// the members for single items. The items of an `Identified` list are referred to by other elements.
#define ZR3_LISTS(Identified, Plain)                                                                                   \
    Identified(FeeEarnerGroups, FeeEarnerGroup)                                                                        \
    Identified(FeeEarners, FeeEarner)                                                                                  \
    Identified(Counsel, Counsel)                                                                                       \
    Identified(Enhancements, Enhancement)                                                                              \
    Plain(FASItems, FASItem)                                                                                           \
    Plain(ScheduleOfTimeItems, ScheduleOfTimeItem)                                                                     \
    Plain(ExpertInvoices, ExpertInvoice)                                                                               \
    Plain(JointInstructions, JointInstruction)                                                                         \
    Plain(Disbursements, Disbursement)

/// A list and its family of members. The parts that need the item class are compiled once, in the .cpp file.
#define ZR3_LIST(Plural, Single)                                                                                       \
public:                                                                                                                \
    using Plural##List = clsZR3List<clsZR3##Single>;                                                                   \
    pugi::xml_node XML##Plural##Node() const { return m_##Plural.XMLNode(); }                                          \
    const Plural##List::Collection &Plural##Collection() const { return m_##Plural.collection(); }                     \
    void Render##Plural();                                                                                             \
    Plural##List::Pointer Add##Single();                                                                               \
    void Delete##Single(int index);                                                                                    \
    Plural##List::Pointer Single(int index) const { return m_##Plural.at(index); }                                     \
    const Plural##List::Pointer &Single##ByOrderID(int orderID) const;                                                 \
                                                                                                                       \
private:                                                                                                               \
    Plural##List m_##Plural;

/// The same with the look-up by identity.
#define ZR3_IDENTIFIED_LIST(Plural, Single)                                                                            \
    ZR3_LIST(Plural, Single)                                                                                           \
public:                                                                                                                \
    const Plural##List::Pointer &Single##ByUniqueID(const QString &uniqueID) const;

// clang-format on
/// A claim: owns the live tree, provides its sections and lists, generates identities, and loads and saves itself. It
/// stores no values: every property accesses the tree each time.
class clsZR3Form : public clsXMLRecord {
public:
    /// The root of the tree. Callers can then also change the content of the items' elements.
    pugi::xml_node XMLNode() const;

    /// A valid, empty claim with the template's defaults.
    clsZR3Form();
    ~clsZR3Form();

    /// Reads the claim at a path and updates it to the present template. False, after a message, if it is not a claim:
    /// the caller must then discard this object and continue with a new claim.
    bool LoadXML(const QString &filePath);
    /// The same from the text of a claim in UTF-8, without a message.
    bool LoadText(const QByteArray &text);
    /// Writes the claim. False, after a message of the text document routines, if that failed; `failure` then gets the
    /// error's number.
    bool SaveXML(const QString &filePath, int *failure = nullptr) const;
    /// Becomes an independent copy of another claim.
    void takeCopyOf(const clsZR3Form &other);
    /// True if no element of the claim has been handed out, so that all changes to it are counted.
    bool CountsChanges() const { return XMLChanges::lastHandOut() < m_taken; }
    /// Rebuilds every collection and assigns each section its element.
    void LoadElements();

    /// The file name in `path`, or a fixed one for a claim that was never saved.
    QString FormFileName() const;
    /// The next identity: "ID" and a number that is never reused.
    QString GenerateUniqueID();

    clsXMLText<"path"> path {*this};
    clsXMLText<"Version"> Version {*this};
    clsXMLText<"ExportPath"> ExportPath {*this};
    clsXMLText<"TimeSpent"> TimeSpent {*this};
    clsXMLLong<"DefaultFeeEarnerListIndex"> DefaultFeeEarnerListIndex {*this};
    clsXMLText<"FormType"> FormType {*this};
    clsXMLBoolean<"VAT"> VAT {*this};
    clsXMLText<"VATRate"> VATRate {*this};
    clsXMLBoolean<"IncludePanelMembershipContSheet"> IncludePanelMembershipContSheet {*this};
    clsXMLBoolean<"CostsAssessedByLSC"> CostsAssessedByLSC {*this};
    clsXMLBoolean<"CostsAssessedByCourt"> CostsAssessedByCourt {*this};
    clsXMLBoolean<"ExceptionalCaseFunding"> ExceptionalCaseFunding {*this};
    clsXMLBoolean<"MentalHealth"> MentalHealth {*this};
    clsXMLBoolean<"VHCC"> VHCC {*this};
    clsXMLText<"StageNumber"> StageNumber {*this};
    clsXMLText<"TypeOfCase"> TypeOfCase {*this};
    clsXMLText<"Notes"> Notes {*this};
    clsXMLBoolean<"IncludePage1"> IncludePage1 {*this};
    clsXMLBoolean<"IncludePage2"> IncludePage2 {*this};
    clsXMLBoolean<"IncludePage3"> IncludePage3 {*this};
    clsXMLBoolean<"IncludePage4"> IncludePage4 {*this};
    clsXMLBoolean<"IncludePage5"> IncludePage5 {*this};
    clsXMLBoolean<"IncludePage6"> IncludePage6 {*this};
    clsXMLBoolean<"IncludePage7"> IncludePage7 {*this};
    clsXMLBoolean<"IncludePage8"> IncludePage8 {*this};
    clsXMLBoolean<"IncludePage9"> IncludePage9 {*this};
    clsXMLBoolean<"IncludePage10"> IncludePage10 {*this};
    clsXMLBoolean<"IncludePage11"> IncludePage11 {*this};
    clsXMLBoolean<"IncludePage12"> IncludePage12 {*this};
    clsXMLBoolean<"IncludePage13"> IncludePage13 {*this};
    clsXMLBoolean<"ExcludeNonAdvocacy"> ExcludeNonAdvocacy {*this};
    clsXMLBoolean<"ExpertsMeetMOJStandardYes"> ExpertsMeetMOJStandardYes {*this};
    clsXMLBoolean<"ExpertsMeetMOJStandardNo"> ExpertsMeetMOJStandardNo {*this};
    clsXMLText<"ExpertsMeetMOJStandardReasons"> ExpertsMeetMOJStandardReasons {*this};

    /// `IncludePage1` to `IncludePage13` by number.
    bool IncludePage(int page) const;

    clsZR3ClientDetails ClientDetails;
    clsZR3SolicitorDetails SolicitorDetails;
    clsZR3PreviousAdvice PreviousAdvice;
    clsZR3CaseInformation CaseInformation;
    clsZR3OutcomeOfCase OutcomeOfCase;
    clsZR3LateSubmission LateSubmission;
    clsZR3NatureOfProceedings NatureOfProceedings;
    clsZR3ActualCostsIncurred ActualCostsIncurred;
    clsZR3DetailsOfWork DetailsOfWork;
    clsZR3CounselOutstandingClms CounselOutstandingClaims;
    clsZR3Communications Communications;
    clsZR3DetailsOfMonies DetailsOfMonies;
    clsZR3DetailsOfCostsAwarded DetailsOfCostsAwarded;
    clsZR3DebtorsDetails DebtorsDetails;

    ZR3_LISTS(ZR3_IDENTIFIED_LIST, ZR3_LIST)

public:
    /// True if the item is on the bill: all but the non-advocacy items of a `Claim1A` that leaves them out.
    bool IsOnBill(const clsZR3ScheduleOfTimeItem &item) const;

    // The derived collections contain the objects of the lists, in `OrderID` order. Each is rebuilt completely by its
    // routine and doesn't follow changes of properties. A gap in the order is the object error.
    //
    // An item whose collection is undecided, because a tick in the file is neither True nor False, must not make the
    // claim inaccessible: the routines continue, and the error is raised only when a figure or a document is needed.

    /// Raises the error found by the last run of a routine below, if any.
    void CheckDerivedCollections() const;

    /// Collects the items for the export and numbers them in `SOTItemNumber`. Undecided items are collected too,
    /// without a number.
    void RenderScheduleOfTimeItemsForExport();
    const ScheduleOfTimeItemsList::Collection &ScheduleOfTimeItemsForExportCollection() const { return m_forExport; }

    /// An item outside all lists that is priced like those of the claim, for work not stored yet.
    ScheduleOfTimeItemsList::Pointer LooseScheduleOfTimeItem();

    /// Collects the export's items that have a description; run it after the routine above.
    void RenderAdditionalInformationItems();
    const ScheduleOfTimeItemsList::Collection &AdditionalInformationItemsCollection() const { return m_additional; }
    ScheduleOfTimeItemsList::Pointer AdditionalInformationItem(int index) const;

    /// Collects the items with a bolt-on and those with exceptional travel; an item may be in both or neither.
    void CreateFASCollections();
    const FASItemsList::Collection &FASBoltOnPaymentsCollection() const { return m_boltOns; }
    const FASItemsList::Collection &FASTravelBoltOnsCollection() const { return m_travel; }

    /// Separates the disbursements into counsel's fees and others; if one is undecided, neither collection is
    /// available.
    void SeparateCounselAndNonCounselDisbursements();
    const DisbursementsList::Collection &CounselDisbursementsCollection() const;
    const DisbursementsList::Collection &NonCounselDisbursementsCollection() const;
    DisbursementsList::Pointer CounselDisbursement(int index) const;
    DisbursementsList::Pointer NonCounselDisbursement(int index) const;

private:
    friend class clsHistory;

    // For the history, which removes list elements and restores them.

    /// Removes the items of these elements from the claim's list with this element. Returns the elements that belong to
    /// no item.
    std::vector<pugi::xml_node> dropItems(pugi::xml_node list, const std::vector<pugi::xml_node> &elements);
    /// Creates items for the elements of that list that have none.
    void takeUpItems(pugi::xml_node list);
    /// The item of an element, or null.
    const clsZR3Item *itemOf(pugi::xml_node element) const;
    void renderDerived();

    pugi::xml_node listElement(QLatin1String plural) const;
    template <class Pointer> Pointer identified(const Pointer &item)
    {
        if constexpr (requires { item->UniqueID; })
            item->UniqueID = GenerateUniqueID();
        return item;
    }

    template <class List> void rendered(const List &) { }
    void rendered(const FASItemsList &) { CreateFASCollections(); }
    void rendered(const ScheduleOfTimeItemsList &);
    void rendered(const DisbursementsList &) { SeparateCounselAndNonCounselDisbursements(); }

    void takeRoot(const clsXMLElement &root);
    std::vector<bool> emptyDescriptions() const;

    clsXMLLong<"IDCounter"> m_idCounter {*this};
    clsXMLElement m_root;
    quint64 m_taken = 0; ///< the count of changes when the root was handed out
    ScheduleOfTimeItemsList::Collection m_forExport;
    ScheduleOfTimeItemsList::Collection m_additional;
    FASItemsList::Collection m_boltOns;
    FASItemsList::Collection m_travel;
    DisbursementsList::Collection m_counselFees;
    DisbursementsList::Collection m_nonCounsel;
    std::optional<clsRunTimeError> m_scheduleError;
    std::optional<clsRunTimeError> m_disbursementsError;
};

#undef ZR3_LIST
#undef ZR3_IDENTIFIED_LIST
