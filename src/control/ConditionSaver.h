#pragma once

#include <condtree/model/TransCond.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TextRef.h>

#include <vector>

namespace condtree {

class CardVariables;
class ConditionModel;
class ControlSettings;
struct ValueTexts;

/// Turns rows of the tree into records.
class ConditionSaver {
public:
    /// All must outlive the saver.
    ConditionSaver(const StringSource& strings, const ControlSettings& settings,
                   CardVariables& variables, ConditionModel& model);

    /// Appends the rows below node (null is the top) to records. With alterArguments each value is
    /// first brought into its text form, in the node. Validates nothing. Linear in the rows.
    void save(std::vector<TransCond>& records, VarTreeCtrlNode* node, bool alterArguments);

private:
    struct Walk;
    void saveLevel(Walk& walk, VarTreeCtrlNode& level);
    void saveGroup(Walk& walk, VarTreeCtrlNode& group);
    bool saveCondition(Walk& walk, VarTreeCtrlNode& row);
    [[nodiscard]] bool loadVariables(const VarTreeCtrlNode& row);
    [[nodiscard]] bool isSkipped(const VarTreeCtrlNode& row) const;
    [[nodiscard]] TransCond makeRecord(VarTreeCtrlNode& row, const ValueTexts& texts);
    void setValue(TransCond& record, VarTreeCtrlNode& row, const ValueTexts& texts);
    [[nodiscard]] LONG argTypeOf(const VarTreeCtrlNode& row) const;

    const StringSource& m_strings;
    const ControlSettings& m_settings;
    CardVariables& m_variables;
    ConditionModel& m_model;
};

} // namespace condtree
