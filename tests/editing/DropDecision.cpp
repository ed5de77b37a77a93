#include <condtree/editing/DropDecision.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace condtree {
namespace {

HTREEITEM handle(std::uintptr_t number)
{
    return reinterpret_cast<HTREEITEM>(number);
}

const HTREEITEM kNone = nullptr;
const HTREEITEM kRow = handle(7);

TEST(DropDecision, ADragBeginsOnAnyPartOfARowButItsButton)
{
    const std::vector<std::pair<unsigned, bool>> rows{
        {0x1, false},                                                   // nowhere
        {0x2, true},                                                    // icon
        {0x4, true},                                                    // label
        {0x8, true},                                                    // indent
        {0x10, false},                                                  // button
        {0x20, true},                                                   // right of the label
        {0x40, true},                                                   // state icon
        {0x100, false}, {0x200, false}, {0x400, false}, {0x800, false}, // outside
        {0x500, false}, {0x12, true},   {0x404, true},                  // one of them is enough
        {0, false},
    };
    for (const auto& [flags, begins] : rows)
        EXPECT_EQ(beginsDrag(flags), begins) << "flags " << flags;
}

struct CodeRow {
    const char* name;
    std::optional<LONG> code;
    bool isDraggable;
    HTREEITEM target;
};

TEST(DropDecision, ConditionsAreDraggedAndGroupsAreTargets)
{
    const std::vector<CodeRow> rows{
        {"a row without a node", std::nullopt, false, kRow},
        {"the placeholder", -1, false, kNone},
        {"the smallest number", std::numeric_limits<LONG>::min(), false, kNone},
        {"an AND group", 0, false, kRow},
        {"an OR group", 1, false, kRow},
        {"the code between", 2, false, kNone},
        {"the first kind", 3, true, kNone},
        {"the last kind", 12, true, kNone},
        {"an operator's number", 100, true, kNone},
        {"a card variable", 1000, true, kNone},
        {"the largest number", std::numeric_limits<LONG>::max(), true, kNone},
    };
    for (const CodeRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(isDraggable(row.code), row.isDraggable);
        EXPECT_EQ(dropTarget(kRow, row.code), row.target);
    }
}

TEST(DropDecision, NothingHitIsTheTopLevel)
{
    EXPECT_EQ(dropTarget(nullptr, std::nullopt), TVI_ROOT);
}

/// A top with a group in a group, all with rows.
class DropEnds : public testing::Test {
protected:
    DropEnds()
    {
        top.mhItem = TVI_ROOT;
        outer = add(top, 1);
        inner = add(*outer, 2);
        row = add(*inner, 3);
    }
    static VarTreeCtrlNode* add(VarTreeCtrlNode& parent, std::uintptr_t item)
    {
        auto* node = new VarTreeCtrlNode(1);
        node->mhItem = handle(item);
        node->mpParent = &parent;
        parent.mChildren.push_back(node);
        return node;
    }
    VarTreeCtrlNode top{0};
    VarTreeCtrlNode* outer;
    VarTreeCtrlNode* inner;
    VarTreeCtrlNode* row;
};

TEST_F(DropEnds, ADragEndsAsItsTargetSays)
{
    const HTREEITEM other = handle(9);
    struct EndRow {
        const char* name;
        HTREEITEM dragged, target;
        const VarTreeCtrlNode* node;
        DropEnd end;
    };
    const std::vector<EndRow> rows{
        {"nowhere", row->mhItem, nullptr, nullptr, DropEnd::Nowhere},
        {"on itself", inner->mhItem, inner->mhItem, inner, DropEnd::OnItself},
        {"on itself before its subtree is looked at", outer->mhItem, outer->mhItem, outer,
         DropEnd::OnItself},
        {"into its child", outer->mhItem, inner->mhItem, inner, DropEnd::IntoItself},
        {"into its child's child", outer->mhItem, row->mhItem, row, DropEnd::IntoItself},
        {"onto its parent", row->mhItem, inner->mhItem, inner, DropEnd::Moves},
        {"onto its parent's parent", row->mhItem, outer->mhItem, outer, DropEnd::Moves},
        {"to the top level", row->mhItem, TVI_ROOT, &top, DropEnd::Moves},
        {"to the top level from there", outer->mhItem, TVI_ROOT, &top, DropEnd::Moves},
        {"to another group", other, inner->mhItem, inner, DropEnd::Moves},
        {"onto a row without a node", row->mhItem, other, nullptr, DropEnd::Moves},
    };
    for (const EndRow& way : rows) {
        SCOPED_TRACE(way.name);
        EXPECT_EQ(decideDrop(way.dragged, way.target, way.node), way.end);
    }
}

} // namespace
} // namespace condtree
