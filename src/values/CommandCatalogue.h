#pragma once

#include <condtree/model/ComboCmd.h>
#include <condtree/platform/TextRef.h>

#include <optional>
#include <span>

namespace condtree {

/// A command, a fixed value or a choice that the lists offer.
struct CommandEntry {
    ComboCmd command;
    /// None where the text is the name of what is offered: a type, a state, a variable, a person.
    std::optional<TextRef> text;
    /// Its picture's index in the row image list; none where the list shows no picture.
    std::optional<int> image;
};

/// The commands, fixed values and choices, in ascending order of their numbers.
[[nodiscard]] std::span<const CommandEntry> commandCatalogue();

/// The entry of a number; null when it is none of them.
[[nodiscard]] const CommandEntry* findCommand(LONG command);

/// The label that a node takes from its code: the placeholder's, the AND group's or the OR group's.
/// Null for every other code, which keeps the label it has.
[[nodiscard]] const TextRef* typeLabel(LONG nodeCode);

/// The picture of a row in the row image list, by its node code.
[[nodiscard]] int rowImageIndex(LONG nodeCode);

} // namespace condtree
