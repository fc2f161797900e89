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

/// Makes the PDF pages of a claim: exports a copy of it into a private folder and has the office program convert the
/// document in a separate process. Changes neither the claim nor its export folder. Makes one set of pages at a time.
class clsPagesMaker : public QObject {
    Q_OBJECT

public:
    enum clsResult {
        Made,
        Unchanged, ///< the document equals that of the previous pages, which are still valid
        Cancelled,
        Failed,
    };

    explicit clsPagesMaker(QObject *parent = nullptr);
    ~clsPagesMaker() override;

    /// Starts. `madeBefore` is the document of the existing pages, if any. `Ended` follows, possibly at once.
    void Start(const clsZR3Form &form, const QByteArray &madeBefore = {});
    void Cancel();
    bool isRunning() const { return m_folder != nullptr; }

    // The pages made last.
    const QByteArray &Pdf() const { return m_pdf; }
    /// Identifies the document that they were made from: equal for equal documents.
    const QByteArray &Document() const { return m_document; }
    /// The sheets of that document.
    const clsForecast &Sheets() const { return m_sheets; }
    /// Why there are no pages, as a sentence.
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

/// A claim's text without the values that no page shows: its path, the time spent on it, its counters.
QString mdPrintedText(const clsZR3Form &form);
