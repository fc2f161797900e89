#include "editors/mdScreens.h"

#include "editors/mdEditCostsLimit.h"
#include "editors/mdEditItem.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdCostsLimit.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdRunStep.h"
#include "formdata/mdXMLTemplate.h"

namespace {

/// The limit while it is edited. Not an element of the claim, which has one only while a limit is set.
class clsEditedLimit final : public clsXMLRecord {
public:
    explicit clsEditedLimit(const QString &stored)
        : clsXMLRecord(clsXMLPropertyTable::of<clsEditedLimit>())
    {
        bind(m_own.append_child("limit"));
        node().append_copy(mdXMLTemplate("xmlZR3CostsLimit"));
        CostsLimit = stored;
    }

    clsXMLText<"CostsLimit"> CostsLimit {*this};

private:
    pugi::xml_document m_own;
};

} // namespace

/// The limit of all costs. An empty box or 0.00 removes it.
const clsScreen &ScreenCostsLimit()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCostsLimit",
        .header = "Costs Limit",
        .subCaption = "The limit of all costs, net of VAT and with counsel",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "", {
                {Decimal, "txtCostsLimit", "Costs limit, net of VAT:"},
            }},
        },
        .itemWord = "Costs Limit",
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}

bool mdEditCostsLimit(QWidget *owner)
{
    clsEditedLimit limit(mdStoredCostsLimit(*Form));
    if (!mdEditItem(owner, ScreenCostsLimit(), &limit))
        return false;
    RunStep(QString::fromUtf8(ScreenCostsLimit().header), [&] { mdSetCostsLimit(*Form, limit.CostsLimit()); });
    return true;
}
