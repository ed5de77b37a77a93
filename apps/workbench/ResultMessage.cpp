#include "ResultMessage.h"

#include <condtree/platform/StrMgr.h>
#include <condtree/refdata/ErrorText.h>
#include <condtree/storedprocs/SpConnect.h>

namespace condtree::workbench {

QString resultMessage(HRESULT result)
{
    ResultTexts texts;
    SpAddResultTexts(texts);
    return ResultCodeText(result, &TSS_internal, &texts).trimmed();
}

} // namespace condtree::workbench
