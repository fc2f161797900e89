#pragma once

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QScrollArea;
class QToolButton;
class oTabBarButton;

/// A row of tabs, counted from 1. The first row of the main window shows the selected group of sections; the tabs of
/// the second row open screens and look like buttons. The row only signals clicks; it opens nothing itself. Left and
/// Right move along the row, Enter and Space click, Tab leaves; a row that is too wide scrolls.
class oTabBar : public QWidget {
    Q_OBJECT

public:
    enum class Row { Tabs, Buttons };

    explicit oTabBar(QWidget *parent = nullptr);

    void setRow(Row row);

    /// Removes every tab; the next one has the index 1 again.
    void Clear();
    void AddButton(const QString &caption, const QString &tag);
    /// Marks the tab with that index as selected, without a click; 0 for none.
    void SwitchTo(int index);
    /// Stores the selected index; `SwitchTo` shows it as well.
    void SetSelected(int index) { m_selected = index; }
    /// The index of the selected tab, 0 for none.
    int SelectedIndex() const { return m_selected; }
    /// Switches painting on or off, for building a row in one step.
    void setDoRedraw(bool redraw);

signals:
    /// The user clicked a tab, possibly the selected one.
    void Click(int index, const QString &tag);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct clsTab {
        oTabBarButton *button;
        QString tag;
    };

    QToolButton *addScroller(Qt::ArrowType arrow, int direction);
    void redraw();
    void clicked(const oTabBarButton *button);
    void move(const oTabBarButton *from, int steps);
    void setTabStop(const oTabBarButton *stop);
    void showScrollers();

    Row m_row = Row::Tabs;
    int m_selected = 0;
    bool m_doRedraw = true;
    std::vector<clsTab> m_tabs;
    QWidget *m_tabOrder; ///< holds the row's place in the tab order
    QScrollArea *m_view;
    QHBoxLayout *m_buttons;
    QToolButton *m_scrollLeft;
    QToolButton *m_scrollRight;
};
