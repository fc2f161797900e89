#pragma once

#include <QString>

#include <vector>

/// The memory at the moments at which the program is at rest: an empty new claim, and every screen closed. What was
/// used in between must have been given back by then.
///
/// The rule: the first rest points are the warm-up, in which fonts, pictures and dictionaries are read once. Of those
/// behind them, the lowest figure of the last third may not lie above the highest of the first third by more than a
/// bound. A leak that grows lifts every later figure and with it the lowest; a cache that fills and empties does not.
class clsMemoryWatch {
public:
    struct clsPoint {
        int action;
        qint64 heap; ///< bytes in use
        qint64 objects; ///< of the toolkit, below the application and its windows
        qint64 windows; ///< of the top
    };

    /// Measures now.
    void take(int action);
    /// What grows, in words; empty where nothing does, and where there are too few points to tell.
    QString whatGrows() const;
    const std::vector<clsPoint> &points() const { return m_points; }

private:
    QString grows(const char *what, qint64 clsPoint::*figure, qint64 bound) const;

    std::vector<clsPoint> m_points;
};
