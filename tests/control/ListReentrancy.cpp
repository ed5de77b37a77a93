// A host that does as it likes whenever it is let in: while a list is filled, while it is open, and
// while what was chosen is applied.
#include "ClickFixture.h"

#include <set>

namespace condtree::test {
namespace {

constexpr RowBefore kUser{User, "User", "jones", "", 101, 0, -1, 8};
constexpr RowBefore kText{NodeVariable, "Author", "a", "", 106, 1};

class ListReentrancy : public ClickFixture {
protected:
    ListReentrancy() { library->docTypes = {{QStringLiteral("Drawing"), {}}}; }

    struct Act {
        const char* name;
        std::function<void()> act;
    };
    /// What a host may do; each act leaves the control as it is or gone.
    [[nodiscard]] std::vector<Act> acts()
    {
        return {
            {"deletes the control", [this] { control.reset(); }},
            {"clears the tree", [this] { control->mvDeleteNode(TVI_ROOT); }},
            {"deletes the row", [this] { control->mvDeleteNode(m_row); }},
            {"loads another condition",
             [this] { control->mvLoad({record(3, 2, "Title", "t", 1, 100)}); }},
            {"sets up anew",
             [this] { control->mvInitialize(library.get(), 120, KiroVaultType{0}, TreeType{0}); }},
            {"sets up without a manager",
             [this] { control->mvInitialize(nullptr, 120, KiroVaultType{0}, TreeType{0}); }},
            {"opens another list", [this] { openAnother(); }},
            {"takes the list away", [this] { control->mvClearCombo(); }},
            {"makes the row a group",
             [this] {
                 if (VarTreeCtrlNode* node = control->mpoGetNode(m_row))
                     control->mvChangeNodeType(*node, Or);
             }},
            {"closes the window", [this] { window.close(); }},
        };
    }
    /// A click by code on the operators of the first row.
    void openAnother()
    {
        const VarTreeCtrlNode* top = control->mpoGetNode(TVI_ROOT);
        if (top == nullptr || top->mChildren.empty())
            return;
        const QPoint at = viewport->mapToGlobal(placeOf(*top->mChildren.front(), 1));
        pointer = {at.x(), at.y()};
        LRESULT result = 0;
        control->OnNMClick(nullptr, &result);
    }

    /// A control as new: two rows, the second of which is row.
    VarTreeCtrlNode& begin(const RowBefore& row, TreeType treeType = TreeTypeUsersAndGroups)
    {
        duringMessage = nullptr;
        duringChange = nullptr;
        duringText = nullptr;
        duringClock = nullptr;
        control = std::make_unique<OpenCtrl>(nullptr, services());
        viewport = control->viewport();
        window.layout()->addWidget(control.get());
        QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, &window, [this] {
            ++changes;
            if (duringChange)
                duringChange();
        });
        messages.clear();
        changes = 0;
        start(KiroVaultType{0}, treeType);
        VarTreeCtrlNode& node = add(row);
        add(kText);
        letEventsPass();
        m_row = node.mhItem;
        return node;
    }
    /// What must hold afterwards, whatever the host did.
    void expectSound()
    {
        letEventsPass();
        EXPECT_LE(combos(), 1);
        if (control == nullptr) {
            EXPECT_EQ(window.findChildren<CommandCombo*>().size(), 0);
            return;
        }
        if (const CommandCombo* visible = combo()) {
            EXPECT_TRUE(visible->isDroppedDown() || control->mpoGetNode(m_row) != nullptr)
                << "a list whose row is gone";
        }
        std::vector<TransCond> records;
        control->mvSave(records);
        window.grab();
        // It still works.
        if (window.isVisible() && control->mpoGetNode(TVI_ROOT) != nullptr) {
            duringMessage = nullptr;
            duringChange = nullptr;
            duringText = nullptr;
            duringClock = nullptr;
            control->mvClearCombo();
            initialize();
            click(placeholder(), 0);
            EXPECT_TRUE(isOpen());
            choose("FilePath");
            EXPECT_EQ(combo(), nullptr);
        }
        control->mvClearCombo();
    }
    /// Lets each act happen once, at the first of the calls that a hook gives.
    void onEach(const std::function<void(const std::function<void()>& once)>& walk)
    {
        for (const Act& act : acts()) {
            SCOPED_TRACE(act.name);
            bool hasHappened = false;
            walk([&] {
                if (!std::exchange(hasHappened, true))
                    act.act();
            });
            EXPECT_TRUE(hasHappened);
            expectSound();
        }
    }

    HTREEITEM m_row = nullptr;
};

TEST_F(ListReentrancy, WhileTheVariablesFailToLoad)
{
    onEach([this](const auto& once) {
        const VarTreeCtrlNode& row = begin(kUser);
        library->getVariables.results = {E_FAIL};
        duringMessage = once;
        click(row, 0);
        EXPECT_EQ(messages.size(), 1U);
    });
}

TEST_F(ListReentrancy, WhileTheVariablesAreLoaded)
{
    onEach([this](const auto& once) {
        const VarTreeCtrlNode& row = begin(kUser);
        library->getVariables.during = once;
        click(row, 0);
        library->getVariables.during = nullptr;
    });
}

TEST_F(ListReentrancy, WhileTextsAreFetchedForTheKinds)
{
    for (const LONG text : {39, 87, 20, 732, 21, 55}) {
        onEach([this, text](const auto& once) {
            const VarTreeCtrlNode& row = begin(kUser);
            duringText = [once, text](LONG id) {
                if (id == text)
                    once();
            };
            click(row, 0);
        });
    }
}

TEST_F(ListReentrancy, WhileTheTextOfAnyVariableIsFetched)
{
    onEach([this](const auto& once) {
        const VarTreeCtrlNode& row = begin({NodeVariable, "", "", "", 106, 1});
        // The drawing of rows asks for it too, when there is no list yet.
        duringText = [this, once](LONG id) {
            if (id == 44 && combos() > 0)
                once();
        };
        click(row, 0);
    });
}

TEST_F(ListReentrancy, WhileTextsAreFetchedForOperatorsAndValues)
{
    struct Case {
        RowBefore row;
        int column;
        LONG text;
    };
    for (const Case& c : {Case{kUser, 1, 100}, Case{kUser, 1, 101}, Case{kUser, 1, User},
                          Case{{ObjectType, "T", "", "", 100}, 2, 733},
                          Case{{ObjectType, "T", "", "", 100}, 2, 136},
                          Case{{NodeVariable, "Approved", "", "", 139, 4}, 2, 59},
                          Case{{ChildRefState, "S", "", "", 100}, 2, 142}}) {
        SCOPED_TRACE(c.text);
        onEach([this, &c](const auto& once) {
            const VarTreeCtrlNode& row = begin(c.row);
            duringText = [this, once, &c](LONG id) {
                // The drawing of rows asks for operators too, when there is no list yet.
                if (id == c.text && (c.column == 2 || combos() > 0))
                    once();
            };
            click(row, c.column);
        });
    }
}

TEST_F(ListReentrancy, WhileAListOfValuesFailsToLoad)
{
    struct Case {
        RowBefore row;
        FakeLibrary::Operation FakeLibrary::*operation;
    };
    for (const Case& c : {Case{kUser, &FakeLibrary::getUsers},
                          Case{{Group, "G", "", "", 100}, &FakeLibrary::getGroups},
                          Case{{Category, "C", "", "", 100}, &FakeLibrary::getDocTypes}}) {
        onEach([this, &c](const auto& once) {
            const VarTreeCtrlNode& row = begin(c.row);
            ((*library).*c.operation).results = {E_FAIL};
            duringMessage = once;
            click(row, 2);
            EXPECT_EQ(messages.size(), 1U);
        });
    }
}

TEST_F(ListReentrancy, WhileAChoiceFailsToLoadItsList)
{
    onEach([this](const auto& once) {
        const VarTreeCtrlNode& row = begin(kText);
        library->getUsers.results = {E_FAIL};
        duringMessage = once;
        click(row, 0);
        choose("User");
        EXPECT_EQ(messages.size(), 1U);
    });
}

TEST_F(ListReentrancy, WhileAListOfValuesIsLoaded)
{
    struct Case {
        RowBefore row;
        FakeLibrary::Operation FakeLibrary::*operation;
    };
    for (const Case& c : {Case{kUser, &FakeLibrary::getUsers},
                          Case{{Group, "G", "", "", 100}, &FakeLibrary::getGroups},
                          Case{{ChildRefState, "S", "", "", 100}, &FakeLibrary::getStates},
                          Case{{Category, "C", "", "", 100}, &FakeLibrary::getDocTypes}}) {
        SCOPED_TRACE(c.row.code);
        onEach([this, &c](const auto& once) {
            const VarTreeCtrlNode& row = begin(c.row);
            FakeLibrary::Operation& operation = (*library).*c.operation;
            operation.during = once;
            click(row, 2);
            operation.during = nullptr;
            EXPECT_TRUE(messages.empty());
        });
    }
}

TEST_F(ListReentrancy, WhileAChoiceLoadsItsList)
{
    struct Case {
        const char* chosen;
        TreeType treeType;
        FakeLibrary::Operation FakeLibrary::*operation;
    };
    for (const Case& c : {Case{"User", TreeTypeUsersAndGroups, &FakeLibrary::getUsers},
                          Case{"Group", TreeTypeUsersAndGroups, &FakeLibrary::getGroups},
                          Case{"Child Reference State", TreeType{0}, &FakeLibrary::getStates}}) {
        SCOPED_TRACE(c.chosen);
        onEach([this, &c](const auto& once) {
            const VarTreeCtrlNode& row = begin({FilePath, "P", "", "", 101}, c.treeType);
            click(row, 0);
            FakeLibrary::Operation& operation = (*library).*c.operation;
            operation.during = once;
            choose(c.chosen);
            operation.during = nullptr;
            EXPECT_TRUE(messages.empty());
        });
    }
}

TEST_F(ListReentrancy, WhileAChoiceReadsTheClock)
{
    for (const auto& [column, chosen] : {std::pair{0, "Due"}, std::pair{1, "Date Equal To"}}) {
        SCOPED_TRACE(chosen);
        onEach([this, column, chosen](const auto& once) {
            const VarTreeCtrlNode& row = begin({NodeVariable, "Author", "", "", 120, 1});
            click(row, column);
            duringClock = once;
            choose(chosen);
        });
    }
}

TEST_F(ListReentrancy, NoMessageOverAControlThatGoesWhileItsTextIsFetched)
{
    struct Case {
        RowBefore row;
        int column;
        FakeLibrary::Operation FakeLibrary::*operation;
    };
    for (const Case& c :
         {Case{kText, 0, &FakeLibrary::getVariables}, Case{kUser, 2, &FakeLibrary::getUsers},
          Case{{Category, "C", "", "", 100}, 2, &FakeLibrary::getDocTypes}}) {
        SCOPED_TRACE(c.row.code);
        const VarTreeCtrlNode& row = begin(c.row);
        FakeLibrary::Operation& operation = (*library).*c.operation;
        operation.results = {E_FAIL};
        operation.during = [this] { duringText = [this](LONG) { control.reset(); }; };
        click(row, c.column);
        operation.during = nullptr;
        EXPECT_EQ(control, nullptr);
        EXPECT_TRUE(messages.empty());
        expectSound();
    }
}

TEST_F(ListReentrancy, WhileAChoiceFetchesItsText)
{
    for (const LONG text : {38, 39, 70}) {
        for (const char* chosen : {"Or", "Author"}) {
            for (const Act& act : acts()) {
                SCOPED_TRACE(std::string(chosen) + " " + act.name);
                begin(kUser);
                m_row = placeholder().mhItem;
                click(placeholder(), 0);
                ASSERT_TRUE(isOpen());
                bool hasHappened = false;
                duringText = [&](LONG id) {
                    if (id == text && !std::exchange(hasHappened, true))
                        act.act();
                };
                choose(chosen);
                expectSound();
            }
        }
    }
}

TEST_F(ListReentrancy, WhileTheChangeIsTold)
{
    for (const auto& [column, chosen] :
         {std::pair{0, "Or"}, std::pair{0, "Remove"}, std::pair{0, "Due"},
          std::pair{1, "String Equal To"}, std::pair{2, "smith"}}) {
        onEach([this, column, chosen](const auto& once) {
            const VarTreeCtrlNode& row = begin(kUser);
            duringChange = once;
            click(row, column);
            choose(chosen);
        });
    }
}

TEST_F(ListReentrancy, WhileTheListIsOpen)
{
    for (const int column : {0, 1, 2}) {
        onEach([this, column](const auto& once) {
            const VarTreeCtrlNode& row = begin(kUser);
            click(row, column);
            ASSERT_TRUE(isOpen());
            once();
        });
    }
}

TEST_F(ListReentrancy, BetweenTheChoiceAndItsApplication)
{
    onEach([this](const auto& once) {
        const VarTreeCtrlNode& row = begin(kUser);
        click(row, 2);
        ASSERT_TRUE(isOpen());
        key(Qt::Key_Down);
        QTest::keyPress(popup(), Qt::Key_Return);
        once();
    });
}

TEST_F(ListReentrancy, AListWithoutItsRowIsGone)
{
    const VarTreeCtrlNode& row = begin(kUser);
    click(row, 0);
    ASSERT_TRUE(isOpen());
    control->mvDeleteNode(m_row);
    letEventsPass();
    EXPECT_EQ(combos(), 0);
    EXPECT_EQ(control->closeUps, 0);
    EXPECT_EQ(changes, 0);
}

TEST_F(ListReentrancy, AListStaysWhenAnotherRowGoes)
{
    const VarTreeCtrlNode& row = begin(kUser);
    click(row, 0);
    ASSERT_TRUE(isOpen());
    control->mvDeleteNode(placeholder().mhItem);
    letEventsPass();
    EXPECT_TRUE(isOpen());
    choose("Category");
    EXPECT_EQ(toText(row), "3 Category op=101 id=8");
}

TEST_F(ListReentrancy, AListThatTheHostOpenedWhileAChoiceWasAppliedStays)
{
    const VarTreeCtrlNode& row = begin(kText);
    library->getUsers.during = [this] { openAnother(); };
    click(row, 0);
    choose("User");
    library->getUsers.during = nullptr;
    EXPECT_EQ(toText(row), "9 User | smith op=100 arg=1 id=7");
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(combo()->entryCount(), 21) << "the operators of the other row";
    choose("String Equal To");
    EXPECT_EQ(toText(topRow(0)), "1000 Author | a op=100 arg=1");
}

TEST_F(ListReentrancy, AListWhoseRowGoesWhileItsChoiceFailsIsHidden)
{
    const VarTreeCtrlNode& row = begin(kText);
    library->getUsers.results = {E_FAIL};
    duringMessage = [this] { control->mvDeleteNode(m_row); };
    click(row, 0);
    choose("User");
    EXPECT_EQ(combo(), nullptr);
}

TEST_F(ListReentrancy, NoEntryGoesIntoAListThatTheHostOpenedMeanwhile)
{
    const VarTreeCtrlNode& row = begin(kUser);
    duringText = [this](LONG id) {
        if (id == 732) {
            duringText = nullptr;
            openAnother();
        }
    };
    click(row, 0);
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(combo()->entryCount(), 21);
    EXPECT_EQ(combo()->entry(20).code, LONG{DateBiggerOrEqual});
}

} // namespace
} // namespace condtree::test
