#include <condtree/presentation/RowPicture.h>

#include <condtree/model/ComboCmd.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include "presentation/PictureText.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

using namespace condtree;
using condtree::test::toText;

namespace {

/// A row of 601 pixels that does not begin at 0, with its text 40 pixels in.
const RowLayout kLayout({7, 20, 608, 43}, 47, ColumnShares{}, 16);

/// A string library that knows two operators.
CString knownTexts(LONG id, const char16_t* key, const char16_t*, const char16_t* defaultText)
{
    if (CString::fromUtf16(key) == QStringLiteral("OpName") && id == StringContains)
        return QStringLiteral("String Contains");
    if (CString::fromUtf16(key) == QStringLiteral("OpName") && id == NumberBiggerOrEqual)
        return QStringLiteral("Number Bigger Than or Equal");
    return CString::fromUtf16(defaultText);
}

RowContent condition(LONG code, LONG op, std::optional<LONG> parentCode = std::nullopt)
{
    return {code,      QStringLiteral("Name"), QStringLiteral("Value"), QStringLiteral("Extra"), op,
            parentCode};
}

template <class Primitive>
std::vector<Primitive> all(const RowPicture& picture)
{
    std::vector<Primitive> found;
    for (const RowPrimitive& primitive : picture) {
        if (const auto* match = std::get_if<Primitive>(&primitive))
            found.push_back(*match);
    }
    return found;
}

struct OperatorRow {
    LONG op;
    int image;
    const char* name;
};

/// Every operator, with its picture among those of the four strips, counted through.
const std::vector<OperatorRow> kOperators{
    {100, 0, "String Equal To"},         {101, 1, "String Not Equal To"},
    {102, 2, "String Less Than"},        {103, 3, "String Bigger Than"},
    {104, 4, "String Less or Equal"},    {105, 5, "String Bigger or Equal"},
    {106, 6, "String Contains"},         {107, 7, "String Does Not Contain"},
    {108, 8, "String Pattern"},          {120, 9, "Number Equal To"},
    {121, 10, "Number Not Equal To"},    {122, 11, "Number Less Than"},
    {123, 12, "Number Bigger Than"},     {124, 13, "Number Less or Equal"},
    {125, 14, "Number Bigger or Equal"}, {130, 18, "Date Equal To"},
    {131, 19, "Date Not Equal To"},      {132, 20, "Date Less Than"},
    {133, 21, "Date Bigger Than"},       {134, 22, "Date Less or Equal"},
    {135, 23, "Date Bigger or Equal"},   {139, 27, "Binary Equal To"},
};

TEST(RowPicture, EveryOperatorHasItsPictureBehindTheFirstSeparatorAndItsNameBehindThat)
{
    const StringSource strings = [](LONG id, const char16_t* key, const char16_t*,
                                    const char16_t* defaultText) {
        for (const OperatorRow& row : kOperators) {
            if (CString::fromUtf16(key) == QStringLiteral("OpName") && row.op == id)
                return QString::fromUtf8(row.name);
        }
        return CString::fromUtf16(defaultText);
    };
    EXPECT_EQ(kOperators.size(), 22U);
    for (const LONG code : {1000, 3}) { // a card variable and a fixed kind
        for (const OperatorRow& row : kOperators) {
            const std::string expected = R"(
fill (47,20)-(608,43) FFFFFF
text (50,20)-(157,43) 8024 'Name'
frame (47,20)-(608,43) DCA0A0
line (157,21)(157,43) DCA0A0
image )" + std::to_string(row.image) + R"( (160,20)
text (179,20)-(307,43) 8024 ')" + row.name
                                         + R"('
line (307,21)(307,43) DCA0A0
text (310,20)-(457,43) 8024 'Value'
line (457,21)(457,43) DCA0A0
text (460,20)-(608,43) 8024 'Extra')";
            EXPECT_EQ(toText(describeRow(condition(code, row.op), kLayout, strings)), expected);
        }
    }
}

TEST(RowPicture, AConditionOfTheTopLevelIsFourColumnsInAFrame)
{
    EXPECT_EQ(toText(describeRow(condition(1000, 106), kLayout, knownTexts)), R"(
fill (47,20)-(608,43) FFFFFF
text (50,20)-(157,43) 8024 'Name'
frame (47,20)-(608,43) DCA0A0
line (157,21)(157,43) DCA0A0
image 6 (160,20)
text (179,20)-(307,43) 8024 'String Contains'
line (307,21)(307,43) DCA0A0
text (310,20)-(457,43) 8024 'Value'
line (457,21)(457,43) DCA0A0
text (460,20)-(608,43) 8024 'Extra')");
}

TEST(RowPicture, AConditionBelowAConditionLeavesTheBottomOpen)
{
    EXPECT_EQ(toText(describeRow(condition(1000, 125, 1000), kLayout, knownTexts)), R"(
fill (47,20)-(608,43) FFFFFF
text (50,20)-(157,43) 8024 'Name'
polyline (47,43)(47,20)(607,20)(607,43) DCA0A0
line (157,21)(157,43) DCA0A0
image 14 (160,20)
text (179,20)-(307,43) 8024 'Number Bigger Than or Equal'
line (307,21)(307,43) DCA0A0
text (310,20)-(457,43) 8024 'Value'
line (457,21)(457,43) DCA0A0
text (460,20)-(608,43) 8024 'Extra')");
}

TEST(RowPicture, AGroupIsOneCaptionAcrossTheRow)
{
    EXPECT_EQ(toText(describeRow(condition(1, 106), kLayout, knownTexts)), R"(
fill (47,20)-(608,43) FFFFFF
text (50,20)-(608,43) 8024 'Name')");
}

TEST(RowPicture, EveryCodeBelowThreeIsACaption)
{
    for (const LONG code : {-1000, -1, 0, 1, 2})
        EXPECT_EQ(describeRow(condition(code, 100), kLayout, knownTexts).size(), 2U) << code;
    for (const LONG code : {3, 8, 11, 12, 100, 1000})
        EXPECT_EQ(describeRow(condition(code, 100), kLayout, knownTexts).size(), 10U) << code;
}

TEST(RowPicture, AGroupWithoutCaptionShowsNoOtherText)
{
    RowContent group = condition(0, -1);
    group.name.clear();
    EXPECT_EQ(all<TextPrimitive>(describeRow(group, kLayout, knownTexts)).at(0).text, CString());
}

TEST(RowPicture, AFixedKindIsDescribedLikeAnyCondition)
{
    for (const LONG code : {3, 4, 5, 6, 7, 8, 9, 10, 11, 12})
        EXPECT_EQ(describeRow(condition(code, 101), kLayout, knownTexts),
                  describeRow(condition(1000, 101), kLayout, knownTexts))
            << code;
}

TEST(RowPicture, AConditionWithoutNameShowsAnyVariable)
{
    RowContent content = condition(1000, 100);
    content.name.clear();
    EXPECT_EQ(all<TextPrimitive>(describeRow(content, kLayout, knownTexts)).at(0).text,
              QStringLiteral("<Any Variable>"));
}

/// What was asked of the string library, and the answer that shows it.
CString questions(LONG id, const char16_t* key, const char16_t* section,
                  const char16_t* defaultText)
{
    return QStringLiteral("[%1 %2 %3 %4]")
        .arg(id)
        .arg(CString::fromUtf16(key), CString::fromUtf16(section), CString::fromUtf16(defaultText));
}

TEST(RowPicture, AnyVariableComesFromTheStringLibrary)
{
    RowContent content = condition(1000, 100);
    content.name.clear();
    EXPECT_EQ(all<TextPrimitive>(describeRow(content, kLayout, questions)).at(0).text,
              QStringLiteral("[44 TS Search <Any Variable>]"));
}

TEST(RowPicture, TheOperatorsNameComesFromTheStringLibraryWithAQuestionMarkForNone)
{
    for (const LONG op : {-1, 0, 100, 108, 115, 139, 160, 5000}) {
        const auto texts = all<TextPrimitive>(describeRow(condition(1000, op), kLayout, questions));
        EXPECT_EQ(texts.at(1).text.toStdString(), "[" + std::to_string(op) + " OpName Search ?]");
    }
}

TEST(RowPicture, AnOperatorWithoutANameInTheStringLibraryIsAQuestionMark)
{
    for (const LONG op : {-1, 100, 139, 5000}) {
        const auto texts =
            all<TextPrimitive>(describeRow(condition(1000, op), kLayout, knownTexts));
        EXPECT_EQ(texts.at(1).text, QStringLiteral("?")) << op;
    }
}

TEST(RowPicture, TheNameTheValueAndTheFourthTextAreShownAsTheyAre)
{
    RowContent content = condition(1000, 100);
    content.name = QStringLiteral("a&b");
    content.value = QStringLiteral("two\nlines");
    content.extra = QString(5000, QLatin1Char('w'));
    const auto texts = all<TextPrimitive>(describeRow(content, kLayout, questions));
    EXPECT_EQ(texts.at(0).text, content.name);
    EXPECT_EQ(texts.at(2).text, content.value);
    EXPECT_EQ(texts.at(3).text, content.extra);
}

struct OperatorImage {
    LONG op;
    int image;
};

TEST(RowPicture, TheOperatorsPictureFollowsItsNumber)
{
    const std::vector<OperatorImage> rows{
        {100, 0},  {101, 1},  {102, 2},  {103, 3},  {104, 4},  {105, 5},  {106, 6},  {107, 7},
        {108, 8},  {109, 9},  {119, 19}, {120, 9},  {121, 10}, {122, 11}, {123, 12}, {124, 13},
        {125, 14}, {129, 18}, {130, 18}, {131, 19}, {132, 20}, {133, 21}, {134, 22}, {135, 23},
        {138, 26}, {139, 27}, {140, 28}, {160, 48}, {99, -1},  {0, -100}, {-1, -101}};
    for (const OperatorImage& row : rows) {
        const auto images =
            all<ImagePrimitive>(describeRow(condition(1000, row.op), kLayout, knownTexts));
        ASSERT_EQ(images.size(), 1U);
        EXPECT_EQ(images[0].index, row.image) << row.op;
    }
}

struct FrameRule {
    const char* name;
    std::optional<LONG> parentCode;
    bool isOpen;
};

TEST(RowPicture, TheFrameIsOpenBelowAConditionAndClosedElsewhere)
{
    const std::vector<FrameRule> rows{
        {"no parent", std::nullopt, false},
        {"placeholder", -1, false},
        {"And group", 0, false},
        {"Or group", 1, false},
        {"2", 2, false},
        {"category", 3, true},
        {"4", 4, true},
        {"file path", 5, true},
        {"object type", 6, true},
        {"revision", 7, true},
        {"child reference state", 8, true},
        {"user", 9, false},
        {"group of users", 10, false},
        {"other name", 11, false},
        {"historic state", 12, true},
        {"13", 13, false},
        {"99", 99, false},
        {"an operator's number", 100, true},
        {"card variable", 1000, true},
    };
    for (const FrameRule& row : rows) {
        const RowPicture picture =
            describeRow(condition(1000, 100, row.parentCode), kLayout, knownTexts);
        EXPECT_EQ(all<PolylinePrimitive>(picture).size(), row.isOpen ? 1U : 0U) << row.name;
        EXPECT_EQ(all<FramePrimitive>(picture).size(), row.isOpen ? 0U : 1U) << row.name;
    }
}

TEST(RowPicture, AGroupBelowAConditionHasNoFrame)
{
    EXPECT_EQ(describeRow(condition(1, 100, 1000), kLayout, knownTexts).size(), 2U);
}

TEST(RowPicture, TheColoursAreTheFixedOnes)
{
    // Red 160, green 160, blue 220.
    EXPECT_EQ(all<FramePrimitive>(describeRow(condition(3, 100), kLayout, knownTexts)).at(0).colour,
              14459040U);
    EXPECT_EQ(all<FillPrimitive>(describeRow(condition(3, 100), kLayout, knownTexts)).at(0).colour,
              RGB(255, 255, 255));
}

TEST(RowPicture, AWholeRowHasRoomInThePictureAndSharesItsTexts)
{
    const RowContent content = condition(NodeVariable, 106);
    const CString operatorText = QStringLiteral("shared");
    const RowPicture picture = describeRow(
        content, kLayout, [&operatorText](LONG, const char16_t*, const char16_t*, const char16_t*) {
            return operatorText;
        });
    EXPECT_EQ(picture.capacity(), RowPicture().capacity()); // none of it is on the heap
    const std::vector<TextPrimitive> texts = all<TextPrimitive>(picture);
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0].text.constData(), content.name.constData());
    EXPECT_EQ(texts[1].text.constData(), operatorText.constData());
    EXPECT_EQ(texts[2].text.constData(), content.value.constData());
    EXPECT_EQ(texts[3].text.constData(), content.extra.constData());
}

} // namespace
