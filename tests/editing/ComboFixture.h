#pragma once

#include <condtree/editing/ChoiceListView.h>
#include <condtree/editing/CommandCombo.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/platform/Services.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <memory>
#include <vector>

namespace condtree::test {

inline int fixedMetric(int metric)
{
    return metric == SM_CXVSCROLL ? 17 : metric == SM_CXEDGE ? 2 : 0;
}

inline ChoiceEntries choices(const QStringList& texts)
{
    ChoiceEntries entries;
    for (const QString& text : texts)
        entries.push_back({VariableBase + static_cast<LONG>(entries.size()), text, -1});
    return entries;
}

inline ChoiceEntries manyChoices(int count)
{
    ChoiceEntries entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({VariableBase, QStringLiteral("Variable %1").arg(i), -1});
    return entries;
}

/// A window with a combo over a cell of it that is 150 wide, 300 high with its list.
class ComboFixture : public testing::Test {
protected:
    ComboFixture()
        : window(std::make_unique<QWidget>())
    {
        window->setGeometry(50, 50, 400, 300);
        window->setFocusPolicy(Qt::StrongFocus);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        make();
    }

    void make()
    {
        combo = new CommandCombo(window.get(), {20, 30, 170, 330}, fixedMetric);
        QObject::connect(combo, &CommandCombo::closedUp, combo,
                         [this] { closings.push_back(combo->selection()); });
    }

    void offer(const QStringList& texts)
    {
        combo->setTail(std::make_shared<const ChoiceEntries>(choices(texts)));
    }

    void open()
    {
        combo->dropDown();
        ASSERT_TRUE(combo->isDroppedDown());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view().window()));
    }

    [[nodiscard]] ChoiceListView& view() const
    {
        return dynamic_cast<ChoiceListView&>(*combo->view());
    }
    [[nodiscard]] QWindow* popup() const { return view().window()->windowHandle(); }
    [[nodiscard]] int current() const { return view().currentIndex().row(); }

    /// The middle of a row in its popup.
    [[nodiscard]] QPoint placeOf(int row) const
    {
        const QRect rect = view().visualRect(combo->model()->index(row, 0));
        return view().viewport()->mapTo(view().window(), rect.center());
    }

    void click(int row) { QTest::mouseClick(popup(), Qt::LeftButton, {}, placeOf(row)); }
    void key(Qt::Key pressed) { QTest::keyClick(popup(), pressed); }
    void typeText(const QString& text)
    {
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, &view(), Qt::Key_unknown, letter, {});
    }
    static void letEventsPass()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
    /// The rows that the list shows.
    [[nodiscard]] QStringList shownTexts() const
    {
        QStringList texts;
        for (int i = 0; i < combo->entryCount(); ++i) {
            if (!view().visualRect(combo->model()->index(i, 0)).isEmpty())
                texts << combo->entry(i).text;
        }
        return texts;
    }

    std::unique_ptr<QWidget> window;
    QPointer<CommandCombo> combo;
    /// The selection at each closing.
    std::vector<int> closings;
};

} // namespace condtree::test
