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

/// The pages of the finished form, as they will be printed: a line that says what is shown, thumbnails, and the pages
/// themselves. It shows what it is given and makes nothing: the old pages stay until it is given new ones.
class oFormPages : public QWidget {
    Q_OBJECT

public:
    explicit oFormPages(QWidget *parent = nullptr);
    ~oFormPages() override;

    /// Shows the pages of a PDF document, made of the claim as it stood then. False where it has none.
    bool ShowPages(const QByteArray &pdf, const QDateTime &asOf);
    /// There are no pages of this claim.
    void Clear();
    bool HasPages() const { return m_pages != nullptr; }
    int Pages() const;
    /// The document that is shown; empty without one.
    QByteArray Pdf() const;

    /// The pages are the claim's as it stands at this time, or as it was.
    void setAsOf(const QDateTime &asOf);
    void setOld(bool old);
    /// Says how far the making of new pages has come, until it ends.
    void ShowProgress(int value, int maximum, const QString &text);
    void EndProgress();
    /// Why there are no new pages; empty where there is nothing to say.
    void ShowFailure(const QString &sentence);

    /// Gives the focus to the pages, or to what stands in their place.
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
