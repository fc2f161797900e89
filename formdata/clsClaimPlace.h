#pragma once

#include <QString>

/// A place in the claim where something can be changed; empty for none.
struct clsClaimPlace {
    QString Screen {}; ///< the text of its tab
    QString List {}; ///< of the screen, such as "groups"; empty if the place is the screen itself
    int Item = 0; ///< the order in the list, 0 for none
    QString Property {}; ///< its name in the code; may be empty
};
