#pragma once

#include <QString>

#include <functional>
#include <memory>

/// Converts one document to PDF with the office program, in a separate process group with a separate profile: an
/// instance that is already running is not affected. Works on a copy of the document in a private folder, deleted with
/// this object. Continues by itself where an event loop runs; otherwise call `wait`.
class clsPdfConversion {
public:
    enum clsState { Running, Done, Failed, Cancelled };

    /// Starts. The event loop calls `ended` once when it is over; not if it could not start, as `state` then shows.
    /// `ended` may destroy this object.
    explicit clsPdfConversion(const QString &document, std::function<void()> ended = {});
    /// Stops a running conversion; `ended` is not called.
    ~clsPdfConversion();
    clsPdfConversion(const clsPdfConversion &) = delete;
    clsPdfConversion &operator=(const clsPdfConversion &) = delete;

    clsState state() const;
    /// Why it failed, in a sentence for the user.
    QString failure() const;
    /// The file, once it is done.
    QString pdf() const;

    /// Stops it and all processes that it has started.
    void cancel();
    /// Waits until it has ended.
    clsState wait();

private:
    class clsRun;
    std::unique_ptr<clsRun> m_run;
};

/// Renames the PDF of a finished conversion into place in one step, with the document's permissions. Returns why that
/// failed, in a sentence for the user; empty on success.
QString mdPutPdfInPlace(const clsPdfConversion &conversion, const QString &document, const QString &pdf);
