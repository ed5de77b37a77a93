#include <condtree/editing/CompletionRules.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace condtree {
namespace {

struct Row {
    const char* name;
    const char* typed;
    /// Null for none.
    const char* reported;
    const char* committed;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

const CompletionDictionary kDictionary{
    {QStringLiteral("ab"), {QStringLiteral("Abacus"), false}},
    {QStringLiteral("exact"), {QStringLiteral("Exact"), true}},
    {QStringLiteral("ny"), {QStringLiteral("New York"), true}},
    {QStringLiteral("é"), {QStringLiteral("É"), false}},
    {QStringLiteral("Upper"), {QStringLiteral("never found"), false}},
};

std::optional<CString> text(const char* expected)
{
    return expected == nullptr ? std::nullopt : std::optional(CString::fromUtf8(expected));
}

class Rules : public testing::TestWithParam<Row> {};

TEST_P(Rules, DecideByTheLowerCaseText)
{
    const CString typed = CString::fromUtf8(GetParam().typed);
    EXPECT_EQ(reportedText(kDictionary, typed), text(GetParam().reported));
    EXPECT_EQ(committedText(kDictionary, typed), text(GetParam().committed));
}

INSTANTIATE_TEST_SUITE_P(Completions, Rules,
                         testing::Values(Row{"a key", "ab", "Abacus", "Abacus"},
                                         Row{"a key in another case", "AB", "Abacus", "Abacus"},
                                         Row{"less than a key", "a", nullptr, nullptr},
                                         Row{"more than a key", "abc", nullptr, nullptr},
                                         Row{"behind all keys", "zz", nullptr, nullptr},
                                         Row{"nothing", "", nullptr, nullptr},
                                         Row{"matches and must", "Exact", "Exact", "Exact"},
                                         Row{"must match in case too", "exact", nullptr, "Exact"},
                                         Row{"can never match", "ny", nullptr, "New York"},
                                         Row{"beyond ASCII", "É", "É", "É"},
                                         Row{"a key that is not lower case", "Upper", nullptr,
                                             nullptr}),
                         [](const auto& row) {
                             std::string name(row.param.name);
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });

TEST(CompletionRules, WithoutADictionaryEveryTextIsItself)
{
    for (const CString& typed : {CString(), QStringLiteral("Any Text")}) {
        EXPECT_EQ(reportedText({}, typed), typed);
        EXPECT_EQ(committedText({}, typed), typed);
    }
}

} // namespace
} // namespace condtree
