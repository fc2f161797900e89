#pragma once

#include <QWidget>

#include <vector>

class QVBoxLayout;
class oFrame;

/// A stack of pages under captions, of which exactly one is open. A click on a page's frame opens it, and so do the
/// keys: Up and Down walk the captions, Enter or Space opens. It opens at once; nothing slides.
class oContentSwitcher : public QWidget {
    Q_OBJECT

public:
    explicit oContentSwitcher(QWidget *parent = nullptr);

    /// Moves the container into a new page at the end. The first page is the open one. The page has margins: the
    /// container's layout needs none.
    void AddContent(QWidget *container, const QString &caption);
    /// Opens the page of this number, counted from 1, and closes the others; a number without a page changes nothing.
    void SwitchTo(int index);
    /// The number of the open page; 0 while there is none.
    int OpenPage() const { return m_open; }
    int Pages() const { return int(m_pages.size()); }
    /// The frame of a page, by its number; nothing for a number without a page.
    oFrame *Page(int index) const { return hasPage(index) ? m_pages[size_t(index - 1)].frame : nullptr; }

    /// While it is set, only SwitchTo changes the page.
    void setIgnoreClicks(bool ignore) { m_ignoreClicks = ignore; }
    bool IgnoreClicks() const { return m_ignoreClicks; }

    /// The number of items that a page's caption shows.
    void setCount(int page, int count);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct clsPage {
        oFrame *frame;
        QWidget *body;
    };

    bool hasPage(int index) const { return index >= 1 && index <= int(m_pages.size()); }
    void walk(const QObject *from, int step);

    std::vector<clsPage> m_pages;
    QVBoxLayout *m_stack;
    int m_open = 0;
    bool m_ignoreClicks = false;
};
