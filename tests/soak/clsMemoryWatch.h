#pragma once

#include <QString>

#include <vector>

/// The memory used while the program is at rest: an empty new claim, and all screens closed. Everything used in between
/// must have been released by then.
///
/// The rule: the first rest points are the warm-up, in which fonts, pictures and dictionaries are loaded once. After
/// that, the lowest figure of the last third must not exceed the highest of the first third by more than a bound. A
/// growing leak raises all later figures and so the lowest; a cache that fills and empties does not.
class clsMemoryWatch {
public:
    struct clsPoint {
        int action;
        qint64 heap; ///< bytes in use
        qint64 objects; ///< of Qt, below the application and its windows
        qint64 windows; ///< top-level ones
    };

    /// Measures now.
    void take(int action);
    /// A description of what grows; empty if nothing does, or if there are too few points to tell.
    QString whatGrows() const;
    const std::vector<clsPoint> &points() const { return m_points; }

private:
    QString grows(const char *what, qint64 clsPoint::*figure, qint64 bound) const;

    std::vector<clsPoint> m_points;
};
