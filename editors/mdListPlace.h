#pragma once

#include <QString>

#include <optional>

class QWidget;

/// Where the items of a list of the claim are entered.
struct clsListPlace {
    QString section; ///< the text of the section's tab
    QString control; ///< the object name of its grid
    QString caption; ///< what the list is called there
};

/// The place of a list such as "experts", as the forecast names it; nothing for another name.
std::optional<clsListPlace> mdListPlace(const QString &list);

/// Goes to a control of an open screen, on its page where the screen has pages; in a grid to the item of that order,
/// if it has one.
void mdEnterPlace(const QWidget &screen, const QString &control, int order = 0);
