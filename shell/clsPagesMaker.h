#pragma once

#include "wordexport/clsForecast.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class QTemporaryDir;
class clsPdfConversion;
class clsZR3Form;

/// Makes the finished pages of a claim as PDF: an export of a copy of it into a private folder, and the office
/// program's conversion of that, in a process beside the window. Neither the claim nor its export folder is touched. It
/// makes one set of pages at a time.
class clsPagesMaker : public QObject {
    Q_OBJECT

public:
    enum clsResult {
        Made,
        Unchanged, ///< the document is that of the pages made before, which still hold
        Cancelled,
        Failed,
    };

    explicit clsPagesMaker(QObject *parent = nullptr);
    ~clsPagesMaker() override;

    /// Begins. `madeBefore` is the document of pages that are at hand, if any. `Ended` follows, perhaps at once.
    void Start(const clsZR3Form &form, const QByteArray &madeBefore = {});
    void Cancel();
    bool isRunning() const { return m_folder != nullptr; }

    // Of the pages made last.
    const QByteArray &Pdf() const { return m_pdf; }
    /// What names the document that they were made of: the same document, the same name.
    const QByteArray &Document() const { return m_document; }
    /// Its sheets.
    const clsForecast &Sheets() const { return m_sheets; }
    /// Why there are none, in a sentence.
    const QString &Failure() const { return m_failure; }

signals:
    void Progress(int value, int maximum, const QString &text);
    void Ended(clsPagesMaker::clsResult result);

private:
    bool exportCopy(const clsZR3Form &form);
    void convert();
    void showConverting();
    void converted();
    void end(clsResult result);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<clsPdfConversion> m_conversion;
    QString m_file;
    clsForecast m_sheets;
    QTimer m_ticks;
    QElapsedTimer m_converting;
    qint64 m_expected;
    QByteArray m_pdf;
    QByteArray m_document;
    QString m_failure;
};

/// A claim's text less what no page shows: where it lies, the time spent on it, its counters.
QString mdPrintedText(const clsZR3Form &form);
