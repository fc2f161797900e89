#pragma once

#include <QDateTime>
#include <QWidget>

#include <memory>

class QLabel;
class QProgressBar;
class QShortcut;
class QStackedLayout;
class clsPdfPages;
class oCustomButton;
class oPageThumbnails;
class oPageView;

/// The pages of the finished form as they will be printed: a status line, thumbnails and the pages. Only displays
/// pages: the old ones stay until new ones are set.
class oFormPages : public QWidget {
    Q_OBJECT

public:
    explicit oFormPages(QWidget *parent = nullptr);
    ~oFormPages() override;

    /// Shows the pages of a PDF document made from the claim at that time. False if it has none.
    bool ShowPages(const QByteArray &pdf, const QDateTime &asOf);
    /// Removes the pages; there are none of this claim.
    void Clear();
    bool HasPages() const { return m_pages != nullptr; }
    int Pages() const;
    /// The document shown; empty if none.
    QByteArray Pdf() const;

    /// Marks the pages as up to date at that time, or as old.
    void setAsOf(const QDateTime &asOf);
    void setOld(bool old);
    /// Shows the progress of making new pages, until EndProgress.
    void ShowProgress(int value, int maximum, const QString &text);
    void EndProgress();
    /// Why there are no new pages; empty for none.
    void ShowFailure(const QString &sentence);

    /// Moves the focus to the pages, or to the text shown in their place.
    void TakeFocus();

    oPageView *View() const { return m_view; }
    oPageThumbnails *Thumbnails() const { return m_thumbnails; }

signals:
    void Refresh();
    void Cancel();
    void ExportAsPdf();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildBar();
    void followFont();
    void placeThumbnails();
    void showState();
    oCustomButton *button(const char *name, const QString &caption, const QString &spoken);
    void zoomBy(int direction);

    std::unique_ptr<clsPdfPages> m_pages;
    QDateTime m_asOf;
    bool m_old = false;
    bool m_making = false;
    QString m_progress;
    QString m_failure;

    QWidget *m_bar;
    QLabel *lblCaption;
    QLabel *lblState;
    QProgressBar *m_progressBar;
    oCustomButton *cmdCancel;
    oCustomButton *cmdRefresh;
    oCustomButton *cmdSmaller;
    QLabel *lblZoom;
    oCustomButton *cmdLarger;
    oCustomButton *cmdFitWidth;
    oCustomButton *cmdExportAsPdf;
    QWidget *m_sheets;
    oPageThumbnails *m_thumbnails;
    oPageView *m_view;
    QLabel *lblNothing;
    QStackedLayout *m_places;
    QShortcut *m_escape;
};
