#pragma once

#include <QFileDialog>

/// The dialog for files and folders: the desktop's own if it has one. In the toolkit's dialog, used otherwise, the
/// typed name takes precedence, and the columns of the list are wide enough.
class oFileDialog final : public QFileDialog {
    Q_OBJECT

public:
    oFileDialog(QWidget *parent, const QString &caption, const QString &folder);

    /// Shows the dialog; returns the chosen path, empty if none.
    QString Choose();

protected:
    void accept() override;
    void showEvent(QShowEvent *event) override;
};
