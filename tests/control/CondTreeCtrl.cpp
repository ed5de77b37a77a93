#include "ControlFixture.h"
#include "support/WarningGuard.h"

#include <condtree/control/CondTreeParts.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/refdata/Registry.h>

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTreeView>

#include <array>
#include <cmath>
#include <functional>

namespace condtree::test {
namespace {

const std::string kEnd = "-1 <Click here to add a condition>\n";

class CondTreeCtrlTest : public ControlFixture {
protected:
    VarTreeCtrlNode* newNode(LONG code, const char* name = "")
    {
        auto* node = new VarTreeCtrlNode(code);
        node->mName = QString::fromUtf8(name);
        return node;
    }
};

// Set-up and teardown

TEST_F(CondTreeCtrlTest, ANewControlHasItsDefaults)
{
    EXPECT_EQ(control->miGetDateFmt(), 120);
    EXPECT_EQ(control->meGetVaultType(), 0);
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT), nullptr);
    EXPECT_EQ(control->miGetColumnSize(0, 400), 100);
    EXPECT_FALSE(control->mbInitVars());
    EXPECT_FALSE(control->mbInitUsers());
    EXPECT_FALSE(control->mbInitGroups());
    EXPECT_FALSE(control->mbInitWorkflowStates());
    EXPECT_FALSE(control->mbInitSettings());
}

TEST_F(CondTreeCtrlTest, InitializeStoresTheCodes)
{
    control->mvInitialize(nullptr, 103, VaultTypeReduced, TreeTypeUsersAndGroups);
    EXPECT_EQ(control->miGetDateFmt(), 103);
    EXPECT_EQ(control->meGetVaultType(), VaultTypeReduced);
    control->mvInitialize(nullptr, -7, static_cast<KiroVaultType>(9), TreeType{});
    EXPECT_EQ(control->miGetDateFmt(), -7);
    EXPECT_EQ(control->meGetVaultType(), 9);
}

TEST_F(CondTreeCtrlTest, InitializeTakesOneReferenceHoweverOftenItIsCalled)
{
    EXPECT_EQ(library->references(), 1);
    initialize();
    EXPECT_EQ(library->references(), 2);
    initialize();
    EXPECT_EQ(library->references(), 2);
}

TEST_F(CondTreeCtrlTest, AnotherManagerReleasesTheOneBefore)
{
    initialize();
    const FakeLibraryHolder other;
    control->mvInitialize(other.get(), 120, KiroVaultType{}, TreeType{});
    EXPECT_EQ(library->references(), 1);
    EXPECT_EQ(other->references(), 2);
    control->mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    EXPECT_EQ(other->references(), 1);
}

TEST_F(CondTreeCtrlTest, ANullManagerKeepsNoneAndReferenceDataStaysUnloaded)
{
    control->mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    EXPECT_FALSE(control->mbInitVars());
    EXPECT_FALSE(control->mbInitWorkflowStates());
    EXPECT_TRUE(control->moGetNameForUserId(7).isEmpty());
    EXPECT_TRUE(messages.empty());
}

TEST_F(CondTreeCtrlTest, TheDestructorReleasesTheManagerAndFreesTheTree)
{
    bool destroyed = false;
    FakeLibrary* own = FakeLibrary::make();
    own->destroyed = &destroyed;
    control->mvInitialize(own, 120, KiroVaultType{}, TreeType{});
    own->Release();
    loaded({groupRecord(), record(4, 8, "", "7", 1, 100)});
    // A text that only a node shares with the test tells when the node is gone.
    CString witness = QStringLiteral("witness") + QString::number(7);
    topRow(0).mChildren[0]->mExtra = witness;
    EXPECT_FALSE(destroyed);
    EXPECT_FALSE(witness.isDetached());
    control.reset();
    EXPECT_TRUE(destroyed);
    EXPECT_TRUE(witness.isDetached());
}

TEST_F(CondTreeCtrlTest, InitializeReadsTheSettingsAndLoadsNoReferenceData)
{
    library->userName = QStringLiteral("jones");
    library->userId = 8;
    initialize();
    EXPECT_EQ(library->askedUserName, QStringLiteral("jones"));
    EXPECT_EQ(library->getUserSettings.calls, 1);
    EXPECT_EQ(library->askedUserId, 8);
    EXPECT_EQ(library->getVariables.calls + library->getUsers.calls + library->getGroups.calls
                  + library->getStates.calls,
              0);
}

TEST_F(CondTreeCtrlTest, InitializeMakesTheResolutionHelper)
{
    CDPIHelper::deleteInstance();
    initialize();
    EXPECT_NE(CDPIHelper::pInstance, nullptr);
}

TEST_F(CondTreeCtrlTest, InitializeKeepsAResolutionHelperThatIsThere)
{
    CDPIHelper::deleteInstance();
    CDPIHelper* const helper = CDPIHelper::get();
    helper->setUseOSDPI(false);
    helper->setVeltrixDPI(144);
    initialize();
    initialize();
    EXPECT_EQ(CDPIHelper::pInstance, helper);
    EXPECT_EQ(CDPIHelper::get()->getDPI_inUse(), 144);
    CDPIHelper::deleteInstance();
}

// The pictures are requested in the order of their indices, so a row's colour tells its index.
TEST_F(CondTreeCtrlTest, RowsCarryThePictureOfTheirKind)
{
    initialize();
    control->mhAddNode(nullptr, newNode(NodeAnd), false);
    const std::array<std::pair<LONG, int>, 14> kRows{{{-1, 0},
                                                      {0, 1},
                                                      {1, 2},
                                                      {2, 3},
                                                      {3, 5},
                                                      {4, 5},
                                                      {5, 5},
                                                      {6, 5},
                                                      {7, 5},
                                                      {8, 5},
                                                      {9, 6},
                                                      {10, 7},
                                                      {11, 3},
                                                      {1000, 3}}};
    for (const auto& [code, image] : kRows) {
        control->mhAddNode(control->mpoGetNode(TVI_ROOT), newNode(code), true);
        const auto icon = control->model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>();
        const QImage picture = icon.pixmap(iconSize).toImage();
        ASSERT_EQ(picture.size(), iconSize);
        EXPECT_EQ(picture.pixelColor(10, 12), ColouredIcons::colour(image)) << code;
    }
}

TEST_F(CondTreeCtrlTest, PicturesAreAskedForInTheirOrderAtTheSizeOfSmallIconsAndAgainEachTime)
{
    const std::vector<QString> names{
        QStringLiteral("PNG_NEW_FILE"),  QStringLiteral("PNG_AND"),
        QStringLiteral("PNG_OR"),        QStringLiteral("PNG_ALL_CARD"),
        QStringLiteral("PNG_DELETE"),    QStringLiteral("PNG_CATEGORIES"),
        QStringLiteral("PNG_USER"),      QStringLiteral("PNG_GROUPS"),
        QStringLiteral("PNG_BLUE_OPS"),  QStringLiteral("PNG_RED_OPS"),
        QStringLiteral("PNG_GREEN_OPS"), QStringLiteral("PNG_YELLOW_OPS")};
    initialize();
    EXPECT_EQ(icons->requests, names);
    EXPECT_EQ(icons->uses, std::vector<int>(12, 3));
    EXPECT_EQ(control->iconSize(), iconSize);
    iconSize = QSize(40, 48); // the lists were made for the first size, and keep it
    initialize();
    EXPECT_EQ(icons->requests.size(), 24U);
    EXPECT_EQ(control->iconSize(), QSize(20, 24));
}

TEST_F(CondTreeCtrlTest, RowPicturesFollowTheDepthOfTheScreen)
{
    for (const auto& [bits, depth] : {std::pair{16, 8}, {32, 32}}) {
        bitsPerPixel = bits;
        QTreeView view;
        CondTreeParts parts(view, services());
        parts.appendImages();
        EXPECT_EQ(parts.images.rows()->image(0).depth(), depth) << bits;
    }
}

TEST_F(CondTreeCtrlTest, MissingPicturesAreNoMessageAndTheRowsAreThere)
{
    icons->result = IconResult::NoLibrary;
    initialize();
    EXPECT_EQ(loaded({record(3, 2, "Author", "a", 1, 100)}),
              "1000 Author | a op=100 arg=1\n" + kEnd);
    EXPECT_FALSE(control->model()->index(0, 0).data(Qt::DecorationRole).isValid());
    EXPECT_TRUE(messages.empty());
}

TEST_F(CondTreeCtrlTest, TheSetUpKeepsWhatItIsGiven)
{
    QTreeView view;
    CondTreeParts parts(view, services());
    EXPECT_EQ(parts.settings.dateStyle, 120);
    EXPECT_EQ(parts.settings.transitionType, 0);
    parts.setUp(nullptr, 103, static_cast<KiroVaultType>(5), static_cast<TreeType>(6));
    EXPECT_EQ(parts.settings.dateStyle, 103);
    EXPECT_EQ(parts.settings.vaultType, 5);
    EXPECT_EQ(parts.settings.treeType, 6);
}

TEST_F(CondTreeCtrlTest, AnyLookUpMayShowAMessageDuringWhichTheControlIsDeleted)
{
    const std::vector<std::function<void()>> lookUps{
        [this] { control->mbInitVars(); },
        [this] { control->mbInitUsers(); },
        [this] { control->mbInitGroups(); },
        [this] { static_cast<void>(control->meGetDefaultOp(QStringLiteral("Due"))); },
        [this] { static_cast<void>(control->meGetArgumentType(QStringLiteral("Due"))); },
        [this] { control->moGetNameForUserId(7); },
        [this] { control->moGetNameForGroupId(3); },
    };
    duringMessage = [this] { control.reset(); };
    for (const auto& lookUp : lookUps) {
        control = std::make_unique<OpenCtrl>(nullptr, services());
        initialize();
        for (FakeLibrary::Operation* operation :
             {&library->getVariables, &library->getUsers, &library->getGroups})
            operation->results = {E_FAIL};
        lookUp();
        EXPECT_EQ(control, nullptr);
    }
    EXPECT_EQ(messages.size(), lookUps.size());
}

TEST_F(CondTreeCtrlTest, PortsThatAreLeftEmptyAreTheRealOnes)
{
    // An icon library for the real port to find: it is there, and no module.
    QFile file(folder.filePath(QStringLiteral("machine.reg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Windows Registry Editor Version 5.00\r\n\r\n"
               "[HKEY_LOCAL_MACHINE\\Software\\Veltrix\\Applications\\Larkspan Enterprise]\r\n"
               "\"Location\"=\""
               + folder.path().toUtf8() + "\"\r\n");
    file.close();
    QFile module(folder.filePath(QStringLiteral("WfIcons.dll")));
    ASSERT_TRUE(module.open(QIODevice::WriteOnly));
    qputenv("CONDTREE_REGISTRY_DIR", folder.path().toUtf8());
    const ExpectWarning warning(QStringLiteral("WfIcons.dll is not loaded"));

    CondTreeCtrl plain(nullptr, Services{});
    plain.mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    plain.mvLoad({});
    EXPECT_EQ(toText(plain), "0 And\n  " + kEnd);
    EXPECT_EQ(warning.count(), 1);
    qunsetenv("CONDTREE_REGISTRY_DIR");
}

// Tree operations

TEST_F(CondTreeCtrlTest, AddingWithoutAParentMakesTheTopAndGivesTheOldOneBack)
{
    VarTreeCtrlNode* first = newNode(NodeAnd, "x");
    EXPECT_EQ(control->mhAddNode(nullptr, first, false), TVI_ROOT);
    EXPECT_EQ(first->mName, QStringLiteral("And"));
    EXPECT_EQ(first->mpParent, nullptr);
    control->mhAddNode(first, newNode(NodeVariable, "a"), false);
    VarTreeCtrlNode* second = newNode(NodeAnd);
    control->mhAddNode(nullptr, second, false);
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT), second);
    EXPECT_EQ(rowsBelow(*first), "1000 a\n");
    delete first;
}

TEST_F(CondTreeCtrlTest, AddingFirstPutsTheNodeBeforeAllSiblings)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    const HTREEITEM item =
        control->mhAddNode(control->mpoGetNode(TVI_ROOT), newNode(NodeVariable, "b"), true);
    EXPECT_EQ(rows(), "1000 b\n1000 Author | a op=100 arg=1\n" + kEnd);
    EXPECT_EQ(control->mpoGetNode(item), &topRow(0));
    EXPECT_EQ(topRow(0).mhItem, item);
}

TEST_F(CondTreeCtrlTest, DeletingTheRootLeavesNoTopAndNothingToSave)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    control->mvDeleteNode(TVI_ROOT);
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT), nullptr);
    EXPECT_EQ(control->model()->rowCount(), 0);
    EXPECT_EQ(saved(), "");
}

TEST_F(CondTreeCtrlTest, DeletingARowTakesItsSubtreeAlong)
{
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100), record(3, 1, "", "b", 1, 100)});
    const HTREEITEM inner = topRow(0).mChildren[0]->mhItem;
    control->mvDeleteNode(topRow(0).mhItem);
    EXPECT_EQ(rows(), "5 FilePath | b op=100 arg=1\n" + kEnd);
    EXPECT_EQ(control->mpoGetNode(inner), nullptr);
    control->mvDeleteNode(inner);
    control->mvDeleteNode(nullptr);
    EXPECT_EQ(rows(), "5 FilePath | b op=100 arg=1\n" + kEnd);
}

TEST_F(CondTreeCtrlTest, NoItemHasNoNode)
{
    loaded({});
    EXPECT_EQ(control->mpoGetNode(nullptr), nullptr);
    EXPECT_EQ(control->mpoGetNode(TVI_FIRST), nullptr);
}

TEST_F(CondTreeCtrlTest, TheLabelFollowsTheCode)
{
    VarTreeCtrlNode node(NodeOr);
    control->mvUpdateTypeName(node);
    EXPECT_EQ(node.mName, QStringLiteral("Or"));
    node.mlCode = NodeAnd;
    control->mvUpdateTypeName(node);
    EXPECT_EQ(node.mName, QStringLiteral("And"));
    node.mlCode = NodePlaceholder;
    control->mvUpdateTypeName(node);
    EXPECT_EQ(node.mName, kPlaceholder);
    node.mlCode = User;
    control->mvUpdateTypeName(node);
    EXPECT_EQ(node.mName, kPlaceholder);
}

TEST_F(CondTreeCtrlTest, ThePictureOfEveryCode)
{
    const std::array<std::pair<LONG, int>, 22> kRows{
        {{-1, 0},   {0, 1},   {1, 2},   {2, 3},   {3, 5},    {4, 5},   {5, 5},   {6, 5},
         {7, 5},    {8, 5},   {9, 6},   {10, 7},  {11, 3},   {12, 5},  {13, 14}, {50, 51},
         {99, 100}, {100, 3}, {107, 3}, {139, 3}, {1000, 3}, {3000, 3}}};
    for (const auto& [code, image] : kRows)
        EXPECT_EQ(OpenCtrl::miGetImage(static_cast<ComboCmd>(code)), image) << code;
}

// Reference data by way of the control

TEST_F(CondTreeCtrlTest, NamesAndIdsResolveBothWays)
{
    initialize();
    EXPECT_EQ(control->mlGetIDForUserName(QStringLiteral("smith")), 0); // nothing is loaded for it
    EXPECT_EQ(control->moGetNameForUserId(7), QStringLiteral("smith"));
    EXPECT_EQ(control->moGetNameForGroupId(4), QStringLiteral("Checkers"));
    EXPECT_EQ(control->mlGetIDForUserName(QStringLiteral("SMITH")), 7);
    EXPECT_EQ(control->mlGetIDForGroupName(QStringLiteral("checkers")), 4);
    EXPECT_EQ(control->moGetNameForUserId(99), QString());
}

TEST_F(CondTreeCtrlTest, TheSecondNameResolvesWhenTheSettingSaysSo)
{
    library->settings = {{24, QStringLiteral("1")}};
    initialize();
    EXPECT_EQ(control->moGetNameForUserId(7), QStringLiteral("Ann Smith"));
    EXPECT_EQ(control->mlGetIDForUserName(QStringLiteral("ann smith")), 7);
    EXPECT_EQ(control->mlGetIDForUserName(QStringLiteral("smith")), 0);
}

TEST_F(CondTreeCtrlTest, TheStateNamesOfTheHostServeUntilTheStatesAreLoaded)
{
    initialize();
    TransCond state = record(3, 7, "", "12", 1, 100);
    EXPECT_EQ(control->moGetWorkflowAndStateName(state), QStringLiteral("Release.Open"));
    std::map<LONG, CString> names{{12, QStringLiteral("Host's")}};
    control->mvSetStateIdNodeNameMap(names);
    names.clear();
    EXPECT_EQ(control->moGetWorkflowAndStateName(state), QStringLiteral("Host's"));
    state.oValue = QStringLiteral("13");
    EXPECT_EQ(control->moGetWorkflowAndStateName(state), QString());
    state.oValue = QStringLiteral(" 12x");
    EXPECT_EQ(control->moGetWorkflowAndStateName(state), QStringLiteral("Host's"));
}

TEST_F(CondTreeCtrlTest, LoadingTheStatesReplacesTheHostsNames)
{
    initialize();
    control->mvSetStateIdNodeNameMap({{12, QStringLiteral("Host's")}, {50, QStringLiteral("x")}});
    TransCond state = record(3, 7, "", "12", 1, 100);
    EXPECT_EQ(control->moGetWorkflowAndStateName(state), QStringLiteral("Release.Open"));
    state.oValue = QStringLiteral("50");
    EXPECT_EQ(control->moGetWorkflowAndStateName(state), QString());
}

TEST_F(CondTreeCtrlTest, VariablesAnswerByNameAndFailuresAreShownOnceACall)
{
    initialize();
    library->getVariables.results = {E_FAIL, E_NOTIMPL};
    EXPECT_EQ(control->meGetDefaultOp(QStringLiteral("Due")), StringContains);
    EXPECT_EQ(control->meGetArgumentType(QStringLiteral("Due")), ArgText);
    EXPECT_EQ(messages,
              (std::vector<QString>{QStringLiteral("An unspecified error occurred."),
                                    QStringLiteral("The called method is not implemented.")}));
    EXPECT_EQ(control->meGetDefaultOp(QStringLiteral("due")), DateEqualTo);
    EXPECT_EQ(control->meGetArgumentType(QStringLiteral("COST")), ArgNumberB);
    EXPECT_EQ(control->meGetArgumentType(QStringLiteral("nobody knows")), ArgText);
    EXPECT_EQ(control->meGetDefaultOp(QStringLiteral("nobody knows")), StringContains);
    EXPECT_TRUE(control->mbInitVars());
    EXPECT_EQ(library->getVariables.calls, 3);
}

TEST_F(CondTreeCtrlTest, AFailureIsReportedAtEachCallUntilOneSucceeds)
{
    initialize();
    library->getGroups.results = {E_FAIL, E_FAIL};
    EXPECT_FALSE(control->mbInitGroups());
    EXPECT_FALSE(control->mbInitGroups());
    EXPECT_TRUE(control->mbInitGroups());
    EXPECT_TRUE(control->mbInitGroups());
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_EQ(library->getGroups.calls, 3);
}

TEST_F(CondTreeCtrlTest, TheOperatorRulesAreReachable)
{
    EXPECT_EQ(OpenCtrl::meGetDefaultOp(VarDate), DateEqualTo);
    EXPECT_EQ(OpenCtrl::meVerifyDefaultOp(DateBiggerOrEqual, QStringLiteral("any")), 135);
    EXPECT_TRUE(OpenCtrl::mbResetComparisonOperator(ArgNumberA, NumberEqualTo));
    EXPECT_FALSE(OpenCtrl::mbResetComparisonOperator(ArgNumberB, NumberEqualTo));
    CString text = QStringLiteral(">=5");
    EXPECT_EQ(OpenCtrl::meParseNumber(text), NumberBiggerOrEqual);
    text = QStringLiteral("<5");
    EXPECT_EQ(OpenCtrl::meParseDate(text), DateLessThan);
    text = QStringLiteral("%5%");
    EXPECT_EQ(OpenCtrl::meParseString(text), StringContains);
    EXPECT_EQ(text, QStringLiteral("5"));
    EXPECT_EQ(OpenCtrl::meGetCompareType(text, ArgBinary, OperatorFromText), BinaryEqualTo);
    OpenCtrl::mvAlterArgument(text, StringNotContains);
    EXPECT_EQ(text, QStringLiteral("!=%5%"));
}

TEST_F(CondTreeCtrlTest, ChildReferenceStatesAreOfferedUnlessTheUsersSettingsSayNo)
{
    EXPECT_TRUE(control->mbChildRefStateEnabled());
    Registry key(*registry);
    key.open(HKEY_CURRENT_USER,
             QStringLiteral("Software\\Veltrix\\Applications\\Larkspan Enterprise\\TamselAdmin"),
             KEY_READ_WRITE);
    ASSERT_NE(key.key(), nullptr);
    registry->setValue(key.key(), QStringLiteral("HasChildRefState"), REG_DWORD, {0, 0, 0, 0});
    EXPECT_FALSE(control->mbChildRefStateEnabled());
}

TEST_F(CondTreeCtrlTest, ColumnsAreMeasuredAndResized)
{
    EXPECT_EQ(control->miGetColumnSize(3, 401), 101);
    control->mvResizeCol(0, 395, 400);
    EXPECT_EQ(control->miGetColumnSize(0, 400), 385);
    EXPECT_EQ(control->miGetColumnSize(1, 400), 5);
    EXPECT_EQ(control->miGetColumnSize(2, 400), 5);
}

TEST_F(CondTreeCtrlTest, SharesComeBackAsTheyWereKept)
{
    const std::array<double, 3> kept{61.0 / 601, 1.0 / 3, 0.2};
    EXPECT_TRUE(control->setColumnShares(kept));
    EXPECT_EQ(control->columnShares(), kept);
    for (const std::array<double, 3>& unusable :
         {std::array{-0.1, 0.2, 0.3}, {0.5, 0.5, 0.1}, {0.1, std::nan(""), 0.1}}) {
        EXPECT_FALSE(control->setColumnShares(unusable));
        EXPECT_EQ(control->columnShares(), kept);
    }
}

TEST_F(CondTreeCtrlTest, ChangedSharesAreToldOnceAndKeptOnesNot)
{
    const QSignalSpy spy(control.get(), &CondTreeCtrl::columnsResized);
    control->mvResizeCol(0, 100, 400); // as it is
    control->mvResizeCol(3, 10, 400);
    control->mvResizeCol(0, 10, 0);
    EXPECT_TRUE(control->setColumnShares({0.25, 0.25, 0.25}));
    EXPECT_FALSE(control->setColumnShares({2, 0, 0}));
    EXPECT_EQ(spy.count(), 0);
    control->mvResizeCol(0, 150, 400);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_TRUE(control->setColumnShares({0.25, 0.25, 0.25}));
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(CondTreeCtrlTest, AHostMayDeleteTheControlWhenItsColumnsAreResized)
{
    QObject::connect(control.get(), &CondTreeCtrl::columnsResized, [this] { control.reset(); });
    control->mvResizeCol(0, 150, 400);
    EXPECT_EQ(control, nullptr);
}

} // namespace
} // namespace condtree::test
