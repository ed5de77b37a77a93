#pragma once

#include <condtree/control/ConditionModel.h>
#include <condtree/model/TransCond.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TextRef.h>

#include <memory>
#include <optional>
#include <vector>

namespace condtree {

class ControlSettings;
struct ReferenceData;

/// Turns records into rows of the tree.
class ConditionLoader {
public:
    /// All must outlive the loader.
    ConditionLoader(const StringSource& strings, const ControlSettings& settings,
                    ReferenceData& reference, ConditionModel& model);

    /// Shows records: with node null in place of what the tree holds, else in addition to it, the
    /// closing placeholder going under node. Linear in the records. Nothing is added when the tree
    /// is changed while a message is shown.
    void load(const std::vector<TransCond>& records, VarTreeCtrlNode* node);

private:
    struct Texts;
    using Rows = std::vector<ConditionModel::NodePtr>;

    void ensureTop(bool isCleared);
    /// None when the tree was changed meanwhile.
    [[nodiscard]] std::optional<Rows> makeRows(const std::vector<TransCond>& records,
                                               bool closesGroups);
    [[nodiscard]] bool isSkipped(const TransCond& record) const;
    [[nodiscard]] ConditionModel::NodePtr makeCondition(const TransCond& record,
                                                        const Texts& texts);
    void setValue(VarTreeCtrlNode& row, const TransCond& record, const Texts& texts);
    void setChildRefState(VarTreeCtrlNode& row, LONG id);
    [[nodiscard]] bool isThere(HTREEITEM item, const VarTreeCtrlNode& node) const;
    void close(VarTreeCtrlNode& level, std::size_t knownChildren);

    const StringSource& m_strings;
    const ControlSettings& m_settings;
    ReferenceData& m_reference;
    ConditionModel& m_model;
};

} // namespace condtree
