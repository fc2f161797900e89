#pragma once

#include <QColor>
#include <QWidget>

class QVBoxLayout;
class oFrameCaption;

/// The titled group box of all screens: paper with a line around it, the caption in ink at the top left.
/// With an expand icon it is a page of a content switcher: its caption is a bar with a chevron that takes the focus,
/// and it shows how many items the page holds. It opens and closes nothing itself, it only says what was clicked.
class oFrame : public QWidget {
    Q_OBJECT

public:
    explicit oFrame(QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    QString Caption() const { return m_caption; }
    /// The caption with the mark of a letter for the Alt key, in the way of buttons. What the letter does is for others
    /// to say.
    void setMarkedCaption(const QString &caption);
    QString MarkedCaption() const { return m_markedCaption; }

    void setBackColour(const QColor &colour);
    QColor BackColour() const { return m_backColour; }
    void setCaptionColour(const QColor &colour);
    QColor CaptionColour() const { return m_captionColour; }

    void setShowExpandCollapseIcon(bool show);
    bool ShowExpandCollapseIcon() const { return m_showExpandCollapseIcon; }
    /// Shows the icon of an open or a closed page, with the tint of the open one. The frame's size stays.
    void setExpanded(bool expanded);

    /// A bare frame only keeps others together: it has no line and no margins.
    void setBare(bool bare);

    /// The number at the right end of a page's caption; nothing at 0.
    void setCount(int count);

    /// Where the contents go.
    QVBoxLayout *bodyLayout() const { return m_body; }
    /// The caption, which takes the focus where the frame is a page.
    QWidget *captionBar() const;

signals:
    void Resized();
    /// Follows Click where the caption was clicked.
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
    QString m_markedCaption; ///< empty while it has no letter
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
