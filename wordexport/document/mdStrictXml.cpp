#include "wordexport/document/mdStrictXml.h"

#include "wordexport/document/mdWordXml.h"

#include <QSet>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <optional>

namespace {

bool isUtf16(const QByteArray &bytes)
{
    return bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE");
}

// The text of a part; nothing if any of its bytes are not valid characters.
std::optional<QString> textOf(const QByteArray &bytes)
{
    QStringDecoder decoder(
        isUtf16(bytes) ? QStringConverter::Utf16 : QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder(bytes);
    // The decoder skips one byte order mark; this would be a second one.
    if (decoder.hasError() || !text.isValidUtf16() || text.startsWith(QChar::ByteOrderMark))
        return {};
    return text;
}

// The format allows two encodings; the layer's usual parser detects them from the bytes.
bool isEncodingOf(const QByteArray &bytes, QStringView named)
{
    return named.isEmpty()
        || named.compare(isUtf16(bytes) ? QLatin1String("UTF-16") : QLatin1String("UTF-8"), Qt::CaseInsensitive) == 0;
}

// The reader accepts a second declaration of a prefix.
bool declaresTwice(const QXmlStreamNamespaceDeclarations &declarations)
{
    QSet<QStringView> prefixes;
    for (const QXmlStreamNamespaceDeclaration &declaration : declarations)
        prefixes.insert(declaration.prefix());
    return prefixes.size() < declarations.size();
}

// The reader checks only the first letter of the prefix.
bool isNamed(const QXmlStreamAttribute &attribute)
{
    const QChar first = attribute.name().front();
    return !first.isDigit() && first != u'-' && first != u'.';
}

bool readAttributes(const QXmlStreamAttributes &attributes, clsStrictReading &reading)
{
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (!isNamed(attribute))
            return false;
        if (attribute.namespaceUri() == QLatin1String(WordXml::RelationshipNamespace) && !attribute.value().isEmpty())
            reading.relationshipIds << attribute.value().toString();
    }
    return true;
}

} // namespace

clsStrictReading mdReadStrictly(const QByteArray &bytes)
{
    const std::optional<QString> text = textOf(bytes);
    if (!text)
        return {};
    clsStrictReading reading;
    QXmlStreamReader reader(*text);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartDocument:
            if (!isEncodingOf(bytes, reader.documentEncoding()))
                return {};
            break;
        case QXmlStreamReader::DTD: return {};
        case QXmlStreamReader::StartElement:
            if (declaresTwice(reader.namespaceDeclarations()) || !readAttributes(reader.attributes(), reading))
                return {};
            break;
        default: break;
        }
    }
    reading.isSound = !reader.hasError();
    return reading;
}
