#pragma once

#include "tests/wordexport/clsTestDocument.h"

/// The end of a sheet: a paragraph that takes almost no space.
inline const QString Tail
    = QStringLiteral("<w:p><w:pPr><w:spacing w:before=\"0\" w:after=\"0\" w:line=\"20\" w:lineRule=\"exact\"/>"
                     "<w:rPr><w:sz w:val=\"2\"/></w:rPr></w:pPr></w:p>");

inline QString section(const QString &content)
{
    return QStringLiteral("<w:sectPr>%1</w:sectPr>").arg(content);
}

inline QString page(int width)
{
    return QStringLiteral("<w:pgSz w:w=\"%1\" w:h=\"16838\"/>").arg(width);
}

inline QString withSection(const QString &sectionXml)
{
    return QStringLiteral("<w:p><w:pPr>%1</w:pPr></w:p>").arg(sectionXml);
}

/// Joins documents in their order and checks the result.
class clsJoin {
public:
    explicit clsJoin(const std::vector<clsTestDocument> &documents, bool backSpace = false)
    {
        path = folder.write(QStringLiteral("Joined.doc"), documents.front());
        clsMSWord word(clsMSWord::Finished);
        word.OpenDocument(path);
        for (size_t i = 1; i < documents.size(); ++i)
            word.InsertFileAtEnd(folder.write(QStringLiteral("%1.doc").arg(i), documents[i]));
        if (backSpace)
            word.TypeBackSpace();
        word.SaveAndClose();
        EXPECT_FALSE(word.ErrorShown);
        EXPECT_EQ(clsWordLint::problemsOf(path), QStringList());
    }

    QString body() const { return bodyXml(path); }
    QString text() const { return plain(path); }
    /// The content of a part's root element.
    QString part(const QString &name) const
    {
        clsWordPackage package = clsWordPackage::fromFile(path);
        const int index = package.findPart(name);
        return index < 0 ? QStringLiteral("(none)") : innerXml(package.partXml(index).document_element());
    }
    QStringList parts() const
    {
        const clsZipPackage zip = clsZipPackage::fromFile(path);
        QStringList names;
        for (const auto &entry : zip.entries())
            names << entry.name;
        return names;
    }

    clsTestFolder folder;
    QString path;
};

inline clsTestDocument sheet(const QString &text, int width = 11906)
{
    return clsTestDocument(p(text) + Tail + Tail + section(page(width)));
}
