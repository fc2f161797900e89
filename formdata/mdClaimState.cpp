#include "formdata/mdClaimState.h"

#include "formdata/clsZR3Form.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace {

constexpr std::string_view NotOfTheClaim[]
    = {"path", "version", "timespent", "idcounter", "exportpath", "defaultfeeearnerlistindex", "costslimit"};

std::uint64_t mixed(std::uint64_t state, std::string_view text)
{
    constexpr std::uint64_t Odd = 0x9E3779B97F4A7C15;
    const std::uint64_t own = std::hash<std::string_view>()(text) + 1;
    state = (state ^ own) * Odd;
    return state ^ state >> 29;
}

/// Elements by name and content, with a mark for the end of each.
std::uint64_t ofElement(std::uint64_t state, pugi::xml_node element)
{
    state = mixed(state, element.name());
    state = mixed(state, element.child_value());
    for (const pugi::xml_node child : element.children())
        if (child.type() == pugi::node_element)
            state = ofElement(state, child);
    return mixed(state, "/");
}

} // namespace

std::uint64_t mdClaimState(const clsZR3Form &form)
{
    std::uint64_t state = 0;
    for (const pugi::xml_node child : form.XMLNodeToRead().children())
        if (std::find(std::begin(NotOfTheClaim), std::end(NotOfTheClaim), std::string_view(child.name()))
            == std::end(NotOfTheClaim))
            state = ofElement(state, child);
    return state;
}
