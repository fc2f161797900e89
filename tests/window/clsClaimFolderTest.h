#pragma once

#include "controls/oCustomButton.h"
#include "shell/frmFolderOfClaims.h"
#include "shell/oFolderTable.h"
#include "tests/support/mdTry.h"
#include "tests/window/clsWindowTest.h"

#include <QFileInfo>
#include <QLabel>

/// A test of the list of the claims of a folder.
class clsClaimFolderTest : public clsWindowTest {
protected:
    void TearDown() override
    {
        window.reset();
        clsWindowTest::TearDown();
    }

    /// A copy of a sample under another name, below the folder of claims.
    QString put(const char *sample, const char *name) const
    {
        const QString file = claims() + u'/' + QString::fromUtf8(name);
        QDir().mkpath(QFileInfo(file).path());
        QFile::remove(file);
        EXPECT_TRUE(QFile::copy(mdSamplePath(QString::fromLatin1(sample)), file));
        QFile(file).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return file;
    }
    QString putBytes(const char *name, const QByteArray &bytes) const
    {
        QFile file(claims() + u'/' + QString::fromUtf8(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QString claims() const { return path("claims"); }

    void start(const QString &tool = QStringLiteral(ZR3_TOOL))
    {
        window = std::make_unique<frmFolderOfClaims>(claims(), nullptr, tool);
        window->resize(1400, 700);
        show(*window);
    }
    /// Waits until the whole folder has been read.
    void read(int rows)
    {
        QTRY_COMPARE_WITH_TIMEOUT(table().model()->rowCount(), rows, Patience);
        QTRY_VERIFY_WITH_TIMEOUT(state().startsWith(QLatin1String("Read at")), Patience);
    }

    oFolderTable &table() const { return control<oFolderTable>(*window, "tblClaims"); }
    QString state() const { return control<QLabel>(*window, "lblState").text(); }
    QString told() const { return control<QLabel>(*window, "lblProgress").text(); }
    oCustomButton &button(const char *name) const { return control<oCustomButton>(*window, name); }
    QString cell(int row, int column) const { return table().model()->index(row, column).data().toString(); }
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            names << cell(row, 0);
        return names;
    }
    void choose(std::initializer_list<int> rows) const
    {
        table().clearSelection();
        for (const int row : rows)
            table().selectionModel()->select(
                table().model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    static QStringList documents(const QString &where)
    {
        return QDir(where).entryList({QStringLiteral("*.doc")}, QDir::Files, QDir::Name);
    }

    static constexpr int Patience = 30'000;
    std::unique_ptr<frmFolderOfClaims> window;
};
