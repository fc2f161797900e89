#pragma once

#include <QFrame>

#include <memory>

class clsItemChoice;
class clsZR3Counsel;
class oCustomButton;
struct clsOtherControl;

/// A tick, a list of the claim's counsel, one of whom is chosen while it is ticked, and two buttons that add a counsel
/// and edit the chosen one on the spot. It has no text of its own: its row's caption is that of the tick.
class oCounselBox : public QFrame {
    Q_OBJECT

public:
    explicit oCounselBox(QWidget *parent = nullptr);

    bool Counsel() const;
    void setCounsel(bool counsel);
    /// The identity of the chosen counsel; empty while unticked, also where one is chosen.
    QString CounselUniqueID() const;
    /// Chooses a counsel; an empty identity changes nothing.
    void setCounselUniqueID(const QString &uniqueID);

    /// Reads the claim's counsel anew and keeps the chosen one.
    void fill();

    clsItemChoice &choice() const { return *m_choice; }

signals:
    /// Another counsel is chosen, by the user or by the program; nothing stands for none.
    void Change(const std::shared_ptr<clsZR3Counsel> &counsel);

private:
    std::shared_ptr<clsZR3Counsel> selected() const;
    oCustomButton *addButton(const char *name, const char *caption, const char *spokenCaption);
    void enableEdit();
    void edit(const std::shared_ptr<clsZR3Counsel> &counsel);

    clsItemChoice *m_choice;
    oCustomButton *cmdAddCounsel;
    oCustomButton *cmdEditCounsel;
};

/// The box as a row of a screen's table, which loads and stores `Counsel` and then `CounselUniqueID`:
///
///     {.kind = Other, .control = "oCounsel", .caption = "Counsel:", .other = &CounselOfItem},
///
/// Where the record calls them otherwise, the row's member names both, with a blank between.
extern const clsOtherControl CounselOfItem;
