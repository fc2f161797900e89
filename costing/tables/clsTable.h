#pragma once

#include <QStringList>

#include <vector>

/// A table of texts with its header.
struct clsTable {
    QStringList header;
    std::vector<QStringList> rows;
};
