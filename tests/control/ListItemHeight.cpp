#include <condtree/presentation/CDPIHelper.h>

#include "presentation/DpiHelper.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTreeWidget>

#include <vector>

// Widgets whose classes have names that say something else than what they are.
class ComboLikeList final : public QListView {
    Q_OBJECT
};
class ListLikeCombo final : public QComboBox {
    Q_OBJECT
};
class ComboLikeEdit final : public QLineEdit {
    Q_OBJECT
};
class Chooser final : public QComboBox {
    Q_OBJECT
};
class Rows final : public QListView {
    Q_OBJECT
};
class LowercasecomboOrlist final : public QComboBox {
    Q_OBJECT
};
// Namespaces are part of a class's name: these are 246 characters.
namespace FirstNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx {
namespace SecondNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx {
namespace ThirdNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx {
class AbcdCombo final : public QComboBox {
    Q_OBJECT
};
class AbcdefghiCombo final : public QComboBox {
    Q_OBJECT
};
} // namespace ThirdNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx
} // namespace SecondNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx
} // namespace FirstNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx

namespace condtree::test {

namespace {

constexpr Setting kAt144{144, true, 96};

/// The height of a row of a shown view, as it is laid out.
int rowHeight(QAbstractItemView& view)
{
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(view.window()));
    return view.visualRect(view.model()->index(0, 0)).height();
}

int rowHeight(QComboBox& combo)
{
    return combo.view()->sizeHintForRow(0);
}

/// A widget with two rows.
template <class Widget>
void fill(Widget& widget)
{
    widget.setModel(new QStringListModel({QStringLiteral("a"), QStringLiteral("b")}, &widget));
}

template <class Widget>
int heightAt(const Setting& setting)
{
    Widget widget;
    fill(widget);
    DpiHelper(setting).adjustListBoxAndComboBoxItemHeight(&widget);
    return rowHeight(widget);
}

TEST(ListItemHeight, RowsOfListsAndCombosAreAsHighAsTheResolutionInUseSays)
{
    const std::vector<std::pair<Setting, int>> rows{
        {{96, true, 240}, 20},  {{120, true, 240}, 25}, {{144, true, 240}, 30},
        {{192, true, 240}, 40}, {{240, true, 96}, 50},  {{240, false, 96}, 20},
        {{96, false, 120}, 25}, {{96, false, 144}, 30}, {{96, false, 192}, 40},
        {{96, false, 240}, 50},
    };
    for (const auto& [setting, height] : rows) {
        SCOPED_TRACE(testing::PrintToString(setting));
        EXPECT_EQ(heightAt<QComboBox>(setting), height);
        EXPECT_EQ(heightAt<QListView>(setting), height);
    }
}

template <class Widget>
bool isChanged()
{
    Widget widget;
    fill(widget);
    const int before = rowHeight(widget);
    DpiHelper(Setting{288, true, 96}).adjustListBoxAndComboBoxItemHeight(&widget);
    const int after = rowHeight(widget);
    EXPECT_TRUE(after == before || after == 60) << after;
    return after != before;
}

TEST(ListItemHeight, TheClassNameAndTheKindOfWidgetBothCount)
{
    EXPECT_TRUE(isChanged<QComboBox>());
    EXPECT_TRUE(isChanged<QListView>());
    EXPECT_TRUE(isChanged<ListLikeCombo>()); // has both in its name
    EXPECT_TRUE(isChanged<ComboLikeList>()); // likewise, and is no combo box
    EXPECT_FALSE(isChanged<Chooser>());
    EXPECT_FALSE(isChanged<Rows>());
    EXPECT_FALSE(isChanged<LowercasecomboOrlist>());
}

TEST(ListItemHeight, OfAClassNameTheFirst255CharactersCount)
{
    namespace deep =
        FirstNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx::
            SecondNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx::
                ThirdNamespaceWithALongNameOf80CharactersXxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx;
    const auto placeOfCombo = [](const QMetaObject& type) {
        return QByteArray(type.className()).indexOf("Combo");
    };
    EXPECT_EQ(placeOfCombo(deep::AbcdCombo::staticMetaObject), 250);
    EXPECT_TRUE(isChanged<deep::AbcdCombo>());
    EXPECT_EQ(placeOfCombo(deep::AbcdefghiCombo::staticMetaObject), 255);
    EXPECT_FALSE(isChanged<deep::AbcdefghiCombo>());
}

TEST(ListItemHeight, OtherWidgetsAndNoneStayAsTheyAre)
{
    const DpiHelper helper(kAt144);
    helper.adjustListBoxAndComboBoxItemHeight(nullptr);
    ComboLikeEdit edit;
    const QSize before = edit.sizeHint();
    helper.adjustListBoxAndComboBoxItemHeight(&edit);
    EXPECT_EQ(edit.sizeHint(), before);
    QTreeWidget tree;
    auto* const delegate = tree.itemDelegate();
    helper.adjustListBoxAndComboBoxItemHeight(&tree);
    EXPECT_EQ(tree.itemDelegate(), delegate);
}

TEST(ListItemHeight, AListWidgetIsAListBox)
{
    QListWidget list;
    list.addItem(QStringLiteral("a"));
    DpiHelper(kAt144).adjustListBoxAndComboBoxItemHeight(&list);
    EXPECT_EQ(rowHeight(list), 30);
}

TEST(ListItemHeight, AnotherResolutionReplacesTheHeight)
{
    QListView list;
    fill(list);
    DpiHelper(kAt144).adjustListBoxAndComboBoxItemHeight(&list);
    EXPECT_EQ(rowHeight(list), 30);
    auto* const delegate = list.itemDelegate();
    DpiHelper(192).adjustListBoxAndComboBoxItemHeight(&list);
    QCoreApplication::processEvents();
    EXPECT_EQ(rowHeight(list), 40);
    EXPECT_EQ(list.visualRect(list.model()->index(1, 0)).top(), 40);
    EXPECT_EQ(list.itemDelegate(), delegate);
}

/// A host's own delegate.
class HostDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    mutable int paints = 0;
    mutable int editors = 0;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        ++paints;
        QStyledItemDelegate::paint(painter, option, index);
    }
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        ++editors;
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
};

TEST(ListItemHeight, TheViewsOwnDelegateStillDrawsAndEdits)
{
    QListWidget list;
    HostDelegate host;
    list.setItemDelegate(&host);
    list.addItem(QStringLiteral("before"));
    list.item(0)->setFlags(list.item(0)->flags() | Qt::ItemIsEditable);
    DpiHelper(kAt144).adjustListBoxAndComboBoxItemHeight(&list);
    EXPECT_EQ(rowHeight(list), 30);
    list.grab();
    EXPECT_GT(host.paints, 0);

    list.editItem(list.item(0));
    EXPECT_EQ(host.editors, 1);
    auto* editor = list.findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), QStringLiteral("before"));
    editor->setText(QStringLiteral("after"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("after"));
    list.setItemDelegate(nullptr);
}

TEST(ListItemHeight, ADelegateThatDiesLeavesTheRowsTheirHeight)
{
    QListView list;
    fill(list);
    auto* host = new HostDelegate;
    list.setItemDelegate(host);
    DpiHelper(kAt144).adjustListBoxAndComboBoxItemHeight(&list);
    delete host;
    EXPECT_EQ(rowHeight(list), 30);
    list.grab();
}

} // namespace

} // namespace condtree::test

#include "ListItemHeight.moc"
