#include "LocaleDate.h"

#include <condtree/platform/Automation.h>

#include <QDate>
#include <QLocale>

namespace condtree {

bool ParseDateByLocale(const CString& text, double& result, const QLocale& locale)
{
    const QDate date = locale.toDate(text, QLocale::ShortFormat);
    if (!date.isValid())
        return false;
    const auto field = [](int value) { return static_cast<std::uint16_t>(value); };
    return SystemTimeToVariantTime(
        {field(date.year()), field(date.month()), 0, field(date.day()), 0, 0, 0, 0}, result);
}

bool ParseDateByLocale(const CString& text, double& result)
{
    return ParseDateByLocale(text, result, QLocale());
}

} // namespace condtree
