#include "formdata/clsTreeChange.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using Places = std::array<std::uint32_t, 3>;

size_t bytesOf(const std::vector<clsSequenceChange::clsUnit> &units)
{
    size_t bytes = units.capacity() * sizeof(clsSequenceChange::clsUnit);
    for (const clsSequenceChange::clsUnit &unit : units)
        bytes += unit.image.capacity();
    return bytes;
}

} // namespace

void clsSequenceChange::addText(const clsText &text)
{
    const Places places {text.oldPlace, text.newPlace, text.field};
    m_texts.append(reinterpret_cast<const char *>(places.data()), sizeof places);
    m_texts.append(text.oldText).push_back('\0');
    m_texts.append(text.newText).push_back('\0');
}

bool clsSequenceChange::nextText(size_t &at, clsText &text) const
{
    if (at == m_texts.size())
        return false;
    Places places;
    std::memcpy(places.data(), m_texts.data() + at, sizeof places);
    at += sizeof places;
    const auto next = [&] {
        const std::string_view found = m_texts.data() + at;
        at += found.size() + 1;
        return found;
    };
    text.oldPlace = places[0];
    text.newPlace = places[1];
    text.field = places[2];
    text.oldText = next();
    text.newText = next();
    return true;
}

size_t clsSequenceChange::bytes() const
{
    return bytesOf(removed) + bytesOf(added) + m_texts.capacity();
}

bool clsTreeChange::movesNothing() const
{
    return root.movesNothing()
        && std::all_of(parts.begin(), parts.end(), [](const clsPart &part) { return part.children.movesNothing(); });
}

size_t clsTreeChange::bytes() const
{
    size_t bytes = sizeof *this + root.bytes() + parts.capacity() * sizeof(clsPart);
    for (const clsPart &part : parts)
        bytes += part.children.bytes();
    return bytes;
}
