#pragma once

#include "SampleNumbers.h"

#include <condtree/platform/WinTypes.h>

#include <span>

// The content of the sample database. Ids are positions in the tables, from 1, unless a row has its
// own; a small company that makes pumps.
namespace condtree::sample {

struct Variable {
    const char16_t* name;
    VariableType type;
};

struct State {
    LONG id;
    const char16_t* name;
    const char16_t* secondName;
    DWORD flags; ///< With bit 0 or 1 set the second name is the one to show.
};

struct Workflow {
    const char16_t* name;
    std::span<const State> states;
};

/// Groups by their ids, as the bits of a user's membership.
enum GroupBit : unsigned {
    Administrators = 1U << 1U,
    Design = 1U << 2U,
    Manufacturing = 1U << 3U,
    Quality = 1U << 4U,
    Purchasing = 1U << 5U,
    Projects = 1U << 6U,
    DocumentControl = 1U << 7U,
    Partners = 1U << 8U
};

struct User {
    const char16_t* login;
    const char16_t* fullName;
    unsigned groups;
    const char16_t* showsFullNames; ///< Entry 24 of the user's settings; null when there is none.
};

struct DocumentType {
    const char16_t* name;
    const char16_t* secondName;
};

struct Setting {
    LONG userId;
    LONG entry;
    const char16_t* value;
};

struct Record {
    LONG rowKind;
    LONG condType;
    const char16_t* name;
    const char16_t* extra;
    const char16_t* value;
    LONG argType;
    LONG op;
};

struct Transition {
    LONG workflowId;
    const char16_t* name;
    LONG fromState;
    LONG toState;
    const char16_t* changedBy;
    const char16_t* changedAt; ///< ISO 8601, UTC.
    std::span<const Record> records;
};

[[nodiscard]] std::span<const Variable> variables();
[[nodiscard]] std::span<const Workflow> workflows();
[[nodiscard]] std::span<const User> users();
[[nodiscard]] std::span<const char16_t* const> groups();
[[nodiscard]] std::span<const DocumentType> documentTypes();
[[nodiscard]] std::span<const Setting> settings();
[[nodiscard]] std::span<const Transition> transitions();

} // namespace condtree::sample
