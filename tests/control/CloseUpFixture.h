#pragma once

#include "EditedRows.h"

#include <string>

namespace condtree::test {

// How a choice ends: whether the list is hidden, and whether the host hears of a change.
inline constexpr const char* kHiddenChanged = "hidden changed";
inline constexpr const char* kHiddenSame = "hidden same";
inline constexpr const char* kLeftChanged = "left changed";

inline const std::string kLabel = "<Click here to add a condition>";

/// Applies choices of the lists to rows.
class CloseUp : public EditedRows {
protected:
    std::string apply(HTREEITEM clicked, const Chosen& chosen)
    {
        const CloseUpResult result = choose(clicked, chosen);
        return std::string(result.end == CloseUpEnd::HideCombo ? "hidden" : "left")
               + (result.isChanged ? " changed" : " same");
    }
    /// Applies a choice to the one row of a tree, which has no children afterwards.
    void expect(const RowBefore& row, LONG code, const char* text, const std::string& after,
                const std::string& end = kHiddenChanged, int index = 0)
    {
        const HTREEITEM item = only(row).mhItem;
        EXPECT_EQ(apply(item, {code, QString::fromUtf8(text), index}), end)
            << toText(*makeNode(row)) << ", " << code;
        EXPECT_EQ(rows(), after + "\n" + kEnd) << toText(*makeNode(row)) << ", " << code;
    }
    /// A group with two rows, one of them a group.
    VarTreeCtrlNode& filledGroup()
    {
        VarTreeCtrlNode& node = only({NodeOr});
        addTo(node, {FilePath, "p"});
        addTo(addTo(node, {NodeOr}), {Revision, "r"});
        return node;
    }
    void showSecondNames()
    {
        library->settings[24] = QStringLiteral("1");
        ASSERT_TRUE(settings.mbInitSettings());
    }
};

} // namespace condtree::test
