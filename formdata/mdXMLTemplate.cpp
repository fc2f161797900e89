#include "formdata/mdXMLTemplate.h"

#include "base/clsRunTimeError.h"
#include "base/mdGetResourceData.h"

#include <map>
#include <string_view>

pugi::xml_node mdXMLTemplate(const char *resourceName)
{
    // Templates never change, so each is parsed once and not for every record.
    static std::map<std::string_view, pugi::xml_document, std::less<>> templates;
    const auto known = templates.find(std::string_view(resourceName));
    if (known != templates.end())
        return known->second.document_element();

    const QByteArray text = GetResourceData(QString::fromLatin1(resourceName), QStringLiteral("VELMORZR3XML")).toUtf8();
    pugi::xml_document document;
    // Parsed with the same options as a claim, because its copies become part of one.
    if (!document.load_buffer(text.constData(), size_t(text.size()), pugi::parse_default | pugi::parse_embed_pcdata))
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return templates.emplace(resourceName, std::move(document)).first->second.document_element();
}
