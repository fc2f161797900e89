#pragma once

#include "wordexport/document/clsWordTyped.h"

#include <QString>

#include <pugixml.hpp>

#include <string>
#include <vector>

/// One paragraph as a row of characters. A position is a number of bytes of its UTF-8 text; a tab, a line break,
/// a symbol or a picture counts one. Field codes, deleted text and what is anchored in text boxes do not count:
/// they are not in the text that a reader sees here.
/// A view of the moment: whoever changes the tree by other ways reads the paragraph anew.
class clsWordParagraph {
public:
    /// The characters that stand for elements in text().
    static constexpr char Tab = '\t';
    static constexpr char LineBreak = '\v';
    static constexpr char PageBreak = '\f';
    static constexpr char Other = '\x01';

    /// What of the text is typed is kept in the marks, where there are any.
    explicit clsWordParagraph(const pugi::xml_node &paragraph, clsWordTyped *marks = nullptr);

    /// True when a text of the paragraph may hold this character: a quick look without reading the paragraph.
    static bool mayHold(const pugi::xml_node &paragraph, char c);

    /// An element of a run, with the positions that it takes.
    struct Leaf {
        pugi::xml_node run;
        pugi::xml_node node;
        int start;
        int length;
    };
    const std::vector<Leaf> &leaves() const
    {
        if (!m_isRead)
            read();
        return m_leaves;
    }

    const std::string &text() const
    {
        if (!m_isRead)
            read();
        return m_text;
    }
    int length() const { return int(text().size()); }

    /// The formatting (w:rPr, or a null node) of the characters in a range, run by run.
    std::vector<pugi::xml_node> formatsIn(int from, int to) const;
    /// The formatting that text typed over the range takes: that of its first character; with nothing selected
    /// that of the character before the cursor, at the start that of the first character, and in an empty
    /// paragraph that of the paragraph mark, where an empty box keeps its size and weight.
    pugi::xml_node formatAt(int from, int to) const;

    /// Types over a range, in a run of that formatting (an owned copy of a w:rPr). Returns the position after it.
    /// `typed` holds the characters above for breaks and tabs; with `symbols` ticks become Wingdings symbols.
    /// `placeholder` is what the text replaces, if anything, for its mark.
    int type(int from, int to, const QString &typed, const pugi::xml_node &format, bool symbols,
        const QString &placeholder = {});
    void erase(int from, int to);
    /// Splits the paragraph: what stands after the position moves to a new paragraph behind it, which is returned.
    pugi::xml_node split(int at);
    /// Takes over the content of the paragraph behind this one, which is removed.
    void join(pugi::xml_node next);

    /// Makes the position a border between two runs and returns the one that begins there; a null node at the end.
    pugi::xml_node splitRunAt(int at);

    /// The start of the character before a position.
    int before(int at) const;

private:
    void read() const;
    void readRun(const pugi::xml_node &run, std::vector<bool> &fieldCodes) const;
    void addLeaf(const pugi::xml_node &run, const pugi::xml_node &node) const;
    void removeIfEmpty(pugi::xml_node run);
    int startOf(const pugi::xml_node &run) const;
    const Leaf *leafEndingAt(int at) const;
    const Leaf *leafStartingAt(int at) const;
    pugi::xml_node runForTyping(int from, int to, const pugi::xml_node &format);

    pugi::xml_node m_paragraph;
    clsWordTyped *m_marks;
    // As the paragraph was when it was last read.
    mutable bool m_isRead = false;
    mutable std::vector<Leaf> m_leaves;
    mutable std::string m_text;
};
