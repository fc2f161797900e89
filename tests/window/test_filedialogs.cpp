#include "commands/mdFileHandling.h"
#include "controls/frmMessageBox.h"
#include "tests/window/clsInterfaceTest.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

namespace {

using FileDialogs = clsInterfaceTest;

} // namespace

TEST_F(FileDialogs, ChoosesAFolder)
{
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(QStringLiteral("Please select a folder to export to..."), dialog.windowTitle());
        EXPECT_EQ(QFileDialog::Directory, dialog.fileMode());
        EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
        dialog.selectFile(path("claims"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(path("claims"), windows.chooseFolder(QStringLiteral("Please select a folder to export to..."), {}));
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(QString(), windows.chooseFolder(QStringLiteral("again"), {}));
    EXPECT_EQ(2, shown);
}

namespace {

/// Types a folder while a parent folder is still selected, as can happen in Qt's dialog when typing fast.
void typeOver(QFileDialog &dialog, const QString &selected, const QString &typed)
{
    auto &name = *dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto &list = *dialog.findChild<QListView *>(QStringLiteral("listView"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    name.setFocus();
    name.setText(typed);
    const QModelIndexList rows = list.selectionModel()->selectedRows();
    const auto &files = *qobject_cast<QFileSystemModel *>(list.model());
    list.selectionModel()->select(
        files.index(selected), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    for (const QModelIndex &row : rows)
        list.selectionModel()->select(row, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    ASSERT_EQ(selected, dialog.selectedFiles().value(0));
    ASSERT_EQ(typed, name.text());
}

} // namespace

TEST_F(FileDialogs, TheFolderThatIsTypedIsTakenAndNoneAboveIt)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("claims/2026/smith")));
    const QString wanted = path("claims/2026/smith");
    for (const QString &typed : {wanted, wanted + u'/', QStringLiteral("2026/smith"), QStringLiteral("2026/smith/")}) {
        whenShown<QFileDialog>([&](QFileDialog &dialog) {
            typeOver(dialog, path("claims/2026"), typed);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(wanted, windows.chooseFolder(QStringLiteral("?"), path("claims"))) << typed.toStdString();
    }
    EXPECT_EQ(4, shown);
}

TEST_F(FileDialogs, ATypedFolderThatIsNotThereIsRefused)
{
    bool refused = false;
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        typeOver(dialog, path("claims"), path("claims/none"));
        QTimer::singleShot(0, &dialog, [&] {
            QWidget *told = QApplication::activeModalWidget();
            refused = told != &dialog;
            if (refused)
                told->close();
        });
        QMetaObject::invokeMethod(&dialog, "accept");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(QString(), windows.chooseFolder(QStringLiteral("?"), path("claims")));
    EXPECT_TRUE(refused);
}

TEST_F(FileDialogs, ARowThatIsClickedIsTakenWhateverItsName)
{
    const QString odd = path("claims/a \"b\" c");
    ASSERT_TRUE(QDir().mkpath(odd));
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        auto &list = control<QListView>(dialog, "listView");
        ASSERT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 1; }));
        list.setFocus();
        list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(odd, windows.chooseFolder(QStringLiteral("?"), path("claims")));
}

TEST_F(FileDialogs, ChoosingAFolderBeginsAtTheOneThatIsNamed)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = path("claims/claim.zr3");
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("out")));
    QString begun;
    const auto begins = [&](const QString &start) {
        whenShown<QFileDialog>([&](QFileDialog &dialog) { begun = dialog.directory().path(); });
        windows.chooseFolder(QStringLiteral("?"), start);
        return begun;
    };
    EXPECT_EQ(path("out"), begins(path("out")));
    EXPECT_EQ(path("claims"), begins(path("gone")));
    EXPECT_EQ(path("claims"), begins({}));
}

TEST_F(FileDialogs, TheColumnsOfTheFileDialogShowWhatIsInThem)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("housing-typical.zr3");
    const QFont before = QApplication::font();
    for (const int points : {9, 16}) {
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        whenShown<QFileDialog>([](QFileDialog &dialog) {
            const auto &details = control<QTreeView>(dialog, "treeView");
            ASSERT_TRUE(QTest::qWaitFor([&] { return details.model()->rowCount(details.rootIndex()) == 1; }));
            QTest::qWait(50);
            const auto &places = control<QListView>(dialog, "sidebar");
            EXPECT_GE(places.viewport()->width(), places.sizeHintForColumn(0));
            const QHeaderView &columns = *details.header();
            for (int column = 0; column < columns.count(); ++column) {
                const QString text = details.model()->index(0, column, details.rootIndex()).data().toString();
                const QString heading = details.model()->headerData(column, Qt::Horizontal).toString();
                EXPECT_FALSE(text.isEmpty()) << column;
                EXPECT_GE(columns.sectionSize(column), details.fontMetrics().horizontalAdvance(text) + 8)
                    << text.toStdString();
                EXPECT_GE(columns.sectionSize(column), columns.fontMetrics().horizontalAdvance(heading) + 14)
                    << heading.toStdString();
            }
        });
        windows.chooseFileToOpen(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"));
    }
    QApplication::setFont(before);
    EXPECT_EQ(2, shown);
}

TEST_F(FileDialogs, BeginsInTheFolderOfTheClaimElseInTheOneLastUsed)
{
    const QString filter = QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3");
    const QString claim = sample("empty.zr3");
    whenShown<QFileDialog>([&](QFileDialog &dialog) {
        EXPECT_EQ(QFileDialog::ExistingFile, dialog.fileMode());
        EXPECT_EQ(QStringList("Velmor ZR3 Files (*.zr3)"), dialog.nameFilters());
        dialog.setDirectory(path("claims"));
        dialog.selectFile(claim);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(claim, windows.chooseFileToOpen(filter));

    whenShown<QFileDialog>([&](QFileDialog &dialog) { EXPECT_EQ(path("claims"), dialog.directory().path()); });
    EXPECT_EQ(QString(), windows.chooseFileToOpen(filter));

    Form = std::make_unique<clsZR3Form>();
    QDir(folder.path()).mkpath(QStringLiteral("other"));
    Form->path = path("other/claim.zr3");
    whenShown<QFileDialog>([&](QFileDialog &dialog) { EXPECT_EQ(path("other"), dialog.directory().path()); });
    EXPECT_EQ(QString(), windows.chooseFileToOpen(filter));

    // A claim that can't store the name of its folder is still in that folder.
    Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    const QString foreign = folder.filePath(QString::fromUtf8("Żółw"));
    QDir().mkpath(foreign);
    ASSERT_TRUE(QFile::copy(claim, foreign + QStringLiteral("/claim.zr3")));
    OpenFormFile(foreign + QStringLiteral("/claim.zr3"));
    whenShown<QFileDialog>([&](QFileDialog &dialog) { EXPECT_EQ(foreign, dialog.directory().path()); });
    EXPECT_EQ(QString(), windows.chooseFileToOpen(filter));
    EXPECT_EQ(4, shown);
}

TEST_F(FileDialogs, TheFileDialogsShowTheFilesOfTheirFilter)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    ASSERT_TRUE(QFile::copy(path("claims/empty.zr3"), path("claims/letter.doc")));
    ASSERT_TRUE(QFile::copy(path("claims/empty.zr3"), path("claims/old.zr2")));
    const auto expectFiles = [this](const QStringList &files) {
        whenShown<QFileDialog>([files](QFileDialog &dialog) {
            const auto &list = control<QListView>(dialog, "listView");
            QStringList seen;
            EXPECT_TRUE(QTest::qWaitFor(
                [&] {
                    seen.clear();
                    for (int i = 0; i < list.model()->rowCount(list.rootIndex()); ++i)
                        seen << list.model()->index(i, 0, list.rootIndex()).data().toString();
                    seen.sort();
                    return seen == files;
                },
                3000))
                << seen.join(u' ').toStdString();
        });
    };
    expectFiles({QStringLiteral("empty.zr3")});
    windows.chooseFileToOpen(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"));
    expectFiles({QStringLiteral("empty.zr3")});
    windows.chooseFileToSave(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"), QStringLiteral(".zr3"));
    expectFiles({QStringLiteral("empty.zr3"), QStringLiteral("old.zr2")});
    windows.chooseFileToOpen(QStringLiteral("Claims|*.zr3;*.zr2"));
    EXPECT_EQ(3, shown);
}

TEST_F(FileDialogs, SavingAddsTheExtensionAndAsksNoQuestionOfItsOwn)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    whenShown<QFileDialog>([](QFileDialog &dialog) {
        EXPECT_EQ(QFileDialog::AcceptSave, dialog.acceptMode());
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        dialog.selectFile(QStringLiteral("empty"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(path("claims/empty.zr3"),
        windows.chooseFileToSave(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"), QStringLiteral(".zr3")));
    EXPECT_EQ(1, shown);
}

TEST_F(FileDialogs, SavingAddsTheExtensionWhateverNameIsTyped)
{
    const std::pair<const char *, const char *> rows[] = {
        {"Smith v. Jones", "Smith v. Jones.zr3"},
        {"12.11.2026", "12.11.2026.zr3"},
        {"letter.doc", "letter.doc.zr3"},
        {"Smith.", "Smith..zr3"},
        {"zr3", "zr3.zr3"},
        {"Smith.zr3", "Smith.zr3"},
        {"Smith.ZR3", "Smith.ZR3"},
        {"Smith v. Jones.Zr3", "Smith v. Jones.Zr3"},
        {"Smith.zr3a", "Smith.zr3a.zr3"},
    };
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    for (const auto &[typed, saved] : rows) {
        whenShown<QFileDialog>([typed = typed](QFileDialog &dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromLatin1(typed));
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(path("claims/") + QString::fromLatin1(saved),
            windows.chooseFileToSave(QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3"), QStringLiteral(".zr3")));
    }
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(QString(), windows.chooseFileToSave(QStringLiteral("Claims|*.zr3"), QStringLiteral(".zr3")));
}

TEST_F(FileDialogs, TheExtensionIsThereBeforeTheQuestionAboutOverwriting)
{
    Form = std::make_unique<clsZR3Form>();
    Form->path = sample("empty.zr3");
    ASSERT_TRUE(QFile::copy(path("claims/empty.zr3"), path("claims/Smith v. Jones.zr3")));
    const clsUserInterfaceScope scope(windows);
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        control<QLineEdit>(dialog, "fileNameEdit").setText(QStringLiteral("Smith v. Jones"));
        whenShown<frmMessageBox>([](frmMessageBox &box) {
            EXPECT_EQ(QStringLiteral("Overwrite?"), box.windowTitle());
            QTest::mouseClick(&control<QPushButton>(box, "cmdYes"), Qt::LeftButton);
        });
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_TRUE(SaveForm(true));
    EXPECT_EQ(2, shown);
    EXPECT_EQ(path("claims/Smith v. Jones.zr3"), Form->path());
    EXPECT_FALSE(QFile::exists(path("claims/Smith v. Jones")));
}

TEST_F(FileDialogs, ExportingProposesANameAndReplacesNothingUnasked)
{
    const QString filter = QStringLiteral("PDF Documents (*.pdf)|*.pdf");
    const QString proposed = path("claims/Smith.pdf");
    const clsUserInterfaceScope scope(windows);
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(QFileDialog::AcceptSave, dialog.acceptMode());
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite)) << "the dialog asks";
        EXPECT_EQ(path("claims"), dialog.directory().absolutePath());
        EXPECT_EQ(QStringLiteral("Smith.pdf"), control<QLineEdit>(dialog, "fileNameEdit").text());
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(proposed, windows.chooseFileToExport(filter, QStringLiteral(".pdf"), proposed));

    // The name in the dialog's question is not yet complete.
    QFile other(path("claims/Smith v. Jones.pdf"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    for (const char *answer : {"cmdNo", "cmdYes"}) {
        whenShown<QFileDialog>([this, answer](QFileDialog &dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(QStringLiteral("Smith v. Jones"));
            whenShown<frmMessageBox>([answer](frmMessageBox &box) {
                EXPECT_EQ(QStringLiteral("Overwrite?"), box.windowTitle());
                QTest::mouseClick(&control<QPushButton>(box, answer), Qt::LeftButton);
            });
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(QLatin1String(answer) == QLatin1String("cmdYes") ? other.fileName() : QString(),
            windows.chooseFileToExport(filter, QStringLiteral(".pdf"), proposed));
    }
    EXPECT_EQ(5, shown);
}
