#include <condtree/editing/ValueEditorChoice.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace condtree {
namespace {

std::string nameOf(ValueList list)
{
    switch (list) {
    case ValueList::ObjectTypes:
        return "object types";
    case ValueList::Users:
        return "users";
    case ValueList::Groups:
        return "groups";
    case ValueList::NoUsers:
        return "no users";
    case ValueList::NoGroups:
        return "no groups";
    case ValueList::YesNo:
        return "yes and no";
    case ValueList::DocumentTypes:
        return "document types";
    case ValueList::States:
        return "states";
    }
    return "?";
}

struct Teller {
    std::string operator()(std::monostate) const { return "nothing"; }
    std::string operator()(const OpenValueList& open) const
    {
        return nameOf(open.list) + " +" + std::to_string(open.lowered);
    }
    std::string operator()(OpenDatePicker) const { return "date picker"; }
    std::string operator()(OpenInPlaceEditor) const { return "in-place editor"; }
};

struct Row {
    LONG code;
    LONG op;
    LONG vault;
    bool hasManager;
};

std::string choice(const Row& row)
{
    return std::visit(
        Teller(), chooseValueEditor(row.code, row.op, KiroVaultType(row.vault), row.hasManager));
}

/// A rule: what it is about, and what it opens.
struct Rule {
    bool (*isFor)(const Row&);
    std::string (*opens)(const Row&);
};

// In the order in which they are asked.
const Rule kRules[] = {
    {[](const Row& row) { return row.code == 6; },
     [](const Row&) -> std::string { return "object types +100"; }},
    {[](const Row& row) { return row.code == 9; },
     [](const Row& row) -> std::string { return row.vault == 0 ? "users +100" : "no users +100"; }},
    {[](const Row& row) { return row.code == 10; },
     [](const Row& row) -> std::string {
         return row.vault == 0 ? "groups +100" : "no groups +100";
     }},
    {[](const Row& row) { return row.op == 139; },
     [](const Row&) -> std::string { return "yes and no +100"; }},
    {[](const Row& row) { return row.code == 3; },
     [](const Row& row) -> std::string {
         return row.hasManager ? "document types +100" : "nothing";
     }},
    {[](const Row& row) { return row.code == 8 || row.code == 12; },
     [](const Row& row) -> std::string {
         if (!row.hasManager)
             return "nothing";
         return row.op == 108 ? "in-place editor" : "states +450";
     }},
    {[](const Row& row) { return row.op >= 130 && row.op <= 135; },
     [](const Row&) -> std::string { return "date picker"; }},
    {[](const Row&) { return true; }, [](const Row&) -> std::string { return "in-place editor"; }},
};

std::string expected(const Row& row)
{
    for (const Rule& rule : kRules) {
        if (rule.isFor(row))
            return rule.opens(row);
    }
    return "?";
}

} // namespace

TEST(ValueEditorChoice, IsThatOfTheFirstRuleThatIsForTheRow)
{
    std::vector<LONG> codes;
    for (LONG code = -2; code <= 14; ++code)
        codes.push_back(code);
    for (const LONG code : {99, 100, 108, 130, 135, 139, 142, 1000, 1130, 1139, 2001, 3000})
        codes.push_back(code);
    for (const LONG code : codes) {
        for (LONG op = -2; op <= 165; ++op) {
            for (const LONG vault : {-1, 0, 1, 2}) {
                for (const bool hasManager : {false, true}) {
                    const Row row{code, op, vault, hasManager};
                    EXPECT_EQ(choice(row), expected(row))
                        << code << ", " << op << ", " << vault << ", " << hasManager;
                }
            }
        }
    }
}

TEST(ValueEditorChoice, OfObjectTypesUsersAndGroupsIgnoresTheOperator)
{
    for (const LONG op : {-1, 100, 108, 130, 139}) {
        EXPECT_EQ(choice({6, op, 0, false}), "object types +100") << op;
        EXPECT_EQ(choice({9, op, 0, true}), "users +100") << op;
        EXPECT_EQ(choice({10, op, 0, true}), "groups +100") << op;
    }
}

TEST(ValueEditorChoice, OfUsersAndGroupsIsAnEmptyListInEveryVaultButThatOfType0)
{
    for (const LONG vault : {-1, 1, 2}) {
        EXPECT_EQ(choice({9, 100, vault, true}), "no users +100") << vault;
        EXPECT_EQ(choice({10, 100, vault, true}), "no groups +100") << vault;
    }
}

TEST(ValueEditorChoice, OfAYesNoRowIsYesAndNoWhateverElseItsKind)
{
    for (const LONG code : {-1, 0, 1, 3, 5, 7, 8, 11, 12, 139, 1000})
        EXPECT_EQ(choice({code, 139, 1, false}), "yes and no +100") << code;
}

TEST(ValueEditorChoice, OfACategoryNeedsAManager)
{
    EXPECT_EQ(choice({3, 100, 0, true}), "document types +100");
    EXPECT_EQ(choice({3, 130, 0, true}), "document types +100");
    EXPECT_EQ(choice({3, 100, 0, false}), "nothing");
}

TEST(ValueEditorChoice, OfAChildReferenceStateNeedsAManagerAndIsATextForTextCompare)
{
    for (const LONG code : {8, 12}) {
        EXPECT_EQ(choice({code, 100, 0, true}), "states +450");
        EXPECT_EQ(choice({code, 130, 0, true}), "states +450");
        EXPECT_EQ(choice({code, 108, 0, true}), "in-place editor");
        EXPECT_EQ(choice({code, 100, 0, false}), "nothing");
        EXPECT_EQ(choice({code, 108, 0, false}), "nothing");
    }
}

TEST(ValueEditorChoice, OfADateComparisonIsTheDatePicker)
{
    for (LONG op = 130; op <= 135; ++op)
        EXPECT_EQ(choice({1000, op, 0, false}), "date picker") << op;
    EXPECT_EQ(choice({1000, 129, 0, false}), "in-place editor");
    EXPECT_EQ(choice({1000, 136, 0, false}), "in-place editor");
}

} // namespace condtree
