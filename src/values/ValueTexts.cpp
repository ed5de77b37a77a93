#include "ValueTexts.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/ControlText.h>
#include <condtree/platform/NativeText.h>

namespace condtree {

namespace {

// The record type of a condition on the object type, and the numbers of its values. Persisted;
// append only.
constexpr LONG kObjectTypeRecord = 5;
constexpr LONG kStoredBillOfMaterials = 3;
constexpr LONG kStoredItem = 4;

CString textOf(ControlText text, const StringSource& strings)
{
    return textRef(text).from(strings);
}

} // namespace

ValueTexts::ValueTexts(const StringSource& strings)
    : yes(textOf(ControlText::Yes, strings))
    , no(textOf(ControlText::No, strings))
    , file(textOf(ControlText::File, strings))
    , billOfMaterials(textOf(ControlText::BillOfMaterials, strings))
    , item(textOf(ControlText::Item, strings))
{
}

CString ValueTexts::shown(const CString& stored, LONG argType, LONG condType) const
{
    if (argType == ArgBinary)
        return equalsNoCase(stored, u"Yes") ? yes : no;
    if (condType != kObjectTypeRecord)
        return stored;
    switch (leadingNumber(stored)) {
    case kStoredBillOfMaterials:
        return billOfMaterials;
    case kStoredItem:
        return item;
    default:
        return file;
    }
}

CString ValueTexts::stored(const CString& shownText, LONG argType, LONG condType) const
{
    if (argType == ArgBinary)
        return shownText == yes ? QStringLiteral("Yes") : QStringLiteral("No");
    if (condType != kObjectTypeRecord)
        return shownText;
    if (shownText == billOfMaterials)
        return QStringLiteral("3");
    return shownText == item ? QStringLiteral("4") : QStringLiteral("1");
}

} // namespace condtree
