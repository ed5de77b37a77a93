// Values, operators and variables that are chosen.
#include "CloseUpFixture.h"

#include <string>
#include <vector>

namespace condtree::test {
namespace {

class CloseUpValues : public CloseUp {};

// Values

TEST_F(CloseUpValues, AFixedValueIsTakenWithItsNumber)
{
    const RowBefore row{ObjectType, "Object Type", "v", "x", 101, 1};
    expect(row, 136, "File", "6 Object Type | File | x op=101 arg=1 object=0 img=5");
    expect(row, 137, "BOM", "6 Object Type | BOM | x op=101 arg=1 object=1 img=5");
    expect(row, 138, "Item", "6 Object Type | Item | x op=101 arg=1 object=2 img=5");
    expect({Category, "Category", "v", "", 101, 1, -1, -1, 2}, 4, "Drawing",
           "3 Category | Drawing op=101 arg=1 img=5");
    expect({DocTypeChoice, "Category", "v", "", 101, 1, -1, -1, 2}, 4, "Drawing",
           "4 Category | Drawing op=101 arg=1 object=2 img=4");
    expect({NodePlaceholder}, 4, "Drawing", "1000 " + kLabel + " | Drawing img=3");
}

TEST_F(CloseUpValues, YesAndNoAreValuesAndNothingElse)
{
    const RowBefore row{NodeVariable, "Approved", "", "x", 139, 4, 5, 6, 2};
    for (const LONG code : {140, 141})
        expect(row, code, "Oui",
               "1000 Approved | Oui | x op=139 arg=4 state=5 id=6 object=2 img=4");
    EXPECT_EQ(apply(only({NodePlaceholder}).mhItem, {140, QStringLiteral("Oui"), 0}),
              kHiddenChanged);
    EXPECT_EQ(rows(), "-1 " + kLabel + " | Oui img=0\n") << "no row yet: no placeholder behind";
}

// Operators

TEST_F(CloseUpValues, AnOperatorIsTakenWhateverItsNumber)
{
    for (const LONG code : {100, 108, 109, 125, 135, 139, 143, 160, 999})
        expect({NodeVariable, "Author", "v", "x", 106, 1}, code, "op",
               "1000 Author | v | x op=" + std::to_string(code) + " arg=1 img=3");
    expect({StringEqualTo, "Author", "v", "x", 106, 1}, 100, "op",
           "100 Author | v | x op=100 arg=1 img=4");
    expect({NodePlaceholder}, 106, "op", "1000 " + kLabel + " op=106 img=3");
}

TEST_F(CloseUpValues, AnOperatorOnDatesGivesAnEmptyRowTheTimeOfTheClock)
{
    const RowBefore row{NodeVariable, "Due", "", "", 100, 5};
    for (LONG op = 130; op <= 135; ++op)
        expect(row, op, "op", "1000 Due | 2024-03-05 op=" + std::to_string(op) + " arg=5 img=3");
    for (const LONG op : {100, 125, 129, 139, 143})
        expect(row, op, "op", "1000 Due op=" + std::to_string(op) + " arg=5 img=3",
               op == 100 ? kHiddenSame : kHiddenChanged);
    expect({NodeVariable, "Due", "v", "", 100, 5}, 130, "op", "1000 Due | v op=130 arg=5 img=3");
    settings.dateStyle = 0;
    expect(row, 130, "op", "1000 Due | Mar 05 2024 02:07 PM op=130 arg=5 img=3");
    now.wMonth = 13;
    expect(row, 130, "op", "1000 Due op=130 arg=5 img=3");
}

// Variables

TEST_F(CloseUpValues, AVariableKeepsAnOperatorThatSuitsItsType)
{
    const struct {
        const char* name;
        LONG type;
        std::vector<LONG> kept;
        std::vector<LONG> reset;
        LONG op;
    } cases[] = {
        {"Author", 1, {100, 108, 109, 119, 125, 129, 135}, {-1, 0, 99, 136, 139, 160}, 106},
        {"Weight", 2, {}, {-1, 100, 106, 121, 125, 130, 139}, 120},
        {"Cost", 3, {100, 108, 120, 125}, {-1, 99, 109, 119, 126, 130, 139}, 120},
        {"Approved", 4, {}, {-1, 100, 120, 130, 139}, 139},
        {"Due", 5, {100, 108, 130, 135}, {-1, 99, 109, 120, 129, 136, 139}, 130},
        {"Odd", 9, {}, {-1, 100, 120, 130, 139}, 106},
        {"unknown", 1, {101, 135}, {-1, 139}, 106},
    };
    for (const auto& [name, type, kept, reset, op] : cases) {
        const std::string row = std::string("1000 ") + name + " | v | x op=";
        const std::string end = " arg=" + std::to_string(type) + " state=5 id=6 img=3";
        for (const LONG current : kept)
            expect({FilePath, "p", "v", "x", current, type, 5, 6, 2}, 1106, name,
                   row + std::to_string(current) + end);
        for (const LONG current : reset)
            expect({FilePath, "p", "v", "x", current, type, 5, 6, 2}, 1106, name,
                   row + std::to_string(op) + end);
    }
    EXPECT_EQ(library->getVariables.calls, 1);
}

TEST_F(CloseUpValues, AVariableIsFoundByItsNameNotByItsNumber)
{
    for (const LONG code : {1000, 1106, 1120, 1999})
        expect({NodeVariable, "Author", "v", "", 106, 1}, code, "cost",
               "1000 cost | v op=106 arg=3 img=3");
}

TEST_F(CloseUpValues, AVariableOnThePlaceholderStartsWithItsDefaults)
{
    expect({NodePlaceholder}, 1106, "Author", "1000 Author op=106 arg=1 img=3");
    expect({NodePlaceholder}, 1120, "Weight", "1000 Weight op=120 arg=2 img=3");
    expect({NodePlaceholder}, 1120, "Cost", "1000 Cost op=120 arg=3 img=3");
    expect({NodePlaceholder}, 1139, "Approved", "1000 Approved op=139 arg=4 img=3");
    expect({NodePlaceholder}, 1130, "Due", "1000 Due | 2024-03-05 op=130 arg=5 img=3");
    expect({NodePlaceholder}, 1106, "Odd", "1000 Odd op=106 arg=9 img=3");
}

TEST_F(CloseUpValues, AYesNoVariableLosesTheValueOfAnotherType)
{
    for (const LONG type : {0, 1, 3, 5})
        expect({NodeVariable, "n", "v", "x", 139, type}, 1139, "Approved",
               "1000 Approved |  | x op=139 arg=4 img=3");
    expect({NodeVariable, "n", "Yes", "x", 139, 4}, 1139, "Approved",
           "1000 Approved | Yes | x op=139 arg=4 img=3");
    expect({NodeVariable, "n", "Yes", "x", 139, 4}, 1106, "Author",
           "1000 Author | Yes | x op=106 arg=1 img=3");
}

TEST_F(CloseUpValues, ADateVariableGetsTheTimeOfTheClockWhereItHasNoValue)
{
    expect({FilePath, "p", "", "", 106}, 1130, "Due", "1000 Due op=106 arg=5 img=3");
    expect({FilePath, "p", "", "", 120}, 1130, "Due", "1000 Due | 2024-03-05 op=130 arg=5 img=3");
    expect({FilePath, "p", "v", "", 120}, 1130, "Due", "1000 Due | v op=130 arg=5 img=3");
    expect({Revision, "r", "", "", 133}, 1106, "Author",
           "1000 Author | 2024-03-05 op=133 arg=1 img=3");
}

TEST_F(CloseUpValues, VariablesThatCannotBeLoadedAreTextsAndEachLookUpSaysSo)
{
    library->getVariables.results = {E_FAIL, E_FAIL, E_FAIL, E_FAIL, E_FAIL};
    expect({NodePlaceholder}, 1130, "Due", "1000 Due op=106 arg=1 img=3");
    EXPECT_EQ(reports.size(), 2U);
    expect({FilePath, "p", "", "", 120}, 1130, "Due", "1000 Due op=120 arg=1 img=3");
    EXPECT_EQ(reports.size(), 3U) << "the operator suits: nothing asks for the default one";
    expect({NodePlaceholder}, 11, "Due", "11 Due op=106 arg=1 img=3");
    EXPECT_EQ(reports.size(), 5U);
    manager.reset(nullptr);
    expect({NodePlaceholder}, 1130, "Due", "1000 Due op=106 arg=1 img=3");
    EXPECT_EQ(reports.size(), 5U);
}

TEST_F(CloseUpValues, ARowThatShowsTheNameOfItsRecordTakesTheDefaultsOfThatVariable)
{
    const struct {
        const char* name;
        LONG type;
        LONG op;
    } cases[] = {{"Author", 1, 106}, {"Weight", 2, 120}, {"Cost", 3, 120}, {"Approved", 4, 139},
                 {"Due", 5, 130},    {"Odd", 9, 106},    {"none", 1, 106}};
    for (const auto& [name, type, op] : cases)
        expect({FilePath, "p", "v", "x", 108, 3, 5, 6}, 11, name,
               std::string("11 ") + name + " | v | x op=" + std::to_string(op)
                   + " arg=" + std::to_string(type) + " state=5 id=6 img=3");
    expect({NodePlaceholder}, 11, "Due", "11 Due op=130 arg=5 img=3");
}

} // namespace
} // namespace condtree::test
