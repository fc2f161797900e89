#pragma once

#include <QLabel>

class clsSpellingChecker;

/// A line that says why spelling isn't checked; hidden if it is.
class oSpellingNote final : public QLabel {
    Q_OBJECT

public:
    oSpellingNote(clsSpellingChecker &checker, QWidget *parent);

    /// One line; it wraps only if there is no room.
    QSize sizeHint() const override;
};
