// A long random walk of presses, movements, timers and releases, beside an account of its own of
// what must come of it.
#include "DragFixture.h"

#include <algorithm>
#include <optional>
#include <random>

namespace condtree::test {
namespace {

constexpr int kSteps = 20000;

/// A row of the account: a condition by its number, or a group of conditions.
struct Entry {
    int number = 0;
    bool isGroup = false;
    std::vector<int> rows;
};

/// Where a drop would go, or what a point hits.
struct Spot {
    enum class Kind { Nowhere, Top, Group, Condition, Placeholder };
    Kind kind = Kind::Nowhere;
    int number = 0;
};

class DraggingWalk : public DragFixture {
protected:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
    bool chance(int percent) { return upTo(99) < percent; }

    void loadAnew()
    {
        account.clear();
        std::vector<TransCond> records;
        const auto condition = [&](LONG kind) {
            records.push_back(
                record(kind, 2, "Author", std::to_string(++lastNumber).c_str(), 1, 100));
            return lastNumber;
        };
        for (int n = upTo(6); n >= 0; --n) {
            if (chance(50)) {
                account.push_back({condition(3), false, {}});
                continue;
            }
            records.push_back(groupRecord());
            account.push_back({++lastNumber, true, {}});
            for (int row = upTo(4); row > 0; --row)
                account.back().rows.push_back(condition(4));
        }
        load(records);
        nameGroups();
        forgetDead();
    }
    /// Groups have no text that is saved; their numbers stand in a field that groups do not use.
    void nameGroups() const
    {
        for (std::size_t n = 0; n < account.size(); ++n) {
            if (account[n].isGroup)
                node({static_cast<int>(n)})->mlStateId = account[n].number;
        }
    }
    static int numberOf(const VarTreeCtrlNode& node)
    {
        return node.mlCode == NodeOr ? node.mlStateId : node.mValue.toInt();
    }

    std::string accountText() const
    {
        std::string text;
        const auto condition = [](int number) {
            return "1000 Author | " + std::to_string(number) + "\n";
        };
        for (const Entry& entry : account) {
            text += entry.isGroup ? "1 Or " + std::to_string(entry.number) + "\n"
                                  : condition(entry.number);
            for (const int row : entry.rows)
                text += "  " + condition(row);
            text += entry.isGroup ? "  " + kPlaceholderRow : std::string();
        }
        return text + kPlaceholderRow;
    }
    std::string recordsText() const
    {
        std::string text;
        const auto line = [](LONG kind, int number) {
            return std::to_string(kind) + " " + std::to_string(number) + "\n";
        };
        for (const Entry& entry : account) {
            text += entry.isGroup ? "2 0\n" : line(3, entry.number);
            for (const int row : entry.rows)
                text += line(4, row);
        }
        return text;
    }
    std::string savedText() const
    {
        std::vector<TransCond> saved;
        tree->mvSave(saved);
        std::string text;
        for (const TransCond& record : saved)
            text += std::to_string(record.lRowKind) + " "
                    + std::to_string(record.oValue.str().toInt()) + "\n";
        return text;
    }
    /// The rows as the view has them, each beside its node.
    std::string itemsText(const QModelIndex& parent, const VarTreeCtrlNode& level,
                          const std::string& indent = "") const
    {
        const QAbstractItemModel& model = *tree->model();
        EXPECT_EQ(model.rowCount(parent), static_cast<int>(level.mChildren.size()));
        std::string text;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            const VarTreeCtrlNode& node = *level.mChildren[static_cast<std::size_t>(row)];
            EXPECT_EQ(node.mpParent, &level);
            EXPECT_EQ(tree->mpoGetNode(node.mhItem), &node);
            EXPECT_EQ(reinterpret_cast<HTREEITEM>(index.internalId()), node.mhItem);
            EXPECT_EQ(index.parent(), parent);
            text += indent + std::to_string(node.mlCode) + " " + node.mName.toStdString();
            text += node.mlCode == NodeOr   ? " " + std::to_string(node.mlStateId)
                    : node.mValue.isEmpty() ? std::string()
                                            : " | " + node.mValue.toStdString();
            text += "\n" + itemsText(index, node, indent + "  ");
        }
        return text;
    }

    Spot spotAt(const QPoint& at) const
    {
        using Kind = Spot::Kind;
        const QModelIndex index =
            tree->viewport()->rect().contains(at) ? tree->indexAt(at) : QModelIndex();
        if (!index.isValid())
            return {Kind::Top, 0};
        const VarTreeCtrlNode& node =
            *tree->mpoGetNode(reinterpret_cast<HTREEITEM>(index.internalId()));
        const Kind kind = node.mlCode == NodeOr            ? Kind::Group
                          : node.mlCode == NodePlaceholder ? Kind::Placeholder
                                                           : Kind::Condition;
        return {kind, numberOf(node)};
    }
    Spot targetAt(const QPoint& at) const
    {
        const Spot spot = spotAt(at);
        const bool isTarget = spot.kind == Spot::Kind::Top || spot.kind == Spot::Kind::Group;
        return isTarget ? spot : Spot{};
    }
    bool isThere(int number) const
    {
        return std::any_of(account.begin(), account.end(), [number](const Entry& entry) {
            return entry.number == number
                   || std::count(entry.rows.begin(), entry.rows.end(), number) != 0;
        });
    }
    void forgetDead()
    {
        if (target.kind == Spot::Kind::Group && !isThere(target.number))
            target = {};
        if (dragged != 0 && !isThere(dragged))
            endDrag();
    }
    void endDrag()
    {
        dragged = 0;
        isAllowed = isHeld = false;
    }
    void take(int number)
    {
        for (Entry& entry : account)
            entry.rows.erase(std::remove(entry.rows.begin(), entry.rows.end(), number),
                             entry.rows.end());
        account.erase(std::remove_if(account.begin(), account.end(),
                                     [&](const Entry& entry) { return entry.number == number; }),
                      account.end());
    }
    void drop()
    {
        ++expectedChanges;
        take(dragged);
        if (target.kind == Spot::Kind::Top)
            account.push_back({dragged, false, {}});
        for (Entry& entry : account) {
            if (entry.isGroup && target.kind == Spot::Kind::Group && entry.number == target.number)
                entry.rows.push_back(dragged);
        }
    }

    QPoint somewhere()
    {
        const QRect rect = tree->viewport()->rect();
        return chance(10) ? QPoint(upTo(800) - 200, upTo(800) - 200)
                          : QPoint(upTo(chance(60) ? rect.width() / 4 - 1 : rect.width() - 1),
                                   upTo(rect.height() - 1));
    }

    // The steps, each of which keeps the account first.
    void doPress()
    {
        pointer = somewhere();
        while (!tree->viewport()->rect().contains(pointer))
            pointer = somewhere();
        endDrag();
        isHeld = pointer.x() < tree->viewport()->width() / 4;
        pressedAt = pointer;
        isDown = true;
        send(QEvent::MouseButtonPress, pointer, Qt::LeftButton, Qt::LeftButton);
    }
    void doMove(const QPoint& to, bool isLost = false)
    {
        pointer = to;
        if (isLost) {
            isDown = false;
            endDrag();
        }
        const QPoint far = pressedAt ? to - *pressedAt : QPoint(100, 100);
        if (std::abs(far.x()) > 4 || std::abs(far.y()) > 4)
            pressedAt.reset();
        if (!pressedAt)
            accountMove(to);
        send(QEvent::MouseMove, to, Qt::NoButton, isDown ? Qt::LeftButton : Qt::NoButton);
    }
    void accountMove(const QPoint& to)
    {
        if (dragged != 0) {
            target = targetAt(to);
        } else if (target.kind == Spot::Kind::Nowhere) {
            target = {Spot::Kind::Top, 0};
        } else if (isAllowed && isDown && tree->viewport()->rect().contains(to)
                   && spotAt(to).kind != Spot::Kind::Top) {
            isAllowed = spotAt(to).kind == Spot::Kind::Condition;
            if (!isAllowed && isOnButton(to))
                isAllowed = true;
            else if (isAllowed) {
                dragged = spotAt(to).number;
                target = {};
                ++begun;
            }
        }
    }
    /// A group's button takes no part in dragging: movements there leave all as it is.
    bool isOnButton(const QPoint& at) const
    {
        const QModelIndex index = tree->indexAt(at);
        return tree->model()->hasChildren(index) && at.x() < tree->visualRect(index).left()
               && at.x() >= tree->visualRect(index).left() - tree->indentation();
    }
    void doRelease()
    {
        isDown = false;
        const bool wasDragging = dragged != 0;
        const bool isDropped = wasDragging && target.kind != Spot::Kind::Nowhere;
        expectedTold += !wasDragging || isDropped ? 1 : 0;
        if (isDropped)
            drop();
        pressedAt.reset();
        endDrag();
        send(QEvent::MouseButtonRelease, pointer, Qt::LeftButton, Qt::NoButton);
    }
    void doHold()
    {
        if (running.count(1000) != 0 && std::exchange(isHeld, false))
            isAllowed = true;
        fire(1000);
    }
    /// What a hand does that means to drag: press, wait, move a little, move on.
    void doGrab()
    {
        doPress();
        doHold();
        const QPoint from = pointer;
        doMove(from + QPoint(3, 0));
        doMove(from + QPoint(6, 0));
        doMove(from + QPoint(7, 0));
        doMove(somewhere());
    }
    void doEscape()
    {
        if (dragged == 0)
            return;
        endDrag();
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(tree, &key);
    }
    void doDelete()
    {
        if (account.empty())
            return;
        const int row = upTo(static_cast<int>(account.size()) - 1);
        const int number = account[static_cast<std::size_t>(row)].number;
        const HTREEITEM item = node({row})->mhItem;
        take(number);
        forgetDead();
        tree->mvDeleteNode(item);
    }
    void doToggle()
    {
        const QModelIndex index = tree->model()->index(upTo(8), 0);
        if (index.isValid())
            tree->setExpanded(index, !tree->isExpanded(index));
    }
    void step()
    {
        const int what = upTo(999);
        if (what < 350)
            doMove(somewhere());
        else if (what < 400)
            doMove(pointer + QPoint(upTo(6) - 3, upTo(6) - 3));
        else if (what < 650)
            doHold();
        else if (what < 780)
            isDown ? doRelease() : doPress();
        else if (what < 860)
            doGrab();
        else
            doRarely(what);
        if (dragged != 0 && what >= 650)
            doMove(pointer); // what lies below the pointer may be something else
    }
    void doRarely(int what)
    {
        if (what < 910)
            fire(1001);
        else if (what < 940)
            fire(1002);
        else if (what < 955)
            doToggle();
        else if (what < 965)
            doEscape();
        else if (what < 975)
            doMove(somewhere(), true);
        else if (what < 980)
            doDelete();
        else if (what < 985)
            loadAnew();
    }
    void check()
    {
        ASSERT_EQ(itemsText({}, *tree->mpoGetNode(TVI_ROOT)), accountText());
        ASSERT_EQ(image() != nullptr, dragged != 0);
        ASSERT_EQ(changes, expectedChanges);
        ASSERT_EQ(dialog->told, expectedTold);
    }

    std::mt19937 random{20240229};
    std::vector<Entry> account;
    int lastNumber = 0;
    QPoint pointer{10, 10};
    std::optional<QPoint> pressedAt;
    bool isDown = false, isHeld = false, isAllowed = false;
    int dragged = 0;
    int begun = 0;
    Spot target;
    int expectedChanges = 0;
    int expectedTold = 0;
};

TEST_F(DraggingWalk, NoRowIsLostOrDoubledWhateverTheHandDoes)
{
    dialog->resize(420, 300);
    QCoreApplication::processEvents();
    loadAnew();
    for (int n = 0; n < kSteps; ++n) {
        SCOPED_TRACE(n);
        step();
        if (n % 10 == 0) {
            ASSERT_EQ(savedText(), recordsText());
        }
        check();
        if (HasFatalFailure() || HasNonfatalFailure())
            return;
    }
    EXPECT_GT(begun, 300) << "the walk drags";
    EXPECT_GT(changes, 100) << "and drops";
}

} // namespace
} // namespace condtree::test
