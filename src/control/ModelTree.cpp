#include "ModelTree.h"

#include <utility>

namespace condtree {

ModelTree::ModelTree(ConditionModel& model)
    : m_model(model)
{
}

VarTreeCtrlNode* ModelTree::node(HTREEITEM item) const
{
    return m_model.node(item);
}

bool ModelTree::hasParentItem(HTREEITEM item) const
{
    return m_model.hasParentItem(item);
}

std::uint64_t ModelTree::revision() const
{
    return m_model.revision();
}

HTREEITEM ModelTree::add(VarTreeCtrlNode& parent, std::unique_ptr<VarTreeCtrlNode> node, bool first)
{
    return m_model.add(parent, std::move(node), first);
}

void ModelTree::remove(HTREEITEM item)
{
    m_model.remove(item);
}

void ModelTree::removeChildren(VarTreeCtrlNode& node)
{
    m_model.clearChildren(node);
}

void ModelTree::setTop(std::unique_ptr<VarTreeCtrlNode> node)
{
    m_model.setTop(std::move(node));
}

void ModelTree::moveLast(VarTreeCtrlNode& level,
                         const std::function<bool(const VarTreeCtrlNode&)>& picked)
{
    m_model.moveLast(level, picked);
}

void ModelTree::expand(HTREEITEM item)
{
    m_model.expand(item);
}

void ModelTree::setImage(HTREEITEM item, int image)
{
    m_model.setImage(item, image);
}

void ModelTree::invalidate()
{
    m_model.tellTextsChanged();
}

} // namespace condtree
