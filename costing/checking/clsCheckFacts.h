#pragma once

#include <QDate>
#include <QString>

#include <vector>

/// A text that is not printed at its own size, as a forecast of the sheets has found it.
struct clsPrintedBox {
    enum State { Smaller, RunsOn, Cut };

    QString Sheet; ///< such as "3(1)"
    QString Placeholder; ///< empty in a grid
    QString Screen; ///< that holds the text
    QString List; ///< of the screen, where the text is an item's
    int Item = 0;
    QString Property; ///< where one field stands behind it
    State state = Smaller;
};

/// What the check of a claim can't know from the claim.
struct clsCheckFacts {
    QDate Today;
    /// The limit of all costs, net of VAT, as it is stored; empty where there is none.
    QString CostsLimit {};
    /// Without a forecast nothing is said of the print.
    std::vector<clsPrintedBox> Boxes {};
};
