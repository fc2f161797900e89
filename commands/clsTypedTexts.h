#pragma once

#include <QString>

#include <utility>
#include <vector>

/// Text typed in an open screen that differs from the claim.
struct clsTypedTexts {
    QString screen; ///< its name, such as "frmDetailsOfWork"
    QString caption; ///< the name the user knows, such as "Details of Work"
    int orderID = 0; ///< of the edited item in the list of its class; 0 for a section or a new item
    std::vector<std::pair<QString, QString>> fields; ///< property and text
    QString item {}; ///< identifies that item wherever it is in its list; empty if there is none
    int characters = 0; ///< in the typed texts, without ticks and choices

    bool operator==(const clsTypedTexts &) const = default;
};
