// The blank items check, and bringing claims up to date.

#include "base/mdGetVersionInfo.h"
#include "formdata/mdXMLControl.h"
#include "tests/zr3tool/clsToolTest.h"

namespace {

class ToolCheck : public clsToolTest { };

class ToolSave : public clsToolTest {
protected:
    /// A claim's text with the stamps of a save to that path.
    static QByteArray stamped(QByteArray text, const QString &newFile)
    {
        const auto put = [&](const char *element, const QString &value) {
            const QByteArray open = QByteArray("<") + element + ">";
            const QByteArray close = QByteArray("</") + element + ">";
            const QByteArray filled = open + XMLEncodeText(value) + close;
            const qsizetype from = text.indexOf(open);
            if (from >= 0)
                text.replace(from, text.indexOf(close) + close.size() - from, filled);
            else
                text.replace(QByteArray("<") + element + "/>", filled);
        };
        put("path", newFile);
        put("version", GetVersionInfo());
        return text;
    }
};

} // namespace

TEST_F(ToolCheck, TellsTheSamplesAsWorkedOutForThem)
{
    int blankClaims = 0;
    for (const QString &name : sampleNames()) {
        SCOPED_TRACE(name.toStdString());
        const QString claim = mdSamplePath(name + ".zr3"_q);
        const QByteArray before = bytesOf(claim);
        const QJsonObject worked = QJsonDocument::fromJson(bytesOf(mdSamplePath(name + ".totals.json"_q)))
                                       .object()["BlankItems"_q]
                                       .toObject();
        const bool blank = worked["ScheduleItems"_q].toInt() + worked["Disbursements"_q].toInt() > 0;
        blankClaims += blank;
        const clsToolResult result = run({"check"_q, claim});
        EXPECT_EQ(blank ? 3 : 0, result.status);
        EXPECT_EQ("", result.err);
        QString text = worked["Message"_q].toString().replace("\r\n"_q, "\n"_q);
        if (!text.endsWith(u'\n'))
            text += u'\n';
        EXPECT_EQ(text.toUtf8(), result.out);
        EXPECT_EQ(before, bytesOf(claim));
    }
    EXPECT_GT(blankClaims, 0);
    EXPECT_LT(blankClaims, 15);
}

TEST_F(ToolCheck, TellsBothKinds)
{
    clsZR3Form form;
    fill(form);
    EXPECT_EQ("No blank items found\n", run({"check"_q, putClaim(form)}).out);
    addItem(form, "00:00");
    form.AddDisbursement();
    form.AddDisbursement();
    const clsToolResult result = run({"check"_q, putClaim(form)});
    EXPECT_EQ(3, result.status);
    EXPECT_EQ("Blank items: \n\nSchedule of Time Items: 1\nDisbursements: 2\n", result.out);
    EXPECT_EQ("", result.err);
}

TEST_F(ToolCheck, ATimeThatWasNeverEnteredIsAFailure)
{
    clsZR3Form form;
    form.AddScheduleOfTimeItem();
    const clsToolResult result = run({"check"_q, putClaim(form)});
    EXPECT_EQ(4, result.status);
    EXPECT_EQ("", result.out);
    EXPECT_EQ("Run-time error '9': Subscript out of range\nSchedule item 1 has no time\n", result.err);
}

TEST_F(ToolSave, EverySampleStaysAsItWasButForItsStamps)
{
    for (const QString &name : sampleNames()) {
        SCOPED_TRACE(name.toStdString());
        const QString claim = mdSamplePath(name + ".zr3"_q);
        const QByteArray before = bytesOf(claim);
        const clsToolResult result = run({"save"_q, claim, path("new.zr3")});
        EXPECT_EQ(0, result.status);
        EXPECT_EQ("", result.out);
        EXPECT_EQ("", result.err);
        EXPECT_EQ(before, bytesOf(claim));
        EXPECT_EQ(QStringList {"new.zr3"_q}, filesOf(folder.path()));
        if (name == "older-file"_q)
            continue; // gains elements: see below
        EXPECT_EQ(stamped(before.trimmed(), path("new.zr3")), bytesOf(path("new.zr3")));
    }
}

TEST_F(ToolSave, AnOlderFileGainsWhatItLacksAndBillsTheSame)
{
    ASSERT_EQ(0, run({"save"_q, mdSamplePath("older-file.zr3"_q), path("new.zr3")}).status);
    const clsToolResult result = run({"totals"_q, path("new.zr3")});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(QJsonDocument::fromJson(bytesOf(mdSamplePath("older-file.totals.json"_q))),
        QJsonDocument::fromJson(result.out));
    // It lacked a list and a section, which are now there once each, and the white space has been removed.
    const QByteArray saved = bytesOf(path("new.zr3"));
    const QByteArray old = bytesOf(mdSamplePath("older-file.zr3"_q));
    ASSERT_TRUE(old.contains('\n'));
    ASSERT_FALSE(old.contains("<fasitems") || old.contains("<communications"));
    EXPECT_TRUE(
        saved.endsWith("<fasitems/><communications><enhancelettersout>False</enhancelettersout>"
                       "<lettersoutenhancementuniqueid/><enhancelettersin>False</enhancelettersin>"
                       "<lettersinenhancementuniqueid/><enhancecalls>False</enhancecalls><callsenhancementuniqueid/>"
                       "</communications></vzrform>"));
    EXPECT_EQ(1, saved.count("<fasitems"));
    EXPECT_EQ(1, saved.count("<communications"));
    EXPECT_FALSE(saved.contains('\n'));
}

TEST_F(ToolSave, ARootWithNothingInItBecomesAWholeClaim)
{
    ASSERT_EQ(0, run({"save"_q, put("bare.zr3", "<vzrform/>"), path("new.zr3")}).status);
    EXPECT_EQ(stamped(clsZR3Form().XMLOutput().toLatin1(), path("new.zr3")), bytesOf(path("new.zr3")));
}

TEST_F(ToolSave, KeepsWhatItDoesNotKnowAndTheOrderOfTheFile)
{
    clsZR3Form form;
    fill(form);
    for (pugi::xml_node child = form.XMLNode().last_child(); child;) {
        const pugi::xml_node previous = child.previous_sibling();
        form.XMLNode().append_move(child);
        child = previous;
    }
    QByteArray text = form.XMLOutput().toLatin1();
    text.replace("<vatrate>", "<later kind=\"1\">  a  <b/> \xa3 </later><!-- kept --><vatrate>");
    text.replace("<firstname/>", "<firstname/><middlename>x+y</middlename>");
    text.replace("<ttime>", "<deep><deeper>1</deeper></deep><ttime>");
    const clsToolResult result = run({"save"_q, put("claim.zr3", text), path("new.zr3")});
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(stamped(text, path("new.zr3")), bytesOf(path("new.zr3")));
    EXPECT_EQ(text, bytesOf(path("claim.zr3")));
}

TEST_F(ToolSave, StampsTheWholePathOfANameInTheCurrentFolder)
{
    ASSERT_EQ(0, run({"save"_q, mdSamplePath("empty.zr3"_q), "new.zr3"_q}).status);
    const QString whole = QDir(QFileInfo(folder.path()).canonicalFilePath()).filePath("new.zr3"_q);
    EXPECT_TRUE(bytesOf(path("new.zr3")).startsWith("<vzrform><path>" + XMLEncodeText(whole) + "</path>"));
}

TEST_F(ToolSave, ReplacesAnExistingFileAndLeavesNothingBesideIt)
{
    put("new.zr3", "something longer than nothing");
    EXPECT_EQ(0, run({"save"_q, mdSamplePath("empty.zr3"_q), path("new.zr3")}).status);
    EXPECT_TRUE(bytesOf(path("new.zr3")).startsWith("<vzrform>"));
    EXPECT_EQ(QStringList {"new.zr3"_q}, filesOf(folder.path()));
}

TEST_F(ToolSave, AClaimMayBeSavedOverItself)
{
    const QByteArray text = clsZR3Form().XMLOutput().toLatin1();
    const QString claim = put("claim.zr3", text);
    EXPECT_EQ(0, run({"save"_q, claim, claim}).status);
    EXPECT_EQ(stamped(text, claim), bytesOf(claim));
}

TEST_F(ToolSave, ATargetThatCanNotBeWrittenIsToldOnce)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath("folder"_q));
    for (const char *target : {"missing/new.zr3", "folder"}) {
        const clsToolResult result = run({"save"_q, mdSamplePath("empty.zr3"_q), path(target)});
        EXPECT_EQ(4, result.status) << target;
        EXPECT_EQ("", result.out);
        EXPECT_TRUE(result.err.startsWith("File Not Saved: There was a problem writing to the following path:\n\n"
            + path(target).toUtf8() + "\n\nThe error reported is:\n\n7"))
            << result.err.constData();
        EXPECT_EQ(1, result.err.count(": There was a problem"));
    }
    EXPECT_EQ(QStringList {"folder"_q}, filesOf(folder.path()));
    EXPECT_EQ(QStringList(), filesOf(path("folder")));
}

TEST_F(ToolSave, ADiskThatIsFullIsToldOnceAndTheOldFileStaysBesideIt)
{
    const QString claim = mdSamplePath("housing-typical.zr3"_q);
    const qint64 size = bytesOf(claim).size();
    ASSERT_GT(size, 2000);
    const QByteArray older(1500, 'o');
    for (const rlim_t limit : {rlim_t(0), rlim_t(1000), rlim_t(2000), rlim_t(size - 1000)}) {
        SCOPED_TRACE(limit);
        put("new.zr3", older);
        const clsToolResult result = run({"save"_q, claim, path("new.zr3")}, {}, withFilesOfAtMost(limit));
        EXPECT_EQ(4, result.status);
        EXPECT_EQ("", result.out);
        EXPECT_EQ("File Not Saved: There was a problem writing to the following path:\n\n" + path("new.zr3").toUtf8()
                + "\n\nThe error reported is:\n\n61 - Disk full\n",
            result.err);
        // The old text is complete under its name, or under that of its side file.
        const bool guarded = QFile::exists(path("new.zr3a"));
        EXPECT_EQ(limit >= rlim_t(older.size()), guarded);
        EXPECT_EQ(older, bytesOf(path(guarded ? "new.zr3a" : "new.zr3")));
        QFile::remove(path("new.zr3a"));
    }
}

TEST_F(ToolSave, NamesOutsideTheCodePageAreThoseThatAreWritten)
{
    for (const QString &name : {"\u6cd5\u5f8b.zr3"_q, "O\u00b4Brien.zr3"_q, "O'Brien \u00e9\u20ac.zr3"_q}) {
        SCOPED_TRACE(name.toStdString());
        ASSERT_TRUE(QDir(folder.path()).mkpath("saved"_q));
        const QString file = path("saved") + u'/' + name;
        const clsToolResult result = run({"save"_q, mdSamplePath("empty.zr3"_q), file});
        EXPECT_EQ(0, result.status);
        EXPECT_EQ("", result.err);
        EXPECT_EQ(QStringList {name}, filesOf(path("saved")));
        EXPECT_TRUE(bytesOf(file).startsWith("<vzrform>"));
        EXPECT_EQ(0, run({"totals"_q, file}).status);
        EXPECT_TRUE(QFile::remove(file));
    }
}

TEST_F(ToolSave, ANameOfTheMostBytesIsSavedTwice)
{
    const QString name = QString(251, u'x') + ".zr3"_q;
    for (int i = 0; i < 2; ++i) {
        const clsToolResult result = run({"save"_q, mdSamplePath("empty.zr3"_q), name});
        EXPECT_EQ(0, result.status);
        EXPECT_EQ("", result.err);
        EXPECT_EQ(QStringList {name}, filesOf(folder.path()));
    }
    EXPECT_EQ(0, run({"totals"_q, name}).status);
}
