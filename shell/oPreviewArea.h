#pragma once

#include <QWidget>

/// The preview with the panel to its right, or over it in a narrow window.
class oPreviewArea : public QWidget {
    Q_OBJECT

public:
    oPreviewArea(QWidget *preview, QWidget *panel, QWidget *parent = nullptr);

    void setPanelOpen(bool open);
    bool isPanelOpen() const { return m_open; }
    /// Whether the panel is open and covers part of the preview.
    bool panelLiesOver() const;
    /// The width left for the preview in a window of that width.
    int previewWidth(int windowWidth) const;

    QSize sizeHint() const override { return m_preview->sizeHint(); }
    QSize minimumSizeHint() const override { return {0, 0}; }

signals:
    /// The panel has moved beside the preview or away from it, which changes the preview's width.
    void BesideChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();
    static bool isWide(int windowWidth);

    QWidget *m_preview;
    QWidget *m_panel;
    bool m_open = false;
    bool m_beside = false;
};
