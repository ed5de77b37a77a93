#include "DateStyle.h"

#include <condtree/platform/Automation.h>
#include <condtree/values/DateLayout.h>
#include <condtree/values/DateReader.h>

namespace condtree {

namespace {

enum class Outcome : std::uint8_t { Read, DoesNotFit, Refused };

Outcome store(std::optional<int> value, std::uint16_t& field)
{
    field = static_cast<std::uint16_t>(value.value_or(0));
    return value ? Outcome::Read : Outcome::DoesNotFit;
}

Outcome store(const std::optional<CompactDate>& date, SYSTEMTIME& fields)
{
    if (!date)
        return Outcome::DoesNotFit;
    store(date->year, fields.wYear);
    store(date->month, fields.wMonth);
    return store(date->day, fields.wDay);
}

Outcome store(const TimeOfDay& time, SYSTEMTIME& fields)
{
    store(time.hour, fields.wHour);
    store(time.minute, fields.wMinute);
    store(time.second, fields.wSecond);
    // One of the fields of a date, though the conversion leaves it out.
    return store(time.millisecond, fields.wMilliseconds);
}

Outcome readStep(ReadStep step, DateReader& reader, SYSTEMTIME& fields)
{
    switch (step) {
    case ReadStep::Year:
        return store(reader.ReadYear(), fields.wYear);
    case ReadStep::Month:
        return store(reader.ReadNumberInRange(1, 12), fields.wMonth);
    case ReadStep::MonthName:
        return store(reader.ReadMonthName(), fields.wMonth);
    case ReadStep::Day:
        return store(reader.ReadNumberInRange(1, 31), fields.wDay);
    case ReadStep::Hyphen:
        return reader.pass(u'-') ? Outcome::Read : Outcome::Refused;
    case ReadStep::CompactDate2:
        return store(reader.ReadCompactDate(2), fields);
    case ReadStep::CompactDate4:
        return store(reader.ReadCompactDate(4), fields);
    case ReadStep::Time12:
        return store(reader.ReadTime12(), fields);
    case ReadStep::Time24:
        return store(reader.ReadTime24(), fields);
    case ReadStep::None:
        break;
    }
    return Outcome::DoesNotFit;
}

Outcome readFields(const CString& text, const ReadOrder& order, SYSTEMTIME& fields)
{
    DateReader reader(text);
    Outcome outcome = Outcome::DoesNotFit;
    for (const ReadStep step : order) {
        if (step == ReadStep::None)
            break;
        outcome = readStep(step, reader, fields);
        if (outcome != Outcome::Read)
            break;
    }
    return outcome;
}

template <class Fallback>
bool parse(const CString& text, double& result, std::uint32_t style, Fallback parseByLocale)
{
    SYSTEMTIME fields{};
    const Outcome outcome = readFields(text, dateLayout(style).order, fields);
    if (outcome == Outcome::Refused)
        return false;
    if (outcome == Outcome::DoesNotFit)
        return parseByLocale(text, result);
    double date = 0; // stays where the fields run on out of the calendar
    static_cast<void>(SystemTimeToVariantTime(fields, date));
    result = date;
    return true;
}

} // namespace

bool ParseDateByStyle(const CString& text, double& result, std::uint32_t style,
                      const QLocale& locale)
{
    return parse(text, result, style, [&](const CString& rest, double& date) {
        return ParseDateByLocale(rest, date, locale);
    });
}

bool ParseDateByStyle(const CString& text, double& result, std::uint32_t style)
{
    return parse(text, result, style,
                 [](const CString& rest, double& date) { return ParseDateByLocale(rest, date); });
}

} // namespace condtree
