#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "preview/oPreviewGrid.h"
#include "tests/support/mdTestPaths.h"
#include "tests/window/clsWholeWayTest.h"
#include "wordexport/document/clsZipPackage.h"

#include <QClipboard>
#include <QComboBox>

namespace {

class WholeWay : public clsWholeWayTest { };

QString documentText(const QString &path)
{
    const clsZipPackage package = clsZipPackage::fromFile(path);
    const int part = package.indexOf(QStringLiteral("word/document.xml"));
    return part < 0 ? QString() : QString::fromUtf8(package.bytes(part));
}

} // namespace

TEST_F(WholeWay, FromTheClaimToTheDocument)
{
    const QString claim = path("claims/Smith.zr3");
    ASSERT_TRUE(QFile::copy(mdSamplePath(QStringLiteral("housing-typical.zr3")), claim));
    ASSERT_TRUE(QFile(claim).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    const auto headerIs = [](const QString &text) { return [text] { return header() == text; }; };
    const auto formTypeIs = [](const char *type) { return [type] { return Form->FormType() == QLatin1String(type); }; };

    // The claim was moved, so it is marked as changed at once.
    step([] {}, headerIs(claim + u'*'));
    step([] {}, noScreen);

    // To the client: second tab, its first section.
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Tab);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmClientDetails"));
    key(Qt::Key_Tab);
    key(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("Zarquon"));
    look([] { EXPECT_EQ(QStringLiteral("Zarquon"), textOf("txtTitle")); });

    // To the next screen and back: both store.
    key(Qt::Key_X, Qt::AltModifier, screenIs("frmSolicitorDetails"));
    look([] { EXPECT_EQ(QStringLiteral("Zarquon"), Form->ClientDetails.Title()); });
    key(Qt::Key_P, Qt::AltModifier, screenIs("frmClientDetails"));
    look([] { EXPECT_EQ(QStringLiteral("Zarquon"), textOf("txtTitle")); });
    key(Qt::Key_S, Qt::AltModifier, noScreen);
    look([&] {
        EXPECT_EQ(claim + u'*', header());
        QFile file(claim);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_FALSE(file.readAll().contains("Zarquon")) << "the screen's button saves the section, not the claim";
    });
    key(Qt::Key_S, Qt::ControlModifier, headerIs(claim));

    // The other form type, and back again.
    const auto changeType = [&](int arrow, const char *type) {
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        key(Qt::Key_Home);
        key(Qt::Key_Return);
        key(Qt::Key_Tab);
        key(Qt::Key_Return, Qt::NoModifier, screenIs("frmFormSetup"));
        key(arrow);
        key(Qt::Key_C, Qt::AltModifier, noScreen);
        step([] {}, formTypeIs(type));
    };
    changeType(Qt::Key_Down, "Claim1A");
    look([&] { EXPECT_EQ(claim + u'*', header()); });
    changeType(Qt::Key_Up, "Claim1");
    look([&] { EXPECT_EQ(claim, header()) << "an edit that was undone by hand leaves the claim clean"; });

    // Both previews.
    key(Qt::Key_I, Qt::ControlModifier, [] { return PreviewGrid->Columns() == 2; });
    key(Qt::Key_T, Qt::ControlModifier, [] { return PreviewGrid->Columns() == 13; });

    // The export, to a pasted folder: an incomplete path would be refused at each letter.
    key(Qt::Key_W, Qt::ControlModifier, screenIs("frmExportToWord"));
    look([&] { QGuiApplication::clipboard()->setText(path("export")); });
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier, [&] { return Form->ExportPath() == path("export"); });
    key(Qt::Key_Return, Qt::NoModifier, boxIs("Export Complete"));
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmExportToWord"));
    key(Qt::Key_C, Qt::AltModifier, noScreen);

    // The export folder is part of the claim, so there is something to save.
    key(Qt::Key_Q, Qt::ControlModifier, boxIs("Save?"));
    key(Qt::Key_Return);

    EXPECT_EQ(0, walk({QFile::encodeName(claim)}));

    clsZR3Form saved;
    ASSERT_TRUE(saved.LoadXML(claim));
    EXPECT_EQ(QStringLiteral("Zarquon"), saved.ClientDetails.Title());
    EXPECT_EQ(QStringLiteral("Claim1"), saved.FormType());
    EXPECT_EQ(path("export"), saved.ExportPath());
    EXPECT_EQ(claim, saved.path());
    EXPECT_FALSE(QFile::exists(claim + u'a')) << "the side file goes when the new one is on the disk";
    EXPECT_EQ(QStringList {QStringLiteral("Claim1.doc")},
        QDir(path("export")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot));
    EXPECT_TRUE(documentText(path("export/Claim1.doc")).contains(QLatin1String("Zarquon")));
}
