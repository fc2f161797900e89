#include "editors/clsEditMenu.h"

#include "formdata/mdGlobals.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

namespace {

struct clsEditRow {
    const char *text; ///< an ampersand marks the mnemonic
    const char *name; ///< object name
    const char *keys; ///< separated by a semicolon and a space
    std::function<void()> clsEditCommands::*run;
    /// The name of what the entry would act on, shown after its text. The entry is disabled if it is empty.
    QString (*object)();
    bool separatorAfter = false;
    std::function<bool()> clsEditCommands::*can = nullptr; ///< whether it is enabled, without a name to act on
};

// clang-format off
constexpr clsEditRow Rows[] = {
    {"&Undo", "mnuUndo", "Ctrl+Z",              &clsEditCommands::undo, [] { return Document().history.undoName(); }},
    {"&Redo", "mnuRedo", "Ctrl+Shift+Z; Ctrl+Y", &clsEditCommands::redo, [] { return Document().history.redoName(); }, true},
    {"&Paste Items...",  "mnuPasteItems",  "Ctrl+Shift+V", &clsEditCommands::paste,    nullptr},
    {"&Import Items...", "mnuImportItems", "",             &clsEditCommands::import,   nullptr},
    {"&Copy List",       "mnuCopyList",    "Ctrl+Shift+C", &clsEditCommands::copyList, nullptr},
    {"Same &Again", "mnuSameAgain", "Ctrl+D",   &clsEditCommands::sameAgain, nullptr},
    {"&Bring Back", "mnuBringBack", "",         &clsEditCommands::bringBack, nullptr, false, &clsEditCommands::canBringBack},
    {"&Find...",    "mnuFind",      "Ctrl+F",   &clsEditCommands::find,      nullptr},
    {"Change &Selected...", "mnuChangeSelected", "", &clsEditCommands::changeSelected, nullptr, false,
     &clsEditCommands::canChangeSelected},
};
// clang-format on

/// Entries are disabled only while the menu is open, so that their keys keep working when something to act on appears
/// later.
void connectEntry(QMenu &menu, QAction &entry, const clsEditRow &row, const std::function<bool()> &can)
{
    if (can)
        QObject::connect(&menu, &QMenu::aboutToShow, &entry, [&entry, can] { entry.setEnabled(can()); });
    if (!row.object)
        return;
    QObject::connect(&menu, &QMenu::aboutToShow, &entry, [&entry, &row] {
        QString object = row.object();
        entry.setEnabled(!object.isEmpty());
        entry.setText((QString::fromLatin1(row.text) + u' ' + object.replace(u'&', QLatin1String("&&"))).trimmed());
    });
    QObject::connect(
        &menu, &QMenu::aboutToHide, &entry, [&entry] { entry.setEnabled(true); }, Qt::QueuedConnection);
}

/// Keeps Ctrl+Y from the menu while a text box has the focus, so that the box can redo. Text boxes claim the other keys
/// themselves, but this one only on some desktops.
class clsRedoOfBoxes final : public QObject {
public:
    explicit clsRedoOfBoxes(QWidget &window)
        : QObject(&window)
        , m_window(window)
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
            return false;
        const auto &key = *static_cast<QKeyEvent *>(event);
        QWidget *box = m_window.focusWidget();
        const bool isBox = qobject_cast<QLineEdit *>(box) || qobject_cast<QPlainTextEdit *>(box);
        if (!isBox || key.keyCombination() != (Qt::CTRL | Qt::Key_Y))
            return false;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            QMetaObject::invokeMethod(box, "redo");
        return true;
    }

private:
    QWidget &m_window;
};

} // namespace

QMenu *mdMakeEditMenu(QWidget &window, const clsEditCommands &commands)
{
    auto *menu = new QMenu(QStringLiteral("&Edit"), &window);
    menu->setObjectName(QStringLiteral("mnuEdit"));
    for (const clsEditRow &row : Rows) {
        if (!(commands.*row.run))
            continue;
        QAction *entry = menu->addAction(QString::fromLatin1(row.text));
        entry->setObjectName(QString::fromLatin1(row.name));
        entry->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(row.keys), QKeySequence::PortableText));
        if (row.run == &clsEditCommands::copyList && !commands.hasCopyKey)
            entry->setShortcuts(QList<QKeySequence>());
        QObject::connect(entry, &QAction::triggered, &window, commands.*row.run);
        connectEntry(*menu, *entry, row, row.can ? commands.*row.can : nullptr);
        if (row.separatorAfter)
            menu->addSeparator();
    }
    new clsRedoOfBoxes(window);
    return menu;
}
