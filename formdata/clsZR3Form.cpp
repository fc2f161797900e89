#include "formdata/clsZR3Form.h"

#include "base/clsRunTimeError.h"
#include "base/mdCustomMessages.h"
#include "base/mdGetResourceData.h"
#include "base/mdNumberText.h"
#include "base/mdSetProgress.h"
#include "base/mdTextDocumentHandling.h"
#include "formdata/clsBillFilter.h"
#include "formdata/mdXMLChanges.h"
#include "formdata/mdXMLGenerateNodes.h"
#include "formdata/mdXMLTemplate.h"

#include <limits>

namespace {

constexpr char RootElement[] = "vzrform";

// Must not end in the extension of a claim: a backup with this name is then never deleted by age.
const QString UnsavedFileName = QStringLiteral("Unsaved Claim.zr3-new");

/// Refills a collection from its front, keeping elements that are already right: derived collections are rebuilt after
/// each change, and mostly stay the same.
template <class Collection> class clsRefill {
public:
    explicit clsRefill(Collection &collection)
        : m_collection(collection)
    { }
    ~clsRefill() { m_collection.resize(m_count); }
    clsRefill(const clsRefill &) = delete;
    clsRefill &operator=(const clsRefill &) = delete;

    void add(const typename Collection::value_type &item)
    {
        if (m_count == m_collection.size())
            m_collection.push_back(item);
        else if (m_collection[m_count] != item)
            m_collection[m_count] = item;
        ++m_count;
    }

private:
    Collection &m_collection;
    size_t m_count = 0;
};

/// Visits a list by `OrderID` from 1 to its count; a gap is the object error. `word` is the name of its items.
template <class List, class Visit> void inOrder(const List &list, const char *word, Visit visit)
{
    for (int n = 1; n <= list.count(); ++n) {
        const auto &item = list.byOrder(n);
        if (!item)
            throw clsRunTimeError(clsRunTimeError::ObjectNotSet)
                .because(QStringLiteral("No %1 has place %2 in the order of its list")
                             .arg(QString::fromLatin1(word), QString::number(n)));
        visit(item);
    }
}

clsXMLElement emptyClaim()
{
    return XMLLoadElement(GetResourceData(QStringLiteral("xmlZR3Form"), QStringLiteral("VELMORZR3XML")), RootElement);
}

/// Raises an error found earlier.
void raise(const std::optional<clsRunTimeError> &error)
{
    if (error)
        throw *error;
}

/// The item at a 1-based index of a derived collection; the subscript error if out of range.
template <class Collection> auto itemAt(const Collection &collection, int index)
{
    if (index < 1 || index > int(collection.size()))
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
    return collection[size_t(index - 1)];
}

} // namespace

clsZR3Form::clsZR3Form()
    : clsXMLRecord(clsXMLPropertyTable::of<clsZR3Form>())
{
    takeRoot(emptyClaim());
}

clsZR3Form::~clsZR3Form() = default;

pugi::xml_node clsZR3Form::XMLNode() const
{
    for (const auto handOut : {&clsZR3Form::XMLFeeEarnerGroupsNode, &clsZR3Form::XMLFeeEarnersNode,
             &clsZR3Form::XMLCounselNode, &clsZR3Form::XMLEnhancementsNode, &clsZR3Form::XMLFASItemsNode,
             &clsZR3Form::XMLScheduleOfTimeItemsNode, &clsZR3Form::XMLExpertInvoicesNode,
             &clsZR3Form::XMLJointInstructionsNode, &clsZR3Form::XMLDisbursementsNode})
        (this->*handOut)();
    return node();
}

bool clsZR3Form::LoadXML(const QString &filePath)
{
    if (LoadText(ReadTextDocumentAsUtf8(filePath, true)))
        return true;
    mdCustomMessages(QStringLiteral("There was a problem opening the selected file. Please ensure that the file is "
                                    "a valid ZR3 file and try again"),
        QStringLiteral("Error"));
    return false;
}

bool clsZR3Form::LoadText(const QByteArray &text)
{
    const clsXMLElement root = XMLLoadElement(text, RootElement);
    if (!root)
        return false;
    GenerateNodes(root.node(), mdXMLTemplate("xmlZR3Form"));
    try {
        takeRoot(root);
    } catch (...) {
        // No record may refer to the tree of the previous claim, which is about to be deleted: this one becomes an
        // empty claim.
        takeRoot(emptyClaim());
        throw;
    }
    return true;
}

void clsZR3Form::takeRoot(const clsXMLElement &root)
{
    m_root = root;
    m_taken = XMLChanges::note();
    bind(root.node());
    LoadElements();
}

void clsZR3Form::takeCopyOf(const clsZR3Form &other)
{
    auto document = std::make_shared<clsXMLDocument>();
    const pugi::xml_node root = document->tree.append_copy(other.node());
    takeRoot(clsXMLElement(std::move(document), root));
}

bool clsZR3Form::SaveXML(const QString &filePath, int *failure) const
{
    return WriteTextDocument(XMLOutput(), filePath, true, failure);
}

void clsZR3Form::LoadElements()
{
    mdSetProgress(1, 1, QStringLiteral("Loading , please wait...")); // the blank before the comma is part of the text
    RenderFeeEarnerGroups();
    RenderFeeEarners();
    RenderCounsel();
    RenderEnhancements();
    RenderExpertInvoices();
    RenderJointInstructions();
    RenderDisbursements();
    RenderFASItems();
    RenderScheduleOfTimeItems();

    clsZR3Section *const sections[] = {
        &ClientDetails,
        &SolicitorDetails,
        &PreviousAdvice,
        &CaseInformation,
        &OutcomeOfCase,
        &LateSubmission,
        &NatureOfProceedings,
        &ActualCostsIncurred,
        &DetailsOfWork,
        &CounselOutstandingClaims,
        &Communications,
        &DetailsOfMonies,
        &DetailsOfCostsAwarded,
        &DebtorsDetails,
    };
    for (clsZR3Section *section : sections)
        section->XMLNode(node().child(section->elementName()));
    mdClearProgress();
}

QString clsZR3Form::FormFileName() const
{
    QString file = path();
    if (file.isEmpty())
        return UnsavedFileName;
    file.replace(u'/', u'\\');
    return file.mid(file.lastIndexOf(u'\\') + 1);
}

QString clsZR3Form::GenerateUniqueID()
{
    // Strict, unlike other longs: a duplicate identity would connect items to the wrong fee earner.
    const int last = LongFromStrictText(m_idCounter.readText());
    if (last == std::numeric_limits<int>::max())
        throw clsRunTimeError(clsRunTimeError::Overflow);
    m_idCounter = last + 1;
    return QStringLiteral("ID%1").arg(last + 1);
}

bool clsZR3Form::IncludePage(int page) const
{
    const clsXMLField *flag = field(QStringLiteral("IncludePage%1").arg(page));
    if (!flag)
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
    return flag->readBoolean();
}

bool clsZR3Form::IsOnBill(const clsZR3ScheduleOfTimeItem &item) const
{
    return clsBillFilter(*this)(item);
}

void clsZR3Form::CheckDerivedCollections() const
{
    raise(m_scheduleError);
    raise(m_disbursementsError);
}

void clsZR3Form::RenderScheduleOfTimeItemsForExport()
{
    clsRefill forExport(m_forExport);
    m_scheduleError.reset();
    int number = 0;
    clsBillFilter isOnBill(*this);
    inOrder(m_ScheduleOfTimeItems, "schedule item", [&](const ScheduleOfTimeItemsList::Pointer &item) {
        try {
            if (!isOnBill(*item))
                return;
            item->SOTItemNumber = ++number;
        } catch (const clsRunTimeError &error) {
            item->SOTItemNumber = 0;
            if (!m_scheduleError)
                m_scheduleError = error;
        }
        forExport.add(item);
    });
}

clsZR3Form::ScheduleOfTimeItemsList::Pointer clsZR3Form::LooseScheduleOfTimeItem()
{
    return ScheduleOfTimeItemsList::loose(*this);
}

void clsZR3Form::RenderAdditionalInformationItems()
{
    clsRefill additional(m_additional);
    const std::vector<bool> empty = emptyDescriptions();
    const auto &items = m_ScheduleOfTimeItems.collection();
    for (const auto &item : m_forExport) {
        const auto place = size_t(item->Index - 1);
        const bool isKnown = place < items.size() && items[place] == item;
        if (!(isKnown && empty[place]) && !item->Description.isEmpty())
            additional.add(item);
    }
}

/// The items that have no description, found in memory order: by their numbers, each access would be a cache miss.
std::vector<bool> clsZR3Form::emptyDescriptions() const
{
    std::vector<bool> empty;
    empty.reserve(m_ScheduleOfTimeItems.collection().size());
    for (const auto &item : m_ScheduleOfTimeItems.collection())
        empty.push_back(item->Description.isThereAndEmpty());
    return empty;
}

clsZR3Form::ScheduleOfTimeItemsList::Pointer clsZR3Form::AdditionalInformationItem(int index) const
{
    return itemAt(m_additional, index);
}

void clsZR3Form::CreateFASCollections()
{
    clsRefill boltOns(m_boltOns);
    clsRefill travel(m_travel);
    inOrder(m_FASItems, "FAS item", [&](const FASItemsList::Pointer &item) {
        if (!item->BoltOnDescription.isEmpty())
            boltOns.add(item);
        if (!item->ExceptionalTravelDistance.isEmpty() || !item->ExceptionalTravelReason.isEmpty())
            travel.add(item);
    });
}

void clsZR3Form::SeparateCounselAndNonCounselDisbursements()
{
    clsRefill counselFees(m_counselFees);
    clsRefill nonCounsel(m_nonCounsel);
    m_disbursementsError.reset();
    inOrder(m_Disbursements, "disbursement", [&](const DisbursementsList::Pointer &item) {
        try {
            (item->Counsel() ? counselFees : nonCounsel).add(item);
        } catch (const clsRunTimeError &error) {
            if (!m_disbursementsError)
                m_disbursementsError = error;
        }
    });
}

const clsZR3Form::DisbursementsList::Collection &clsZR3Form::CounselDisbursementsCollection() const
{
    raise(m_disbursementsError);
    return m_counselFees;
}

const clsZR3Form::DisbursementsList::Collection &clsZR3Form::NonCounselDisbursementsCollection() const
{
    raise(m_disbursementsError);
    return m_nonCounsel;
}

clsZR3Form::DisbursementsList::Pointer clsZR3Form::CounselDisbursement(int index) const
{
    return itemAt(m_counselFees, index);
}

clsZR3Form::DisbursementsList::Pointer clsZR3Form::NonCounselDisbursement(int index) const
{
    return itemAt(m_nonCounsel, index);
}

void clsZR3Form::renderDerived()
{
    rendered(m_ScheduleOfTimeItems);
    rendered(m_FASItems);
    rendered(m_Disbursements);
}

void clsZR3Form::rendered(const ScheduleOfTimeItemsList &)
{
    RenderScheduleOfTimeItemsForExport();
    RenderAdditionalInformationItems();
}

pugi::xml_node clsZR3Form::listElement(QLatin1String plural) const
{
    return node().child(QString(plural).toLower().toLatin1().constData());
}

// clang-format off
#define ZR3_LIST(Plural, Single)                                                                                       \
    void clsZR3Form::Render##Plural()                                                                                  \
    {                                                                                                                  \
        m_##Plural.render(listElement(QLatin1String(#Plural)), *this);                                                 \
        rendered(m_##Plural);                                                                                          \
    }                                                                                                                  \
    clsZR3Form::Plural##List::Pointer clsZR3Form::Add##Single() { return identified(m_##Plural.add(*this)); }          \
    void clsZR3Form::Delete##Single(int index) { m_##Plural.remove(index); }                                           \
    const clsZR3Form::Plural##List::Pointer &clsZR3Form::Single##ByOrderID(int orderID) const                          \
    {                                                                                                                  \
        return m_##Plural.byOrder(orderID);                                                                            \
    }

#define ZR3_IDENTIFIED_LIST(Plural, Single)                                                                            \
    ZR3_LIST(Plural, Single)                                                                                           \
    const clsZR3Form::Plural##List::Pointer &clsZR3Form::Single##ByUniqueID(const QString &uniqueID) const             \
    {                                                                                                                  \
        return m_##Plural.byIdentity(uniqueID);                                                                        \
    }
// clang-format on
ZR3_LISTS(ZR3_IDENTIFIED_LIST, ZR3_LIST)
#undef ZR3_LIST
#undef ZR3_IDENTIFIED_LIST

#define ZR3_ANY_LIST(Plural, Single)                                                                                   \
    if (m_##Plural.isOf(list))                                                                                         \
        return visit(m_##Plural);

std::vector<pugi::xml_node> clsZR3Form::dropItems(pugi::xml_node list, const std::vector<pugi::xml_node> &elements)
{
    const auto visit = [&](auto &items) { return items.drop(elements); };
    ZR3_LISTS(ZR3_ANY_LIST, ZR3_ANY_LIST)
    return elements;
}

void clsZR3Form::takeUpItems(pugi::xml_node list)
{
    const auto visit = [&](auto &items) { items.takeUp(*this); };
    ZR3_LISTS(ZR3_ANY_LIST, ZR3_ANY_LIST)
}

const clsZR3Item *clsZR3Form::itemOf(pugi::xml_node element) const
{
    const pugi::xml_node list = element.parent();
    const auto visit = [&](auto &items) -> const clsZR3Item * { return items.itemOf(element); };
    ZR3_LISTS(ZR3_ANY_LIST, ZR3_ANY_LIST)
    return nullptr;
}
#undef ZR3_ANY_LIST
