#include "SaveRefusal.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>

namespace condtree::workbench {

namespace {

using Field = SpSaveReport::Field;

struct RefusedText {
    HRESULT result;
    Field field;
    const char* text;
};

// A sentence for each: in most languages the words around the field's name depend on it.
constexpr std::array kRefusedTexts{
    RefusedText{SP_E_BAD_TEXT, Field::Name,
                QT_TRANSLATE_NOOP("SaveRefusal", "Row %1: the name holds a character that the "
                                                 "database cannot hold.")},
    RefusedText{SP_E_BAD_TEXT, Field::Extra,
                QT_TRANSLATE_NOOP("SaveRefusal", "Row %1: the remark holds a character that the "
                                                 "database cannot hold.")},
    RefusedText{SP_E_BAD_TEXT, Field::Value,
                QT_TRANSLATE_NOOP("SaveRefusal", "Row %1: the value holds a character that the "
                                                 "database cannot hold.")},
    RefusedText{SP_E_TOO_LONG, Field::Name,
                QT_TRANSLATE_NOOP("SaveRefusal", "Row %1: the name is larger than 16 MiB, which "
                                                 "the database cannot hold.")},
    RefusedText{SP_E_TOO_LONG, Field::Extra,
                QT_TRANSLATE_NOOP("SaveRefusal", "Row %1: the remark is larger than 16 MiB, which "
                                                 "the database cannot hold.")},
    RefusedText{SP_E_TOO_LONG, Field::Value,
                QT_TRANSLATE_NOOP("SaveRefusal", "Row %1: the value is larger than 16 MiB, which "
                                                 "the database cannot hold.")},
};
static_assert(kSpLargestText == 16 * 1024 * 1024);

QString changedText(const SpSaveReport& report)
{
    const QString who = report.changedBy.str().simplified();
    if (who.isEmpty())
        return QCoreApplication::translate(
            "SaveRefusal", "The condition was saved by somebody else after it was loaded; your "
                           "changes were not saved.");
    if (!report.changedAt.isValid())
        return QCoreApplication::translate("SaveRefusal",
                                           "The condition was saved by %1 after it was loaded; "
                                           "your changes were not saved.")
            .arg(who);
    //: %1 is a login name, %2 a date and time
    return QCoreApplication::translate("SaveRefusal",
                                       "The condition was saved by %1 (%2) after it was loaded; "
                                       "your changes were not saved.")
        .arg(who, QLocale().toString(report.changedAt.toLocalTime(), QLocale::ShortFormat));
}

} // namespace

QString saveRefusal(HRESULT result, const SpSaveReport& report)
{
    if (result == SP_E_CHANGED)
        return changedText(report);
    const auto* const found =
        std::find_if(kRefusedTexts.begin(), kRefusedTexts.end(), [&](const RefusedText& candidate) {
            return candidate.result == result && candidate.field == report.field;
        });
    if (found == kRefusedTexts.end())
        return report.message;
    return QCoreApplication::translate("SaveRefusal", found->text).arg(report.row + 1);
}

} // namespace condtree::workbench
