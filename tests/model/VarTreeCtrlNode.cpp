#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <memory>
#include <type_traits>

namespace condtree {

static_assert(!std::is_copy_constructible_v<VarTreeCtrlNode>);
static_assert(!std::is_copy_assignable_v<VarTreeCtrlNode>);
static_assert(std::is_base_of_v<FocusEditValue, VarTreeCtrlNode>);
static_assert(std::has_virtual_destructor_v<VarTreeCtrlNode>);
// An editor cannot destroy what it edits.
static_assert(std::is_abstract_v<FocusEditValue> && !std::is_destructible_v<FocusEditValue>);
static_assert(sizeof(FocusEditValue) == sizeof(void*), "the interface has no data");

static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlCode), std::int32_t>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mName), CString>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mValue), CString>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mExtra), CString>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlArgType), std::int32_t>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mhItem), HTREEITEM>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mpParent), VarTreeCtrlNode*>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlEditColumn), std::int32_t>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlObjectType), std::int32_t>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlOperator), std::int32_t>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlStateId), std::int32_t>);
static_assert(std::is_same_v<decltype(VarTreeCtrlNode::mlUserOrGroupId), std::int32_t>);

namespace {

constexpr std::size_t kDeletingDestructorSlot = 9;

/// A member function pointer as the Itanium C++ ABI lays it out.
struct MemberFunction {
    std::intptr_t offsetPlusOne;
    std::intptr_t adjustment;
};

/// The slot of a virtual operation in its class's table.
template <class Operation>
std::intptr_t slotOf(Operation operation)
{
    static_assert(sizeof(Operation) == sizeof(MemberFunction));
    const auto function = std::bit_cast<MemberFunction>(operation);
    EXPECT_EQ(function.adjustment, 0);
    return (function.offsetPlusOne - 1) / static_cast<std::intptr_t>(sizeof(void*));
}

/// A child that shares its name with a witness, who is alone again once the child is destroyed.
VarTreeCtrlNode* childNamed(const CString& witness, LONG code = NodeVariable)
{
    auto* child = new VarTreeCtrlNode(code);
    child->mName = witness;
    return child;
}

VarTreeCtrlNode* editedNode(LONG column)
{
    auto* node = new VarTreeCtrlNode(NodeVariable);
    node->mName = u"Author"_qs;
    node->mValue = u"Smith"_qs;
    node->mExtra = u"note"_qs;
    node->mlEditColumn = column;
    return node;
}

} // namespace

TEST(VarTreeCtrlNode, IsMadeWithItsCodeAndDefaults)
{
    for (const LONG code : {-1, 0, 1}) {
        const VarTreeCtrlNode node(code);
        EXPECT_EQ(node.mlCode, code);
        EXPECT_TRUE(node.mName.isEmpty());
        EXPECT_TRUE(node.mValue.isEmpty());
        EXPECT_TRUE(node.mExtra.isEmpty());
        EXPECT_EQ(node.mlArgType, 0);
        EXPECT_TRUE(node.mChildren.empty());
        EXPECT_EQ(node.mhItem, nullptr);
        EXPECT_EQ(node.mpParent, nullptr);
        EXPECT_EQ(node.mlEditColumn, 0);
        EXPECT_EQ(node.mlObjectType, -1);
        EXPECT_EQ(node.mlOperator, -1);
        EXPECT_EQ(node.mlStateId, -1);
        EXPECT_EQ(node.mlUserOrGroupId, -1);
    }
}

TEST(VarTreeCtrlNode, HasItsFieldsInTheFixedOrder)
{
    const VarTreeCtrlNode node(0);
    const void* const fields[] = {
        &node.mlCode,          &node.mName,        &node.mValue,     &node.mExtra,
        &node.mlArgType,       &node.mChildren,    &node.mhItem,     &node.mpParent,
        &node.mlEditColumn,    &node.mlObjectType, &node.mlOperator, &node.mlStateId,
        &node.mlUserOrGroupId,
    };
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST(VarTreeCtrlNode, DestroysAllRowsOfAGroup)
{
    const CString witness(8, u'w');
    auto group = std::make_unique<VarTreeCtrlNode>(NodeOr);
    for (int i = 0; i < 25; ++i)
        group->mChildren.push_back(childNamed(witness));
    EXPECT_FALSE(witness.isDetached());
    group.reset();
    EXPECT_TRUE(witness.isDetached());
}

TEST(VarTreeCtrlNode, DestroysTheWholeSubtree)
{
    const CString rows(8, u'r');
    const CString groups(8, u'g');
    auto top = std::make_unique<VarTreeCtrlNode>(NodeAnd);
    for (int i = 0; i < 3; ++i) {
        VarTreeCtrlNode* group = childNamed(groups, NodeOr);
        group->mChildren.push_back(childNamed(rows));
        top->mChildren.push_back(group);
    }
    EXPECT_FALSE(rows.isDetached());
    EXPECT_FALSE(groups.isDetached());
    top.reset();
    EXPECT_TRUE(rows.isDetached());
    EXPECT_TRUE(groups.isDetached());
}

TEST(VarTreeCtrlNode, LeavesAloneWhatIsNotAmongItsChildren)
{
    const CString witness(8, u'w');
    const std::unique_ptr<VarTreeCtrlNode> row(childNamed(witness));
    {
        VarTreeCtrlNode group(NodeOr);
        row->mpParent = &group;
    }
    EXPECT_FALSE(witness.isDetached());
    EXPECT_EQ(row->mName.toStdString(), "wwwwwwww");
}

TEST(EditedText, ReplacesTheValueInTheThirdColumn)
{
    const std::unique_ptr<VarTreeCtrlNode> node(editedNode(2));
    node->mvSetEditText(nullptr, u"new"_qs);
    EXPECT_EQ(node->mName.toStdString(), "Author");
    EXPECT_EQ(node->mValue.toStdString(), "new");
    EXPECT_EQ(node->mExtra.toStdString(), "note");
}

TEST(EditedText, ReplacesTheExtraTextInTheFourthColumn)
{
    const std::unique_ptr<VarTreeCtrlNode> node(editedNode(3));
    node->mvSetEditText(nullptr, u"new"_qs);
    EXPECT_EQ(node->mName.toStdString(), "Author");
    EXPECT_EQ(node->mValue.toStdString(), "Smith");
    EXPECT_EQ(node->mExtra.toStdString(), "new");
}

TEST(EditedText, ChangesNoFieldForAnyOtherColumn)
{
    for (const LONG column : {-1, 0, 1, 4, 5}) {
        const std::unique_ptr<VarTreeCtrlNode> node(editedNode(column));
        node->mvSetEditText(nullptr, u"new"_qs);
        EXPECT_EQ(node->mName.toStdString(), "Author") << column;
        EXPECT_EQ(node->mValue.toStdString(), "Smith") << column;
        EXPECT_EQ(node->mExtra.toStdString(), "note") << column;
        EXPECT_EQ(node->mlEditColumn, column);
    }
}

TEST(EditedText, IsPrimedFromTheValueWhicheverColumnIsEdited)
{
    for (const LONG column : {0, 2, 3, 4}) {
        const std::unique_ptr<VarTreeCtrlNode> node(editedNode(column));
        EXPECT_EQ(node->moGetEditText().toStdString(), "Smith") << column;
    }
}

TEST(EditedText, IsACopy)
{
    const std::unique_ptr<VarTreeCtrlNode> node(editedNode(2));
    CString text = node->moGetEditText();
    text += u"son"_qs;
    EXPECT_EQ(node->mValue.toStdString(), "Smith");
}

TEST(EditedText, IsTypedFreelyInOneBorderedLine)
{
    const std::unique_ptr<VarTreeCtrlNode> node(editedNode(2));
    FocusEditValue& value = *node;
    EXPECT_FALSE(value.mbIsReadOnly(nullptr));
    EXPECT_FALSE(value.mbFilterChar('a', 1, 0));
    EXPECT_FALSE(value.mbFilterKey(0x1B, 1, 0));
    EXPECT_TRUE(value.mbHasBorder());
    EXPECT_FALSE(value.mbIsMultiLine());
    value.mvAfterPaste();
    EXPECT_EQ(value.moGetEditText().toStdString(), "Smith");
}

TEST(FocusEditValue, HasItsOperationsInTheFixedSlots)
{
    EXPECT_EQ(slotOf(&FocusEditValue::mvSetEditText), 0);
    EXPECT_EQ(slotOf(&FocusEditValue::moGetEditText), 1);
    EXPECT_EQ(slotOf(&FocusEditValue::mbIsReadOnly), 2);
    EXPECT_EQ(slotOf(&FocusEditValue::mbFilterChar), 3);
    EXPECT_EQ(slotOf(&FocusEditValue::mbFilterKey), 4);
    EXPECT_EQ(slotOf(&FocusEditValue::mbHasBorder), 5);
    EXPECT_EQ(slotOf(&FocusEditValue::mbIsMultiLine), 6);
    EXPECT_EQ(slotOf(&FocusEditValue::mvAfterPaste), 7);
}

TEST(FocusEditValue, IsFollowedByTheNodesDestructor)
{
    // The complete destructor takes slot 8, the deleting one slot 9.
    const CString witness(8, u'w');
    VarTreeCtrlNode* group = childNamed(witness, NodeOr);
    group->mChildren.push_back(childNamed(witness));
    using Destructor = void (*)(VarTreeCtrlNode*);
    const Destructor* slots = *reinterpret_cast<Destructor* const*>(group);
    slots[kDeletingDestructorSlot](group);
    EXPECT_TRUE(witness.isDetached());
}

} // namespace condtree
