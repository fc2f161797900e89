#pragma once

#include "base/clsRunTimeError.h"
#include "wordexport/document/clsWordPackage.h"
#include "wordexport/document/mdStrictXml.h"
#include "wordexport/document/mdWordXml.h"

#include <QRegularExpression>
#include <QStringList>

#include <map>
#include <set>
#include <string>

/// Rules for valid documents that no schema covers: violations make a word processor offer repair, lose text or show
/// another document's footer. Each problem is one line.
class clsWordLint {
public:
    enum Placeholders { MayBeLeft, MustBeGone };

    static QStringList problemsOf(const QString &path, Placeholders placeholders = MayBeLeft)
    {
        return problemsOf(clsWordPackage::fromFile(path), placeholders);
    }

    static QStringList problemsOf(clsWordPackage package, Placeholders placeholders = MayBeLeft)
    {
        clsWordLint lint(package);
        lint.checkParts();
        lint.checkPackage();
        lint.learnStyles();
        lint.learnLists();
        for (const int part : lint.storyParts())
            lint.checkStory(part);
        lint.checkMain();
        if (placeholders == MustBeGone)
            lint.checkPlaceholders();
        return lint.m_problems;
    }

private:
    using Node = pugi::xml_node;

    explicit clsWordLint(clsWordPackage &package)
        : m_package(package)
    { }

    void problem(const QString &text) { m_problems << text; }

    static bool isRelationships(const QString &name) { return name.endsWith(QLatin1String(".rels")); }

    // Reads parts strictly: a lenient parser would accept, change and write a malformed part without an error.
    void checkParts()
    {
        for (int part = 0; part < m_package.partCount(); ++part) {
            const QString &name = m_package.partName(part);
            const bool isXml = name.endsWith(QLatin1String(".xml")) || isRelationships(name);
            if (isXml && !mdReadStrictly(m_package.currentBytes(part)).isSound)
                problem(QStringLiteral("part that is not well-formed: ") + name);
        }
    }

    void checkPackage()
    {
        std::set<int> reached;
        reach(m_package.mainPart(), reached);
        for (int part = 0; part < m_package.partCount(); ++part) {
            const QString &name = m_package.partName(part);
            if (name == QLatin1String("[Content_Types].xml") || isRelationships(name))
                continue;
            if (m_package.contentType(part).empty())
                problem(QStringLiteral("part without a content type: ") + name);
            // Properties of the whole package belong to the package itself.
            if (!reached.contains(part) && !name.startsWith(QLatin1String("docProps/")))
                problem(QStringLiteral("part that nothing refers to: ") + name);
        }
        const int types = m_package.findPart(QStringLiteral("[Content_Types].xml"));
        for (const Node &node : m_package.partXml(types).child("Types").children("Override")) {
            const QString name = QString::fromUtf8(node.attribute("PartName").value());
            if (m_package.findPart(name.mid(1)) < 0)
                problem(QStringLiteral("content type of no part: ") + name);
        }
    }

    void reach(int part, std::set<int> &reached)
    {
        if (!reached.insert(part).second)
            return;
        std::set<std::string> ids;
        const auto relationships = m_package.relationships(part);
        for (const clsWordPackage::Relationship &relation : relationships) {
            if (!ids.insert(relation.id).second)
                problem(QStringLiteral("relationship twice: ") + QString::fromStdString(relation.id));
            if (relation.external)
                continue;
            try {
                reach(m_package.targetOf(part, relation), reached);
            } catch (const clsRunTimeError &) {
                problem(QStringLiteral("relationship to no part: ") + QString::fromStdString(relation.target));
            }
        }
    }

    std::vector<int> storyParts()
    {
        std::vector<int> parts {m_package.mainPart()};
        const auto relationships = m_package.relationships(m_package.mainPart());
        for (const clsWordPackage::Relationship &relation : relationships)
            if (relation.type.ends_with("/header") || relation.type.ends_with("/footer"))
                parts.push_back(m_package.targetOf(m_package.mainPart(), relation));
        return parts;
    }

    void learnStyles()
    {
        const int part = m_package.relatedPart("styles");
        if (part < 0)
            return;
        std::set<std::string> names;
        const Node root = m_package.partXml(part).document_element();
        for (const Node &style : root.children("w:style")) {
            const std::string type = style.attribute("w:type").value();
            if (!m_styles.insert(style.attribute("w:styleId").value()).second)
                problem(QStringLiteral("style id twice: ") + style.attribute("w:styleId").value());
            // A style need not have a name.
            if (style.child("w:name") && !names.insert(type + WordXml::val(style.child("w:name"))).second)
                problem(QStringLiteral("style name twice: ") + WordXml::val(style.child("w:name")));
            if (style.attribute("w:default").as_bool() && !m_defaultStyles.insert(type).second)
                problem(QStringLiteral("two default styles of type ") + QString::fromStdString(type));
        }
        for (const Node &style : root.children("w:style"))
            for (const char *reference : {"w:basedOn", "w:next", "w:link"})
                if (const Node node = style.child(reference))
                    checkStyle(node);
        checkNamespaces(root, {});
    }

    void learnLists()
    {
        const int part = m_package.relatedPart("numbering");
        if (part < 0)
            return;
        std::set<std::string> abstracts;
        bool numberSeen = false;
        const Node root = m_package.partXml(part).document_element();
        for (const Node &node : root.children()) {
            if (WordXml::is(node, "w:abstractNum")) {
                if (numberSeen)
                    problem(QStringLiteral("list definition after a list"));
                if (!abstracts.insert(node.attribute("w:abstractNumId").value()).second)
                    problem(QStringLiteral("list definition twice"));
            } else if (WordXml::is(node, "w:num")) {
                numberSeen = true;
                if (!m_lists.insert(node.attribute("w:numId").value()).second)
                    problem(QStringLiteral("list number twice"));
                if (!abstracts.contains(WordXml::val(node.child("w:abstractNumId"))))
                    problem(QStringLiteral("list without a definition"));
            }
        }
        checkNamespaces(root, {});
    }

    void checkStory(int part)
    {
        const Node root = m_package.partXml(part).document_element();
        checkNamespaces(root, {});
        std::map<std::string, std::string> openBookmarks;
        checkNode(root, part, openBookmarks);
        for (const auto &[id, name] : openBookmarks)
            problem(QStringLiteral("bookmark without an end: ") + QString::fromStdString(name));
    }

    void checkNode(const Node &node, int part, std::map<std::string, std::string> &openBookmarks)
    {
        if (WordXml::is(node, "w:tc"))
            checkCell(node);
        else if (WordXml::is(node, "w:tr") && !WordXml::firstItem(node, WordXml::isCell))
            problem(QStringLiteral("table row without a cell"));
        else if (WordXml::is(node, "w:t"))
            checkText(node);
        else if (WordXml::is(node, "w:pStyle") || WordXml::is(node, "w:rStyle") || WordXml::is(node, "w:tblStyle"))
            checkStyle(node);
        else if (WordXml::is(node, "w:numId") && std::strcmp(WordXml::val(node), "0") != 0
            && !m_lists.contains(WordXml::val(node)))
            problem(QStringLiteral("list number of no list: ") + WordXml::val(node));
        else if (WordXml::is(node, "wp:docPr"))
            checkUnique("picture", node.attribute("id").value());
        else if (WordXml::is(node, "w:sdtPr") && node.child("w:id"))
            checkUnique("control", WordXml::val(node.child("w:id")));
        else if (WordXml::is(node, "w:bookmarkStart")) {
            checkUnique("bookmark", node.attribute("w:id").value());
            checkUnique("bookmark name", node.attribute("w:name").value());
            openBookmarks[node.attribute("w:id").value()] = node.attribute("w:name").value();
        } else if (WordXml::is(node, "w:bookmarkEnd") && openBookmarks.erase(node.attribute("w:id").value()) == 0)
            problem(QStringLiteral("end of no bookmark"));
        else if (WordXml::is(node, "w:sectPr") && WordXml::ancestor(node, "w:tc"))
            problem(QStringLiteral("section in a table"));
        checkTablesApart(node);
        for (const pugi::xml_attribute &attribute : node.attributes())
            if (std::string_view(attribute.name()).starts_with("r:") && *attribute.value() != '\0'
                && m_package.relationship(part, attribute.value()) == nullptr)
                problem(QStringLiteral("relationship that is not there: ") + attribute.value());
        for (const Node &child : node.children())
            if (WordXml::isElement(child))
                checkNode(child, part, openBookmarks);
    }

    void checkCell(const Node &cell)
    {
        Node last;
        for (const Node &child : cell.children())
            last = WordXml::isElement(child) && !WordXml::is(child, "w:bookmarkEnd") ? child : last;
        if (!WordXml::is(last, "w:p") && !WordXml::is(last, "w:sdt"))
            problem(QStringLiteral("table cell that does not end with a paragraph"));
    }

    void checkTablesApart(const Node &node)
    {
        Node next = node.next_sibling();
        while (next && !WordXml::isElement(next))
            next = next.next_sibling();
        if (WordXml::is(node, "w:tbl") && WordXml::is(next, "w:tbl"))
            problem(QStringLiteral("two tables without a paragraph between them"));
    }

    void checkText(const Node &node)
    {
        const QString text = QString::fromUtf8(node.text().get());
        if (text.contains(u'\t') || text.contains(u'\n') || text.contains(u'\r'))
            problem(QStringLiteral("tab or line end as a character: ") + text);
        const bool blanks = text.startsWith(u' ') || text.endsWith(u' ') || text.contains(QLatin1String("  "));
        if (blanks && std::strcmp(node.attribute("xml:space").value(), "preserve") != 0)
            problem(QStringLiteral("blanks that get lost: ") + text);
    }

    void checkStyle(const Node &reference)
    {
        if (!m_styles.contains(WordXml::val(reference)))
            problem(QStringLiteral("style that is not there: ") + WordXml::val(reference));
    }

    void checkUnique(const char *kind, const std::string &identity)
    {
        if (!m_identities.insert(std::string(kind) + ' ' + identity).second)
            problem(QString::fromLatin1(kind) + QStringLiteral(" twice: ") + QString::fromStdString(identity));
    }

    void checkNamespaces(const Node &node, std::set<std::string> declared)
    {
        for (const pugi::xml_attribute &attribute : node.attributes())
            if (std::string_view(attribute.name()).starts_with("xmlns:"))
                declared.insert(attribute.name() + 6);
        const auto check = [&](std::string_view qualified) {
            const size_t colon = qualified.find(':');
            const std::string prefix(qualified.substr(0, colon == std::string_view::npos ? 0 : colon));
            if (!prefix.empty() && prefix != "xml" && prefix != "xmlns" && !declared.contains(prefix))
                problem(QStringLiteral("prefix that is not declared: ") + QString::fromStdString(prefix));
        };
        check(node.name());
        for (const pugi::xml_attribute &attribute : node.attributes()) {
            check(attribute.name());
            const std::string_view name = attribute.name();
            if (name == "mc:Ignorable" || name == "Requires")
                for (const QString &prefix : QString::fromUtf8(attribute.value()).split(u' ', Qt::SkipEmptyParts))
                    check(prefix.toStdString() + ':');
        }
        for (const Node &child : node.children())
            if (WordXml::isElement(child))
                checkNamespaces(child, declared);
    }

    void checkMain()
    {
        const Node body = m_package.partXml(m_package.mainPart()).document_element().child("w:body");
        Node lastBlock;
        for (const Node &child : body.children()) {
            if (!WordXml::isElement(child))
                continue;
            if (WordXml::is(child, "w:sectPr") && child != body.last_child())
                problem(QStringLiteral("section that is not the body's last child"));
            if (!WordXml::is(child, "w:sectPr") && !WordXml::is(child, "w:bookmarkEnd"))
                lastBlock = child;
        }
        if (!WordXml::is(lastBlock, "w:p"))
            problem(QStringLiteral("body that does not end with a paragraph"));
    }

    void checkPlaceholders()
    {
        static const QRegularExpression Placeholder(QStringLiteral("\\{[A-Za-z0-9]+\\}"));
        checkPlaceholdersIn(m_package.partXml(m_package.mainPart()), Placeholder);
    }

    void checkPlaceholdersIn(const Node &node, const QRegularExpression &pattern)
    {
        if (WordXml::is(node, "w:p")) {
            QString text;
            collectText(node, text);
            if (const auto match = pattern.match(text); match.hasMatch())
                problem(QStringLiteral("placeholder left: ") + match.captured());
        }
        for (const Node &child : node.children())
            checkPlaceholdersIn(child, pattern);
    }

    static void collectText(const Node &node, QString &text)
    {
        if (WordXml::is(node, "w:t"))
            text += QString::fromUtf8(node.text().get());
        for (const Node &child : node.children())
            collectText(child, text);
    }

    clsWordPackage &m_package;
    QStringList m_problems;
    std::set<std::string> m_styles;
    std::set<std::string> m_defaultStyles;
    std::set<std::string> m_lists;
    std::set<std::string> m_identities;
};
