#include "ComboFixture.h"

#include <condtree/editing/ChoiceModel.h>
#include <condtree/presentation/ImgLst.h>

#include <support/QtPrinters.h>

#include <QAccessible>
#include <QIdentityProxyModel>
#include <QScreen>
#include <QScrollBar>

#include <set>

using namespace condtree;
using namespace condtree::test;

namespace {

class CommandComboTest : public ComboFixture {
protected:
    void offerMany(int count)
    {
        combo->setTail(std::make_shared<const ChoiceEntries>(manyChoices(count)));
    }
    void turnWheel(QWidget& receiver, int notches)
    {
        const QPointF middle = receiver.rect().center();
        QWheelEvent turn(middle, receiver.mapToGlobal(middle), {}, QPoint(0, 120 * notches), {}, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&receiver, &turn);
    }
};

TEST_F(CommandComboTest, IsFoundByItsControlIdAndMadeHidden)
{
    EXPECT_EQ(combo->property("controlId").toInt(), 900);
    EXPECT_EQ(combo->objectName(), QStringLiteral("900"));
    EXPECT_TRUE(combo->isHidden());
    EXPECT_FALSE(combo->isEditable());
    EXPECT_FALSE(combo->isDroppedDown());
}

TEST_F(CommandComboTest, TheBoxIsOneRowHighAndTheRestOfTheCellIsTheLists)
{
    const int row = view().rowHeight();
    EXPECT_EQ(combo->geometry(), QRect(20, 30, 150, row));
    offerMany(1000);
    open();
    EXPECT_EQ(popup()->position(), combo->mapToGlobal(QPoint(0, row - 1)));
    EXPECT_EQ(view().viewport()->height(), (300 - row) / row * row);
    EXPECT_LE(popup()->height(), 300 - row + 2);
}

TEST_F(CommandComboTest, AShortListDropsOnlyAsFarAsItReaches)
{
    offerMany(3);
    open();
    EXPECT_EQ(view().viewport()->height(), 3 * view().rowHeight());
    EXPECT_FALSE(view().verticalScrollBar()->isVisible());
}

TEST_F(CommandComboTest, TakesTheFontAndNameOfItsParent)
{
    delete combo;
    QFont font = window->font();
    font.setPointSize(30);
    window->setFont(font);
    window->setAccessibleName(QStringLiteral("Weight"));
    make();
    EXPECT_EQ(combo->font().pointSize(), 30);
    EXPECT_GE(combo->height(), combo->fontMetrics().height());
    EXPECT_EQ(combo->accessibleName(), QStringLiteral("Weight"));
    offerMany(3);
    open();
    EXPECT_EQ(view().font().pointSize(), 30);
}

TEST_F(CommandComboTest, RowsHaveRoomForPictures)
{
    const ImgLst images(QSize(48, 48));
    combo->setImages(&images);
    EXPECT_GE(view().rowHeight(), 48);
    EXPECT_EQ(combo->height(), view().rowHeight());
    EXPECT_EQ(view().iconSize(), QSize(48, 48));
    offerMany(100);
    open();
    EXPECT_LE(popup()->height(), 300 - combo->height() + 2);
    EXPECT_GT(popup()->height(), 300 - 2 * combo->height());
    combo->setImages(nullptr);
}

TEST_F(CommandComboTest, EntriesAreInsertedAtPositionsAndNoneIsSelected)
{
    EXPECT_EQ(combo->addEntry({5, QStringLiteral("b"), -1}, 0), 0);
    EXPECT_EQ(combo->selection(), -1);
    EXPECT_EQ(combo->addEntry({6, QStringLiteral("a"), -1}, 0), 0);
    combo->addEntries(choices({QStringLiteral("x"), QStringLiteral("y")}), 1);
    EXPECT_EQ(combo->addEntry({7, QStringLiteral("c"), -1}, -1), 4);
    EXPECT_EQ(combo->addEntry({8, QStringLiteral("d"), -1}, 99), 5);
    EXPECT_EQ(combo->selection(), -1);
    QString texts;
    for (int i = 0; i < combo->entryCount(); ++i)
        texts += combo->entry(i).text;
    EXPECT_EQ(texts, QStringLiteral("axybcd"));
    EXPECT_EQ(combo->itemData(0).toInt(), 6);
}

TEST_F(CommandComboTest, NothingIsSelectedUntilSomebodySelects)
{
    offerMany(3);
    EXPECT_EQ(combo->selection(), -1);
    combo->select(2);
    EXPECT_EQ(combo->selection(), 2);
    combo->select(3);
    EXPECT_EQ(combo->selection(), -1);
    combo->select(1);
    combo->select(-5);
    EXPECT_EQ(combo->selection(), -1);
    letEventsPass();
    EXPECT_EQ(closings, std::vector<int>());
}

TEST_F(CommandComboTest, WhatIsSelectedIsCurrentInTheOpenList)
{
    offerMany(1000);
    open();
    EXPECT_EQ(current(), -1);
    combo->select(700);
    EXPECT_EQ(current(), 700);
    EXPECT_TRUE(view().viewport()->rect().contains(view().visualRect(view().currentIndex())));
    combo->select(-1);
    EXPECT_EQ(current(), -1);
    combo->select(300);
    combo->closeList();
    letEventsPass();
    open();
    EXPECT_EQ(current(), 300);
    EXPECT_TRUE(view().viewport()->rect().contains(view().visualRect(view().currentIndex())));
}

TEST_F(CommandComboTest, TheDroppedListIsAsWideAsAskedForButFitsTheScreen)
{
    offerMany(3);
    open();
    EXPECT_EQ(popup()->width(), 150);
    for (const auto& [asked, width] :
         {std::pair(100, 150), std::pair(260, 260),
          std::pair(100'000, combo->screen()->availableGeometry().width())}) {
        combo->closeList();
        combo->setDroppedWidth(asked);
        EXPECT_EQ(combo->droppedWidth(), asked);
        open();
        EXPECT_EQ(popup()->width(), width) << asked;
    }
}

TEST_F(CommandComboTest, TheWheelAndTypingLeaveTheClosedBoxAlone)
{
    offerMany(3);
    combo->select(1);
    combo->show();
    turnWheel(*combo, -1);
    QTest::keyClicks(combo, QStringLiteral("v"));
    for (const Qt::Key pressed : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_PageUp})
        QTest::keyClick(combo, pressed);
    EXPECT_EQ(combo->selection(), 1);
    EXPECT_FALSE(combo->isDroppedDown());
}

TEST_F(CommandComboTest, KeysOpenTheClosedBox)
{
    offerMany(3);
    combo->show();
    for (const auto& [pressed, modifiers] :
         {std::pair(Qt::Key_F4, Qt::NoModifier), std::pair(Qt::Key_Space, Qt::NoModifier),
          std::pair(Qt::Key_Down, Qt::AltModifier)}) {
        QTest::keyClick(combo, pressed, modifiers);
        EXPECT_TRUE(combo->isDroppedDown()) << pressed;
        combo->closeList();
    }
}

TEST_F(CommandComboTest, KeysMoveThroughTheOpenList)
{
    offerMany(100);
    open();
    const int page = view().viewport()->height() / view().rowHeight();
    const std::vector<std::pair<Qt::Key, int>> steps{
        {Qt::Key_Down, 0},      {Qt::Key_Down, 1},        {Qt::Key_Up, 0},
        {Qt::Key_Up, 0},        {Qt::Key_PageDown, page}, {Qt::Key_PageDown, 2 * page},
        {Qt::Key_PageUp, page}, {Qt::Key_End, 99},        {Qt::Key_Down, 99},
        {Qt::Key_Home, 0},      {Qt::Key_Right, 0}};
    for (const auto& [pressed, row] : steps) {
        key(pressed);
        EXPECT_EQ(current(), row) << pressed;
        EXPECT_TRUE(view().viewport()->rect().contains(view().visualRect(view().currentIndex())));
    }
    EXPECT_EQ(combo->selection(), -1);
}

TEST_F(CommandComboTest, TheWheelScrollsTheOpenList)
{
    offerMany(100);
    open();
    turnWheel(*view().viewport(), -1);
    const int once = view().verticalScrollBar()->value();
    EXPECT_GT(once, 0);
    // Over the window behind, from where the toolkit passes it to the popup.
    QWheelEvent turn(QPointF(5, 5), window->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), {}, {},
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window->windowHandle(), &turn);
    EXPECT_EQ(view().verticalScrollBar()->value(), 2 * once);
    EXPECT_EQ(combo->selection(), -1);
}

TEST_F(CommandComboTest, OpeningAsksForTheSameFewEntriesHoweverManyThereAre)
{
    // Counts the entries whose data are asked for while the list opens and is painted.
    class Counter final : public QIdentityProxyModel {
    public:
        using QIdentityProxyModel::QIdentityProxyModel;
        [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
        {
            rows.insert(index.row());
            ++calls;
            return QIdentityProxyModel::data(index, role);
        }
        mutable std::set<int> rows;
        mutable int calls = 0;
    };
    const auto rowsAskedFor = [this](int count) {
        delete combo;
        make();
        offerMany(count);
        combo->select(count / 2);
        auto* counter = new Counter(combo);
        combo->model()->setParent(counter); // else the combo deletes it
        counter->setSourceModel(combo->model());
        combo->setModel(counter);
        combo->setCurrentIndex(count / 2);
        counter->rows.clear();
        counter->calls = 0;
        open();
        view().grab();
        EXPECT_GT(counter->rows.size(), 5U);
        EXPECT_LT(counter->rows.size(), 40U);
        EXPECT_LT(counter->calls, 1000);
        return counter->rows.size();
    };
    EXPECT_EQ(rowsAskedFor(100'000), rowsAskedFor(100));
}

TEST_F(CommandComboTest, ScreenReadersSeeTheCurrentEntry)
{
    offerMany(3);
    combo->select(1);
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(combo);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->role(), QAccessible::ComboBox);
    EXPECT_EQ(box->text(QAccessible::Value), QStringLiteral("Variable 1"));
    open();
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->childCount(), 3);
    EXPECT_EQ(list->child(2)->text(QAccessible::Name), QStringLiteral("Variable 2"));
    EXPECT_TRUE(list->child(1)->state().selected);
}

TEST_F(CommandComboTest, AHugeTextIsDrawnAsALine)
{
    combo->addEntry({1, QString(1 << 20, QLatin1Char('w')), -1}, 0);
    combo->addEntry({2, QStringLiteral("a\nb"), -1}, 1);
    combo->select(0);
    open();
    EXPECT_FALSE(view().grab().isNull());
    EXPECT_FALSE(combo->grab().isNull());
    EXPECT_EQ(view().itemDelegate()->metaObject()->className(),
              std::string_view("QStyledItemDelegate"));
    EXPECT_EQ(view().visualRect(combo->model()->index(1, 0)).height(), view().rowHeight());
}

} // namespace
