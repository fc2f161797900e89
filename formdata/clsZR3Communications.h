#pragma once

#include "formdata/clsZR3Section.h"

/// The enhancement settings of letters and calls. Their counts are stored with the fee earners.
class clsZR3Communications : public clsZR3Section {
public:
    clsZR3Communications()
        : clsZR3Section(clsXMLPropertyTable::of<clsZR3Communications>(), "communications")
    { }

    clsXMLBoolean<"EnhanceLettersOut"> EnhanceLettersOut {*this};
    clsXMLText<"LettersOutEnhancementUniqueID"> LettersOutEnhancementUniqueID {*this};
    clsXMLBoolean<"EnhanceLettersIn"> EnhanceLettersIn {*this};
    clsXMLText<"LettersInEnhancementUniqueID"> LettersInEnhancementUniqueID {*this};
    clsXMLBoolean<"EnhanceCalls"> EnhanceCalls {*this};
    clsXMLText<"CallsEnhancementUniqueID"> CallsEnhancementUniqueID {*this};
};
