#pragma once

#include "shell/clsPagesMaker.h"

#include <QDateTime>
#include <QObject>

class oFormPages;

/// Keeps the form pages of the main window in step with the claim: has them made when they are asked for, and knows
/// whether those that are shown are still the claim's.
class clsFormPages : public QObject {
    Q_OBJECT

public:
    explicit clsFormPages(oFormPages &page, QObject *parent = nullptr);

    /// Shows the claim's pages; they are made where those at hand are not the claim's as it stands.
    void Show();
    /// The claim may have changed: the pages are made anew, or marked as old. What could not be made is not tried again
    /// before the claim has changed.
    void Activate(bool makesAnew);
    /// The claim is no more, and its pages go with it.
    void Forget();
    /// The pages of the claim as it stands, where they are at hand; else nothing.
    QByteArray CurrentPdf() const;

    clsPagesMaker &Maker() { return m_maker; }

private:
    void make(const QString &text);
    void showMarks();
    void ended(clsPagesMaker::clsResult result);

    oFormPages &m_page;
    clsPagesMaker m_maker;
    QString m_shown; ///< the claim's text that the pages show
    QByteArray m_document; ///< that they were made of
    QString m_making; ///< the same of those that are being made
    QString m_notMade; ///< the same of those that could not be made, or were cancelled
    QDateTime m_begun;
};
