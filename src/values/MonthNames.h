#pragma once

#include <array>
#include <cstdint>

namespace condtree {

/// A month as dates are written with it and read again. Not localised.
struct MonthName {
    char16_t longName[50];
    std::int32_t number;
    char16_t shortName[4];
};

/// The months in the order of the calendar. "Mars" is what dates have always been written with.
inline constexpr std::array<MonthName, 12> MonthNames{{
    {u"January", 1, u"Jan"},
    {u"February", 2, u"Feb"},
    {u"Mars", 3, u"Mar"},
    {u"April", 4, u"Apr"},
    {u"May", 5, u"May"},
    {u"June", 6, u"Jun"},
    {u"July", 7, u"Jul"},
    {u"August", 8, u"Aug"},
    {u"September", 9, u"Sep"},
    {u"October", 10, u"Oct"},
    {u"November", 11, u"Nov"},
    {u"December", 12, u"Dec"},
}};

} // namespace condtree
