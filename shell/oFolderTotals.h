#pragma once

#include "shell/clsShownClaims.h"

#include <QWidget>

class oFolderTable;

/// The sums of the chosen claims, aligned with the columns of the list above.
class oFolderTotals : public QWidget {
    Q_OBJECT

public:
    explicit oFolderTotals(oFolderTable &table, QWidget *parent = nullptr);

    /// `caption` says which claims are added up.
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
