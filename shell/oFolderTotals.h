#pragma once

#include "shell/clsShownClaims.h"

#include <QWidget>

class oFolderTable;

/// What the chosen claims come to, in the lines of the columns above it.
class oFolderTotals : public QWidget {
    Q_OBJECT

public:
    explicit oFolderTotals(oFolderTable &table, QWidget *parent = nullptr);

    /// `caption` says of which claims.
    void Show(const QString &caption, const clsFolderSums &sums);

    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    oFolderTable &m_table;
    QString m_caption;
    clsFolderSums m_sums;
};
