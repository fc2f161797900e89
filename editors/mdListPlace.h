#pragma once

#include <QString>

#include <optional>

class QWidget;

/// Where the items of a list of the claim are entered.
struct clsListPlace {
    QString section; ///< the text of the section's tab
    QString control; ///< the object name of its grid
    QString caption; ///< the list's caption there
};

/// The place of a list such as "experts", by its name in the forecast; nothing for an unknown name.
std::optional<clsListPlace> mdListPlace(const QString &list);

/// Sets the focus to a control of an open screen, on its page if the screen has pages; in a grid to the item with that
/// order, if there is one.
void mdEnterPlace(const QWidget &screen, const QString &control, int order = 0);
