#pragma once

#include <QWidget>

class oCloseButton;
class oSectionList;

/// The section list at the left of the main window. As the window gets narrower it shrinks to its dots, then
/// disappears.
class oSectionPanel : public QWidget {
    Q_OBJECT

public:
    explicit oSectionPanel(QWidget *parent = nullptr);

    oSectionList *List() const { return m_list; }

    void setOpen(bool open);
    /// Whether the user has opened it, even if there is no room for it.
    bool isOpen() const { return m_open; }
    /// Takes the width available to it in a window of that width.
    void fit(int windowWidth);
    static bool hasRoom(int windowWidth);
    /// The width that it takes up.
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
