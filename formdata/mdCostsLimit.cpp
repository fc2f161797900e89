#include "formdata/mdCostsLimit.h"

#include "base/clsRunTimeError.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdXMLTemplate.h"

namespace {

constexpr char Element[] = "costslimit";

std::optional<Money> amountOf(const QString &text)
{
    try {
        return text.isEmpty() ? Money() : MoneyFromText(text);
    } catch (const clsRunTimeError &) {
        return {};
    }
}

} // namespace

QString mdStoredCostsLimit(const clsZR3Form &form)
{
    return XMLDecodeText(form.XMLNodeToRead().child(Element).child_value());
}

std::optional<Money> mdCostsLimit(const clsZR3Form &form)
{
    const std::optional<Money> limit = amountOf(mdStoredCostsLimit(form));
    return limit && *limit > Money() ? limit : std::nullopt;
}

void mdSetCostsLimit(clsZR3Form &form, const QString &limit)
{
    // Accessed as a plain record, so that the lists keep their cached elements.
    pugi::xml_node claim = static_cast<const clsXMLRecord &>(form).XMLNode();
    if (amountOf(limit) == Money()) {
        while (claim.remove_child(Element)) { }
        return;
    }
    pugi::xml_node element = claim.child(Element);
    if (!element)
        element = claim.append_copy(mdXMLTemplate("xmlZR3CostsLimit"));
    XMLSetContent(element, XMLEncodeText(limit).constData());
}
