#pragma once

#include <QWidget>

class QDialog;
class QHBoxLayout;

/// The bottom bar of a dialog: paper with a line above, and the dialog's buttons at its right end.
class oButtonBar : public QWidget {
    Q_OBJECT

public:
    explicit oButtonBar(QWidget *parent = nullptr);

    /// Adds a button after the existing ones.
    void AddButton(QWidget *button);
    /// Adds a widget at the left end.
    void AddLeft(QWidget *widget);

    /// Lays out a dialog in the common way: the header, the content on the canvas, and the bar.
    static void layOut(QDialog &dialog, QWidget *header, QWidget *content, oButtonBar *bar);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QHBoxLayout *m_layout;
    int m_left = 0; ///< the number of widgets at the left
};
