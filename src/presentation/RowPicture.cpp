#include "RowPicture.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/ControlText.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/presentation/RowStyle.h>
#include <condtree/values/OperatorCatalogue.h>

namespace condtree {

namespace {

/// Codes below are those of groups, and of commands.
constexpr LONG kFirstConditionCode = 3;
/// From here on a row is a condition on a card variable.
constexpr LONG kFirstVariableCode = 100;

bool isFixedKind(LONG code)
{
    return (code >= Category && code <= ChildRefState) || code == NodeHistoricState;
}

/// Rows below a condition leave their bottom edge open, so that they join its frame.
bool joinsParentFrame(const std::optional<LONG>& parentCode)
{
    return parentCode && (*parentCode >= kFirstVariableCode || isFixedKind(*parentCode));
}

RowPrimitive frameOf(const RECT& body, const std::optional<LONG>& parentCode)
{
    if (!joinsParentFrame(parentCode))
        return FramePrimitive{body, kRowLineColour};
    return PolylinePrimitive{{{{body.left, body.bottom},
                               {body.left, body.top},
                               {body.right - 1, body.top},
                               {body.right - 1, body.bottom}}},
                             kRowLineColour};
}

TextPrimitive textIn(const RECT& rect, const CString& text)
{
    return {text, rect, kRowTextFormat};
}

LinePrimitive separatorAt(LONG x, const RECT& body)
{
    return {{x, body.top + 1}, {x, body.bottom}, kRowLineColour};
}

} // namespace

RowPicture describeRow(const RowContent& content, const RowLayout& layout,
                       const StringSource& strings)
{
    const PaintedCells cells = layout.paintedCells();
    RowPicture picture;
    picture.push_back(FillPrimitive{cells.body, kRowBackground});
    if (content.code < kFirstConditionCode) {
        picture.push_back(textIn(cells.caption, content.name));
        return picture;
    }

    // The frame comes after the first text and the separators before theirs: a text that overlaps a
    // line is covered by it, or covers it, in just this order.
    picture.push_back(textIn(cells.text[0], content.name.isEmpty()
                                                ? textRef(ControlText::AnyVariable).from(strings)
                                                : content.name));
    picture.push_back(frameOf(cells.body, content.parentCode));
    picture.push_back(separatorAt(cells.separator[0], cells.body));
    picture.push_back(ImagePrimitive{operatorImageIndex(content.op), cells.operatorImage});
    picture.push_back(textIn(cells.text[1], operatorName(content.op, u"?", strings)));
    picture.push_back(separatorAt(cells.separator[1], cells.body));
    picture.push_back(textIn(cells.text[2], content.value));
    picture.push_back(separatorAt(cells.separator[2], cells.body));
    picture.push_back(textIn(cells.text[3], content.extra));
    return picture;
}

} // namespace condtree
