#pragma once

#include <condtree/platform/WinTypes.h>

// The numbers in the sample's records. They are the control's; this library does not link it, and a
// test compares them.
namespace condtree::sample {

/// The types of card variables and of values.
enum VariableType : LONG { Text = 1, Whole = 2, Decimal = 3, YesNo = 4, Date = 5 };

enum Row : LONG { OrGroup = 2, Top = 3, InOr = 4 };

enum Kind : LONG {
    FilePath = 1,
    CardVariable = 2,
    Revision = 3,
    Category = 4,
    ObjectType = 5,
    Property = 6,
    ChildState = 7,
    ByUser = 8,
    ByGroup = 9,
    ChildHistory = 10
};

enum Operator : LONG {
    Is = 100,
    IsNot = 101,
    TextAtLeast = 105,
    Contains = 106,
    ContainsNot = 107,
    Pattern = 108,
    NumberIs = 120,
    NumberIsNot = 121,
    NumberBelow = 122,
    NumberAbove = 123,
    NumberAtMost = 124,
    NumberAtLeast = 125,
    DateIs = 130,
    DateBefore = 132,
    DateAfter = 133,
    DateAtMost = 134,
    YesNoIs = 139,
    FromText = 160 ///< The value begins with its operator.
};

/// The entry of a user's settings that says whether full names are shown.
inline constexpr LONG kShowsFullNames = 24;

} // namespace condtree::sample
