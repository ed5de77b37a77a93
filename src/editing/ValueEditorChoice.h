#pragma once

#include <condtree/model/TreeType.h>
#include <condtree/platform/WinTypes.h>

#include <variant>

namespace condtree {

/// The lists in which values are chosen.
enum class ValueList {
    ObjectTypes,
    /// All users, and all groups; they must be loaded, and nothing opens when they cannot be.
    Users,
    Groups,
    /// A list without entries, which opens all the same.
    NoUsers,
    NoGroups,
    YesNo,
    /// Fetched anew each time; a failure to do so is shown, then the list as far as it got.
    DocumentTypes,
    /// They must be loaded, and nothing opens when they cannot be.
    States
};

/// A list opens over the cell, nothing selected.
struct OpenValueList {
    ValueList list;
    /// By how much the cell's bottom is lowered for the list, in device-independent pixels.
    LONG lowered;
    bool operator==(const OpenValueList&) const = default;
};

struct OpenDatePicker {
    bool operator==(const OpenDatePicker&) const = default;
};

struct OpenInPlaceEditor {
    bool operator==(const OpenInPlaceEditor&) const = default;
};

/// What a click on a value opens; monostate opens nothing.
using ValueEditorChoice =
    std::variant<std::monostate, OpenValueList, OpenDatePicker, OpenInPlaceEditor>;

/// What a click on the value of a row opens, by its node code and its operator. hasManager says
/// whether there is a data-access manager.
[[nodiscard]] ValueEditorChoice chooseValueEditor(LONG nodeCode, LONG op, KiroVaultType vaultType,
                                                  bool hasManager);

} // namespace condtree
