#pragma once

#include <QFrame>

class clsItemChoice;
struct clsOtherControl;

/// A tick and a list of the claim's enhancements, enabled while it is ticked. Has no caption: the row's caption belongs
/// to the tick.
class oEnhancementsBox : public QFrame {
    Q_OBJECT

public:
    explicit oEnhancementsBox(QWidget *parent = nullptr);

    bool IncludeInEnhancements() const;
    void setIncludeInEnhancements(bool include);
    /// The identity of the chosen enhancement; empty while unticked, even if one is chosen.
    QString EnhancementUniqueID() const;
    /// Chooses an enhancement; an empty identity changes nothing.
    void setEnhancementUniqueID(const QString &uniqueID);

    /// Reads the claim's enhancements again and keeps the choice.
    void fill();

    clsItemChoice &choice() const { return *m_choice; }

private:
    clsItemChoice *m_choice;
};

/// The box as a row of a screen's table, which loads and stores `IncludeInEnhancements` and then `EnhancementUniqueID`:
///
/// {.kind = Other, .control = "oEnhancement", .caption = "Include in Enhancements:", .other = &EnhancementsOfItem},
///
/// If the record's properties have other names, the row's member names both: "EnhanceCalls CallsEnhancementUniqueID".
extern const clsOtherControl EnhancementsOfItem;
