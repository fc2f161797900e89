#pragma once

#include <QWidget>

class QDialog;
class QHBoxLayout;

/// The foot of a dialog: paper with a line above, and the dialog's buttons at its right end.
class oButtonBar : public QWidget {
    Q_OBJECT

public:
    explicit oButtonBar(QWidget *parent = nullptr);

    /// Adds a button behind those that are there.
    void AddButton(QWidget *button);
    /// The same at the left end.
    void AddLeft(QWidget *widget);

    /// Lays a dialog out as all are: the header, the content on the canvas, and the bar.
    static void layOut(QDialog &dialog, QWidget *header, QWidget *content, oButtonBar *bar);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QHBoxLayout *m_layout;
    int m_left = 0; ///< how many stand at the left
};
