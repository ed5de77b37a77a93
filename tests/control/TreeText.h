#pragma once

#include "support/QtPrinters.h"

#include <condtree/control/CondTreeCtrl.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <QString>

#include <ostream>
#include <string>
#include <vector>

namespace condtree::test {

/// A row as text: code, name, value, extra, and the numbers that differ from a new node's.
inline std::string toText(const VarTreeCtrlNode& node)
{
    std::string text = std::to_string(node.mlCode) + " " + node.mName.toStdString();
    if (!node.mValue.isEmpty() || !node.mExtra.isEmpty())
        text += " | " + node.mValue.toStdString();
    if (!node.mExtra.isEmpty())
        text += " | " + node.mExtra.toStdString();
    const auto number = [&text](const char* name, LONG value, LONG initial) {
        if (value != initial)
            text += std::string(" ") + name + "=" + std::to_string(value);
    };
    number("op", node.mlOperator, -1);
    number("arg", node.mlArgType, 0);
    number("state", node.mlStateId, -1);
    number("id", node.mlUserOrGroupId, -1);
    number("object", node.mlObjectType, -1);
    return text;
}

/// The rows below a node, one a line, indented by two blanks a level.
inline std::string rowsBelow(const VarTreeCtrlNode& node, const std::string& indent = "")
{
    std::string text;
    for (const VarTreeCtrlNode* child : node.mChildren)
        text += indent + toText(*child) + "\n" + rowsBelow(*child, indent + "  ");
    return text;
}

/// The whole tree of a control: its top and the rows below it. Empty without a top.
inline std::string toText(const CondTreeCtrl& control)
{
    const VarTreeCtrlNode* top = control.mpoGetNode(TVI_ROOT);
    return top == nullptr ? std::string() : toText(*top) + "\n" + rowsBelow(*top, "  ");
}

/// A record as text, without the host's tag.
inline std::string toText(const TransCond& record)
{
    const auto quoted = [](const SpStr& text) { return "'" + text.str().toStdString() + "'"; };
    return std::to_string(record.lIndex) + ": kind " + std::to_string(record.lRowKind) + " type "
           + std::to_string(record.lCondType) + " " + quoted(record.oName) + " "
           + quoted(record.oExtra) + " " + quoted(record.oValue) + " arg "
           + std::to_string(record.lArgType) + " op " + std::to_string(record.lOperator);
}

inline std::string toText(const std::vector<TransCond>& records)
{
    std::string text;
    for (const TransCond& record : records)
        text += toText(record) + "\n";
    return text;
}

/// The label of the placeholder row.
inline const QString kPlaceholder = QStringLiteral("<Click here to add a condition>");

} // namespace condtree::test
