#pragma once

#include <QWidget>

/// The preview with the panel at its right. In a narrow window the panel lies over the preview.
class oPreviewArea : public QWidget {
    Q_OBJECT

public:
    oPreviewArea(QWidget *preview, QWidget *panel, QWidget *parent = nullptr);

    void setPanelOpen(bool open);
    bool isPanelOpen() const { return m_open; }
    /// Whether the panel is open and hides a part of the preview.
    bool panelLiesOver() const;
    /// What is left to the preview in a window of that width.
    int previewWidth(int windowWidth) const;

    QSize sizeHint() const override { return m_preview->sizeHint(); }
    QSize minimumSizeHint() const override { return {0, 0}; }

signals:
    /// The panel has come to stand beside the preview, or no longer does: what is left to the preview is other.
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
