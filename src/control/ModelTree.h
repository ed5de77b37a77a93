#pragma once

#include <condtree/control/ConditionModel.h>
#include <condtree/editing/EditedTree.h>

namespace condtree {

/// The model as the tree that the editors change.
class ModelTree final : public EditedTree {
public:
    /// model must outlive this.
    explicit ModelTree(ConditionModel& model);

    [[nodiscard]] VarTreeCtrlNode* node(HTREEITEM item) const override;
    [[nodiscard]] bool hasParentItem(HTREEITEM item) const override;
    [[nodiscard]] std::uint64_t revision() const override;
    HTREEITEM add(VarTreeCtrlNode& parent, std::unique_ptr<VarTreeCtrlNode> node,
                  bool first) override;
    void remove(HTREEITEM item) override;
    void removeChildren(VarTreeCtrlNode& node) override;
    void setTop(std::unique_ptr<VarTreeCtrlNode> node) override;
    void moveLast(VarTreeCtrlNode& level,
                  const std::function<bool(const VarTreeCtrlNode&)>& picked) override;
    void expand(HTREEITEM item) override;
    void setImage(HTREEITEM item, int image) override;
    void invalidate() override;

private:
    ConditionModel& m_model;
};

} // namespace condtree
