// The templates, the properties and the file format agree, name by name.

#include "formdata/clsZR3PreferencesDatabase.h"
#include "formdata/mdXMLTemplate.h"
#include "tests/formdata/clsFormTest.h"
#include "tests/formdata/mdFormatTables.h"

#include <set>

namespace {

const std::map<std::string, const char *> Resources = {
    {"vzrform", "xmlZR3Form"},
    {"feeearnergroup", "xmlZR3FeeEarnerGroup"},
    {"feeearner", "xmlZR3FeeEarner"},
    {"counsel", "xmlZR3Counsel"},
    {"enhancement", "xmlZR3Enhancement"},
    {"scheduleoftimeitem", "xmlZR3ScheduleOfTimeItem"},
    {"disbursement", "xmlZR3Disbursement"},
    {"expertinvoice", "xmlZR3ExpertInvoice"},
    {"jointinstruction", "xmlZR3JointInstruction"},
    {"fasitem", "xmlZR3FASItem"},
    {"preferencesdatabase", "xmlZR3PreferencesDatabase"},
    {"replacement", "xmlZR3Replacement"},
    {"rateset", "xmlZR3RateSet"},
};

void expectChildren(pugi::xml_node node, const std::string &table)
{
    SCOPED_TRACE(table);
    const std::vector<FormatRow> &rows = elementTables().at(table);
    QStringList expected;
    for (const FormatRow &row : rows)
        expected << QString::fromStdString(row.name);
    EXPECT_EQ(expected.join(u' '), childNames(node).join(u' '));
    for (const FormatRow &row : rows) {
        const pugi::xml_node child = node.child(row.name.c_str());
        EXPECT_FALSE(child.first_attribute()) << row.name;
        if (row.kind == Section || (row.kind == Carried && table == "vzrform"))
            expectChildren(child, row.name);
        else if (row.kind == List)
            EXPECT_TRUE(childNames(child).isEmpty()) << row.name;
        else
            EXPECT_EQ(row.initially, child.child_value()) << row.name;
    }
}

FormatKind kindOf(clsXMLKind kind)
{
    switch (kind) {
    case clsXMLKind::Text: return Text;
    case clsXMLKind::Boolean: return Boolean;
    case clsXMLKind::Long: return Long;
    }
    return Carried;
}

void expectProperties(const clsXMLRecord &record, const std::string &table)
{
    SCOPED_TRACE(table);
    const std::vector<FormatRow> &rows = propertyTables().at(table);
    ASSERT_EQ(rows.size(), record.properties().size());
    for (size_t i = 0; i < rows.size(); ++i) {
        const clsXMLProperty &property = *record.properties()[i].property;
        EXPECT_EQ(rows[i].name, property.name);
        EXPECT_EQ(rows[i].kind, kindOf(property.kind)) << rows[i].name;
        EXPECT_EQ(QString::fromStdString(rows[i].name).toLower(), QString::fromLatin1(property.element));
    }
}

} // namespace

TEST(Format, TheTemplatesHaveExactlyTheElementsOrderAndDefaults)
{
    for (const auto &[root, resource] : Resources) {
        const pugi::xml_node node = mdXMLTemplate(resource);
        EXPECT_EQ(root, node.name());
        expectChildren(node, root);
    }
}

TEST(Format, APropertyIsTheElementOfItsNameInLowerCaseAndOfItsKind)
{
    for (const auto &[table, rows] : propertyTables())
        for (const FormatRow &property : rows) {
            const std::string element = QString::fromStdString(property.name).toLower().toStdString();
            // The only member that never had an element.
            if (table == "scheduleoftimeitem" && element == "typeofcase")
                continue;
            const std::vector<FormatRow> &elements = elementTables().at(table);
            const auto found = std::find_if(
                elements.begin(), elements.end(), [&](const FormatRow &row) { return row.name == element; });
            ASSERT_NE(elements.end(), found) << table << ' ' << element;
            EXPECT_EQ(found->kind, property.kind) << table << ' ' << element;
        }
}

TEST(Format, EveryElementButTheCarriedOnesHasAProperty)
{
    for (const auto &[table, elements] : elementTables()) {
        if (table == "counselunderfgf")
            continue;
        std::set<std::string> properties;
        for (const FormatRow &row : propertyTables().at(table))
            properties.insert(QString::fromStdString(row.name).toLower().toStdString());
        if (table == "vzrform")
            properties.insert("idcounter"); // read and written only by GenerateUniqueID
        for (const FormatRow &row : elements)
            if (row.kind == Text || row.kind == Boolean || row.kind == Long) {
                EXPECT_TRUE(properties.contains(row.name)) << table << ' ' << row.name;
            }
    }
}

TEST(Format, TheFormsPropertiesAreThoseOfTheTable)
{
    const clsZR3Form form;
    const std::vector<FormatRow> &rows = propertyTables().at("vzrform");
    EXPECT_EQ(rows.size() + 1, form.properties().size()); // the counter of identities is not a public member
    for (const FormatRow &row : rows) {
        const clsXMLField *field = form.field(QString::fromStdString(row.name));
        ASSERT_TRUE(field) << row.name;
        EXPECT_EQ(row.kind, kindOf(field->property().kind)) << row.name;
        EXPECT_EQ(QString::fromStdString(row.name).toLower(), QString::fromLatin1(field->property().element));
    }
}

TEST(Format, TheSectionsPropertiesAreThoseOfTheTablesInTheirOrder)
{
    clsZR3Form form;
    int count = 0;
    forEachSection(form, [&](const char *table, const clsZR3Section &section) {
        expectProperties(section, table);
        EXPECT_STREQ(table, section.elementName());
        EXPECT_STREQ(table, section.XMLNode().name());
        ++count;
    });
    EXPECT_EQ(14, count);
}

TEST(Format, TheItemsPropertiesAreThoseOfTheTablesInTheirOrder)
{
    clsZR3Form form;
    addToEachList(form);
    int count = 0;
    forEachList(form, [&](const char *table, const char *list, const auto &collection) {
        ASSERT_EQ(1u, collection.size()) << list;
        expectProperties(*collection[0], table);
        EXPECT_STREQ(table, collection[0]->XMLNode().name());
        EXPECT_STREQ(list, collection[0]->XMLNode().parent().name());
        ++count;
    });
    EXPECT_EQ(9, count);
}

TEST(Format, ThePreferencesItemsHaveThePropertiesOfTheTables)
{
    expectProperties(clsZR3Replacement(), "replacement");
    expectProperties(clsZR3RateSet(), "rateset");
}

TEST(Format, APropertyIsFoundByItsExactNameOnly)
{
    clsZR3Form form;
    ASSERT_TRUE(form.LateSubmission.field(u"dDate"));
    EXPECT_EQ(static_cast<clsXMLField *>(&form.LateSubmission.dDate), form.LateSubmission.field(u"dDate"));
    EXPECT_FALSE(form.LateSubmission.field(u"DDate"));
    EXPECT_FALSE(form.LateSubmission.field(u"ddate"));
    EXPECT_FALSE(form.LateSubmission.field(u""));
}

TEST(Format, ANewClaimHasEveryPropertyAtItsDefault)
{
    clsZR3Form form;
    const auto expectDefaults = [](const clsXMLRecord &record, const std::string &table) {
        for (const FormatRow &row : elementTables().at(table)) {
            for (const clsXMLPropertyPlace &place : record.properties()) {
                if (row.name != place.property->element)
                    continue;
                const clsXMLField &field = *record.field(QString::fromLatin1(place.property->name));
                if (row.kind == Text)
                    EXPECT_EQ(QString::fromStdString(row.initially).replace(QStringLiteral("%3A"), QStringLiteral(":")),
                        field.readText())
                        << table << ' ' << row.name;
                else if (row.kind == Boolean)
                    EXPECT_EQ(row.initially == "True", field.readBoolean()) << table << ' ' << row.name;
                else
                    EXPECT_EQ(0, field.readLong()) << table << ' ' << row.name; // a whole number always starts at 0
            }
        }
    };
    expectDefaults(form, "vzrform");
    forEachSection(form, [&](const char *table, const clsZR3Section &section) { expectDefaults(section, table); });
    EXPECT_EQ(QStringLiteral("00:00"), form.TimeSpent());
    EXPECT_EQ(QStringLiteral("17.50"), form.VATRate());
    EXPECT_TRUE(form.IncludePage(1));
    EXPECT_TRUE(form.IncludePage(13));
}
