#include <condtree/values/OperatorCatalogue.h>

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <vector>

namespace condtree {

namespace {

struct OperatorRow {
    LONG command;
    const char* name;
    int image;
    const char* prefix;
    const char* suffix;
};

constexpr OperatorRow kRows[] = {
    {100, "String Equal To", 0, "", ""},
    {101, "String Not Equal To", 1, "!=", ""},
    {102, "String Less Than", 2, "<", ""},
    {103, "String Bigger Than", 3, ">", ""},
    {104, "String Less Than or Equal", 4, "<=", ""},
    {105, "String Bigger Than or Equal", 5, ">=", ""},
    {106, "String Contains", 6, "%", "%"},
    {107, "String Does Not Contain", 7, "!=%", "%"},
    {108, "Text Compare", 8, "", ""},
    {120, "Number Equal To", 9, "", ""},
    {121, "Number Not Equal To", 10, "!=", ""},
    {122, "Number Less Than", 11, "<", ""},
    {123, "Number Bigger Than", 12, ">", ""},
    {124, "Number Less Than or Equal", 13, "<=", ""},
    {125, "Number Bigger Than or Equal", 14, ">=", ""},
    {130, "Date Equal To", 18, "", ""},
    {131, "Date Not Equal To", 19, "!=", ""},
    {132, "Date Less Than", 20, "<", ""},
    {133, "Date Bigger Than", 21, ">", ""},
    {134, "Date Less Than or Equal", 22, "<=", ""},
    {135, "Date Bigger Than or Equal", 23, ">=", ""},
    {139, "Binary Equal To", 27, "", ""},
};

std::string text(const char16_t* units)
{
    return QString::fromUtf16(units).toStdString();
}

void expectRow(const OperatorEntry& entry, const OperatorRow& row)
{
    SCOPED_TRACE(row.command);
    EXPECT_EQ(entry.command, row.command);
    EXPECT_EQ(text(entry.name), row.name);
    EXPECT_EQ(entry.image, row.image);
    EXPECT_EQ(text(entry.prefix), row.prefix);
    EXPECT_EQ(text(entry.suffix), row.suffix);
}

} // namespace

TEST(OperatorCatalogue, HasEveryOperatorInOrder)
{
    const auto entries = operatorCatalogue();
    ASSERT_EQ(entries.size(), std::size(kRows));
    for (std::size_t i = 0; i < entries.size(); ++i)
        expectRow(entries[i], kRows[i]);
}

TEST(OperatorCatalogue, FindsExactlyItsOperators)
{
    std::map<LONG, OperatorRow> expected;
    for (const OperatorRow& row : kRows)
        expected.emplace(row.command, row);
    for (LONG command = -10; command <= 3100; ++command) {
        const OperatorEntry* entry = findOperator(command);
        ASSERT_EQ(entry != nullptr, expected.contains(command)) << command;
        if (entry != nullptr)
            expectRow(*entry, expected.at(command));
    }
}

TEST(OperatorImage, IsTheCataloguesForEveryOperator)
{
    for (const OperatorRow& row : kRows)
        EXPECT_EQ(operatorImageIndex(row.command), row.image) << row.command;
}

TEST(OperatorImage, FollowsTheFormulaForEveryNumber)
{
    for (int command = 90; command <= 160; ++command) {
        int expected = command - 112;
        if (command < 120)
            expected = command - 100;
        else if (command < 130)
            expected = command - 111;
        EXPECT_EQ(operatorImageIndex(command), expected) << command;
    }
    EXPECT_EQ(operatorImageIndex(119), 19);
    EXPECT_EQ(operatorImageIndex(129), 18);
    EXPECT_EQ(operatorImageIndex(139), 27);
    EXPECT_EQ(operatorImageIndex(160), 48);
    EXPECT_EQ(operatorImageIndex(-1), -101);
}

TEST(OperatorImage, OfAnExtremeNumberLiesOutsideAnyList)
{
    constexpr int kLargestList = 42;
    for (const LONG command :
         {std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()}) {
        const int index = operatorImageIndex(command);
        EXPECT_TRUE(index < 0 || index >= kLargestList) << command;
    }
}

TEST(OperatorName, IsFetchedByTheOperatorsOwnNumber)
{
    std::vector<std::string> asked;
    const StringSource strings = [&](LONG id, const char16_t* key, const char16_t* section,
                                     const char16_t* defaultText) {
        asked = {std::to_string(id), text(key), text(section), text(defaultText)};
        return CString(u"Zeichenfolge gleich"_qs);
    };
    EXPECT_EQ(operatorName(100, u"String Equal To", strings).toStdString(), "Zeichenfolge gleich");
    EXPECT_EQ(asked, (std::vector<std::string>{"100", "OpName", "Search", "String Equal To"}));
    (void)operatorName(115, u"?", strings);
    EXPECT_EQ(asked, (std::vector<std::string>{"115", "OpName", "Search", "?"}));
}

} // namespace condtree
