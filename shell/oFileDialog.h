#pragma once

#include <QFileDialog>

/// The dialog for files and folders: the desktop's own where it has one. In the toolkit's, which stands in for it
/// elsewhere, the name that is typed counts, and the columns of the list have the room that they need.
class oFileDialog final : public QFileDialog {
    Q_OBJECT

public:
    oFileDialog(QWidget *parent, const QString &caption, const QString &folder);

    /// Shows it; the path that was chosen, or nothing.
    QString Choose();

protected:
    void accept() override;
    void showEvent(QShowEvent *event) override;
};
