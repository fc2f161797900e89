#pragma once

#include <QString>

#include <pugixml.hpp>

#include <string>

/// What a single run (w:r) holds: texts, the elements that stand for single characters, and its formatting (w:rPr).
/// Where a run stands in its paragraph, and when it has to be split, is the paragraph's business.
namespace WordRun {

/// The text of a text element (w:t). One in several pieces (a comment or a CDATA section between them) becomes one
/// piece.
const char *textOf(pugi::xml_node text);
void setText(pugi::xml_node text, const std::string &value);

/// Types into a run, behind what it holds; with `symbols` ticks become Wingdings symbols. Returns how many positions
/// the text takes.
int type(const pugi::xml_node &run, const QString &typed, bool symbols);

/// Two formattings are the same, also where one is empty and the other missing.
bool sameFormat(const pugi::xml_node &a, const pugi::xml_node &b);
/// Gives a run a copy of that formatting, which may be its own, in place of its own.
void giveFormat(pugi::xml_node run, const pugi::xml_node &format);

/// Removes a run that holds nothing but its formatting; true when it did.
bool removeIfEmpty(pugi::xml_node run);

} // namespace WordRun
