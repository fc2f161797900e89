#pragma once

#include <QString>

#include <pugixml.hpp>

#include <string>

/// The content of a single run (w:r): texts, elements that stand for single characters, and its formatting (w:rPr). The
/// paragraph decides where runs are and when they are split.
namespace WordRun {

/// The text of a text element (w:t). Joins pieces that are separated by a comment or CDATA section.
const char *textOf(pugi::xml_node text);
void setText(pugi::xml_node text, const std::string &value);

/// Types at the end of a run; with `symbols` ticks become Wingdings symbols. Returns the number of positions of the
/// text.
int type(const pugi::xml_node &run, const QString &typed, bool symbols);

/// True if two formattings are the same; an empty one equals a missing one.
bool sameFormat(const pugi::xml_node &a, const pugi::xml_node &b);
/// Replaces a run's formatting with a copy of `format`, which may be its own.
void giveFormat(pugi::xml_node run, const pugi::xml_node &format);

/// Removes a run that has only formatting; true if it did.
bool removeIfEmpty(pugi::xml_node run);

} // namespace WordRun
