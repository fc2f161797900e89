#pragma once

#include <QString>

/// A place of the claim where something can be changed. Empty where there is none.
struct clsClaimPlace {
    QString Screen {}; ///< the text of its tab
    QString List {}; ///< of the screen, such as "groups"; empty where the place is the screen itself
    int Item = 0; ///< the order in the list, 0 for none
    QString Property {}; ///< by its name in the code; may be empty
};
