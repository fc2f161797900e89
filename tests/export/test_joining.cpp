#include "tests/export/clsExportTest.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/document/clsPlainText.h"
#include "wordexport/document/clsWordPackage.h"

// The joining copies the sheets' texts without parsing; the result must be the same as with parsing.

namespace {

class Joining : public clsExportTest, public testing::WithParamInterface<const char *> { };

TEST_P(Joining, GivesTheBytesOfTheSheetsReadAndAppendedOneByOne)
{
    ASSERT_TRUE(form.LoadXML(mdSamplePath(QString::fromLatin1(GetParam()) + QStringLiteral(".zr3"))));
    form.ExportPath = folder.path();
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    for (const clsTemplate &known : run->templates)
        EXPECT_TRUE(known.isPlain); // otherwise this would compare one way with itself

    const QStringList &sheets = run->ExportFileCollection;
    const QString joined = path(QStringLiteral("read.doc"));
    ASSERT_TRUE(QFile::copy(sheets.front(), joined));
    clsMSWord word(clsMSWord::Finished);
    word.OpenDocument(joined);
    for (const QString &sheet : sheets.mid(1))
        word.InsertFileAtEnd(sheet);
    word.TypeBackSpace();
    word.SaveAndClose();
    EXPECT_FALSE(word.ErrorShown);
    EXPECT_TRUE(bytesOf(joined) == bytesOf(finished()));
}

INSTANTIATE_TEST_SUITE_P(, Joining,
    testing::Values("many-sheets", "many-sheets-1a", "odd-characters", "second-grid-twice", "carried-counter", "empty"),
    [](const auto &sample) { return QString::fromLatin1(sample.param).replace(u'-', u'_').toStdString(); });

using Templates = clsExportTest;

TEST_F(Templates, OfTheBuildAreAllPlain)
{
    const QStringList names = QDir(TestTemplates).entryList({QStringLiteral("*.doc")}, QDir::Files);
    ASSERT_GE(names.size(), 40);
    for (const QString &name : names) {
        clsWordPackage package = clsWordPackage::fromFile(TestTemplates + u'/' + name);
        EXPECT_TRUE(mdIsPlainText(package.partXml(package.mainPart()))) << qPrintable(name);
    }
}

} // namespace
