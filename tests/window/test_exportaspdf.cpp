#include "tests/window/clsFormPagesTest.h"

namespace {

class PdfExport : public clsFormPagesTest {
protected:
    QByteArray bytesOf(const QString &file) const
    {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArrayLiteral("(no file)");
    }
    QByteArray ready() const { return bytesOf(path("ready.pdf")); }
    void exportTo(const QString &file)
    {
        user.files = {file};
        entry("mnuExportAsPdf").trigger();
    }
};

} // namespace

TEST_F(PdfExport, WritesThePagesUnderTheProposedName)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    exportTo(path("claims/mine.pdf"));
    EXPECT_EQ(QStringList(path("claims/housing-typical.pdf")), user.proposed);
    EXPECT_EQ(ready(), bytesOf(path("claims/mine.pdf")));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Export Complete"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Exporting is complete."), user.messages[0].text);
    EXPECT_EQ(QFile::permissions(path("claims/housing-typical.zr3")), QFile::permissions(path("claims/mine.pdf")));
}

TEST_F(PdfExport, AClaimNeverSavedIsNamedAfterItsForm)
{
    workingOfficeProgram();
    start();
    Form->ExportPath = path("claims");
    exportTo(QString());
    EXPECT_EQ(QStringList(path("claims/Claim1.pdf")), user.proposed);
    EXPECT_EQ(0, runs());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PdfExport, TakesThePagesThatAreShown)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    showPages();
    for (int i = 0; i < 10; ++i)
        exportTo(path("claims/mine.pdf"));
    EXPECT_EQ(1, runs());
    EXPECT_EQ(ready(), bytesOf(path("claims/mine.pdf")));
    change();
    exportTo(path("claims/mine.pdf"));
    EXPECT_EQ(2, runs());
}

TEST_F(PdfExport, TenOneAfterTheOtherLeaveNothingBehind)
{
    workingOfficeProgram();
    start(sample("housing-typical.zr3"));
    // Other programs create and delete folders in the common one.
    const QByteArray common = qgetenv("TMPDIR");
    const QString own = path("temporary");
    ASSERT_TRUE(QDir().mkpath(own));
    qputenv("TMPDIR", QFile::encodeName(own));
    for (int i = 0; i < 10; ++i) {
        exportTo(path("claims/mine.pdf"));
        EXPECT_EQ(ready(), bytesOf(path("claims/mine.pdf")));
        QFile::remove(path("claims/mine.pdf"));
    }
    EXPECT_EQ(10, runs());
    EXPECT_EQ(10u, user.messages.size());
    EXPECT_EQ(QStringList(), QDir(own).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    common.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", common);
}

TEST_F(PdfExport, EscapeStopsItAndLeavesTheOldFile)
{
    officeProgram("exec sleep 1000\n");
    start(sample("housing-typical.zr3"));
    QFile old(path("claims/mine.pdf"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    QTimer::singleShot(500, [] {
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_NE(nullptr, dialog);
        EXPECT_EQ(QStringLiteral("frmExportAsPdf"), dialog->objectName());
        EXPECT_EQ(QStringLiteral("Drawing 14 pages"), control<QLabel>(*dialog, "lblProgress").text());
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    exportTo(path("claims/mine.pdf"));
    EXPECT_EQ("old", bytesOf(path("claims/mine.pdf")));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PdfExport, AFailureIsOneMessage)
{
    start(sample("housing-typical.zr3"));
    struct {
        std::function<void()> prepare;
        QString file;
        QString told;
    } const rows[] = {
        {[this] { noOfficeProgram(); }, path("claims/mine.pdf"),
            QStringLiteral(
                "No office program was found that can make the PDF. Install LibreOffice Writer and try again.")},
        {[this] { officeProgram("exit 7\n"); }, path("claims/mine.pdf"),
            QStringLiteral("LibreOffice failed to make the PDF (exit status 7).")},
        {[this] { officeProgram("exec sleep 1000\n", 300); }, path("claims/mine.pdf"),
            QStringLiteral("LibreOffice did not make the PDF within 0.3 seconds and was stopped.")},
        {[this] { workingOfficeProgram(); }, path("gone/mine.pdf"),
            QStringLiteral("The PDF could not be written: File not found.")},
    };
    for (const auto &row : rows) {
        row.prepare();
        user.messages.clear();
        exportTo(row.file);
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Export as PDF"), user.messages[0].title);
        EXPECT_EQ(QStringLiteral("The PDF was not made.\r\n\r\n") + row.told, user.messages[0].text);
        EXPECT_FALSE(QFile::exists(path("claims/mine.pdf")));
    }
}
