#include "TreeText.h"

#include "Messages.h"

namespace condtree::workbench {

namespace {

QString rowText(const VarTreeCtrlNode& node, const StringSource& strings)
{
    const bool isUntouched = node.mlCode == NodePlaceholder && node.mlOperator == -1;
    if (isUntouched || node.mlCode == NodeAnd || node.mlCode == NodeOr)
        return node.mName;
    const QString op = strings(node.mlOperator, u"OpName", u"Search", u"?");
    return QStringList{node.mName, op, node.mValue, node.mExtra}.join(QStringLiteral(" | "));
}

void appendRows(QString& text, const VarTreeCtrlNode& parent, int level,
                const StringSource& strings)
{
    for (const VarTreeCtrlNode* node : parent.mChildren) {
        text += QString(2 * level, QLatin1Char(' ')) + oneLine(rowText(*node, strings))
                + QLatin1Char('\n');
        appendRows(text, *node, level + 1, strings);
    }
}

} // namespace

QString treeText(const VarTreeCtrlNode& top, const StringSource& strings)
{
    QString text;
    appendRows(text, top, 0, strings);
    return text;
}

} // namespace condtree::workbench
