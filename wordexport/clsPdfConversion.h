#pragma once

#include <QString>

#include <functional>
#include <memory>

/// The conversion of one document to PDF by the office program, in processes and with a profile of its own: one that is
/// running already is left in peace. It works on a copy of the document, in a private folder that goes with this
/// object. Where an event loop runs it goes on by itself; elsewhere `wait` lets it.
class clsPdfConversion {
public:
    enum clsState { Running, Done, Failed, Cancelled };

    /// Begins. `ended` is called by the event loop, once, when it is over; not where it could not begin, as the state
    /// then tells. It may destroy this object.
    explicit clsPdfConversion(const QString &document, std::function<void()> ended = {});
    /// Stops it where it still runs; `ended` is not called.
    ~clsPdfConversion();
    clsPdfConversion(const clsPdfConversion &) = delete;
    clsPdfConversion &operator=(const clsPdfConversion &) = delete;

    clsState state() const;
    /// Why it failed, in a sentence for the user.
    QString failure() const;
    /// The file, once it is done.
    QString pdf() const;

    /// Stops it, with all processes that it has started.
    void cancel();
    /// Waits until it has ended.
    clsState wait();

private:
    class clsRun;
    std::unique_ptr<clsRun> m_run;
};

/// Puts the PDF of a conversion that has ended under its name in one step, as open to others as the document is.
/// Returns why there is none, in a sentence for the user; empty where there is one.
QString mdPutPdfInPlace(const clsPdfConversion &conversion, const QString &document, const QString &pdf);
