#pragma once

#include <condtree/model/FocusEditValue.h>
#include <condtree/platform/TreeVocabulary.h>
#include <condtree/platform/WinTypes.h>

#include <vector>

namespace condtree {

/// The kinds of nodes that are no ComboCmd of the same number.
enum NodeCode : LONG {
    NodePlaceholder = -1,   ///< "<Click here to add a condition>"
    NodeAnd = 0,            ///< The top node.
    NodeOr = 1,             ///< An OR group.
    NodeOtherName = 11,     ///< A condition that shows the name of its record.
    NodeHistoricState = 12, ///< A child reference's state, past ones included.
    NodeVariable = 1000     ///< A condition on a card variable.
};

/// The columns that the in-place editor edits.
enum EditColumn : LONG { EditColumnValue = 2, EditColumnExtra = 3 };

/// One row, one group, or the invisible top of the tree.
///
/// A node owns its children. Its item, its parent and its place among its siblings belong to the
/// tree that it was added to; the other fields may be changed in place.
class CONDTREE_EXPORT VarTreeCtrlNode final : public FocusEditValue {
public:
    explicit VarTreeCtrlNode(LONG code)
        : mlCode(code)
    {
    }
    VarTreeCtrlNode(const VarTreeCtrlNode&) = delete;
    VarTreeCtrlNode& operator=(const VarTreeCtrlNode&) = delete;

    /// The node's kind: a NodeCode, a ComboCmd from 3 to 10, or an operator's number on a card
    /// variable.
    LONG mlCode;
    /// The first column: the label of the kind or group, or the card variable's name.
    CString mName;
    /// The third column: the value as shown and edited.
    CString mValue;
    /// The fourth column.
    CString mExtra;
    /// The value's ArgType as loaded; 0 until then.
    LONG mlArgType = 0;
    /// The children in display order, owned.
    std::vector<VarTreeCtrlNode*> mChildren;
    /// The node's row; TVI_ROOT for the top node, null outside a tree.
    HTREEITEM mhItem = nullptr;
    /// Null for the top node.
    VarTreeCtrlNode* mpParent = nullptr;
    /// The column that is being edited: an EditColumn, else 0.
    LONG mlEditColumn = 0;
    /// The object type last picked from the list: 0 file, 1 bill of materials, 2 item; else -1.
    /// Never saved: the saved object type comes from mValue.
    LONG mlObjectType = -1;
    /// The comparison operator, a ComboCmd; -1 until one is chosen.
    LONG mlOperator = -1;
    /// The workflow state of a condition on a child reference; else -1.
    LONG mlStateId = -1;
    /// The user or the group of a condition on one; else -1.
    LONG mlUserOrGroupId = -1;

    /// Replaces mValue or mExtra, whichever mlEditColumn names; any other column changes nothing.
    void mvSetEditText(FocusEdit* editor, const CString& text) override;
    /// mValue, whichever column is edited: the editor is only ever primed from the value.
    [[nodiscard]] CString moGetEditText() const override { return mValue; }
    [[nodiscard]] bool mbIsReadOnly(FocusEdit*) override { return false; }
    bool mbFilterChar(unsigned, unsigned, unsigned) override { return false; }
    bool mbFilterKey(unsigned, unsigned, unsigned) override { return false; }
    [[nodiscard]] bool mbHasBorder() override { return true; }
    [[nodiscard]] bool mbIsMultiLine() override { return false; }
    void mvAfterPaste() override {}

    /// Destroys the whole subtree.
    virtual ~VarTreeCtrlNode();
};

} // namespace condtree
