// The one form of the message that knows the string library, which only this folder does.
#include <condtree/platform/StrMgr.h>
#include <condtree/refdata/ErrorText.h>

namespace condtree {

_bstr_t ResultCodeText(HRESULT code)
{
    return ResultCodeText(code, &TSS_internal);
}

} // namespace condtree
