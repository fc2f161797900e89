#pragma once

#include "formdata/clsZR3Item.h"

class clsZR3Form;

/// A party's share in an expert instructed jointly. The share is a percentage, as text.
class clsZR3JointInstruction : public clsZR3Item {
public:
    explicit clsZR3JointInstruction(clsZR3Form &)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3JointInstruction>(), "xmlZR3JointInstruction")
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"ExpertType"> ExpertType {*this};
    clsXMLText<"PartyName"> PartyName {*this};
    clsXMLText<"Solicitor"> Solicitor {*this};
    clsXMLText<"CertificateReference"> CertificateReference {*this};
    clsXMLText<"PercentApportioned"> PercentApportioned {*this};
};
