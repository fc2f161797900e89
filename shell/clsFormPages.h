#pragma once

#include "shell/clsPagesMaker.h"

#include <QDateTime>
#include <QObject>

class oFormPages;

/// Keeps the form pages of the main window in step with the claim: has them made on request, and knows whether the ones
/// on display are up to date.
class clsFormPages : public QObject {
    Q_OBJECT

public:
    explicit clsFormPages(oFormPages &page, QObject *parent = nullptr);

    /// Shows the claim's pages; makes them if those available are out of date.
    void Show();
    /// The claim may have changed: makes the pages again or marks them as old. After a failure they are not tried again
    /// until the claim changes.
    void Activate(bool makesAnew);
    /// The claim was closed: removes its pages.
    void Forget();
    /// The PDF of the pages if it is up to date, else empty.
    QByteArray CurrentPdf() const;

    clsPagesMaker &Maker() { return m_maker; }

private:
    void make(const QString &text);
    void showMarks();
    void ended(clsPagesMaker::clsResult result);

    oFormPages &m_page;
    clsPagesMaker m_maker;
    QString m_shown; ///< the claim's text that the pages show
    QByteArray m_document; ///< the document that they were made from
    QString m_making; ///< the text of the pages in progress
    QString m_notMade; ///< the text of pages that failed or were cancelled
    QDateTime m_begun;
};
