#pragma once

#include "tests/support/clsWordLint.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/mdWordXml.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <vector>

/// A small document made by a test: the XML of its body, and other parts if needed.
struct clsTestDocument {
    struct Part {
        QString name;
        QByteArray bytes;
        QString contentType;
        QString relationshipType; ///< of the main part; empty for none
        QString relationshipId;
    };

    QString body;
    QString styles;
    QString numbering;
    std::vector<Part> parts;
    QStringList externalLinks; ///< relationship ids rIdX1, rIdX2, ...
    QString rootAttributes;
    QString mainName = QStringLiteral("word/document.xml");

    clsTestDocument() = default;
    clsTestDocument(const QString &bodyXml)
        : body(bodyXml)
    { }

    static QString namespaces()
    {
        return QStringLiteral("xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\" "
                              "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"");
    }

    clsZipPackage zip() const
    {
        const QString relationshipBase
            = QStringLiteral("http://schemas.openxmlformats.org/officeDocument/2006/relationships/");
        const QString typeBase = QStringLiteral("application/vnd.openxmlformats-officedocument.wordprocessingml.");
        std::vector<Part> all = parts;
        if (!styles.isEmpty())
            all.push_back({QStringLiteral("word/styles.xml"), root("w:styles", styles),
                typeBase + QLatin1String("styles+xml"), QStringLiteral("styles"), QStringLiteral("rId1")});
        if (!numbering.isEmpty())
            all.push_back({QStringLiteral("word/numbering.xml"), root("w:numbering", numbering),
                typeBase + QLatin1String("numbering+xml"), QStringLiteral("numbering"), QStringLiteral("rId2")});

        QString types = QStringLiteral(
            "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
            "<Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
            "<Default Extension=\"xml\" ContentType=\"application/xml\"/>");
        types += QStringLiteral("<Override PartName=\"/%1\" ContentType=\"%2document.main+xml\"/>")
                     .arg(mainName, typeBase);
        QString relations;
        for (const Part &part : all) {
            types += QStringLiteral("<Override PartName=\"/%1\" ContentType=\"%2\"/>").arg(part.name, part.contentType);
            if (!part.relationshipType.isEmpty())
                relations += QStringLiteral("<Relationship Id=\"%1\" Type=\"%2%3\" Target=\"/%4\"/>")
                                 .arg(part.relationshipId, relationshipBase, part.relationshipType, part.name);
        }
        for (int i = 0; i < externalLinks.size(); ++i)
            relations += QStringLiteral("<Relationship Id=\"rIdX%1\" Type=\"%2hyperlink\" Target=\"%3\" "
                                        "TargetMode=\"External\"/>")
                             .arg(i + 1)
                             .arg(relationshipBase, externalLinks[i]);

        clsZipPackage zip;
        zip.add(QStringLiteral("[Content_Types].xml"), (types + QLatin1String("</Types>")).toUtf8());
        zip.add(QStringLiteral("_rels/.rels"),
            relationships(QStringLiteral("<Relationship Id=\"rId1\" Type=\"%1officeDocument\" Target=\"%2\"/>")
                              .arg(relationshipBase, mainName)));
        zip.add(mainName,
            QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
                           "<w:document %1 %2><w:body>%3</w:body></w:document>")
                .arg(namespaces(), rootAttributes, body)
                .toUtf8());
        if (!relations.isEmpty()) {
            const qsizetype slash = mainName.lastIndexOf(u'/') + 1;
            zip.add(mainName.left(slash) + QLatin1String("_rels/") + mainName.mid(slash) + QLatin1String(".rels"),
                relationships(relations));
        }
        for (const Part &part : all)
            zip.add(part.name, part.bytes);
        return zip;
    }

    static QByteArray root(const char *name, const QString &content)
    {
        return QStringLiteral("<%1 %2>%3</%1>").arg(QLatin1String(name), namespaces(), content).toUtf8();
    }
    static QByteArray relationships(const QString &content)
    {
        return QStringLiteral("<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
                              "%1</Relationships>")
            .arg(content)
            .toUtf8();
    }

    QByteArray bytes() const { return zip().toBytes(clsZipPackage::Deflated); }
};

/// A folder with the documents of one test.
class clsTestFolder {
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path(name);
    }
    QString write(const QString &name, const clsTestDocument &document) const { return write(name, document.bytes()); }

    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};

/// The XML of a node's children.
inline QString innerXml(const pugi::xml_node &node)
{
    std::ostringstream out;
    for (const pugi::xml_node &child : node.children())
        child.print(out, "", pugi::format_raw);
    return QString::fromStdString(out.str());
}

inline QString bodyXml(const QString &path)
{
    clsWordPackage package = clsWordPackage::fromFile(path);
    return innerXml(package.partXml(package.mainPart()).document_element().child("w:body"));
}

/// Opens a document, lets the test edit it, saves it and returns what is then read from it. The result must be a sound
/// document.
inline QString afterEditing(const clsTestDocument &document, const std::function<void(clsMSWord &)> &edit,
    QString (*read)(const QString &path) = bodyXml)
{
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("Sheet.doc"), document);
    clsMSWord word;
    word.OpenDocument(path);
    edit(word);
    word.SaveAndClose();
    EXPECT_EQ(clsWordLint::problemsOf(path), QStringList());
    return read(path);
}

/// The text of a body: paragraphs end with "/", cells are separated by "|", rows by "||"; breaks within a paragraph are
/// shown as "^", tabs as "~", ticked and empty boxes as "[x]" and "[ ]".
inline void appendPlain(const pugi::xml_node &node, QString &out)
{
    if (WordXml::is(node, "w:t"))
        out += QString::fromUtf8(node.text().get());
    else if (WordXml::is(node, "w:br"))
        out += std::strcmp(node.attribute("w:type").value(), "page") == 0 ? u'%' : u'^';
    else if (WordXml::is(node, "w:tab") && WordXml::is(node.parent(), "w:r"))
        out += u'~';
    else if (WordXml::is(node, "w:sym"))
        out += std::strcmp(node.attribute("w:char").value(), "F0FE") == 0 ? QLatin1String("[x]") : QLatin1String("[ ]");
    for (const pugi::xml_node &child : node.children())
        appendPlain(child, out);
    if (WordXml::is(node, "w:p"))
        out += u'/';
    else if (WordXml::is(node, "w:tc"))
        out += u'|';
    else if (WordXml::is(node, "w:tr"))
        out += u'|';
}

inline QString plain(const QString &path)
{
    clsWordPackage package = clsWordPackage::fromFile(path);
    QString out;
    appendPlain(package.partXml(package.mainPart()).document_element().child("w:body"), out);
    return out;
}

inline QString plainAfterEditing(const clsTestDocument &document, const std::function<void(clsMSWord &)> &edit)
{
    return afterEditing(document, edit, plain);
}

// Shorthand for bodies.
inline QString r(const QString &text, const QString &format = {})
{
    return QStringLiteral("<w:r>%1<w:t xml:space=\"preserve\">%2</w:t></w:r>")
        .arg(format.isEmpty() ? QString() : QStringLiteral("<w:rPr>%1</w:rPr>").arg(format), text);
}
inline QString p(const QString &text = {})
{
    return text.isEmpty() ? QStringLiteral("<w:p/>") : QStringLiteral("<w:p>%1</w:p>").arg(r(text));
}
inline QString tc(const QString &blocks, const QString &properties = {})
{
    return QStringLiteral("<w:tc>%1%2</w:tc>")
        .arg(properties.isEmpty() ? QString() : QStringLiteral("<w:tcPr>%1</w:tcPr>").arg(properties), blocks);
}
inline QString tr(const QStringList &cells, const QString &properties = {})
{
    return QStringLiteral("<w:tr>%1%2</w:tr>")
        .arg(properties.isEmpty() ? QString() : QStringLiteral("<w:trPr>%1</w:trPr>").arg(properties),
            cells.join(QString()));
}
inline QString tbl(const QStringList &rows)
{
    return QStringLiteral("<w:tbl>%1</w:tbl>").arg(rows.join(QString()));
}
/// A table of empty cells.
inline QString grid(int rows, int columns)
{
    QStringList cells;
    for (int i = 0; i < columns; ++i)
        cells << tc(p());
    QStringList lines;
    for (int i = 0; i < rows; ++i)
        lines << tr(cells);
    return tbl(lines);
}
