#pragma once

#include "base/Money.h"
#include "base/clsRunTimeError.h"
#include "formdata/clsClaimPlace.h"

#include <QString>

#include <vector>

/// Where something that a figure comes from can be changed.
using clsWhySource = clsClaimPlace;

/// A figure that can be asked about, in the words of `mdWhy`. Empty for none.
struct clsWhyAsked {
    QString Kind {};
    QString Which {};

    bool isEmpty() const { return Kind.isEmpty(); }
};

/// A value that is so many per cent.
struct clsPercentage {
    Money PerCent;
};

/// A step on the way to a figure.
struct clsWhyStep {
    enum clsUnit { Words, Amount, PerCent };

    QString Text; ///< what it is
    QString Reason; ///< why it is so; may be empty
    QString Value;
    clsWhySource Source {};
    clsUnit Unit = Words;
    clsWhyAsked Asked {}; ///< where the value is a figure that has steps too

    /// Text and reason as one sentence.
    QString sentence() const;
    /// The value as it is printed: an amount with two decimals, a percentage with its sign.
    QString shown() const;

    void setValue(const QString &words) { Value = words; }
    void setValue(Money amount)
    {
        Value = MoneyToText(amount);
        Unit = Amount;
    }
    void setValue(clsPercentage percentage)
    {
        Value = MoneyToText(percentage.PerCent);
        Unit = PerCent;
    }
};

/// How a figure comes about. The last value is the figure. One that can't be computed is "!" and the number of its
/// error, and no steps follow it.
class clsWhy {
public:
    explicit clsWhy(const clsWhySource &source = {})
        : m_source(source)
    { }

    const std::vector<clsWhyStep> &steps() const { return m_steps; }
    QString figure() const { return m_steps.empty() ? QString() : m_steps.back().Value; }
    bool hasFailed() const { return m_hasFailed; }
    /// The item whose figure it is.
    const clsWhySource &source() const { return m_source; }

    /// Adds a step whose value is computed: words, an amount or a percentage; nothing after one that failed.
    template <class Compute>
    void add(const QString &text, const QString &reason, const clsWhySource &source, Compute compute)
    {
        if (m_hasFailed)
            return;
        try {
            clsWhyStep step {text, reason, {}, source};
            step.setValue(compute());
            m_steps.push_back(step);
        } catch (const clsRunTimeError &error) {
            m_hasFailed = true;
            m_steps.push_back({text, error.cause(), QStringLiteral("!%1").arg(error.number()), source});
        }
    }
    /// Says that the last step's value is a figure that can be asked about. No other follows one that failed.
    void lastCanBeAsked(const QString &kind, const QString &which)
    {
        if (m_steps.back().Asked.isEmpty())
            m_steps.back().Asked = {kind, which};
    }
    /// Runs what adds steps; where something that they are made of can't be read, that is the last of them.
    template <class Run> void addAll(const QString &text, Run run)
    {
        try {
            if (!m_hasFailed)
                run();
        } catch (const clsRunTimeError &error) {
            add(text, {}, {}, [&]() -> QString { throw error; });
        }
    }

private:
    clsWhySource m_source;
    std::vector<clsWhyStep> m_steps;
    bool m_hasFailed = false;
};
