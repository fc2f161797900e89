#pragma once

#include <QWidget>

class oCloseButton;
class oSectionList;

/// The list of sections at the left of the main window. It gives way in a narrow window: first to its dots, then
/// altogether.
class oSectionPanel : public QWidget {
    Q_OBJECT

public:
    explicit oSectionPanel(QWidget *parent = nullptr);

    oSectionList *List() const { return m_list; }

    void setOpen(bool open);
    /// Whether the user has it open, be there room for it or not.
    bool isOpen() const { return m_open; }
    /// Takes the room that there is for it in a window of that width.
    void fit(int windowWidth);
    static bool hasRoom(int windowWidth);
    /// What it takes of the window's width.
    int shownWidth() const;

signals:
    void CloseAsked();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isFolded() const;
    void place();
    void showClose();
    void placeClose();

    oSectionList *m_list;
    oCloseButton *cmdClose;
    bool m_open = false;
    int m_windowWidth = 0;
};
