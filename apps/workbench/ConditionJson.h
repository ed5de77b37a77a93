#pragma once

#include "Outcome.h"

#include <condtree/storedprocs/SpTransitions.h>

#include <QByteArray>

#include <vector>

// The file form of a condition:
//   {"format":"condtree-condition","version":1,"records":[
//   {"rowKind":3,"condType":2,"name":"","extra":"","value":"","argType":1,"operator":100}
//   ]}
// in UTF-8, one record a line, the keys in this order, a newline at the end.
namespace condtree::workbench {

using ConditionRecords = std::vector<SpConditionRecord>;

/// The largest file that is read, in bytes.
inline constexpr qint64 kLargestJson = 64LL * 1024 * 1024;

/// Writes a condition; equal records give equal bytes. Fails on text that UTF-8 or other readers
/// cannot carry (unpaired surrogates, U+0000), naming the row, counted from 1, and the field, and
/// on what would be too large to be read again.
[[nodiscard]] Outcome<QByteArray> conditionToJson(const ConditionRecords& records);

/// Reads a condition, strictly: every field must be there once, with its type, and no other; keys
/// may come in any order and a UTF-8 byte order mark is skipped. The failure names the place: the
/// byte, counted from 0, and the line, counted from 1, or the field ("records[3].operator", counted
/// from 0).
[[nodiscard]] Outcome<ConditionRecords> conditionFromJson(const QByteArray& json);

} // namespace condtree::workbench
