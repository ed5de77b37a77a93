#include "LocaleDate.h"

#include "DateGrammar.h"
#include "DateTokens.h"

#include <condtree/platform/Automation.h>

#include <QDate>
#include <QLocale>

namespace condtree {

bool ParseDateByLocale(const CString& text, double& result, const QLocale& locale)
{
    return ParseDateByLocale(text, result, locale, QDate::currentDate().year());
}

bool ParseDateByLocale(const CString& text, double& result, const QLocale& locale, int currentYear)
{
    const LocaleDateRules rules =
        mayHoldDateWords(text) ? localeDateRules(locale) : wordlessDateRules(locale);
    const auto fields = calendarFieldsOf(text, rules, currentYear);
    return fields && SystemTimeToVariantTime(*fields, result);
}

bool ParseDateByLocale(const CString& text, double& result)
{
    return ParseDateByLocale(text, result, QLocale());
}

} // namespace condtree
