#pragma once

#include <QString>

#include <deque>
#include <map>

/// The trail of actions: counted by kind, with the last ones kept for finding the cause of a failure.
class clsTrail {
public:
    explicit clsTrail(bool tellsAll)
        : m_tellsAll(tellsAll)
    { }

    /// Call before an action, so that one that ends the program is known too.
    void say(const char *kind, const QString &words);
    /// Something between the actions, which is not counted.
    void note(const QString &words);
    /// Prints the last actions.
    void printLast() const;

    int actions() const { return m_actions; }
    const std::map<QString, int> &counts() const { return m_counts; }

private:
    void keep(const QString &line);

    static constexpr size_t Kept = 30;

    bool m_tellsAll;
    int m_actions = 0;
    std::deque<QByteArray> m_last;
    std::map<QString, int> m_counts;
};
