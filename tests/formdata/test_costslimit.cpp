// The limit of costs: an element that exists only while a limit is set.

#include "formdata/mdClaimState.h"
#include "formdata/mdCostsLimit.h"
#include "formdata/mdRecordInWords.h"
#include "formdata/mdXMLChanges.h"
#include "tests/formdata/clsFormTest.h"
#include "tests/support/mdTestPaths.h"

namespace {

class CostsLimit : public clsFormTest {
protected:
    static QByteArray bytesOf(const QString &file)
    {
        QFile read(file);
        EXPECT_TRUE(read.open(QIODevice::ReadOnly));
        return read.readAll();
    }
    QByteArray saved(const clsZR3Form &form) const
    {
        const QString file = path("saved.zr3");
        EXPECT_TRUE(form.SaveXML(file));
        return bytesOf(file);
    }
    static int limitsIn(const QByteArray &bytes) { return int(bytes.count("<costslimit>")); }
};

} // namespace

TEST_F(CostsLimit, IsNotThereUntilItIsSet)
{
    clsZR3Form form;
    EXPECT_EQ(QString(), mdStoredCostsLimit(form));
    EXPECT_FALSE(mdCostsLimit(form));
    EXPECT_EQ(0, limitsIn(saved(form)));
}

TEST_F(CostsLimit, IsAppendedAndSurvivesSaveAndOpen)
{
    clsZR3Form form;
    ASSERT_TRUE(form.LoadXML(mdSamplePath("housing-typical.zr3"_q)));
    const QString before = form.XMLOutput();
    mdSetCostsLimit(form, "12000.00"_q);
    EXPECT_EQ("costslimit"_q, childNames(form.XMLNode()).last());
    EXPECT_EQ(before.size() + "<costslimit>12000%2E00</costslimit>"_q.size(), form.XMLOutput().size());
    saved(form);
    clsZR3Form again;
    ASSERT_TRUE(again.LoadXML(path("saved.zr3")));
    EXPECT_EQ("12000.00"_q, mdStoredCostsLimit(again));
    EXPECT_EQ(MoneyFromText(u"12000"), mdCostsLimit(again));
    EXPECT_EQ(form.XMLOutput(), again.XMLOutput());
    clsZR3Form copy;
    copy.takeCopyOf(again);
    EXPECT_EQ("12000.00"_q, mdStoredCostsLimit(copy));
}

TEST_F(CostsLimit, LeavesTheSameBytesWhenItIsRemoved)
{
    for (const char *none : {"", "0.00", "0"}) {
        clsZR3Form form;
        ASSERT_TRUE(form.LoadXML(mdSamplePath("housing-typical.zr3"_q)));
        const QByteArray before = saved(form);
        mdSetCostsLimit(form, "12000.00"_q);
        mdSetCostsLimit(form, "1.50"_q);
        EXPECT_EQ(1, limitsIn(saved(form)));
        mdSetCostsLimit(form, QString::fromLatin1(none));
        EXPECT_EQ(before, saved(form)) << none;
    }
}

TEST_F(CostsLimit, IsWrittenAsAllTextsAre)
{
    clsZR3Form form;
    mdSetCostsLimit(form, "12,000"_q);
    EXPECT_EQ("12%2C000", contentOf(form.XMLNode(), "costslimit"));
    EXPECT_EQ("12,000"_q, mdStoredCostsLimit(form));
    EXPECT_EQ(MoneyFromText(u"12000"), mdCostsLimit(form));
}

// A claim whose elements were handed out is compared whole at each undo and each activation of the window.
TEST_F(CostsLimit, IsReadWithoutHandingOutElements)
{
    clsZR3Form form;
    const auto item = form.AddDisbursement();
    const quint64 before = XMLChanges::lastHandOut();
    EXPECT_EQ(QString(), mdStoredCostsLimit(form));
    EXPECT_FALSE(mdCostsLimit(form));
    mdRecordInWords(*item);
    mdClaimState(form);
    EXPECT_EQ(before, XMLChanges::lastHandOut());
    form.XMLNode();
    EXPECT_LT(before, XMLChanges::lastHandOut());
}

TEST_F(CostsLimit, IsNoneWhereTheTextIsNoAmountAboveZero)
{
    clsZR3Form form;
    for (const char *text : {"twelve", "-5", "999999999999999999"}) {
        mdSetCostsLimit(form, QString::fromLatin1(text));
        EXPECT_EQ(QString::fromLatin1(text), mdStoredCostsLimit(form));
        EXPECT_FALSE(mdCostsLimit(form)) << text;
    }
    form.XMLNode().append_child("costslimit").text().set("7");
    mdSetCostsLimit(form, QString());
    EXPECT_EQ(0, limitsIn(saved(form))) << "both of two";
}
