#pragma once

#include <QFrame>

#include <memory>

class clsItemChoice;
class clsZR3Counsel;
class oCustomButton;
struct clsOtherControl;

/// A tick, a list of the claim's counsel, enabled while it is ticked, and two buttons to add a counsel and to edit the
/// chosen one. Has no caption: the row's caption belongs to the tick.
class oCounselBox : public QFrame {
    Q_OBJECT

public:
    explicit oCounselBox(QWidget *parent = nullptr);

    bool Counsel() const;
    void setCounsel(bool counsel);
    /// The identity of the chosen counsel; empty while unticked, even if one is chosen.
    QString CounselUniqueID() const;
    /// Chooses a counsel; an empty identity changes nothing.
    void setCounselUniqueID(const QString &uniqueID);

    /// Reads the claim's counsel again and keeps the choice.
    void fill();

    clsItemChoice &choice() const { return *m_choice; }

signals:
    /// The user or the program has chosen another counsel; null for none.
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
/// {.kind = Other, .control = "oCounsel", .caption = "Counsel:", .other = &CounselOfItem},
///
/// If the record's properties have other names, the row's member names both, separated by a space.
extern const clsOtherControl CounselOfItem;
