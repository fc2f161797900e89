#include "wordexport/document/mdWordInstalled.h"

#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/mdWordXml.h"

#include <exception>

namespace {

constexpr const char *ContentTypes
    = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
      "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
      "<Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
      "<Default Extension=\"xml\" ContentType="
      "\"application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml\"/></Types>";

constexpr const char *Relationships
    = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
      "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
      "<Relationship Id=\"rId1\" Type="
      "\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument\" "
      "Target=\"word/document.xml\"/></Relationships>";

QByteArray emptyDocument()
{
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><w:document xmlns:w=\"")
        + WordXml::MainNamespace + "\"><w:body><w:p/></w:body></w:document>";
}

} // namespace

bool mdWordInstalled()
{
    // The operations are built in; only a library can be missing. So an empty document is packed and opened again.
    try {
        clsZipPackage zip;
        zip.add(QStringLiteral("[Content_Types].xml"), ContentTypes);
        zip.add(QStringLiteral("_rels/.rels"), Relationships);
        zip.add(QStringLiteral("word/document.xml"), emptyDocument());
        const QByteArray bytes = zip.toBytes(clsZipPackage::Deflated);
        const clsWordPackage opened(clsZipPackage::fromBytes(bytes, QString()), QString());
        return opened.mainPart() >= 0;
    } catch (const std::exception &) {
        return false;
    }
}
