#pragma once

#include <QScrollArea>

#include <map>
#include <vector>

class QBoxLayout;
class QVBoxLayout;
class oScreenFrame;
struct clsScreenFrame;

/// The middle of a screen: its frames in one column or, if there is room, in two. Only this part scrolls, and only
/// vertically; a focused field is scrolled into view and stays visible when the window shrinks.
class oScreenPage : public QScrollArea {
    Q_OBJECT

public:
    explicit oScreenPage(QWidget *parent);
    ~oScreenPage() override;

    /// The parent of the frames.
    QWidget *content() const { return widget(); }
    /// Adds a frame below the others, at the top of the second column, or in one line with the last, as its table
    /// specifies.
    void addFrame(oScreenFrame *frame, const clsScreenFrame &table);
    const std::vector<oScreenFrame *> &frames() const { return m_frames; }
    /// Aligns the boxes of all frames in a column, and gives spare height to frames that grow or leaves it below them.
    /// Call once, after adding the frames.
    void complete();

    /// The height of the frames at that page width.
    int heightFor(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QBoxLayout &lineAtEndOf(QVBoxLayout &column);
    /// The label width of a frame and, in a two-column layout, its column.
    struct clsLabels {
        int width = 0;
        int column = 0;
    };

    void arrange(int width) const;
    void alignLabels() const;
    void showFocus(const QWidget *focused);

    QBoxLayout *m_columns;
    std::vector<QBoxLayout *> m_lines; ///< of frames beside each other
    std::vector<oScreenFrame *> m_frames;
    std::map<oScreenFrame *, clsLabels> m_ownLabels;
    mutable bool m_wide = false; ///< the last arrangement
};
