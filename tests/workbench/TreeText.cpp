#include "workbench/TreeText.h"

#include <gtest/gtest.h>

using namespace condtree;
using namespace condtree::workbench;

namespace {

/// Operator names as "<id>", but for one without a name.
CString operatorNames(LONG id, const char16_t* key, const char16_t* section, const char16_t* def)
{
    EXPECT_EQ(CString::fromUtf16(key), QStringLiteral("OpName"));
    EXPECT_EQ(CString::fromUtf16(section), QStringLiteral("Search"));
    return id == 999 ? CString::fromUtf16(def) : QStringLiteral("<%1>").arg(id);
}

VarTreeCtrlNode* add(VarTreeCtrlNode& parent, LONG code, const char* name, LONG op = -1,
                     const char* value = "", const char* extra = "")
{
    auto* node = new VarTreeCtrlNode(code);
    node->mName = QString::fromUtf8(name);
    node->mValue = QString::fromUtf8(value);
    node->mExtra = QString::fromUtf8(extra);
    node->mlOperator = op;
    parent.mChildren.push_back(node);
    return node;
}

TEST(TreeText, RowsAreIndentedByTheirLevelAndHaveFourColumns)
{
    VarTreeCtrlNode top(NodeAnd);
    add(top, NodeVariable, "Author", 101, "me", "note");
    VarTreeCtrlNode* group = add(top, NodeOr, "Or");
    add(*group, Category, "Category", 100);
    add(*group, NodePlaceholder, "<Click>");
    add(top, NodePlaceholder, "<Click>");
    EXPECT_EQ(treeText(top, operatorNames).toStdString(), "Author | <101> | me | note\n"
                                                          "Or\n"
                                                          "  Category | <100> |  | \n"
                                                          "  <Click>\n"
                                                          "<Click>\n");
}

TEST(TreeText, AnOperatorWithoutANameIsAQuestionMark)
{
    VarTreeCtrlNode top(NodeAnd);
    add(top, NodeVariable, "x", 999);
    EXPECT_EQ(treeText(top, operatorNames).toStdString(), "x | ? |  | \n");
}

TEST(TreeText, ARowOfNoKnownKindIsNoPlaceholder)
{
    VarTreeCtrlNode top(NodeAnd);
    add(top, NodePlaceholder, "<Click>", 100, "v");
    EXPECT_EQ(treeText(top, operatorNames).toStdString(), "<Click> | <100> | v | \n");
}

TEST(TreeText, ARowIsOneLineWhateverItHolds)
{
    VarTreeCtrlNode top(NodeAnd);
    add(top, NodeVariable, "a\nb", 100, "c\r", "d\t");
    EXPECT_EQ(treeText(top, operatorNames).toStdString(),
              "a\\u000ab | <100> | c\\u000d | d\\u0009\n");
}

TEST(TreeText, ATreeWithoutRowsIsEmpty)
{
    EXPECT_EQ(treeText(VarTreeCtrlNode(NodeAnd), operatorNames), QString());
}

} // namespace
