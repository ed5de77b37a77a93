#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// The one numbering of everything that the control's lists offer. Persisted: operators travel to
/// and from the host in TransCond::lOperator; append only.
enum ComboCmd : LONG {
    // Kinds of rows and commands
    And = 0,
    Or = 1,
    Remove = 2,
    Category = 3,
    DocTypeChoice = 4,
    FilePath = 5,
    ObjectType = 6,
    Revision = 7,
    ChildRefState = 8,
    User = 9,
    Group = 10,

    // Operators on texts
    StringEqualTo = 100,
    StringNotEqualTo = 101,
    StringLessThan = 102,
    StringBiggerThan = 103,
    StringLessOrEqual = 104,
    StringBiggerOrEqual = 105,
    StringContains = 106,
    StringNotContains = 107,
    TextCompare = 108,

    // Operators on numbers
    NumberEqualTo = 120,
    NumberNotEqualTo = 121,
    NumberLessThan = 122,
    NumberBiggerThan = 123,
    NumberLessOrEqual = 124,
    NumberBiggerOrEqual = 125,

    // Operators on dates
    DateEqualTo = 130,
    DateNotEqualTo = 131,
    DateLessThan = 132,
    DateBiggerThan = 133,
    DateLessOrEqual = 134,
    DateBiggerOrEqual = 135,

    // Fixed values, and the operator on yes/no values between them
    ObjectTypeFile = 136,
    ObjectTypeBom = 137,
    ObjectTypeItem = 138,
    BinaryEqualTo = 139,
    BinaryYes = 140,
    BinaryNo = 141,
    StateChoice = 142,

    /// In a record: the operator is the one that the value's text begins with.
    OperatorFromText = 160,
    /// A card variable is offered as VariableBase + its default operator.
    VariableBase = 1000,
    UserChoice = 2001,
    GroupChoice = 3000
};

/// The type of a row's value. Persisted; append only. Any other number means no type.
enum ArgType : LONG { ArgText = 1, ArgNumberA = 2, ArgNumberB = 3, ArgBinary = 4, ArgDate = 5 };

/// The type of a card variable, in the numbering of ArgType. Persisted; append only.
enum VariableType : LONG {
    VarText = 1,
    VarNumberA = 2,
    VarNumberB = 3,
    VarBinary = 4,
    VarDate = 5
};

} // namespace condtree
