#pragma once

#include "ControlFixture.h"
#include "TreeText.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/control/ModelTree.h>
#include <condtree/editing/CloseUp.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ReferenceData.h>
#include <condtree/refdata/RegFileStore.h>

#include <QAbstractItemModelTester>

#include <set>

namespace condtree::test {

/// A row as a test writes it down.
struct RowBefore {
    LONG code = NodeVariable;
    const char* name = "";
    const char* value = "";
    const char* extra = "";
    LONG op = -1;
    LONG arg = 0;
    LONG state = -1;
    LONG id = -1;
    LONG object = -1;
};

inline std::unique_ptr<VarTreeCtrlNode> makeNode(const RowBefore& row)
{
    auto node = std::make_unique<VarTreeCtrlNode>(row.code);
    node->mName = QString::fromUtf8(row.name);
    node->mValue = QString::fromUtf8(row.value);
    node->mExtra = QString::fromUtf8(row.extra);
    node->mlOperator = row.op;
    node->mlArgType = row.arg;
    node->mlStateId = row.state;
    node->mlUserOrGroupId = row.id;
    node->mlObjectType = row.object;
    return node;
}

/// The placeholder that ends a level, as a row and its picture.
inline const std::string kEnd = "-1 <Click here to add a condition> img=0\n";
inline const std::string kChildEnd = "  " + kEnd;

/// A tree of nodes without a control, on reference data whose contents and failures a test sets,
/// in which the host may be let in by every call that goes out.
class EditedRows : public testing::Test {
protected:
    EditedRows()
    {
        library->variables = {
            {1, VarText, QStringLiteral("Author")},  {2, VarNumberA, QStringLiteral("Weight")},
            {3, VarNumberB, QStringLiteral("Cost")}, {4, VarBinary, QStringLiteral("Approved")},
            {5, VarDate, QStringLiteral("Due")},     {6, 9, QStringLiteral("Odd")}};
        library->states = {{12, QStringLiteral("Release"), QStringLiteral("Open"), {}, 0},
                           {13, QStringLiteral("Release"), QStringLiteral("Done"), {}, 0}};
        library->users = {{7, QStringLiteral("smith"), QStringLiteral("Ann Smith")},
                          {8, QStringLiteral("jones"), {}}};
        library->groups = {{3, QStringLiteral("Designers"), {}},
                           {4, QStringLiteral("Checkers"), {}}};
        manager.reset(library.get());
        images.append(icons, {20, 24}, 32);
        QObject::connect(&model, &ConditionModel::expandRequested, [this](const QModelIndex& row) {
            opened.insert(model.itemOf(row));
            if (duringExpand)
                duringExpand();
        });
        clear();
    }

    /// Leaves the top alone with its placeholder.
    void clear()
    {
        opened.clear();
        model.setTop(std::make_unique<VarTreeCtrlNode>(NodeAnd));
        tree.add(*model.top(), makeNode({NodePlaceholder}), false);
    }
    /// Puts a row first under the top.
    VarTreeCtrlNode& add(const RowBefore& row)
    {
        return *tree.node(tree.add(*model.top(), makeNode(row), true));
    }
    /// Puts a row last under a group.
    VarTreeCtrlNode& addTo(VarTreeCtrlNode& group, const RowBefore& row)
    {
        return *tree.node(tree.add(group, makeNode(row), false));
    }
    /// Leaves the tree with one row before the placeholder, whose picture fits no row.
    VarTreeCtrlNode& only(const RowBefore& row)
    {
        clear();
        VarTreeCtrlNode& node = row.code == NodePlaceholder ? *model.top()->mChildren[0] : add(row);
        if (row.code != NodePlaceholder)
            tree.setImage(node.mhItem, 4);
        return node;
    }

    /// The picture of a row by its index; -1 for none.
    int imageOf(HTREEITEM item)
    {
        const auto icon = model.data(model.indexOf(item), Qt::DecorationRole).value<QIcon>();
        if (icon.isNull())
            return -1;
        const QColor colour = icon.pixmap(20, 24).toImage().pixelColor(10, 12);
        for (int n = 0; n < 8; ++n) {
            if (ColouredIcons::colour(n) == colour)
                return n;
        }
        return -2;
    }
    /// The rows below a node with their pictures, and which were opened.
    std::string rowsOf(const VarTreeCtrlNode& node, const std::string& indent = "")
    {
        std::string text;
        for (const VarTreeCtrlNode* child : node.mChildren) {
            text += indent + toText(*child) + " img=" + std::to_string(imageOf(child->mhItem));
            text += opened.count(child->mhItem) != 0 ? " opened\n" : "\n";
            text += rowsOf(*child, indent + "  ");
        }
        return text;
    }
    std::string rows() { return model.top() == nullptr ? "no top" : rowsOf(*model.top()); }

    /// Lists of which nothing is loaded yet.
    std::unique_ptr<ReferenceData> makeReference()
    {
        return std::make_unique<ReferenceData>(manager, [this](HRESULT code) {
            reports.push_back(code);
            if (duringReport)
                duringReport();
        });
    }
    CloseUpResult choose(HTREEITEM clicked, const Chosen& chosen)
    {
        return applyChoice(clicked, chosen, {tree, *reference, settings, strings, clock});
    }

    std::function<void(LONG id)> duringString;
    std::function<void()> duringExpand;
    std::function<void()> duringReport;
    std::function<void()> duringClock;
    std::vector<HRESULT> reports;
    SYSTEMTIME now{2024, 3, 2, 5, 14, 7, 9, 0};

    QTemporaryDir folder;
    RegFileStore registry{RegFilePaths{folder.filePath(QStringLiteral("user.reg")),
                                       folder.filePath(QStringLiteral("machine.reg"))}};
    FakeLibraryHolder library;
    ManagerRef manager;
    ControlSettings settings{manager, registry};
    std::unique_ptr<ReferenceData> reference = makeReference();
    StringSource strings = [this](LONG id, const char16_t*, const char16_t*, const char16_t* text) {
        if (duringString)
            duringString(id);
        return QString::fromUtf16(text);
    };
    std::function<SYSTEMTIME()> clock = [this] {
        if (duringClock)
            duringClock();
        return now;
    };
    ColouredIcons icons;
    ConditionImages images;
    ConditionModel model{strings, images};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    ModelTree tree{model};
    std::set<HTREEITEM> opened;
};

} // namespace condtree::test
