#pragma once

#include "tests/soak/clsDice.h"
#include "tests/soak/clsDiskCheck.h"
#include "tests/soak/clsMemoryWatch.h"
#include "tests/soak/clsTrail.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include <map>
#include <vector>

class clsSoakUser;
class frmMain;

struct clsSoakOptions {
    quint64 seed = 1;
    int actions = 1000;
    bool samplesOnly = false; ///< no random claims and no broken one
    bool tellsAll = false;
};

/// A user who does random things in the program's windows, one action after the other; after each, everything that must
/// always hold is checked. If an action ends the program, it is started again.
class clsSoak {
public:
    explicit clsSoak(const clsSoakOptions &options);

    /// Performs all actions; returns the exit status of the process.
    int run();
    /// Reports something that must not happen; the first report ends the soak.
    void fail(const QString &what);
    const clsTrail &trail() const { return m_trail; }

private:
    void live();
    void turn();
    bool isFree() const;
    bool waitsForKeys();
    void check();
    void act(QWidget &front);
    void takeAction(QWidget &front);
    void comeToRest(QWidget &front);
    void leaveBox(const QWidget &front);
    void beginAnew();
    void measure(QWidget &window);
    void runTimeError(const QString &text);
    QString path(const char *relative) const { return m_folder.filePath(QString::fromUtf8(relative)); }
    int report();

    const clsSoakOptions m_options;
    QTemporaryDir m_folder;
    clsDice m_dice;
    clsTrail m_trail;
    clsMemoryWatch m_memory;
    clsDiskCheck m_disk;
    QStringList m_claims;
    std::vector<int>
        m_loops; ///< for each action that has not returned, the level of the event loop in which it started
    std::map<QString, int> m_boxes;
    std::map<QString, int> m_allowed;
    QElapsedTimer m_waiting;
    QPointer<QWidget> m_box;
    int m_answers = 0; ///< to the same box
    const int m_betweenRests; ///< actions
    int m_restAt;
    int m_triesToRest = 0;
    bool m_resting = false;
    int m_lives = 0;
    QString m_failure;
};
