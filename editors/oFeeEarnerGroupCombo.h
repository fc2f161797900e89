#pragma once

#include "editors/oScreenList.h"

/// The list of the claim's fee earner groups, by their references. It stores only the position of the chosen group in
/// the claim, and fills itself on construction.
class oFeeEarnerGroupCombo : public oScreenList {
    Q_OBJECT

public:
    explicit oFeeEarnerGroupCombo(QWidget *parent = nullptr);

    /// Fills the list again and selects its first entry.
    void fill();

    /// Whether "None" is offered before the groups.
    bool ShowNoneOption() const { return m_showNoneOption; }
    void setShowNoneOption(bool showNoneOption);

    /// The identity of the chosen group; empty for "None" and while the list is disabled.
    QString SelectedFeeEarnerGroupUniqueID() const;
    /// Chooses a group and emits the change. An empty identity changes nothing; an unknown one clears the choice.
    void setSelectedFeeEarnerGroupUniqueID(const QString &uniqueID);

    /// Enabling selects the first entry, even in an enabled list; disabling clears the selection. Temporarily disabling
    /// the window has no effect on it.
    void setEnabled(bool enabled);

signals:
    void Change();

private:
    bool Enabled() const { return !testAttribute(Qt::WA_ForceDisabled); }

    bool m_showNoneOption = false;
};
