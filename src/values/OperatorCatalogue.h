#pragma once

#include <condtree/model/ComboCmd.h>
#include <condtree/platform/TextRef.h>

#include <span>

namespace condtree {

/// A comparison operator. Numbers are persisted; append only.
struct OperatorEntry {
    ComboCmd command;
    /// The English name.
    const char16_t* name;
    /// Its picture's index in the operator image list.
    int image;
    /// What stands before the value in the text form, and behind it.
    const char16_t* prefix;
    const char16_t* suffix;
};

/// Every operator, in ascending order of its number.
[[nodiscard]] std::span<const OperatorEntry> operatorCatalogue();

/// The entry of a number; null when it names no operator.
[[nodiscard]] const OperatorEntry* findOperator(LONG command);

/// The picture that a row draws for an operator's number, also for numbers that name no operator;
/// the index may lie outside the image list.
[[nodiscard]] int operatorImageIndex(LONG command);

/// The name of an operator in the user's language; defaultText where the string library has none.
[[nodiscard]] CString operatorName(LONG command, const char16_t* defaultText,
                                   const StringSource& strings);

} // namespace condtree
