#pragma once

#include <QDialog>

class QTableWidget;
struct clsComparison;

/// Shows what differs between two states of a claim: fields, items and totals. It changes nothing.
class frmCompare : public QDialog {
    Q_OBJECT

public:
    explicit frmCompare(const clsComparison &comparison, QWidget *parent = nullptr);

    QSize sizeHint() const override;

private:
    void fill(const clsComparison &comparison);
    void addGroup(const QString &caption);
    void addRow(const QStringList &cells);

    QTableWidget *m_table;
};
