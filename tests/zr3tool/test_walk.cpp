// After any change a claim has the same figures as when it is read again: nothing cached becomes stale.

#include "base/clsRunTimeError.h"
#include "costing/mdTotalsReport.h"
#include "formdata/clsZR3Form.h"
#include "tests/support/clsScriptedUserInterface.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {

const QStringList Words = {QString(), QStringLiteral("0"), QStringLiteral("0.00"), QStringLiteral("12.50"),
    QStringLiteral("1,250.005"), QStringLiteral("-3"), QStringLiteral("99999999999"), QStringLiteral("about ten"),
    QStringLiteral("01:30"), QStringLiteral("12:75"), QStringLiteral("00:00"), QStringLiteral("ACT"),
    QStringLiteral("DPL"), QStringLiteral("HIN"), QStringLiteral("True"), QStringLiteral("False"),
    QStringLiteral("ID1"), QStringLiteral("ID3"), QStringLiteral("ID9"), QStringLiteral("Claim1"),
    QStringLiteral("Claim1A"), QString::fromUtf8("caf\u00e9 & \u20ac")};

class Walk {
public:
    explicit Walk(unsigned seed)
        : m_random(seed)
    { }

    void step(clsZR3Form &form)
    {
        switch (below(10)) {
        case 0: add(form); break;
        case 1: remove(form); break;
        case 2: reorder(form); break;
        case 3: render(form); break;
        case 4: meddle(record(form)); break;
        default: write(record(form)); break;
        }
    }

private:
    using Record = clsXMLRecord *;

    int below(int count) { return int(m_random() % unsigned(count)); }
    const QString &word() { return Words[below(int(Words.size()))]; }

    template <class Visit> void forOneList(clsZR3Form &form, Visit visit)
    {
        switch (below(9)) {
        case 0: visit(form.FeeEarnerGroupsCollection(), &clsZR3Form::DeleteFeeEarnerGroup); break;
        case 1: visit(form.FeeEarnersCollection(), &clsZR3Form::DeleteFeeEarner); break;
        case 2: visit(form.CounselCollection(), &clsZR3Form::DeleteCounsel); break;
        case 3: visit(form.EnhancementsCollection(), &clsZR3Form::DeleteEnhancement); break;
        case 4: visit(form.FASItemsCollection(), &clsZR3Form::DeleteFASItem); break;
        case 5: visit(form.ExpertInvoicesCollection(), &clsZR3Form::DeleteExpertInvoice); break;
        case 6: visit(form.DisbursementsCollection(), &clsZR3Form::DeleteDisbursement); break;
        default: visit(form.ScheduleOfTimeItemsCollection(), &clsZR3Form::DeleteScheduleOfTimeItem); break;
        }
    }

    Record record(clsZR3Form &form)
    {
        if (below(10) == 0)
            return &form;
        if (below(10) == 0)
            return &form.Communications;
        Record found = &form;
        forOneList(form, [&](const auto &collection, auto) {
            if (!collection.empty())
                found = collection[size_t(below(int(collection.size())))].get();
        });
        return found;
    }

    void add(clsZR3Form &form)
    {
        switch (below(8)) {
        case 0: form.AddFeeEarnerGroup(); break;
        case 1: form.AddFeeEarner(); break;
        case 2: form.AddEnhancement(); break;
        case 3: form.AddFASItem(); break;
        case 4: form.AddDisbursement(); break;
        case 5: form.AddCounsel(); break;
        default: form.AddScheduleOfTimeItem(); break;
        }
    }

    /// Removes an item and closes the gap in the order.
    void remove(clsZR3Form &form)
    {
        forOneList(form, [&](const auto &collection, auto take) {
            if (collection.size() < 2)
                return;
            (form.*take)(1 + below(int(collection.size())));
            int order = 0;
            for (const auto &item : collection)
                item->OrderID = ++order;
        });
    }

    void reorder(clsZR3Form &form)
    {
        forOneList(form, [&](const auto &collection, auto) {
            if (collection.empty())
                return;
            auto &one = *collection[size_t(below(int(collection.size())))];
            auto &other = *collection[size_t(below(int(collection.size())))];
            const int order = one.OrderID();
            one.OrderID = other.OrderID();
            other.OrderID = order;
        });
    }

    void render(clsZR3Form &form)
    {
        switch (below(6)) {
        case 0: form.RenderFeeEarnerGroups(); break;
        case 1: form.RenderFeeEarners(); break;
        case 2: form.RenderEnhancements(); break;
        case 3: form.RenderDisbursements(); break;
        case 4: form.RenderScheduleOfTimeItems(); break;
        default: form.LoadElements(); break;
        }
    }

    /// Writes a random value to a property that is neither a key nor the counter of identities.
    void write(Record record)
    {
        const auto &rows = record->properties();
        const clsXMLProperty &property = *rows[size_t(below(int(rows.size())))].property;
        clsXMLField &field = *record->field(QString::fromLatin1(property.name));
        if (property.key || QLatin1String(property.name) == QLatin1String("IDCounter") || isMissing(field))
            return;
        switch (property.kind) {
        case clsXMLKind::Boolean:
            if (below(8) == 0)
                field.setContent("perhaps");
            else
                field.writeBoolean(below(2) == 0);
            break;
        case clsXMLKind::Long: field.writeLong(below(5)); break;
        case clsXMLKind::Text: field.writeText(word()); break;
        }
    }

    static bool isMissing(const clsXMLField &field)
    {
        try {
            field.content();
            return false;
        } catch (const clsRunTimeError &) {
            return true;
        }
    }

    /// Changes the tree directly, in ways that loading leaves unchanged.
    void meddle(Record record)
    {
        pugi::xml_node node = record->XMLNode();
        pugi::xml_node child = node.first_child();
        for (int n = below(10); n > 0 && child.next_sibling(); --n)
            child = child.next_sibling();
        if (!child)
            return;
        switch (below(4)) {
        case 0: node.append_move(child); break;
        case 1: node.prepend_copy(child); break;
        case 2: node.append_copy(child); break;
        default: node.prepend_child("stranger").text().set("?"); break;
        }
    }

    std::mt19937 m_random;
};

/// All figures, and the reasons of those that fail; the error number if a list can't be ordered.
QByteArray figures(clsZR3Form &form)
{
    try {
        form.RenderScheduleOfTimeItemsForExport();
        form.RenderAdditionalInformationItems();
        form.SeparateCounselAndNonCounselDisbursements();
        form.CreateFASCollections();
        const clsTotalsReport report = mdTotalsReport(form);
        return report.json + report.causes.join(u'\n').toUtf8();
    } catch (const clsRunTimeError &error) {
        return "error " + QByteArray::number(error.number());
    }
}

QByteArray figuresReadAnew(const clsZR3Form &form)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("claim.zr3"));
    form.SaveXML(path);
    clsZR3Form again;
    try {
        if (!again.LoadXML(path))
            return "no claim";
    } catch (const clsRunTimeError &error) {
        return "error " + QByteArray::number(error.number());
    }
    return figures(again);
}

class RandomWalk : public testing::TestWithParam<const char *> { };

} // namespace

TEST_P(RandomWalk, LeavesTheFiguresThatTheClaimReadAnewHas)
{
    clsScriptedUserInterface user;
    const clsUserInterfaceScope scope(user);
    for (unsigned seed = 1; seed <= 12; ++seed) {
        clsZR3Form form;
        ASSERT_TRUE(form.LoadXML(mdSamplePath(QString::fromLatin1(GetParam()) + QStringLiteral(".zr3"))));
        Walk walk(seed);
        int compared = 0;
        for (int steps = 1; steps <= 120; ++steps) {
            try {
                walk.step(form);
            } catch (const clsRunTimeError &) { // a list that can't be ordered
            }
            if (steps % 4 != 0)
                continue;
            const QByteArray expected = figuresReadAnew(form);
            ASSERT_EQ(expected, figures(form)) << "seed " << seed << ", step " << steps;
            compared += expected.startsWith('{');
        }
        EXPECT_GE(compared, 15) << "seed " << seed << ": too few claims that could be priced";
    }
}

INSTANTIATE_TEST_SUITE_P(, RandomWalk, testing::Values("housing-typical", "care-typical", "advocacy-only"),
    [](const auto &sample) { return QString::fromLatin1(sample.param).replace(u'-', u'_').toStdString(); });
