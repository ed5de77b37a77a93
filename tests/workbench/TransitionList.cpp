#include "workbench/TransitionList.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

using namespace condtree;
using namespace condtree::workbench;

namespace {

SpTransition transition(LONG id, const char* workflow, const char* name, LONG records)
{
    SpTransition made;
    made.id = id;
    made.workflow = QString::fromUtf8(workflow);
    made.name = QString::fromUtf8(name);
    made.records = records;
    return made;
}

const std::vector<SpTransition> kTransitions{transition(11, "Approval", "Submit", 3),
                                             transition(12, "Approval", "Approve", 0),
                                             transition(7, "Change", "Submit", 12)};

std::string toText(const TransitionList& list)
{
    QString text;
    for (QTreeWidgetItemIterator i(const_cast<TransitionList*>(&list)); *i != nullptr; ++i) {
        const QTreeWidgetItem& item = **i;
        text += item.parent() == nullptr ? QString() : QStringLiteral("  ");
        text += item.text(0);
        if (!item.text(1).isEmpty())
            text += QStringLiteral(" (%1)").arg(item.text(1));
        text += item.isSelected() ? QStringLiteral(" <\n") : QStringLiteral("\n");
    }
    return text.toStdString();
}

TEST(TransitionList, EachWorkflowHasItsTransitionsWithTheirCountsAndTheEmptyOnesAreMarked)
{
    TransitionList list;
    const QAbstractItemModelTester tester(list.model());
    list.setTransitions(kTransitions);
    EXPECT_EQ(toText(list), "Approval\n"
                            "  Submit (3)\n"
                            "  Approve (empty)\n"
                            "Change\n"
                            "  Submit (12)\n");
    EXPECT_TRUE(list.topLevelItem(0)->isExpanded());
    EXPECT_TRUE(list.topLevelItem(1)->isExpanded());
}

TEST(TransitionList, AWideCountTakesNoRoomFromTheWorkflows)
{
    TransitionList list;
    list.setTransitions({transition(1, "mmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmmm", "Submit", 3)});
    list.itemOf(1)->setText(1, QString(12, QLatin1Char('m')));
    list.resize(300, 200);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    QRect count = list.visualItemRect(list.topLevelItem(0));
    count.setLeft(list.header()->sectionViewportPosition(1) + 10);
    ASSERT_GT(count.width(), 50);
    const QImage shown = list.viewport()->grab(count).toImage();
    QImage blank = shown;
    blank.fill(shown.pixelColor(0, 0));
    EXPECT_NE(shown, blank);
}

TEST(TransitionList, AClickChoosesATransitionAndNoWorkflow)
{
    TransitionList list;
    list.setTransitions(kTransitions);
    list.resize(300, 300);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    QSignalSpy chosen(&list, &TransitionList::transitionChosen);
    const auto click = [&](QTreeWidgetItem* item) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
    };
    click(list.itemOf(7));
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][0].toInt(), 7);
    click(list.topLevelItem(0));
    EXPECT_EQ(chosen.size(), 1);
}

TEST(TransitionList, TheArrowKeysChooseTheNextTransition)
{
    TransitionList list;
    list.setTransitions(kTransitions);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
    list.select(11);
    QSignalSpy chosen(&list, &TransitionList::transitionChosen);
    QTest::keyClick(&list, Qt::Key_Down);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][0].toInt(), 12);
}

TEST(TransitionList, SelectingByCodeTellsNobody)
{
    TransitionList list;
    list.setTransitions(kTransitions);
    QSignalSpy chosen(&list, &TransitionList::transitionChosen);
    list.select(12);
    EXPECT_EQ(toText(list), "Approval\n  Submit (3)\n  Approve (empty) <\nChange\n  Submit (12)\n");
    list.select(std::nullopt);
    EXPECT_TRUE(list.selectedItems().isEmpty());
    list.select(4711);
    EXPECT_TRUE(list.selectedItems().isEmpty());
    EXPECT_EQ(chosen.size(), 0);
}

TEST(TransitionList, OneTransitionIsMarkedAsNotSaved)
{
    TransitionList list;
    list.setTransitions(kTransitions);
    list.setUnsaved(12);
    EXPECT_EQ(toText(list), "Approval\n  Submit (3)\n  * Approve (empty)\nChange\n  Submit (12)\n");
    list.setUnsaved(7);
    EXPECT_EQ(toText(list), "Approval\n  Submit (3)\n  Approve (empty)\nChange\n  * Submit (12)\n");
    list.setUnsaved(std::nullopt);
    EXPECT_EQ(list.itemOf(7)->text(0), QStringLiteral("Submit"));
}

TEST(TransitionList, ANewListKeepsTheSelectionAndTheMark)
{
    TransitionList list;
    list.setTransitions(kTransitions);
    list.select(7);
    list.setUnsaved(7);
    QSignalSpy chosen(&list, &TransitionList::transitionChosen);
    list.setTransitions({transition(7, "Change", "Send", 1), transition(5, "Change", "New", 0)});
    EXPECT_EQ(toText(list), "Change\n  * Send (1) <\n  New (empty)\n");
    EXPECT_EQ(chosen.size(), 0);
}

TEST(TransitionList, NamesAreShownAsTheyAreWritten)
{
    TransitionList list;
    list.setTransitions({transition(1, "<b>W</b>", "<i>&N</i>", 1)});
    EXPECT_EQ(toText(list), "<b>W</b>\n  <i>&N</i> (1)\n");
    EXPECT_EQ(list.itemOf(1)->toolTip(0), QStringLiteral("&lt;i&gt;&amp;N&lt;/i&gt;"));
}

TEST(TransitionList, AMarkRedrawsItsOwnRowsOnly)
{
    TransitionList list;
    list.setTransitions(kTransitions);
    list.setUnsaved(11);
    QSet<QTreeWidgetItem*> changed;
    QObject::connect(&list, &QTreeWidget::itemChanged,
                     [&](QTreeWidgetItem* item) { changed.insert(item); });
    list.setUnsaved(7);
    EXPECT_EQ(changed, (QSet<QTreeWidgetItem*>{list.itemOf(11), list.itemOf(7)}));
    changed.clear();
    list.setUnsaved(7);
    EXPECT_TRUE(changed.isEmpty());
}

} // namespace
