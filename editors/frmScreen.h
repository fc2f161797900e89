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

/// Why a screen is stored.
enum class clsStoring { Closing, MovingOn };

/// A screen of the claim, created from its table: a section, a list, or the editor of an item. It keeps no data between
/// openings: initialising copies its record into the controls, storing copies them back. Anything beyond that is set up
/// by the screen's rules, which find the controls by name.
class frmScreen : public QDialog {
    Q_OBJECT

public:
    explicit frmScreen(const clsScreen &screen, QWidget *parent = nullptr);

    const clsScreen &Screen() const { return m_screen; }

    /// Logs the opening and fills the controls from the section's record.
    void Initialise();
    /// The same for an item's editor; without an item the first Save creates one.
    void Initialise(clsXMLRecord *item);
    /// Fills the controls of a new item from another item.
    void StartLike(clsXMLRecord &other);
    /// The edited record; null while a new item has none.
    clsXMLRecord *Record() const { return m_record; }

    /// Writes the controls to the record in the order of the table: all of them when the screen closes; on the way to
    /// another section, without those stored only on closing.
    void Store(clsStoring storing);
    void Save();
    /// Saves and stays open for a new item, with the fields that its table keeps.
    void SaveAndAdd();
    void Cancel();
    void Close();
    void Prev();
    void Next();
    /// Leaves for another section, with or without storing.
    void JumpTo(const QString &section, bool store);

    /// Sets a rule's own check for Save, run after the required fields are found filled and before anything is created
    /// or written. If it returns false, having told the user why, the screen stays open.
    void setMayStore(std::function<bool()> mayStore) { m_mayStore = std::move(mayStore); }

    /// Sets the function called for each item that "Save and Add" stores; returns the item's name.
    void setAdded(std::function<QString()> added) { m_added = std::move(added); }
    /// Opens the editor with a copy of the item selected in the focused list, and adds it on Save.
    void SameAgain();
    /// Finds words in the focused list, otherwise in the first visible one.
    void Find();
    /// Sets one field of the rows marked in that list.
    void ChangeSelected();
    bool CanChangeSelected() const;
    /// Whether one of its lists has fields that can be set this way.
    bool ChangesItems() const;
    /// Whether items can be added to one of its lists.
    bool AddsItems() const;

    /// The control with that name; an unknown name raises the object error.
    QWidget &Box(const char *name) const;
    /// The same with its type: `Box<oDecimalBox>("txtVATRate")`.
    template <class Control> Control &Box(const char *name) const { return static_cast<Control &>(Box(name)); }
    /// All fields, in the order of the table; a list is followed by its button "Add".
    const std::vector<clsScreenField> &Fields() const { return m_fields; }
    /// The texts of the fields when they were filled.
    const QStringList &LoadedTexts() const { return m_loadedTexts; }
    /// The switcher of a screen with pages; raises the object error if there is none.
    oContentSwitcher &Switcher() const;
    /// Redraws all lists and updates what can be added to them.
    void RedrawLists();
    /// Selects an item's row in its list and opens that list's page; does nothing if no list has it.
    void ShowItem(const clsZR3Item *item);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The controls have been filled from the record.
    void Loaded();
    /// The record has been written.
    void Stored();

public slots:
    /// Esc: Cancel, or Close on a screen without Cancel, so that typed text isn't lost.
    void reject() override;

protected:
    /// The close box leaves every screen without storing; if there is a Cancel, it does the same.
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
    // On a screen with a list of the claim.
    oListLine *m_line = nullptr;
    clsScreenUndo *m_undo = nullptr;
    std::function<bool()> m_mayStore;
    std::function<QString()> m_added;
};
