// What else is around an open list: the keys of others, its pictures, its width, what is painted
// when it goes.
#include "ClickFixture.h"

#include <condtree/presentation/CDPIHelper.h>

#include <QKeyEvent>
#include <QPaintEvent>
#include <QWheelEvent>

namespace condtree::test {
namespace {

constexpr RowBefore kText{NodeVariable, "Author", "a", "e", 106, 1};
constexpr RowBefore kUser{User, "User", "smith", "", 100, 0, -1, 7};

/// Counts what a widget gets, and handles keys and wheels in its place.
class Receiver final : public QObject {
public:
    explicit Receiver(QWidget& widget) { widget.installEventFilter(this); }
    int inputs = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        const bool isInput = event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel;
        inputs += isInput ? 1 : 0;
        return isInput;
    }
};

/// Counts how often all of a widget is painted.
class WholePaints final : public QObject {
public:
    explicit WholePaints(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint
            && static_cast<QPaintEvent*>(event)->region().boundingRect()
                   == static_cast<QWidget*>(watched)->rect())
            ++count;
        return false;
    }
};

class ListDetails : public ClickFixture {
protected:
    /// The middle pixel of the picture of an entry; an invalid colour for none.
    [[nodiscard]] QColor pictureOf(int entry) const
    {
        const auto icon = combo()->model()->index(entry, 0).data(Qt::DecorationRole).value<QIcon>();
        const QImage image = icon.pixmap(iconSize).toImage();
        return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
    }
    void offerUsersOf(VarTreeCtrlNode& row)
    {
        control->mvOnClickValue(row, 2, {100, 0, 250, 200});
        ASSERT_TRUE(isOpen());
    }
};

struct KeyCase {
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    bool isTheLists;
};
const KeyCase kKeys[] = {
    {"Return", Qt::Key_Return, {}, "\r", false},
    {"Enter", Qt::Key_Enter, Qt::KeypadModifier, "\r", false},
    {"Escape", Qt::Key_Escape, {}, "\x1b", false},
    {"Tab", Qt::Key_Tab, {}, "\t", false},
    {"back Tab", Qt::Key_Backtab, Qt::ShiftModifier, "\t", false},
    {"Ctrl+C", Qt::Key_C, Qt::ControlModifier, "\x03", false},
    {"Ctrl+C with its letter", Qt::Key_C, Qt::ControlModifier, "c", false},
    {"Alt+F", Qt::Key_F, Qt::AltModifier, "f", false},
    {"Down", Qt::Key_Down, {}, "", false},
    {"a letter", Qt::Key_R, {}, "r", true},
    {"a capital", Qt::Key_R, Qt::ShiftModifier, "R", true},
    {"a letter of another script", 0, {}, "\xd0\xb6", true},
    {"Backspace", Qt::Key_Backspace, {}, "\b", true},
};

TEST_F(ListDetails, CommandsThatAnotherWidgetGetsAreItsOwnAndWhatIsTypedIsTheLists)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    click(row, 0);
    ASSERT_TRUE(isOpen());
    Receiver receiver(*hostField);
    for (const KeyCase& c : kKeys) {
        SCOPED_TRACE(c.name);
        receiver.inputs = 0;
        QKeyEvent event(QEvent::KeyPress, c.key, c.modifiers, QString::fromUtf8(c.text));
        QCoreApplication::sendEvent(hostField, &event);
        EXPECT_EQ(receiver.inputs, c.isTheLists ? 0 : 1);
        EXPECT_TRUE(isOpen());
    }
    receiver.inputs = 0;
    QWheelEvent turn({5, 5}, hostField->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(hostField, &turn);
    EXPECT_EQ(receiver.inputs, 0);
}

TEST_F(ListDetails, WithoutVariablesTheListOfKindsStaysHiddenBehindOneMessage)
{
    start();
    library->getVariables.results = {E_FAIL};
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    click(row, 0);
    letEventsPass();
    EXPECT_EQ(messages, std::vector<QString>{QStringLiteral("An unspecified error occurred.")});
    EXPECT_EQ(combo(), nullptr);
    const auto hidden = window.findChildren<CommandCombo*>(QStringLiteral("900"));
    ASSERT_EQ(hidden.size(), 1);
    EXPECT_FALSE(hidden.front()->isDroppedDown());
    std::vector<LONG> codes;
    for (int i = 0; i < hidden.front()->entryCount(); ++i)
        codes.push_back(hidden.front()->entry(i).code);
    EXPECT_EQ(codes, (std::vector<LONG>{1, 3, 5, 6, 7, 8, 2}));
    EXPECT_EQ(control->closeUps, 0);

    click(row, 0);
    EXPECT_TRUE(isOpen()) << "the next attempt";
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(ListDetails, ClosingWithNothingSelectedPaintsTheTreeAnew)
{
    start();
    const VarTreeCtrlNode& row = only(kText);
    click(row, 1);
    ASSERT_TRUE(isOpen());
    hostField->setFocus(); // a tree that gets the focus back is painted anyway
    letEventsPass();
    WholePaints paints(*viewport);
    letEventsPass();
    ASSERT_EQ(paints.count, 0);
    key(Qt::Key_Escape);
    letEventsPass();
    EXPECT_EQ(control->closeUps, 1);
    EXPECT_GE(paints.count, 1);
    EXPECT_EQ(changes, 0);
}

TEST_F(ListDetails, KindsHaveThePicturesOfRowsAndOperatorsTheirOwn)
{
    start();
    ASSERT_EQ(icons->requests.size(), 12U) << "eight of rows, then four strips of operators";
    const VarTreeCtrlNode& row = add({Revision, "Revision", "B", "", 100});
    const auto expectPictures = [this](int column, const VarTreeCtrlNode& node,
                                       const std::vector<std::pair<const char*, int>>& pictures) {
        click(node, column);
        ASSERT_TRUE(isOpen());
        for (const auto& [text, request] : pictures)
            EXPECT_EQ(pictureOf(indexOf(text)), ColouredIcons::colour(request)) << text;
        closeAll();
    };
    expectPictures(0, row,
                   {{"Or", 2}, {"Category", 5}, {"FilePath", 5}, {"Remove", 4}, {"Author", 3}});
    expectPictures(1, row,
                   {{"String Equal To", 8},
                    {"Text Compare", 8},
                    {"Number Equal To", 9},
                    {"Number Bigger Than or Equal", 9},
                    {"Date Equal To", 10},
                    {"Date Bigger Than or Equal", 10}});
    expectPictures(1, add({NodeVariable, "Approved", "Yes", "", 139, 4}),
                   {{"Binary Equal To", 11}});
    click(add(kUser), 2);
    ASSERT_TRUE(isOpen());
    EXPECT_FALSE(pictureOf(0).isValid()) << "values have none";
}

TEST_F(ListDetails, EveryClickLetsTheNextListMeasureItsTextsAnew)
{
    library->variables.push_back({7, VarText, QString(80, QLatin1Char('i'))});
    start();
    VarTreeCtrlNode& user = add(kUser);
    const VarTreeCtrlNode& group = add({NodeOr});
    const auto openLongList = [&] {
        closeAll();
        click(user, 0);
        ASSERT_TRUE(isOpen());
        ASSERT_GT(combo()->droppedWidth(), 0);
        closeAll();
    };
    openLongList();
    offerUsersOf(user);
    EXPECT_EQ(combo()->droppedWidth(), 0) << "shorter than all before";

    const QPoint icon(itemRect(group).left() + 2, itemRect(group).center().y());
    const std::pair<const char*, QPoint> places[] = {
        {"a group's operator", placeOf(group, 1)},
        {"an icon", icon},
        {"below the rows", {placeOf(group, 1).x(), viewport->height() - 2}}};
    for (const auto& [name, place] : places) {
        SCOPED_TRACE(name);
        openLongList();
        click(place);
        ASSERT_EQ(combos(), 0);
        offerUsersOf(user);
        EXPECT_GT(combo()->droppedWidth(), 0);
    }
}

TEST_F(ListDetails, AClickOnTheFirstColumnMakesTheHelperOfResolutions)
{
    start();
    const VarTreeCtrlNode& row = only(kText);
    VarTreeCtrlNode& group = add({NodeOr});
    letEventsPass();
    // Told by code: painting the rows would make it too.
    const auto tell = [this](QPoint inViewport) {
        const QPoint screen = viewport->mapToGlobal(inViewport);
        pointer = {screen.x(), screen.y()};
        LRESULT result = 0;
        control->OnNMClick(nullptr, &result);
    };
    CDPIHelper::deleteInstance();
    tell(placeOf(group, 1));
    EXPECT_EQ(CDPIHelper::pInstance, nullptr) << "opens nothing";
    tell(placeOf(row, 0));
    EXPECT_NE(CDPIHelper::pInstance, nullptr);
    EXPECT_TRUE(isOpen());
}

} // namespace
} // namespace condtree::test
