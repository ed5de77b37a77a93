// The one form of the message that knows the string library, which only this folder does.
#include <condtree/refdata/ErrorText.h>
#include <condtree/strmgr/StringTable.h>

namespace condtree {

_bstr_t ResultCodeText(HRESULT code)
{
    return ResultCodeText(code, &StringTableText, CString());
}

} // namespace condtree
