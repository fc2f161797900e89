#pragma once

#include "costing/comparing/mdChangesInWords.h"
#include "costing/comparing/mdCompareClaims.h"
#include "tests/formdata/clsClaimTest.h"

/// A claim, and a copy of it for the test to change.
class clsComparingTest : public clsClaimTest {
protected:
    void SetUp() override
    {
        form.VATRate = "20.00"_q;
        group = claim.addGroup("60.00");
        group->Reference = "A"_q;
        feeEarner = claim.addFeeEarner(group, "AB");
        for (const char *day : {"01/06/25", "02/06/25", "03/06/25"}) {
            const auto item = claim.addItem(feeEarner, "01:00");
            item->dDate = QString::fromLatin1(day);
        }
        now.takeCopyOf(form);
    }

    clsClaimChanges changes() const
    {
        const QString before = form.XMLOutput();
        const QString after = now.XMLOutput();
        const clsClaimChanges result = mdCompareClaims(form, now);
        EXPECT_EQ(before, form.XMLOutput());
        EXPECT_EQ(after, now.XMLOutput());
        return result;
    }
    /// List, kind, old item, new item, effect, and the names of the fields.
    QStringList items() const
    {
        static const char *const kinds[] = {"added", "removed", "changed"};
        QStringList result;
        for (const clsItemChange &item : changes().Items) {
            QStringList names;
            for (const clsFieldChange &field : item.Fields)
                names << field.Property;
            result << QStringList {item.List, QString::fromLatin1(kinds[item.Change]), QString::number(item.OldItem),
                QString::number(item.NewItem), item.Effect, names.join(u',')}
                          .join(u'|');
        }
        return result;
    }
    clsClaimChanges inWords() const { return mdChangesInWords(changes(), form, now); }
    /// The fields of an item as shown to the user: name, before, after.
    QStringList itemInWords(size_t place) const
    {
        const clsClaimChanges words = inWords();
        QStringList result;
        if (place < words.Items.size())
            for (const clsFieldChange &field : words.Items[place].Fields)
                result << QStringList {field.Property, field.Old, field.New}.join(u'|');
        return result;
    }
    QStringList fields() const
    {
        QStringList result;
        for (const clsFieldChange &field : changes().Fields)
            result << QStringList {field.Screen, field.Property, field.Old, field.New}.join(u'|');
        return result;
    }
    /// A total before and after, separated by a bar; empty if it is the same.
    QString total(const char *key) const
    {
        for (const clsTotalChange &change : changes().Totals)
            if (change.Key == QLatin1String(key))
                return change.Old + u'|' + change.New;
        return {};
    }

    clsZR3Form now;
    clsTestClaim::Group group;
    clsTestClaim::FeeEarner feeEarner;
};
