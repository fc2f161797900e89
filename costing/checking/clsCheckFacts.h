#pragma once

#include <QDate>
#include <QString>

#include <vector>

/// A text that is not printed at its own size, according to a forecast of the sheets.
struct clsPrintedBox {
    enum State { Smaller, RunsOn, Cut };

    QString Sheet; ///< such as "3(1)"
    QString Placeholder; ///< empty in a grid
    QString Screen; ///< the screen with the text
    QString List; ///< of the screen, if the text is an item's
    int Item = 0;
    QString Property; ///< if the text is that of one field
    State state = Smaller;
};

/// The inputs of a claim's check that are not in the claim.
struct clsCheckFacts {
    QDate Today;
    /// The limit of all costs, net of VAT, as stored; empty if there is none.
    QString CostsLimit {};
    /// Without a forecast there are no findings about printing.
    std::vector<clsPrintedBox> Boxes {};
};
