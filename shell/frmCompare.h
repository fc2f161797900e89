#pragma once

#include <QDialog>

class QTableWidget;
struct clsComparison;

/// Shows the differences between two states of a claim: fields, items and totals. Changes nothing.
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
