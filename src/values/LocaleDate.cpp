#include "LocaleDate.h"

#include "DateGrammar.h"

#include <condtree/platform/Automation.h>

#include <QDate>
#include <QLocale>

namespace condtree {

bool ParseDateByLocale(const CString& text, double& result, const QLocale& locale)
{
    const auto fields =
        calendarFieldsOf(text, localeDateRules(locale), QDate::currentDate().year());
    return fields && SystemTimeToVariantTime(*fields, result);
}

bool ParseDateByLocale(const CString& text, double& result)
{
    return ParseDateByLocale(text, result, QLocale());
}

} // namespace condtree
