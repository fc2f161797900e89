#pragma once

#include <QString>

#include <deque>
#include <map>

/// What was done, in words: counted by kind, and the last of it kept for whoever has to find out why it went wrong.
class clsTrail {
public:
    explicit clsTrail(bool tellsAll)
        : m_tellsAll(tellsAll)
    { }

    /// To be said before an action, so that the one that ends the program is known too.
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
