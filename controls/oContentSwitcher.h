#pragma once

#include <QWidget>

#include <vector>

class QVBoxLayout;
class oFrame;

/// A stack of pages with captions, exactly one of them open. A click on a page's frame opens it; so do the keys: Up and
/// Down move between the captions, Enter or Space opens. Opens without animation.
class oContentSwitcher : public QWidget {
    Q_OBJECT

public:
    explicit oContentSwitcher(QWidget *parent = nullptr);

    /// Moves the container to a new page at the end. The first page is open. The page has margins: the container's
    /// layout needs none.
    void AddContent(QWidget *container, const QString &caption);
    /// Opens the page with this number, counted from 1, and closes the others; does nothing for a number without a
    /// page.
    void SwitchTo(int index);
    /// The number of the open page; 0 while there is none.
    int OpenPage() const { return m_open; }
    int Pages() const { return int(m_pages.size()); }
    /// The frame of a page, by its number; null for a number without a page.
    oFrame *Page(int index) const { return hasPage(index) ? m_pages[size_t(index - 1)].frame : nullptr; }

    /// While set, only SwitchTo changes the page.
    void setIgnoreClicks(bool ignore) { m_ignoreClicks = ignore; }
    bool IgnoreClicks() const { return m_ignoreClicks; }

    /// Sets the number of items shown in a page's caption.
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
