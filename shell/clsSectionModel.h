#pragma once

#include "controls/mdSigns.h"
#include "costing/checking/mdGroupFindings.h"

#include <QAbstractListModel>
#include <QSet>

#include <vector>

/// The sections of a form in the order of its tabs, with a caption above each group, and the state of each section.
class clsSectionModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum clsRole { DotRole = Qt::UserRole, CountRole };

    using QAbstractListModel::QAbstractListModel;

    void take(const QString &formType, const QSet<QString> &begun, const QHash<QString, clsScreenFindings> &findings);
    /// The row of a section; -1 if the form doesn't have it.
    int rowOf(const QString &section) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Captions can't be selected.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct clsRow {
        QString text;
        bool isCaption = false;
        bool begun = false;
        clsScreenFindings findings {};

        bool operator==(const clsRow &other) const = default;
    };

    static std::vector<clsRow> rowsOf(const QString &formType);
    static Dot dotOf(const clsRow &row);
    static QString spoken(const clsRow &row);

    std::vector<clsRow> m_rows;
};
