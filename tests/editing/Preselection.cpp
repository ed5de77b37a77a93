#include <condtree/editing/Preselection.h>

#include "ChoiceTables.h"
#include "KindListCases.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace condtree {
namespace {

using test::allKindLists;
using test::kAsked;
using test::kEnglish;

std::string toText(const Preselection& preselection)
{
    if (const auto* code = std::get_if<PreselectCode>(&preselection))
        return "code " + std::to_string(code->code);
    if (const auto* text = std::get_if<PreselectText>(&preselection))
        return '"' + text->text.toStdString() + "\" from " + std::to_string(text->start);
    return "nothing";
}

std::string kindOf(LONG nodeCode, const CString& name, const KindListFor& list)
{
    return toText(kindPreselection(nodeCode, name, list, kAsked));
}

struct Start {
    LONG vault;
    LONG tree;
    LONG transition;
    bool setting;
    int start;
    int startOfPlaceholder;
};

// Where the search for a variable's name starts.
constexpr Start kStarts[] = {
    // Child reference states are offered.
    {0, 0, 0, true, 9, 8},
    {2, 2, 2, true, 9, 8},
    // They are not: by the setting, by the type of the transition.
    {0, 0, 0, false, 8, 7},
    {0, 0, 1, true, 8, 7},
    // Users and groups are offered, whatever the transition and the setting.
    {0, 1, 0, true, 10, 9},
    {0, 1, 0, false, 10, 9},
    {2, 1, 1, false, 10, 9},
    // The reduced vault offers none of them.
    {1, 0, 0, true, 8, 7},
    {1, 1, 0, true, 8, 7},
    {1, 0, 1, false, 8, 7},
};

} // namespace

TEST(KindPreselection, OfKindsAndGroupsIsByTheirCode)
{
    for (const KindListFor& list : allKindLists()) {
        for (const LONG code : {0, 1, 3, 5, 6, 7, 8, 9, 10, 11, 12})
            EXPECT_EQ(kindOf(code, QStringLiteral("Weight"), list), "code " + std::to_string(code))
                << list;
    }
}

TEST(KindPreselection, OfAVariableIsByItsNameFromBehindTheFixedEntries)
{
    for (const Start& row : kStarts) {
        KindListFor list{true,           false,      KiroVaultType(row.vault), TreeType(row.tree),
                         row.transition, row.setting};
        for (const bool isTopLevel : {false, true}) {
            list.isTopLevel = isTopLevel;
            for (const LONG code : {100, 106, 135, 139, 999, 1000, 1106, 3000}) {
                list.isPlaceholder = false;
                EXPECT_EQ(kindOf(code, QStringLiteral("Weight"), list),
                          "\"Weight\" from " + std::to_string(row.start))
                    << code << ": " << list;
                list.isPlaceholder = true;
                EXPECT_EQ(kindOf(code, QStringLiteral("Weight"), list),
                          "\"Weight\" from " + std::to_string(row.startOfPlaceholder))
                    << code << ": " << list;
            }
        }
    }
}

TEST(KindPreselection, OfAVariableWithoutNameIsAnyVariable)
{
    const KindListFor list{true, false, KiroVaultType(0), TreeType(0), 0, false};
    EXPECT_EQ(kindOf(1000, {}, list), "\"TS Search 44 (<Any Variable>)\" from 8");
    EXPECT_EQ(kindPreselection(1000, {}, list, kEnglish),
              Preselection(PreselectText{QStringLiteral("<Any Variable>"), 8}));
}

TEST(KindPreselection, OfEveryOtherCodeIsNothing)
{
    const std::set<LONG> byCode{0, 1, 3, 5, 6, 7, 8, 9, 10, 11, 12};
    for (const KindListFor& list : allKindLists()) {
        for (LONG code = -5; code < 100; ++code) {
            if (!byCode.contains(code)) {
                EXPECT_EQ(kindOf(code, QStringLiteral("Weight"), list), "nothing") << code;
            }
        }
        EXPECT_EQ(kindOf(std::numeric_limits<LONG>::min(), {}, list), "nothing");
    }
}

TEST(OperatorPreselection, IsTheNameOfTheOperatorNumberedByTheNodeCode)
{
    for (const LONG code : {-1, 0, 3, 12, 100, 106, 139, 1000})
        EXPECT_EQ(operatorPreselection(code, kAsked),
                  QStringLiteral("OpName Search %1 ()").arg(code));
}

TEST(OperatorPreselection, IsEmptyWhereTheStringLibraryHasNoSuchOperator)
{
    EXPECT_EQ(operatorPreselection(1000, kEnglish), QString());
    EXPECT_EQ(operatorPreselection(106, kEnglish), QString());
}

} // namespace condtree
