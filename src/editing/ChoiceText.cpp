#include "ChoiceText.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/values/OperatorCatalogue.h>

namespace condtree {

namespace {

constexpr qsizetype kMostUnitsRead = 256;

} // namespace

CString choiceTextAsShown(LONG code, const CString& given, const StringSource& strings)
{
    if (code < StringEqualTo || code >= VariableBase)
        return given;
    return operatorName(code, reinterpret_cast<const char16_t*>(given.utf16()), strings);
}

CString choiceTextAsRead(const CString& entryText)
{
    return entryText.left(kMostUnitsRead);
}

} // namespace condtree
