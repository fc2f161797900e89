#pragma once

#include "wordexport/document/mdWordFit.h"

#include <QString>

#include <vector>

/// Observes every operation of every clsMSWord, in order, with the texts as finally typed: U+00FE and U+00A8 for ticks,
/// U+000B for a line break inside the paragraph, one blank for an empty replacement. For tests of what an export sends
/// to the word processor; the operations don't depend on it.
class clsMSWordObserver {
public:
    virtual ~clsMSWordObserver() = default;

    virtual void opened(const QString &) { }
    virtual void movedDown(int) { }
    virtual void movedRight(int) { }
    virtual void movedToRowStart() { }
    /// One line down and to the start of that row, as one operation.
    virtual void nextRow() { }
    virtual void newParagraph() { }
    virtual void tabs(int) { }
    /// A placeholder was replaced; typed() is not called for this text.
    virtual void replaced(const QString & /*find*/, const QString & /*typedText*/, bool /*isTick*/) { }
    virtual void typed(const QString & /*textAsTyped*/, bool /*isTick*/, bool /*bold*/) { }
    /// An operation failed. For a text that could not be typed, `what` is the placeholder, or "cell" for one typed at
    /// the cursor, and `value` the text; otherwise they are the operation's name and its path, if any.
    virtual void failed(const QString & /*what*/, const QString & /*value*/) { }
    virtual void pageBreak() { }
    virtual void inserted(const QString & /*path*/) { }
    virtual void backSpace() { }
    /// Called before the document with these texts is saved; also if there are none.
    virtual void fitted(const std::vector<clsFittedText> &) { }
    virtual void savedAndClosed() { }
};

/// The current observer; by default one that does nothing.
clsMSWordObserver &MSWordObserver();

/// Sets the observer while this object lives, then restores the previous one.
class clsMSWordObserverScope {
public:
    explicit clsMSWordObserverScope(clsMSWordObserver &observer);
    ~clsMSWordObserverScope();
    clsMSWordObserverScope(const clsMSWordObserverScope &) = delete;
    clsMSWordObserverScope &operator=(const clsMSWordObserverScope &) = delete;

private:
    clsMSWordObserver *m_previous;
};
