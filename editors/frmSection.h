#pragma once

#include "editors/clsScreenTable.h"
#include "editors/oScreenFrame.h"

#include <QDialog>

#include <functional>
#include <utility>
#include <vector>

class clsListActions;
class clsScreenUndo;
class clsZR3Item;
class oContentSwitcher;
class oHeaderBar;
class oListLine;
class oScreenBar;
class oScreenPage;
class QMenuBar;

/// What a screen is stored for.
enum class clsStoring { Closing, MovingOn };

/// A screen of the claim, made from its table: a section, a list, or the editor of an item. It holds no data between
/// openings: it copies its record into the controls when it is initialised, and back when it stores. Whatever a single
/// screen does beyond that is wired by its rules, which find the controls by their names.
class frmSection : public QDialog {
    Q_OBJECT

public:
    explicit frmSection(const clsScreen &screen, QWidget *parent = nullptr);

    const clsScreen &Screen() const { return m_screen; }

    /// Tells the log, and fills the controls from the section's record.
    void Initialise();
    /// The same for the editor of an item, or for a new one that the first Save makes.
    void Initialise(clsXMLRecord *item);
    /// Fills the controls of a new item with what another holds.
    void StartLike(clsXMLRecord &other);
    /// The record that is edited; nothing while a new item has none.
    clsXMLRecord *Record() const { return m_record; }

    /// Writes the controls to the record, in the order of the table: all of them where the screen closes, and on the
    /// way to another section all but those that are stored at the close only.
    void Store(clsStoring storing);
    void Save();
    /// Stores as Save does and stays open for a new item, which begins with what its table keeps.
    void SaveAndAdd();
    void Cancel();
    void Close();
    void Prev();
    void Next();
    /// Leaves for another section, with the store step or without it.
    void JumpTo(const QString &section, bool store);

    /// A rule's own check before a Save, once nothing required is missing and before anything is made or written. Where
    /// it says no, having told the user why, the screen stays.
    void setMayStore(std::function<bool()> mayStore) { m_mayStore = std::move(mayStore); }

    /// Told of each item that "Save and Add" has stored; says what the item is called.
    void setAdded(std::function<QString()> added) { m_added = std::move(added); }
    /// Adds a copy of the item that is chosen in the list with the focus, after the user has been through its editor.
    void SameAgain();
    /// Looks for words in the list that has the focus, or else the first that is to be seen.
    void Find();
    /// Sets one field of the rows that are marked in that list.
    void ChangeSelected();
    bool CanChangeSelected() const;
    /// Whether one of its lists has fields that can be set so.
    bool ChangesItems() const;
    /// Whether one of its lists takes new items.
    bool AddsItems() const;

    /// The control of that name; a name that the screen doesn't have is the object error.
    QWidget &Box(const char *name) const;
    /// The same as what it is: `Box<oDecimalBox>("txtVATRate")`.
    template <class Control> Control &Box(const char *name) const { return static_cast<Control &>(Box(name)); }
    /// All fields, in the order of the table; behind a list stands its button "Add".
    const std::vector<clsScreenField> &Fields() const { return m_fields; }
    /// What was in the fields when they were filled.
    const QStringList &LoadedTexts() const { return m_loadedTexts; }
    /// The switcher of a screen with pages; the object error where there is none.
    oContentSwitcher &Switcher() const;
    /// Shows all lists as they now are, and what can be added to them.
    void RedrawLists();
    /// Selects the row of an item in the list that it is of, and opens that list's page; nothing where no list has it.
    void ShowItem(const clsZR3Item *item);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The controls have just been filled from the record.
    void Loaded();
    /// The record has just been written.
    void Stored();

public slots:
    /// Esc: Cancel, or Close on a screen that has no other way out, so that nothing typed is lost.
    void reject() override;

protected:
    /// The close box leaves without storing, on every screen, and as Cancel does where there is one.
    void closeEvent(QCloseEvent *event) override;

private:
    void buildFrames();
    void buildLists();
    void buildLine();
    void buildUndo();
    void storeAsStep(clsStoring storing);
    void showCounts();
    clsListActions *listInUse() const;
    void startFiguresAtZero();
    void buildFileMenu();
    void buildJumpMenu();
    void connectBar();
    void makeTicksExclusive();
    bool mayStore();
    void enterFirst(unsigned passedOver);
    bool checkRequired();
    bool checkTyped();
    void leaveFor(const QString &section);

    const clsScreen &m_screen;
    clsXMLRecord *m_record = nullptr;
    oHeaderBar *m_header;
    QMenuBar *m_menus;
    oScreenPage *m_page;
    oScreenBar *m_bar;
    std::vector<clsScreenField> m_fields;
    std::vector<oFieldLabel *> m_labels;
    QStringList m_loadedTexts;
    struct clsList {
        clsListActions *actions;
        int page;
    };
    std::vector<clsList> m_lists;
    // Of a screen with a list of the claim.
    oListLine *m_line = nullptr;
    clsScreenUndo *m_undo = nullptr;
    std::function<bool()> m_mayStore;
    std::function<QString()> m_added;
};
