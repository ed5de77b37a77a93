#include "VarTreeCtrlNode.h"

namespace condtree {

void VarTreeCtrlNode::mvSetEditText(FocusEdit*, const CString& text)
{
    if (mlEditColumn == EditColumnValue)
        mValue = text;
    else if (mlEditColumn == EditColumnExtra)
        mExtra = text;
}

VarTreeCtrlNode::~VarTreeCtrlNode()
{
    // Head first; the list as a whole is released afterwards, so that a long level stays linear.
    for (VarTreeCtrlNode* child : mChildren)
        delete child;
}

} // namespace condtree
