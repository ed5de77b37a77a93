#pragma once

#include <condtree/platform/WinTypes.h>

#include <map>

namespace condtree {

/// What an editor makes of a text that it knows.
struct Completion {
    /// What is reported and committed in the place of the typed text.
    CString fullText;
    /// While it is being typed, a text counts only when it is the full text, case included.
    bool mustMatch = false;

    bool operator==(const Completion&) const = default;
};

/// Completions by the lower-case text that stands for them.
using CompletionDictionary = std::map<CString, Completion>;

} // namespace condtree
