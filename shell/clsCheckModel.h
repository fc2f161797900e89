#pragma once

#include "costing/checking/mdGroupFindings.h"

#include <QAbstractItemModel>

/// The findings of the check as a tree: groups, their lines, and single notes below a line that collects many.
class clsCheckModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum clsKind { Group, Line, Note };
    enum clsRole {
        KindRole = Qt::UserRole,
        GroupRole, ///< the group, as clsFindingGroup::clsKind
        PlaceRole,
        CountRole, ///< the number of findings in a line or group
    };

    using QAbstractItemModel::QAbstractItemModel;

    void take(const std::vector<clsShownFinding> &findings, const std::vector<clsFindingGroup> &groups);

    /// The numbers of a line's findings; none for a group.
    std::vector<int> findingsOf(const QModelIndex &index) const;
    /// The line of a finding; invalid if it is not shown.
    QModelIndex indexOf(int finding) const;
    /// The findings shown and not dismissed, in the order of the lines.
    std::vector<int> walk() const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex & = {}) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct clsPath {
        int group = -1;
        int line = -1; ///< -1 for the group itself
        int note = -1; ///< -1 for the line itself
    };
    clsPath pathOf(const QModelIndex &index) const;
    QString textOf(const clsPath &path) const;
    QString placeOf(const clsPath &path) const;

    std::vector<clsShownFinding> m_findings;
    std::vector<clsFindingGroup> m_groups;
};

/// "Errors", "Warnings", "Notes" or "Put aside".
QString mdGroupCaption(clsFindingGroup::clsKind kind);
