#include "DefaultValue.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/platform/Automation.h>
#include <condtree/values/DateStyle.h>

namespace condtree {

std::optional<CString> defaultSearchValue(LONG op, const SYSTEMTIME& now, std::uint32_t style)
{
    if (op < DateEqualTo || op > DateBiggerOrEqual)
        return std::nullopt;
    double date = 0;
    CString text;
    if (!SystemTimeToVariantTime(now, date) || !FormatDateByStyle(text, date, style))
        return std::nullopt;
    return text;
}

} // namespace condtree
