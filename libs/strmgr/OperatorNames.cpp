#include "OperatorNames.h"

#include <algorithm>
#include <array>
#include <utility>

namespace condtree {

namespace {

// Ascending by number. The numbers are persisted; append only.
constexpr std::array<std::pair<LONG, std::u16string_view>, 22> kNames{{
    {100, u"String Equal To"},
    {101, u"String Not Equal To"},
    {102, u"String Less Than"},
    {103, u"String Bigger Than"},
    {104, u"String Less Than or Equal"},
    {105, u"String Bigger Than or Equal"},
    {106, u"String Contains"},
    {107, u"String Does Not Contain"},
    {108, u"Text Compare"},
    {120, u"Number Equal To"},
    {121, u"Number Not Equal To"},
    {122, u"Number Less Than"},
    {123, u"Number Bigger Than"},
    {124, u"Number Less Than or Equal"},
    {125, u"Number Bigger Than or Equal"},
    {130, u"Date Equal To"},
    {131, u"Date Not Equal To"},
    {132, u"Date Less Than"},
    {133, u"Date Bigger Than"},
    {134, u"Date Less Than or Equal"},
    {135, u"Date Bigger Than or Equal"},
    {139, u"Binary Equal To"},
}};

} // namespace

std::u16string_view englishOperatorName(LONG id)
{
    const auto* const found =
        std::ranges::lower_bound(kNames, id, {}, &std::pair<LONG, std::u16string_view>::first);
    return found != kNames.end() && found->first == id ? found->second : std::u16string_view();
}

} // namespace condtree
