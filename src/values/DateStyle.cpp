#include "DateStyle.h"

#include <condtree/platform/Automation.h>
#include <condtree/values/DateLayout.h>
#include <condtree/values/FormatInto.h>
#include <condtree/values/MonthNames.h>

#include <algorithm>

namespace condtree {

namespace {

struct CalendarFields {
    int year = -1, month = -1, day = -1, hour = -1, minute = -1, second = -1;
};

CalendarFields fieldsOf(double date)
{
    SYSTEMTIME time{};
    if (!VariantTimeToSystemTime(date, time))
        return {};
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

const MonthName& nameOf(int month)
{
    static constexpr MonthName kNone{};
    const bool isMonth = month >= 1 && month <= static_cast<int>(MonthNames.size());
    return isMonth ? MonthNames[static_cast<std::size_t>(month - 1)] : kNone;
}

// Noon is 12 AM and midnight 00 AM. The reader of such times mirrors it.
constexpr int kFirstHourPm = 13;

FormatArgument argumentOf(DatePart part, const CalendarFields& fields)
{
    switch (part) {
    case DatePart::Year:
        return fields.year;
    case DatePart::YearOfCentury:
        return fields.year % 100;
    case DatePart::Month:
        return fields.month;
    case DatePart::ShortMonth:
        return nameOf(fields.month).shortName;
    case DatePart::LongMonth:
        return nameOf(fields.month).longName;
    case DatePart::Day:
        return fields.day;
    case DatePart::Hour:
        return fields.hour;
    case DatePart::Hour12:
        return fields.hour < kFirstHourPm ? fields.hour : fields.hour - 12;
    case DatePart::Minute:
        return fields.minute;
    case DatePart::Second:
        return fields.second;
    case DatePart::Marker:
        return fields.hour < kFirstHourPm ? u"AM" : u"PM";
    case DatePart::None:
        break;
    }
    return 0;
}

} // namespace

bool FormatDateByStyle(CString& target, double date, std::uint32_t style)
{
    if (date == 0)
        return false;
    const CalendarFields fields = fieldsOf(date);
    const DateLayout& layout = dateLayout(style);
    std::array<FormatArgument, std::tuple_size_v<decltype(layout.parts)>> arguments;
    std::ranges::transform(layout.parts, arguments.begin(),
                           [&](DatePart part) { return argumentOf(part, fields); });
    FormatInto(target, layout.format, arguments);
    return true;
}

} // namespace condtree
