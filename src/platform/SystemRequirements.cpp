#include "SystemRequirements.h"

#include <array>

namespace condtree {

namespace {

constexpr std::array<const char16_t*, 1> kRequirements{u"  Debian 12 or later."};

} // namespace

std::span<const char16_t* const> systemRequirements()
{
    return kRequirements;
}

} // namespace condtree
