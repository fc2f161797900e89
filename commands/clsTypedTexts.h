#pragma once

#include <QString>

#include <utility>
#include <vector>

/// What is typed in an open screen and differs from what the claim holds.
struct clsTypedTexts {
    QString screen; ///< its name, such as "frmDetailsOfWork"
    QString caption; ///< what the user knows it by, such as "Details of Work"
    int orderID = 0; ///< of the item whose editor it is, in the list of its class; 0 for a section and for a new item
    std::vector<std::pair<QString, QString>> fields; ///< property and text
    QString item {}; ///< stands for that item wherever it is in its list by now; empty where there is none
    int characters = 0; ///< of the texts that are typed, and not ticked or chosen

    bool operator==(const clsTypedTexts &) const = default;
};
