#pragma once

#include "editors/oScreenList.h"

/// The list of the claim's fee earner groups, by their references. It holds no group, only where in the claim the
/// chosen one stands, and fills itself when it is made.
class oFeeEarnerGroupCombo : public oScreenList {
    Q_OBJECT

public:
    explicit oFeeEarnerGroupCombo(QWidget *parent = nullptr);

    /// Fills the list anew and selects its first entry.
    void fill();

    /// Whether "None" is offered before the groups.
    bool ShowNoneOption() const { return m_showNoneOption; }
    void setShowNoneOption(bool showNoneOption);

    /// The identity of the chosen group; empty for "None", and while the list is disabled.
    QString SelectedFeeEarnerGroupUniqueID() const;
    /// Chooses a group and tells of it. An empty identity changes nothing; with one that no group has none is chosen.
    void setSelectedFeeEarnerGroupUniqueID(const QString &uniqueID);

    /// Enabling selects the first entry, also of a list that is enabled already; disabling clears the selection. A
    /// window that is disabled for a while leaves it alone: that is no choice of the screen's.
    void setEnabled(bool enabled);

signals:
    void Change();

private:
    bool Enabled() const { return !testAttribute(Qt::WA_ForceDisabled); }

    bool m_showNoneOption = false;
};
