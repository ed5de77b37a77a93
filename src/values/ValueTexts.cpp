#include "ValueTexts.h"

#include "CommandCatalogue.h"

#include <condtree/platform/NativeText.h>

namespace condtree {

namespace {

// The record type of a condition on the object type, and the numbers of its values. Persisted;
// append only.
constexpr LONG kObjectTypeRecord = 5;
constexpr LONG kStoredBillOfMaterials = 3;
constexpr LONG kStoredItem = 4;

CString textOf(ComboCmd command, const StringSource& strings)
{
    return findCommand(command)->text->from(strings);
}

} // namespace

ValueTexts::ValueTexts(const StringSource& strings)
    : yes(textOf(BinaryYes, strings))
    , no(textOf(BinaryNo, strings))
    , file(textOf(ObjectTypeFile, strings))
    , billOfMaterials(textOf(ObjectTypeBom, strings))
    , item(textOf(ObjectTypeItem, strings))
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
