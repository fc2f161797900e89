#pragma once

#include <QLabel>

class clsSpellingChecker;

/// A plain line that says why words are not checked; where they are, it isn't there.
class oSpellingNote final : public QLabel {
    Q_OBJECT

public:
    oSpellingNote(clsSpellingChecker &checker, QWidget *parent);

    /// One line; it wraps only where there is no room for it.
    QSize sizeHint() const override;
};
