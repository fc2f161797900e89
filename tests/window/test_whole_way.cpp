#include "controls/oAllPurposeBox.h"
#include "formdata/clsZR3Form.h"
#include "preview/oPreviewGrid.h"
#include "shell/mdGlobals.h"
#include "tests/support/mdTestPaths.h"
#include "tests/support/mdTestPrinting.h"
#include "tests/window/clsProgramTest.h"
#include "wordexport/clsZipPackage.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QTest>

#include <source_location>

namespace {

/// A user who sits before the real windows of the program and has a keyboard: one step after the other, each as soon as
/// the one before has had its effect.
class WholeWay : public clsProgramTest {
protected:
    void SetUp() override
    {
        clsProgramTest::SetUp();
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("export")));
    }

    /// A step: what the user does, and what he then waits for.
    using Place = std::source_location;
    void step(std::function<void()> does, std::function<bool()> waitsFor, Place place = Place::current())
    {
        m_steps.push_back({std::move(does), std::move(waitsFor), place.line()});
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, std::function<bool()> waitsFor = always,
        Place place = Place::current())
    {
        step([=] { QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key(key), modifiers); }, std::move(waitsFor),
            place);
    }
    void type(const QString &text, Place place = Place::current())
    {
        step(
            [=] {
                for (const QChar c : text)
                    QTest::keyClick(QGuiApplication::focusWindow(), c.toLatin1());
            },
            always, place);
    }
    /// A look at how things stand, with nothing done.
    void look(std::function<void()> at, Place place = Place::current()) { step(std::move(at), always, place); }

    static bool always() { return true; }
    /// The offscreen platform has no window manager that would activate the window below one that closes.
    static bool isActive(QWidget &window)
    {
        if (!window.isActiveWindow())
            window.activateWindow();
        return window.isActiveWindow();
    }
    static std::function<bool()> screenIs(const char *name)
    {
        return [name] { return modalName() == QLatin1String(name) && isActive(*QApplication::activeModalWidget()); };
    }
    static std::function<bool()> boxIs(const char *title)
    {
        return [title] { return screenIs("frmMessageBox")() && modalTitle() == QLatin1String(title); };
    }
    /// Back at the main window.
    static bool noScreen()
    {
        return modalName().isEmpty() && topLevel<frmMain>()->isVisible() && isActive(*topLevel<frmMain>());
    }

    static QString modalName()
    {
        const QWidget *modal = QApplication::activeModalWidget();
        return modal ? modal->objectName() : QString();
    }
    static QString modalTitle() { return QApplication::activeModalWidget()->windowTitle(); }
    template <class Control> static Control *onScreen(const char *name)
    {
        QWidget *modal = QApplication::activeModalWidget();
        return modal ? modal->findChild<Control *>(QString::fromLatin1(name)) : nullptr;
    }
    static QString textOf(const char *name)
    {
        const auto *box = onScreen<oAllPurposeBox>(name);
        return box ? box->Text() : QStringLiteral("(no box)");
    }

    /// Takes all steps; the result is the status of the program.
    int walk(const std::vector<QByteArray> &arguments)
    {
        size_t next = 0;
        bool taken = false;
        const int status = run(arguments, [&, this] {
            if (next == m_steps.size())
                return true;
            const clsStep &now = m_steps[next];
            m_shown = modalName();
            if (!taken) {
                taken = true;
                // From a timer of its own: what it opens has an event loop of its own, too.
                QTimer::singleShot(0, QCoreApplication::instance(), now.does);
                // The last one ends the program, and nobody is there to see what it did.
                if (next + 1 < m_steps.size())
                    return false;
                ++next;
                return true;
            }
            // Another word processor on the tester's machine is asked about, and lets the export go on.
            if (boxIs("Word Instances")())
                QTimer::singleShot(0, QCoreApplication::instance(),
                    [] { QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return); });
            if (!now.waitsFor())
                return false;
            ++next;
            taken = false;
            return next == m_steps.size();
        });
        if (next < m_steps.size())
            ADD_FAILURE() << "the step of line " << m_steps[next].line << " had no effect; on the screen was "
                          << (m_shown.isEmpty() ? "the main window" : qPrintable(m_shown));
        return status;
    }

private:
    struct clsStep {
        std::function<void()> does;
        std::function<bool()> waitsFor;
        unsigned line;
    };
    QString m_shown;
    std::vector<clsStep> m_steps;
};

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

    // The claim was moved, so that it is marked as changed at once.
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

    // On to the next screen and back: both ways store.
    key(Qt::Key_E, Qt::AltModifier, screenIs("frmSolicitorDetails"));
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

    // The other form type and back again.
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

    // The export, into a folder that is pasted: a half-typed one would be thrown back at each letter.
    key(Qt::Key_W, Qt::ControlModifier, screenIs("frmExportToWord"));
    look([&] { QGuiApplication::clipboard()->setText(path("export")); });
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier, [&] { return Form->ExportPath() == path("export"); });
    key(Qt::Key_Return, Qt::NoModifier, boxIs("Export Complete"));
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmExportToWord"));
    key(Qt::Key_C, Qt::AltModifier, noScreen);

    // The export folder is part of the claim, so that there is something to save.
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
