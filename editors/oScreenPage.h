#pragma once

#include <QScrollArea>

#include <map>
#include <vector>

class QBoxLayout;
class QVBoxLayout;
class oScreenFrame;
struct clsScreenFrame;

/// The middle of a screen: its frames in one column or, where there is room, in two. It alone scrolls, and only up and
/// down; whatever gets the focus comes into view, and stays there when the window
/// shrinks.
class oScreenPage : public QScrollArea {
    Q_OBJECT

public:
    explicit oScreenPage(QWidget *parent);
    ~oScreenPage() override;

    /// The parent of the frames.
    QWidget *content() const { return widget(); }
    /// Puts a frame below the ones before, at the top of the second column, or in one line with the last, as its table
    /// says.
    void addFrame(oScreenFrame *frame, const clsScreenFrame &table);
    const std::vector<oScreenFrame *> &frames() const { return m_frames; }
    /// Lets the frames of a column begin their boxes at one edge, and gives the height that is left over to those that
    /// grow, or leaves it below them. To be called once, at last.
    void complete();

    /// The height that the frames take at a width of the page.
    int heightFor(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QBoxLayout &lineAtEndOf(QVBoxLayout &column);
    /// What the captions of a frame need, and the column that it stands in where there are two.
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
    mutable bool m_wide = false; ///< how it was arranged last
};
