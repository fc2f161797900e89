#pragma once

#include <QListView>

class clsPdfPages;

/// The pages of a document as small named pictures, for choosing one. Pages are counted from 0.
class oPageThumbnails : public QListView {
    Q_OBJECT

public:
    explicit oPageThumbnails(QWidget *parent = nullptr);

    /// `pages` must live as long as they are shown; null for none.
    void setPages(clsPdfPages *pages);
    /// Marks a page without choosing it.
    void MarkPage(int page);

    QSize sizeHint() const override;

signals:
    void Chosen(int page);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    bool m_marking = false;
};
