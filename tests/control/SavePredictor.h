#pragma once

#include <condtree/model/TransCond.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace condtree::test {

/// What a predicted condition refers to.
struct PredictedWorld {
    bool isReducedVault = false;
    std::vector<std::pair<QString, LONG>> variables; ///< name, type; in the library's order
    std::map<LONG, QString> states;                  ///< id -> display name
    std::map<LONG, QString> users, groups;           ///< id -> name
};

/// A record that a first save gives, with the rules that made it differ from the one loaded.
struct PredictedRecord {
    TransCond record;
    TransCond loaded;
    std::vector<std::string> rules;
};

struct Prediction {
    std::vector<PredictedRecord> saved;
    /// One rule for each record that was loaded and is not saved.
    std::vector<std::string> dropped;
};

/// What loading records and saving them gives, without altering arguments: an account of the rules
/// that shares nothing with the control's own code. Texts are the English ones.
[[nodiscard]] Prediction predictSave(const std::vector<TransCond>& records,
                                     const PredictedWorld& world);

/// The value that a load leaves of a value: trimmed and without one operator in front, unless the
/// operator is 100 or 108.
[[nodiscard]] QString predictStripped(const QString& value, LONG argType, LONG op);

} // namespace condtree::test
