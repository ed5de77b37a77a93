#pragma once

#include <condtree/editing/EditedTree.h>
#include <condtree/platform/TextRef.h>

#include <functional>

namespace condtree {

class ControlSettings;
struct ReferenceData;

/// The entry of a list that is selected when the list closes.
struct Chosen {
    /// A ComboCmd, or VariableBase + the operator that a variable starts with.
    LONG code = 0;
    /// As much of its text as is read.
    CString text;
    /// Its place in the list.
    int index = 0;
};

/// What becomes of the list's window.
enum class CloseUpEnd { HideCombo, LeaveCombo };

/// What applying a choice came to.
struct CloseUpResult {
    CloseUpEnd end = CloseUpEnd::HideCombo;
    /// Whether what the row shows or saves, its type, or its children changed, or the row was
    /// removed: by the choice, not by a host that was let in meanwhile. True also where the choice
    /// was given up half-way.
    bool isChanged = false;

    bool operator==(const CloseUpResult&) const = default;
};

/// What applying a choice needs. All of it must outlive the call, also where the host deletes the
/// control meanwhile.
struct CloseUpContext {
    EditedTree& tree;
    ReferenceData& reference;
    const ControlSettings& settings;
    const StringSource& strings;
    const std::function<SYSTEMTIME()>& localTime;
};

/// The operator of a row that is given a fixed kind, from Category to the historic state: the
/// current one where the kind suits it, else the one that the kind starts with.
[[nodiscard]] LONG keptOperator(LONG kind, LONG current);

/// Applies a choice to the clicked row, which may be gone; TVI_ROOT is the top node. A code that no
/// list knows changes nothing. Where a list cannot be loaded, what was done before stays done, and
/// the combo is to be left as it is. Fetching texts, loading lists and reading the clock let the
/// host in: when the row is gone afterwards, nothing more is done to it.
///
/// The rows are drawn anew unless there is no clicked row.
[[nodiscard]] CloseUpResult applyChoice(HTREEITEM clicked, const Chosen& chosen,
                                        const CloseUpContext& context);

} // namespace condtree
