#pragma once

#include <QColor>
#include <QWidget>

class QVBoxLayout;
class oFrameCaption;

/// The titled group box of all screens: paper with a line around it, the caption in ink at the top left. With an expand
/// icon it is a page of a content switcher: its caption is a focusable bar with a chevron, and shows the number of
/// items on the page. It only signals clicks; it doesn't open or close itself.
class oFrame : public QWidget {
    Q_OBJECT

public:
    explicit oFrame(QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    QString Caption() const { return m_caption; }
    /// The caption with an ampersand before its Alt letter, as for buttons. The letter's action is defined elsewhere.
    void setMarkedCaption(const QString &caption);
    QString MarkedCaption() const { return m_markedCaption; }

    void setBackColour(const QColor &colour);
    QColor BackColour() const { return m_backColour; }
    void setCaptionColour(const QColor &colour);
    QColor CaptionColour() const { return m_captionColour; }

    void setShowExpandCollapseIcon(bool show);
    bool ShowExpandCollapseIcon() const { return m_showExpandCollapseIcon; }
    /// Shows the icon of an open or closed page, with the tint of the open one. Doesn't change the frame's size.
    void setExpanded(bool expanded);

    /// A bare frame only groups others: it has no line and no margins.
    void setBare(bool bare);

    /// The number at the right end of a page's caption; not shown at 0.
    void setCount(int count);

    /// The layout for the contents.
    QVBoxLayout *bodyLayout() const { return m_body; }
    /// The caption, which takes the focus if the frame is a page.
    QWidget *captionBar() const;

signals:
    void Resized();
    /// Raised after Click if the caption was clicked.
    void ExpandCollapse();
    void Click();

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class oFrameCaption;

    void measure();

    QString m_caption;
    QString m_markedCaption; ///< empty if it has no letter
    QColor m_backColour;
    QColor m_captionColour;
    bool m_showExpandCollapseIcon = false;
    bool m_expanded = false;
    bool m_bare = false;
    bool m_pressed = false;
    int m_count = 0;
    oFrameCaption *m_bar;
    QVBoxLayout *m_body;
};
