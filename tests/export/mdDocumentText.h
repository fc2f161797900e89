#pragma once

#include "wordexport/document/clsWordPackage.h"

#include <QString>
#include <QStringList>

// The text of a document, for the tests.

/// The XML tree of the main part of a document on the disk.
struct clsDocumentTree {
    explicit clsDocumentTree(const QString &path)
        : package(clsWordPackage::fromFile(path))
        , body(package.partXml(package.mainPart()).child("w:document").child("w:body"))
    { }
    clsWordPackage package;
    pugi::xml_node body;
};

/// All texts below a node, concatenated.
inline QString mdTextBelow(const pugi::xml_node &node)
{
    QString text;
    for (const pugi::xpath_node &found : node.select_nodes(".//w:t"))
        text += QString::fromUtf8(found.node().text().get());
    return text;
}

inline QString mdDocumentText(const QString &path)
{
    const clsDocumentTree document(path);
    return mdTextBelow(document.body);
}

/// The placeholders in a document, in the order of the text.
inline QStringList mdPlaceholdersIn(const QString &path)
{
    const QString text = mdDocumentText(path);
    QStringList found;
    for (qsizetype from = text.indexOf(u'{'); from >= 0; from = text.indexOf(u'{', from + 1))
        found << text.mid(from, text.indexOf(u'}', from) - from + 1);
    return found;
}
