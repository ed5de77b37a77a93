#include "CellHand.h"

#include <QAbstractItemView>

namespace condtree::test {
namespace {

constexpr KiroVaultType kReduced{1};
constexpr HRESULT kDenied = static_cast<HRESULT>(0x80070005U);
const QString kNoMemory = QStringLiteral("Not enough memory to complete the operation.");

/// Which list a click on a value opens.
class ValueClicks : public CellHand {
protected:
    /// The only row's node, with a code and an operator.
    VarTreeCtrlNode& row(LONG code, LONG op, const char* value = "before")
    {
        VarTreeCtrlNode& node =
            only(record(RowKindTop, 2, "Author", value, ArgText, StringEqualTo));
        node.mlCode = code;
        node.mlOperator = op;
        return node;
    }
    /// The entries of the open list, one a line: code, text, index of the picture.
    [[nodiscard]] std::string entries() const
    {
        std::string text;
        for (int i = 0; i < list()->entryCount(); ++i) {
            const ChoiceEntry& entry = list()->entry(i);
            text += std::to_string(entry.code) + " " + entry.text.toStdString() + " "
                    + std::to_string(entry.image) + "\n";
        }
        return text;
    }
    /// Opens the value's editor by a click, and by asking for it: the list has these entries, none
    /// of them selected, and is as high as the cell lowered by lowered.
    void expectList(VarTreeCtrlNode& node, const std::string& expected, int lowered)
    {
        const RECT cell = cellOf(0, 2);
        for (const bool isAsked : {false, true}) {
            isAsked ? control->mvOnClickValue(node, 2, cell) : click(0, 2);
            ASSERT_NE(list(), nullptr) << isAsked;
            EXPECT_EQ(entries(), expected);
            EXPECT_EQ(list()->selection(), -1);
            EXPECT_EQ(list()->pos(), QPoint(cell.left, cell.top));
            EXPECT_EQ(list()->width(), cell.right - cell.left);
            const int rowHeight = list()->height();
            const int height = cell.bottom - cell.top + lowered;
            EXPECT_EQ(list()->maxVisibleItems(), std::max(height / rowHeight - 1, 1));
            list()->closeList();
            letEventsPass();
            EXPECT_EQ(whatIsOpen(), "nothing");
        }
        EXPECT_EQ(node.mValue, QStringLiteral("before")) << "closed without a choice";
        EXPECT_EQ(changes, 0);
        EXPECT_TRUE(messages.empty());
    }
    /// A click, and asking, open nothing; how many messages there were.
    std::size_t opensNothing(VarTreeCtrlNode& node)
    {
        messages.clear();
        click(0, 2);
        EXPECT_EQ(whatIsOpen(), "nothing");
        const std::size_t count = messages.size();
        control->mvOnClickValue(node, 2, cellOf(0, 2));
        EXPECT_EQ(whatIsOpen(), "nothing");
        EXPECT_EQ(messages.size(), 2 * count);
        return count;
    }
};

TEST_F(ValueClicks, AnObjectTypeRowOffersThreeTypesAndInAReducedVaultOne)
{
    for (const LONG op : {-1, 100, 108, 130, 139})
        expectList(row(6, op), "136 File -1\n137 BOM -1\n138 Item -1\n", 100);
    initialize(kReduced);
    expectList(row(6, 100), "136 File -1\n", 100);
}

TEST_F(ValueClicks, AUserRowOffersTheUsers)
{
    for (const LONG op : {-1, 100, 130, 139})
        expectList(row(9, op), "2001 smith 0\n2001 jones 0\n", 100);
}

TEST_F(ValueClicks, AUserRowOffersFullNamesWhereTheSettingIsOn)
{
    library->settings[24] = QStringLiteral("1");
    library->users.push_back({9, QStringLiteral("plain"), {}});
    initialize();
    expectList(row(9, 100), "2001 Ann Smith 0\n2001 Bo Jones 0\n2001 plain 0\n", 100);
}

TEST_F(ValueClicks, AGroupRowOffersTheGroups)
{
    for (const LONG op : {-1, 100, 130, 139})
        expectList(row(10, op), "3000 Designers 0\n3000 Checkers 0\n", 100);
}

TEST_F(ValueClicks, InAReducedVaultTheListsOfUsersAndGroupsAreEmptyAndOpenAllTheSame)
{
    initialize(kReduced);
    expectList(row(9, 100), "", 100);
    expectList(row(10, 100), "", 100);
    EXPECT_EQ(library->getUsers.calls + library->getGroups.calls, 0);
}

TEST_F(ValueClicks, AYesNoRowOffersBothWhateverItsKind)
{
    for (const LONG code : {3, 5, 7, 8, 11, 12, 1000})
        expectList(row(code, 139), "140 Yes -1\n141 No -1\n", 100);
}

TEST_F(ValueClicks, FixedValuesAreInTheUsersLanguage)
{
    translations = {{733, QStringLiteral("Datei")},
                    {734, QStringLiteral("Stückliste")},
                    {15, QStringLiteral("Teil")},
                    {58, QStringLiteral("Ja")},
                    {59, QStringLiteral("Nein")}};
    expectList(row(6, 100), "136 Datei -1\n137 Stückliste -1\n138 Teil -1\n", 100);
    expectList(row(1000, 139), "140 Ja -1\n141 Nein -1\n", 100);
}

TEST_F(ValueClicks, ACategoryRowOffersTheDocumentTypesFetchedEachTime)
{
    library->docTypes = {{QStringLiteral("Drawing"), {}}, {QStringLiteral("Spec"), {}}};
    expectList(row(3, 100), "4 Drawing -1\n4 Spec -1\n", 100);
    EXPECT_EQ(library->getDocTypes.calls, 2);
    library->docTypes = {{QStringLiteral("Model"), {}}};
    expectList(row(3, 130), "4 Model -1\n", 100);
}

TEST_F(ValueClicks, ALibraryWithoutDocumentTypesOffersAnEmptyList)
{
    library->missing = {SPID_DOC_TYPE};
    expectList(row(3, 100), "", 100);
}

TEST_F(ValueClicks, DocumentTypesThatFailAreToldWithTheErrorIconAndTheListOpensEmpty)
{
    library->docTypes = {{QStringLiteral("Drawing"), {}}};
    library->getDocTypes.results = {kDenied};
    row(3, 100);
    duringMessage = [this] { EXPECT_EQ(list(), nullptr) << "opens behind the message"; };
    click(0, 2);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0], QStringLiteral("Access was denied."));
    EXPECT_EQ(messageTypes[0], unsigned(MB_ICONERROR));
    EXPECT_EQ(messageOwners[0], control.get());
    ASSERT_EQ(whatIsOpen(), "list");
    EXPECT_EQ(entries(), "");
    list()->closeList();
    letEventsPass();
    click(0, 2);
    EXPECT_EQ(entries(), "4 Drawing -1\n");
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(ValueClicks, AChildStateRowOffersTheStatesInTheirOrder)
{
    for (const LONG code : {8, 12}) {
        for (const LONG op : {-1, 100, 101, 130})
            expectList(row(code, op), "142 Release.Open -1\n142 Release.Done -1\n", 450);
    }
}

TEST_F(ValueClicks, AChildStateRowThatComparesTextIsEditedAsText)
{
    for (const LONG code : {8, 12}) {
        row(code, 108);
        click(0, 2);
        EXPECT_EQ(whatIsOpen(), "'before'");
        key(Qt::Key_Return);
        control->mvOnClickValue(topRow(0), 2, cellOf(0, 2));
        EXPECT_EQ(whatIsOpen(), "'before'");
        control->finishEditing();
    }
}

TEST_F(ValueClicks, UsersAndGroupsThatCannotBeLoadedOpenNothingAndAreToldOnce)
{
    library->getUsers.results = {kDenied, kDenied};
    EXPECT_EQ(opensNothing(row(9, 100)), 1U);
    library->getGroups.results = {kDenied, kDenied};
    EXPECT_EQ(opensNothing(row(10, 100)), 1U);
}

TEST_F(ValueClicks, StatesThatFailCountAsNoneAndThatIsNotTold)
{
    library->getStates.results = {kDenied};
    library->states.clear();
    expectList(row(8, 100), "", 450);
}

TEST_F(ValueClicks, StatesThatMemoryIsNotEnoughForOpenNothing)
{
    library->getStates.callsOutOfMemory = 2;
    EXPECT_EQ(opensNothing(row(12, 100)), 0U);
}

TEST_F(ValueClicks, MemoryThatEndsWhileStatesAreListedIsToldAndOpensNothing)
{
    for (const LONG code : {8, 12}) {
        row(code, 100);
        letEventsPass(); // the rows are drawn, and need texts too
        messages.clear();
        messageTypes.clear();
        duringText = [](LONG id) {
            if (id == 142)
                throw std::bad_alloc();
        };
        tellClick(0, 2);
        duringText = nullptr;
        EXPECT_EQ(messages, (std::vector{kNoMemory})) << code;
        EXPECT_EQ(messageTypes, (std::vector<unsigned>{MB_ICONERROR}));
        EXPECT_EQ(whatIsOpen(), "nothing");
    }
}

TEST_F(ValueClicks, MemoryThatEndsWhileDocumentTypesAreFetchedIsToldAndTheListIsEmpty)
{
    library->docTypes = {{QStringLiteral("Drawing"), {}}};
    library->getDocTypes.callsOutOfMemory = 1;
    library->getDocTypes.recordsBeforeFailure = 1;
    row(3, 100);
    click(0, 2);
    EXPECT_EQ(messages, (std::vector{kNoMemory}));
    EXPECT_EQ(messageTypes, (std::vector<unsigned>{MB_ICONERROR}));
    ASSERT_EQ(whatIsOpen(), "list");
    EXPECT_EQ(entries(), "");
}

TEST_F(ValueClicks, WithoutAManagerCategoriesAndChildStatesOpenNothing)
{
    control->mvInitialize(nullptr, 120, VaultTypeStandard, TreeType{0});
    for (const LONG code : {3, 8, 12})
        EXPECT_EQ(opensNothing(row(code, 100)), 0U) << code;
    for (const LONG code : {8, 12})
        EXPECT_EQ(opensNothing(row(code, 108)), 0U) << code;
    expectList(row(3, 139), "140 Yes -1\n141 No -1\n", 100);
}

TEST_F(ValueClicks, AllOtherRowsAreEditedAsText)
{
    const struct {
        LONG code, op;
    } cases[] = {{-1, -1},    {0, 0},      {1, 1},      {4, 100},   {5, 100},
                 {5, 108},    {7, 125},    {11, 106},   {1000, 99}, {1000, 129},
                 {1000, 136}, {1000, 138}, {1000, 140}, {1000, 160}};
    for (const auto& [code, op] : cases) {
        row(code, op);
        click(0, 2);
        EXPECT_EQ(whatIsOpen(), "'before'") << code << " " << op;
        control->finishEditing();
        control->mvOnClickValue(topRow(0), 2, cellOf(0, 2));
        EXPECT_EQ(whatIsOpen(), "'before'") << code << " " << op;
        control->finishEditing();
    }
}

TEST_F(ValueClicks, OnADarkDesktopAListIsAsWhiteAsTheRows)
{
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    letEventsPass(); // the window is told
    row(6, 100);
    click(0, 2);
    ASSERT_NE(list(), nullptr);
    const QWidget* const parts[] = {list(), list()->view(), list()->view()->viewport()};
    for (const QWidget* part : parts) {
        EXPECT_EQ(part->palette().color(QPalette::Base), QColor(Qt::white));
        EXPECT_EQ(part->palette().color(QPalette::Text), control->palette().color(QPalette::Text));
    }
    EXPECT_EQ(list()->grab().toImage().pixelColor(6, list()->height() / 2), QColor(Qt::white));
    QApplication::setPalette(light);
}

TEST_F(ValueClicks, TheHostMayDeleteTheRowOrTheControlWhileAFailureIsTold)
{
    for (const LONG code : {3, 9, 10}) {
        library->getDocTypes.results = library->getUsers.results =
            library->getGroups.results = {E_FAIL};
        row(code, 100);
        duringMessage = [this] { control->mvDeleteNode(topRow(0).mhItem); };
        click(0, 2);
        EXPECT_EQ(whatIsOpen(), "nothing") << code;
    }
    library->getDocTypes.results = {E_FAIL};
    row(3, 100);
    duringMessage = [this] { control.reset(); };
    click(0, 2);
    EXPECT_EQ(control, nullptr);
}

} // namespace
} // namespace condtree::test
