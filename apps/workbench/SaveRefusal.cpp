#include "SaveRefusal.h"

#include "ResultMessage.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>

namespace condtree::workbench {

namespace {

using Cause = SpSaveReport::Cause;
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

struct CauseText {
    Cause cause;
    const char* text;
};

constexpr std::array kCauseTexts{
    CauseText{Cause::DiskFull,
              QT_TRANSLATE_NOOP("SaveRefusal", "The disk is full; your changes were not saved.")},
    CauseText{Cause::NotWritten,
              QT_TRANSLATE_NOOP("SaveRefusal", "The database could not be written; your changes "
                                               "were not saved.")},
};

QString changedText(const SpSaveReport& report)
{
    const QString who = report.changedBy.str().simplified();
    if (who.isEmpty())
        return {};
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

QString refusedText(HRESULT result, const SpSaveReport& report)
{
    for (const RefusedText& known : kRefusedTexts) {
        if (known.result == result && known.field == report.field)
            return QCoreApplication::translate("SaveRefusal", known.text).arg(report.row + 1);
    }
    return {};
}

QString causeText(const SpSaveReport& report)
{
    for (const CauseText& known : kCauseTexts) {
        if (known.cause == report.cause)
            return QCoreApplication::translate("SaveRefusal", known.text);
    }
    return {};
}

/// What the report tells beside its result; empty where it tells nothing.
QString reportedText(HRESULT result, const SpSaveReport& report)
{
    switch (result) {
    case SP_E_CHANGED:
        return changedText(report);
    case SP_E_BAD_TEXT:
    case SP_E_TOO_LONG:
        return refusedText(result, report);
    default:
        return causeText(report);
    }
}

} // namespace

QString saveRefusal(HRESULT result, const SpSaveReport& report)
{
    const QString text = reportedText(result, report);
    return text.isEmpty() ? resultMessage(result) : text;
}

} // namespace condtree::workbench
