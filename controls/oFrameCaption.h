#pragma once

#include <QAbstractButton>

class oFrame;

/// The caption of a frame: a button for keyboard and screen reader; the frame handles the click. If the frame only
/// groups, it is plain text without focus.
class oFrameCaption final : public QAbstractButton {
    Q_OBJECT

public:
    explicit oFrameCaption(oFrame &frame);

    QSize sizeHint() const override;
    /// Whether it is the caption of a page, and of an open one.
    bool isPage() const;
    bool isOpen() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintHeading(QPainter &painter) const;
    void paintCaption(QPainter &painter, const QRect &room, Qt::Alignment alignment) const;
    void paintPage(QPainter &painter) const;

    oFrame &m_frame;
};
