#pragma once

#include "commands/clsFirm.h"
#include "commands/mdFirmFile.h"
#include "commands/mdFirmTable.h"
#include "tests/commands/clsDocumentTest.h"

inline const QByteArray FirmHeader = "Kind,Reference,Name,Group,VAT,VAT Rate,Hourly Rate,Fill New Claims\r\n";

/// Tests of the firm's table and file.
class clsFirmTest : public clsDocumentTest {
protected:
    QString file() const { return path("program/Databases/Firm.csv"); }
    QString aside() const { return path("program/Databases/Firm.csv.broken"); }
    void putFirm(const QByteArray &lines) const { put(file(), FirmHeader + lines); }
    /// Why a table can't be read.
    static QString trouble(const QByteArray &lines)
    {
        clsFirm firm;
        return mdReadFirmCsv(FirmHeader + lines, firm);
    }
};

/// A text for each property; some need a guard in a table.
inline QString firmTextFor(const char *property, int number)
{
    const QString names[] = {QStringLiteral("A, \"B\"; C"), QStringLiteral("=1+1"), QStringLiteral("'=x"),
        QStringLiteral("\u00c6\u20ac\u03a9"), QStringLiteral("two\r\nlines"), QStringLiteral("-")};
    return names[number % 6] + QString::fromLatin1(property) + QString::number(number);
}

inline bool isFirmAmount(const char *property)
{
    return QByteArray(property).endsWith("Rate");
}

/// Sets each of a record's properties to a different value, except those that the lists maintain.
inline void fillRecord(clsXMLRecord &record, int &number)
{
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const char *name = place.property->name;
        clsXMLField &field = *record.field(QString::fromLatin1(name));
        if (place.property->kind == clsXMLKind::Boolean)
            field.writeBoolean(++number % 2 == 0);
        else if (isFirmAmount(name))
            field.writeText(QString::number(++number) + QStringLiteral(".25"));
        else if (place.property->kind == clsXMLKind::Text && !QByteArray(name).endsWith("UniqueID"))
            field.writeText(firmTextFor(name, ++number));
    }
}

inline std::unique_ptr<clsFirm> filledFirm()
{
    auto firm = std::make_unique<clsFirm>();
    int number = 0;
    firm->fillsNewClaims = true;
    firm->form.VAT = true;
    firm->form.VATRate = QStringLiteral("20.00");
    fillRecord(firm->form.SolicitorDetails, number);
    firm->form.SolicitorDetails.CaseReference = QString();
    for (int i = 0; i < 3; ++i) {
        fillRecord(*firm->form.AddFeeEarnerGroup(), number);
        fillRecord(*firm->form.AddCounsel(), number);
    }
    for (int i = 0; i < 4; ++i) {
        const auto feeEarner = firm->form.AddFeeEarner();
        fillRecord(*feeEarner, number);
        feeEarner->GroupUniqueID = firm->form.FeeEarnerGroup(i % 3 + 1)->UniqueID();
    }
    return firm;
}

/// All values of a record except its identities.
inline QStringList valuesOf(const clsXMLRecord &record)
{
    QStringList values;
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        if (!name.endsWith(QLatin1String("UniqueID")))
            values << name + u'=' + record.field(name)->readText();
    }
    return values;
}

inline QStringList valuesOf(const clsZR3Form &form)
{
    QStringList values {form.VATRate(), form.VAT() ? QStringLiteral("VAT") : QString()};
    values << valuesOf(form.SolicitorDetails);
    for (const auto &group : form.FeeEarnerGroupsCollection())
        values << valuesOf(*group);
    for (const auto &feeEarner : form.FeeEarnersCollection())
        values << valuesOf(*feeEarner) << QString::number(feeEarner->Group()->Index);
    for (const auto &counsel : form.CounselCollection())
        values << valuesOf(*counsel);
    return values;
}
