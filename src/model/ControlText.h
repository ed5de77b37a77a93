#pragma once

#include <condtree/platform/TextRef.h>

#include <array>
#include <cstddef>

namespace condtree {

/// The localised texts of the control, but for operators' names and the messages of result codes.
/// Each is also in the string library's catalogue, from which it is translated.
enum class ControlText : std::size_t {
    And,
    Or,
    AnyVariable,
    Remove,
    Placeholder,
    FilePath,
    Revision,
    User,
    Yes,
    No,
    Category,
    Group,
    ObjectType,
    File,
    BillOfMaterials,
    ChildRefState,
    ChildRefHistoricState,
    Item,
    ColumnVariable,
    ColumnOperator,
    ColumnValue,
    ColumnRemark,
    Columns,
    ColumnsHelp
};

/// In the order of ControlText. The ids name the translations and stay as they are.
inline constexpr std::array<TextRef, 24> kControlTexts{{
    {38, kTextKey, u"Search", u"And"},
    {39, kTextKey, u"Search", u"Or"},
    {44, kTextKey, u"Search", u"<Any Variable>"},
    {55, kTextKey, u"Search", u"Remove"},
    {70, kTextKey, u"Search", u"<Click here to add a condition>"},
    {20, kTextKey, u"Workflow", u"FilePath"},
    {21, kTextKey, u"Workflow", u"Revision"},
    {40, kTextKey, u"Workflow", u"User"},
    {58, kTextKey, u"Workflow", u"Yes"},
    {59, kTextKey, u"Workflow", u"No"},
    {87, kTextKey, u"Workflow", u"Category"},
    {180, kTextKey, u"Workflow", u"Group"},
    {732, kTextKey, u"Workflow", u"Object Type"},
    {733, kTextKey, u"Workflow", u"File"},
    {734, kTextKey, u"Workflow", u"BOM"},
    {756, kTextKey, u"Workflow", u"Child Reference State"},
    {757, kTextKey, u"Workflow", u"Child Reference historic State"},
    {15, kTextKey, u"ItemMgr", u"Item"},
    {1, kTextKey, u"Columns", u"Variable"},
    {2, kTextKey, u"Columns", u"Operator"},
    {3, kTextKey, u"Columns", u"Value"},
    {4, kTextKey, u"Columns", u"Remark"},
    {5, kTextKey, u"Columns", u"Columns"},
    {6, kTextKey, u"Columns",
     u"Left and Right choose a boundary, plus and minus move it, Home resets the columns."},
}};

static_assert(kControlTexts.size() == static_cast<std::size_t>(ControlText::ColumnsHelp) + 1);

[[nodiscard]] constexpr const TextRef& textRef(ControlText text)
{
    return kControlTexts[static_cast<std::size_t>(text)];
}

} // namespace condtree
