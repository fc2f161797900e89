#pragma once

#include "base/Money.h"
#include "base/clsRunTimeError.h"
#include "formdata/clsClaimPlace.h"

#include <QString>

#include <vector>

/// Where one of the sources of a figure can be changed.
using clsWhySource = clsClaimPlace;

/// A figure that can be explained, by the arguments of `mdWhy`. Empty for none.
struct clsWhyAsked {
    QString Kind {};
    QString Which {};

    bool isEmpty() const { return Kind.isEmpty(); }
};

/// A value in per cent.
struct clsPercentage {
    Money PerCent;
};

/// A step in the calculation of a figure.
struct clsWhyStep {
    enum clsUnit { Words, Amount, PerCent };

    QString Text; ///< what the value is
    QString Reason; ///< the reason for it; may be empty
    QString Value;
    clsWhySource Source {};
    clsUnit Unit = Words;
    clsWhyAsked Asked {}; ///< if the value is a figure that has steps too

    /// Text and reason as one sentence.
    QString sentence() const;
    /// The value as printed: an amount with two decimals, a percentage with its sign.
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

/// How a figure is calculated. The last value is the figure. A failed one is "!" and its error number, with no steps
/// after it.
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

    /// Adds a step with a computed value: words, an amount or a percentage; does nothing after a failed step.
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
    /// Marks the last step's value as a figure that can be explained itself. Does nothing after a failed step.
    void lastCanBeAsked(const QString &kind, const QString &which)
    {
        if (m_steps.back().Asked.isEmpty())
            m_steps.back().Asked = {kind, which};
    }
    /// Runs a function that adds steps; if one of their sources can't be read, that is the last step.
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
