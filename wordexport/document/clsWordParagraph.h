#pragma once

#include "wordexport/document/clsWordTyped.h"

#include <QString>

#include <pugixml.hpp>

#include <string>
#include <vector>

/// A paragraph as a sequence of characters. A position is a number of bytes of its UTF-8 text; a tab, line break,
/// symbol or picture counts as one. Field codes, deleted text and the content of text boxes don't count, because they
/// are not visible in the text. A snapshot: construct a new one after changing the tree elsewhere.
class clsWordParagraph {
public:
    /// The characters for these elements in text().
    static constexpr char Tab = '\t';
    static constexpr char LineBreak = '\v';
    static constexpr char PageBreak = '\f';
    static constexpr char Other = '\x01';

    /// Records typed text in `marks`, if given.
    explicit clsWordParagraph(const pugi::xml_node &paragraph, clsWordTyped *marks = nullptr);

    /// True if the text of the paragraph may contain this character: a quick check without reading the paragraph.
    static bool mayHold(const pugi::xml_node &paragraph, char c);

    /// An element of a run with its range of positions.
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
    /// The formatting for text typed over the range: that of its first character; without a selection that of the
    /// character before the cursor; at the start that of the first character; and in an empty paragraph that of the
    /// paragraph mark, which holds the size and weight of an empty box.
    pugi::xml_node formatAt(int from, int to) const;

    /// Types over a range, in a run of that formatting (an owned copy of a w:rPr). Returns the position after it.
    /// `typed` contains the characters above for breaks and tabs; with `symbols` ticks become Wingdings symbols.
    /// `placeholder` is the replaced placeholder, if any, for the mark of the text.
    int type(int from, int to, const QString &typed, const pugi::xml_node &format, bool symbols,
        const QString &placeholder = {});
    void erase(int from, int to);
    /// Splits the paragraph: the text after the position moves to a new paragraph after this one, which is returned.
    pugi::xml_node split(int at);
    /// Moves the content of the following paragraph to this one, and removes that paragraph.
    void join(pugi::xml_node next);

    /// Makes the position a boundary between runs and returns the run that starts there; a null node at the end.
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
    // As of the last reading.
    mutable bool m_isRead = false;
    mutable std::vector<Leaf> m_leaves;
    mutable std::string m_text;
};
