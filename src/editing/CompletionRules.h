#pragma once

#include "Completion.h"

#include <optional>

namespace condtree {

/// What is reported of a text while it is being typed: without a dictionary the text itself, with
/// one the full text of its completion. None where nothing is reported.
[[nodiscard]] std::optional<CString> reportedText(const CompletionDictionary& dictionary,
                                                  const CString& typed);

/// What is committed of a text when the edit finishes. A completion that must match is found by its
/// key all the same. None where nothing is committed: the dictionary lacks the text.
[[nodiscard]] std::optional<CString> committedText(const CompletionDictionary& dictionary,
                                                   const CString& typed);

} // namespace condtree
