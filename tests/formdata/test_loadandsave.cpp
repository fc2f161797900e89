// Loading and saving a claim.

#include "tests/formdata/clsFormTest.h"
#include "tests/formdata/mdFormatTables.h"

#include <algorithm>

namespace {

using Error = clsRunTimeError;

class LoadAndSave : public clsFormTest {
protected:
    /// Expects only the message for a file that is not a claim.
    void expectRefused(const QString &file)
    {
        clsZR3Form form;
        user.messages.clear();
        EXPECT_FALSE(form.LoadXML(file));
        ASSERT_FALSE(user.messages.empty());
        const auto &told = user.messages.back();
        EXPECT_EQ(QStringLiteral("Error"), told.title);
        EXPECT_EQ(
            QStringLiteral("There was a problem opening the selected file. Please ensure that the file is a valid ZR3 "
                           "file and try again"),
            told.text);
        EXPECT_EQ(clsUserInterface::OKOnly, told.buttons);
        EXPECT_FALSE(told.system);
    }

    /// Loads a file with that text and returns what a save writes.
    QByteArray saved(const QByteArray &text)
    {
        clsZR3Form form;
        EXPECT_TRUE(form.LoadXML(put("loaded.zr3", text)));
        form.SaveXML(path("saved.zr3"));
        return bytesOf(path("saved.zr3"));
    }
};

/// A unique value for each property.
struct Marks {
    int next = 0;

    void mark(clsXMLRecord &record)
    {
        for (const clsXMLPropertyPlace &place : record.properties()) {
            clsXMLField &field = *record.field(QString::fromLatin1(place.property->name));
            const std::string name = place.property->name;
            if (name == "OrderID" || name == "TypeOfCase")
                continue;
            switch (place.property->kind) {
            case clsXMLKind::Text: field.writeText(textOf(++next)); break;
            case clsXMLKind::Boolean: field.writeBoolean(++next % 3 != 0); break;
            case clsXMLKind::Long:
                ++next;
                field.writeLong(next * (next % 2 ? 1 : -1));
                break;
            }
        }
    }

    void expectMarked(clsXMLRecord &record, const std::string &where)
    {
        for (const clsXMLPropertyPlace &place : record.properties()) {
            const clsXMLField &field = *record.field(QString::fromLatin1(place.property->name));
            const std::string name = place.property->name;
            if (name == "OrderID" || name == "TypeOfCase")
                continue;
            SCOPED_TRACE(where + '.' + name);
            switch (place.property->kind) {
            case clsXMLKind::Text: EXPECT_EQ(textOf(++next), field.readText()); break;
            case clsXMLKind::Boolean: EXPECT_EQ(++next % 3 != 0, field.readBoolean()); break;
            case clsXMLKind::Long:
                ++next;
                EXPECT_EQ(next * (next % 2 ? 1 : -1), field.readLong());
                break;
            }
        }
    }

    static QString textOf(int number)
    {
        return QStringLiteral("%1 <&>\"' %41+ \u00a350.00 \u20ac \u00e9\u00fe\u00a8\r\n last ").arg(number);
    }
};

template <class Visit> void forEachRecord(clsZR3Form &form, Visit visit)
{
    visit("vzrform", static_cast<clsXMLRecord &>(form));
    forEachSection(form, [&](const char *name, clsXMLRecord &section) { visit(name, section); });
    forEachList(form, [&](const char *name, const char *, const auto &collection) {
        for (const auto &item : collection)
            visit(name, static_cast<clsXMLRecord &>(*item));
    });
}

} // namespace

TEST_F(LoadAndSave, EveryPropertySurvivesTheFile)
{
    clsZR3Form form;
    for (int i = 0; i < 3; ++i)
        addToEachList(form);
    Marks marks;
    forEachRecord(form, [&](const char *, clsXMLRecord &record) { marks.mark(record); });
    const int marked = marks.next;
    forEachList(form, [](const char *, const char *, const auto &collection) {
        for (size_t i = 0; i < collection.size(); ++i)
            collection[i]->OrderID = int(collection.size() - i);
    });
    form.SaveXML(path("marked.zr3"));

    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(path("marked.zr3")));
    Marks read;
    forEachRecord(loaded, [&](const char *where, clsXMLRecord &record) { read.expectMarked(record, where); });
    EXPECT_EQ(marked, read.next);
    forEachList(loaded, [](const char *, const char *list, const auto &collection) {
        ASSERT_EQ(3u, collection.size()) << list;
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(3 - i, collection[size_t(i)]->OrderID()) << list;
    });
    EXPECT_EQ(form.XMLOutput(), loaded.XMLOutput());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(LoadAndSave, TheFileIsOneLineOfAsciiWithoutADeclaration)
{
    clsZR3Form form;
    addToEachList(form);
    Marks marks;
    forEachRecord(form, [&](const char *, clsXMLRecord &record) { marks.mark(record); });
    form.SaveXML(path("claim.zr3"));
    const QByteArray bytes = bytesOf(path("claim.zr3"));
    EXPECT_TRUE(bytes.startsWith("<vzrform><path>"));
    EXPECT_TRUE(bytes.endsWith("</vzrform>"));
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](char c) { return c > ' ' && c < 127; }));
}

TEST_F(LoadAndSave, ANewClaimIsSavedAsItsTemplateAndLoadsAsItself)
{
    const clsZR3Form form;
    form.SaveXML(path("claim.zr3"));
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(path("claim.zr3")));
    EXPECT_EQ(form.XMLOutput(), loaded.XMLOutput());
    loaded.SaveXML(path("again.zr3"));
    EXPECT_EQ(bytesOf(path("claim.zr3")), bytesOf(path("again.zr3")));
}

TEST_F(LoadAndSave, ARootWithNothingInItGetsEveryDefault)
{
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(put("bare.zr3", "<vzrform/>")));
    EXPECT_EQ(clsZR3Form().XMLOutput(), loaded.XMLOutput());
    EXPECT_EQ(QString(), loaded.Version());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(LoadAndSave, AMissingListIsAddedEmptyAtTheEndOfTheRoot)
{
    clsZR3Form form;
    form.XMLNode().remove_child("fasitems");
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(put("old.zr3", form.XMLOutput().toLatin1())));
    EXPECT_STREQ("fasitems", loaded.XMLNode().last_child().name());
    EXPECT_TRUE(loaded.FASItemsCollection().empty());
    EXPECT_EQ(1, loaded.AddFASItem()->OrderID());
}

TEST_F(LoadAndSave, SectionsAndItemsGainWhatTheyLackAtTheirEnd)
{
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(put("old.zr3",
        "<vzrform><latesubmission><explanation>too+late</explanation></latesubmission>"
        "<counsel><counsel><name>A+B</name><orderid>1</orderid></counsel></counsel></vzrform>")));
    EXPECT_EQ(QStringLiteral("<latesubmission><explanation>too+late</explanation><ddate/></latesubmission>"),
        loaded.LateSubmission.XMLOutput());
    EXPECT_EQ(QStringLiteral(
                  "<counsel><name>A+B</name><orderid>1</orderid><uniqueid/><accountnumber/><vat>False</vat></counsel>"),
        loaded.Counsel(1)->XMLOutput());
    EXPECT_EQ(QStringList({QStringLiteral("latesubmission"), QStringLiteral("counsel"), QStringLiteral("path")}),
        childNames(loaded.XMLNode()).mid(0, 3));
}

TEST_F(LoadAndSave, EachItemClassGainsItsDefaults)
{
    const std::pair<const char *, const char *> lists[] = {
        {"feeearnergroups", "feeearnergroup"},
        {"feeearners", "feeearner"},
        {"counsel", "counsel"},
        {"enhancements", "enhancement"},
        {"fasitems", "fasitem"},
        {"scheduleoftimeitems", "scheduleoftimeitem"},
        {"expertinvoices", "expertinvoice"},
        {"jointinstructions", "jointinstruction"},
        {"disbursements", "disbursement"},
    };
    for (const auto &[list, item] : lists) {
        clsZR3Form loaded;
        const QByteArray text = QByteArray("<vzrform><") + list + "><" + item + "><orderid>1</orderid></" + item + "></"
            + list + "></vzrform>";
        ASSERT_TRUE(loaded.LoadXML(put("old.zr3", text)));
        const pugi::xml_node node = loaded.XMLNode().child(list).first_child();
        for (const FormatRow &row : elementTables().at(item))
            if (row.name != "orderid") {
                ASSERT_TRUE(node.child(row.name.c_str())) << item << ' ' << row.name;
                EXPECT_EQ(row.initially, node.child_value(row.name.c_str())) << item << ' ' << row.name;
            }
    }
}

TEST_F(LoadAndSave, ChildrenOfAListAreItemsWhateverTheirNames)
{
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(put("odd.zr3",
        "<vzrform><counsel><!-- none --><barrister><name>A</name></barrister></counsel>"
        "</vzrform>")));
    ASSERT_EQ(1u, loaded.CounselCollection().size());
    EXPECT_EQ(QStringLiteral("A"), loaded.Counsel(1)->Name());
}

TEST_F(LoadAndSave, WhatTheProgramDoesNotKnowStaysInItsPlaceToTheLastCharacter)
{
    const QByteArray unknown[] = {
        "<later/>",
        "<later>  two  blanks  </later>",
        "<later kind=\"x y\" other=\"1\"><deep><deeper>a+b%2E</deeper><deeper/></deep></later>",
        "<!-- by hand: <b> -->",
        "<?note keep?>",
        "<later>caf\xe9 \xa3 &lt;&amp;&gt;</later>",
    };
    const QByteArray known = clsZR3Form().XMLOutput().toLatin1();
    for (const QByteArray &extra : unknown) {
        // In the root, in a section, in a list and in an item.
        for (const char *before : {"<path/>", "<vatrate>", "<firstname/>", "</counselunderfgf>", "</vzrform>"}) {
            QByteArray text = known;
            text.replace(before, extra + before);
            EXPECT_EQ(text, saved(text)) << before;
        }
        QByteArray item = known;
        item.replace("<counsel/>",
            "<counsel><counsel><orderid>1</orderid>" + extra
                + "<uniqueid>ID1</uniqueid><name/><accountnumber/><vat>False</vat></counsel></counsel>");
        EXPECT_EQ(item, saved(item));
    }
}

TEST_F(LoadAndSave, TheOrderOfTheFileIsKept)
{
    clsZR3Form form;
    // Every child of the root, in reverse order.
    for (pugi::xml_node child = form.XMLNode().last_child(); child;) {
        const pugi::xml_node previous = child.previous_sibling();
        form.XMLNode().append_move(child);
        child = previous;
    }
    const QByteArray backwards = form.XMLOutput().toLatin1();
    ASSERT_TRUE(backwards.startsWith("<vzrform><debtorsdetails>"));
    EXPECT_EQ(backwards, saved(backwards));
}

TEST_F(LoadAndSave, CarriedElementsKeepTheirContent)
{
    QByteArray text = clsZR3Form().XMLOutput().toLatin1();
    text.replace("<escapedyes/>", "<escapedyes>True</escapedyes>");
    text.replace("<familyproceedings/>", "<familyproceedings>x+y</familyproceedings>");
    ASSERT_TRUE(text.contains("<escapedyes>True") && text.contains(">x+y<"));
    EXPECT_EQ(text, saved(text));
}

TEST_F(LoadAndSave, WhiteSpaceBetweenElementsIsDropped)
{
    QByteArray text = clsZR3Form().XMLOutput().toLatin1();
    const QByteArray tight = text;
    text.replace("><", ">\r\n\t <");
    EXPECT_EQ(tight, saved(text));
}

TEST_F(LoadAndSave, WhatIsNoClaimIsRefusedWithTheToldMessage)
{
    QByteArray rubbish;
    for (int i = 0; i < 10'000; ++i)
        rubbish += char(i * 7919 % 256);
    const QByteArray claim = clsZR3Form().XMLOutput().toLatin1();
    const QByteArray rows[] = {
        "",
        "no claim",
        "{}",
        "<preferencesdatabase/>",
        "<VZRFORM/>",
        "<other><vzrform/></other>",
        claim.left(claim.size() / 2),
        claim.chopped(1),
        claim.mid(1),
        rubbish,
        "PK\x03\x04" + rubbish,
        QByteArray(1000, '\0'),
        "<vzrform>" + QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000) + "</vzrform>",
        QByteArray("<vzrform>").repeated(100'000),
    };
    for (const QByteArray &bytes : rows) {
        expectRefused(put("bad.zr3", bytes));
        EXPECT_EQ(1u, user.messages.size()) << bytes.left(20).constData();
    }
}

TEST_F(LoadAndSave, AFileThatCanNotBeReadIsToldFirst)
{
    expectRefused(path("missing.zr3"));
    ASSERT_EQ(2u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
    EXPECT_TRUE(user.messages[0].system);
    EXPECT_TRUE(user.messages[0].text.contains(path("missing.zr3")));
    expectRefused(folder.path());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
}

TEST_F(LoadAndSave, AGapInAnOrderEndsTheLoad)
{
    for (const char *order : {"0", "2", "", "x"}) {
        clsZR3Form form;
        const QByteArray text = QByteArray("<vzrform><disbursements><disbursement><orderid>") + order
            + "</orderid></disbursement></disbursements></vzrform>";
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { form.LoadXML(put("gap.zr3", text)); })) << order;
    }
}

TEST_F(LoadAndSave, ALoadThatEndsMidwayLeavesAnEmptyClaimThatCanBeUsed)
{
    const QString gap = put("gap.zr3",
        "<vzrform><notes>lost</notes><feeearners><feeearner><orderid>1</orderid></feeearner>"
        "</feeearners><clientdetails><surname>Lost</surname></clientdetails><disbursements>"
        "<disbursement><orderid>2</orderid></disbursement></disbursements></vzrform>");
    clsZR3Form form;
    form.Notes = QStringLiteral("kept by nobody");
    addToEachList(form);
    ASSERT_EQ(Error::ObjectNotSet, errorOf([&] { form.LoadXML(gap); }));
    EXPECT_EQ(clsZR3Form().XMLOutput(), form.XMLOutput());
    EXPECT_EQ(QString(), form.Notes());
    EXPECT_EQ(QString(), form.ClientDetails.Surname());
    forEachList(
        form, [](const char *, const char *list, const auto &collection) { EXPECT_TRUE(collection.empty()) << list; });

    form.ClientDetails.Surname = QStringLiteral("Usable");
    addToEachList(form);
    EXPECT_EQ(1, form.Disbursement(1)->OrderID());
    form.SaveXML(path("saved.zr3"));
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(path("saved.zr3")));
    EXPECT_EQ(form.XMLOutput(), loaded.XMLOutput());
    EXPECT_EQ(QStringLiteral("Usable"), loaded.ClientDetails.Surname());
}

namespace {

/// Expects the object error when any property of an item whose claim no longer exists is read or written.
void expectReleased(clsXMLRecord &item)
{
    for (const clsXMLPropertyPlace &place : item.properties()) {
        clsXMLField &field = *item.field(QString::fromLatin1(place.property->name));
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { field.readText(); })) << place.property->name;
        EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { field.writeText(QStringLiteral("x")); })) << place.property->name;
    }
    EXPECT_FALSE(item.XMLNode());
}

} // namespace

TEST_F(LoadAndSave, AnItemThatOutlivesItsClaimIsTheObjectError)
{
    const QString gap
        = put("gap.zr3", "<vzrform><fasitems><fasitem><orderid>2</orderid></fasitem></fasitems></vzrform>");
    const QString whole = put("whole.zr3", "<vzrform/>");
    for (const char *end : {"deleted", "loaded", "load that fails", "load that throws"}) {
        SCOPED_TRACE(end);
        auto form = std::make_unique<clsZR3Form>();
        addToEachList(*form);
        std::vector<std::shared_ptr<clsXMLRecord>> items;
        forEachList(*form, [&](const char *, const char *, const auto &collection) { items.push_back(collection[0]); });
        const QString how = QString::fromLatin1(end);
        if (how == QStringLiteral("deleted")) {
            form.reset();
        } else if (how == QStringLiteral("loaded")) {
            ASSERT_TRUE(form->LoadXML(whole));
        } else if (how == QStringLiteral("load that throws")) {
            ASSERT_EQ(Error::ObjectNotSet, errorOf([&] { form->LoadXML(gap); }));
        } else {
            ASSERT_FALSE(form->LoadXML(put("none.zr3", "none")));
            for (const auto &item : items)
                EXPECT_TRUE(item->XMLNode()); // the claim was not changed
            continue;
        }
        for (const auto &item : items)
            expectReleased(*item);
    }
}

TEST_F(LoadAndSave, AGapAmongFeeEarnersDoesNot)
{
    clsZR3Form form;
    EXPECT_TRUE(form.LoadXML(put("gap.zr3",
        "<vzrform><feeearners><feeearner><orderid>5</orderid></feeearner></feeearners>"
        "</vzrform>")));
    EXPECT_EQ(5, form.FeeEarner(1)->OrderID());
}

TEST_F(LoadAndSave, ABadValueIsFoundWhenItIsReadAndNotBefore)
{
    QByteArray text = clsZR3Form().XMLOutput().toLatin1();
    text.replace("<vat>True</vat>", "<vat>perhaps</vat>");
    clsZR3Form form;
    ASSERT_TRUE(form.LoadXML(put("odd.zr3", text)));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.VAT(); }));
    form.SaveXML(path("saved.zr3"));
    EXPECT_EQ(text, bytesOf(path("saved.zr3")));
}

TEST_F(LoadAndSave, ATickThatIsNoneKeepsNoClaimFromBeingLoaded)
{
    clsZR3Form form;
    ASSERT_TRUE(form.LoadXML(put("odd.zr3",
        "<vzrform><formtype>Claim1A</formtype><excludenonadvocacy>perhaps</excludenonadvocacy><disbursements>"
        "<disbursement><orderid>1</orderid><counsel>perhaps</counsel></disbursement></disbursements>"
        "<scheduleoftimeitems><scheduleoftimeitem><orderid>1</orderid></scheduleoftimeitem></scheduleoftimeitems>"
        "</vzrform>")));
    EXPECT_EQ(1u, form.ScheduleOfTimeItemsForExportCollection().size());
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { form.CheckDerivedCollections(); }));
    ASSERT_TRUE(form.LoadXML(put("good.zr3", "<vzrform/>")));
    form.CheckDerivedCollections();
}

TEST_F(LoadAndSave, LoadingShowsItsProgress)
{
    clsZR3Form form;
    form.SaveXML(path("claim.zr3"));
    user.progress.clear();
    user.progressCleared = 0;
    ASSERT_TRUE(form.LoadXML(path("claim.zr3")));
    ASSERT_EQ(1u, user.progress.size());
    EXPECT_EQ(QStringLiteral("Loading , please wait..."), user.progress[0].text);
    EXPECT_EQ(1, user.progress[0].value);
    EXPECT_EQ(1, user.progress[0].maximum);
    EXPECT_EQ(1, user.progressCleared);
}

TEST_F(LoadAndSave, LoadingRebuildsTheDerivedCollections)
{
    clsZR3Form form;
    addToEachList(form);
    form.ScheduleOfTimeItem(1)->Description = QStringLiteral("x");
    form.FASItem(1)->ExceptionalTravelReason = QStringLiteral("x");
    form.SaveXML(path("claim.zr3"));
    clsZR3Form loaded;
    ASSERT_TRUE(loaded.LoadXML(path("claim.zr3")));
    EXPECT_EQ(1, loaded.ScheduleOfTimeItem(1)->SOTItemNumber);
    EXPECT_EQ(loaded.ScheduleOfTimeItem(1), loaded.AdditionalInformationItem(1));
    EXPECT_EQ(loaded.FASItem(1), loaded.FASTravelBoltOnsCollection().at(0));
    EXPECT_EQ(loaded.Disbursement(1), loaded.NonCounselDisbursement(1));
}

TEST_F(LoadAndSave, LoadingAnotherClaimIntoTheSameObjectReplacesItWhole)
{
    clsZR3Form form;
    addToEachList(form);
    form.Notes = QStringLiteral("first");
    ASSERT_TRUE(form.LoadXML(put("bare.zr3", "<vzrform/>")));
    EXPECT_EQ(clsZR3Form().XMLOutput(), form.XMLOutput());
    forEachList(
        form, [](const char *, const char *list, const auto &collection) { EXPECT_TRUE(collection.empty()) << list; });
    EXPECT_TRUE(form.NonCounselDisbursementsCollection().empty());
    form.ClientDetails.Surname = QStringLiteral("New");
    EXPECT_TRUE(form.XMLOutput().contains(QStringLiteral("<surname>New</surname>")));
}

TEST_F(LoadAndSave, ALoadDoesNotTouchTheFile)
{
    const QByteArray text = "<vzrform>\r\n</vzrform>";
    clsZR3Form form;
    ASSERT_TRUE(form.LoadXML(put("old.zr3", text)));
    EXPECT_EQ(text, bytesOf(path("old.zr3")));
    EXPECT_EQ(QString(), form.path()); // opening a claim sets it, not loading
}

TEST_F(LoadAndSave, AFailedSaveShowsItsBoxAndKeepsTheClaim)
{
    clsZR3Form form;
    form.Notes = QStringLiteral("kept");
    form.SaveXML(path("missing/claim.zr3"));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("kept"), form.Notes());
}

TEST(FormFileName, IsWhatFollowsTheLastSlashOfEitherKind)
{
    const std::pair<const char *, const char *> rows[] = {
        {"C:\\a\\b.zr3", "b.zr3"},
        {"C:/a/b.zr3", "b.zr3"},
        {"b.zr3", "b.zr3"},
        {"/home/a b/c.zr3", "c.zr3"},
        {"C:\\a/b.zr3", "b.zr3"},
        {"C:/a\\b.zr3", "b.zr3"},
        {"C:\\a\\", ""},
    };
    for (const auto &[path, name] : rows) {
        clsZR3Form form;
        form.path = QString::fromLatin1(path);
        EXPECT_EQ(QString::fromLatin1(name), form.FormFileName()) << path;
        EXPECT_EQ(QString::fromLatin1(path), form.path()) << path;
    }
}

TEST(FormFileName, OfAnUnsavedClaimIsFixedAndHasNotAClaimsExtension)
{
    const clsZR3Form form;
    EXPECT_FALSE(form.FormFileName().isEmpty());
    EXPECT_FALSE(form.FormFileName().endsWith(QStringLiteral("zr3"), Qt::CaseInsensitive));
    EXPECT_EQ(form.FormFileName(), clsZR3Form().FormFileName());
    EXPECT_FALSE(form.FormFileName().contains(u'/'));
}

TEST(IncludePage, IsTheFlagOfThatNumber)
{
    clsZR3Form form;
    form.IncludePage7 = false;
    for (int page = 1; page <= 13; ++page)
        EXPECT_EQ(page != 7, form.IncludePage(page)) << page;
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.IncludePage(0); }));
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { form.IncludePage(14); }));
}
