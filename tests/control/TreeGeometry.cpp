#include "ControlFixture.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/control/TreeGeometry.h>

#include <QImage>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleOption>
#include <QTest>

#include <map>
#include <optional>
#include <ostream>

namespace condtree {
// So that failures show numbers.
void PrintTo(const TreeHit& hit, std::ostream* out)
{
    *out << hit.item << " 0x" << std::hex << hit.flags << std::dec;
}
} // namespace condtree

namespace condtree::test {
namespace {

constexpr TreeHit kNowhere{nullptr, TVHT_NOWHERE};

/// A style that remembers where the view draws the marks of rows with children, and that may have
/// smaller buttons than it draws.
class SpyStyle final : public QProxyStyle {
public:
    mutable std::map<int, QRect> buttons; ///< by top
    bool hasSmallButtons = false;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element == PE_IndicatorBranch && option->state.testFlag(State_Children))
            buttons[option->rect.top()] = option->rect;
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override
    {
        const QRect rect = QProxyStyle::subElementRect(element, option, widget);
        return element == SE_TreeViewDisclosureItem && hasSmallButtons ? rect.adjusted(5, 0, -7, 0)
                                                                       : rect;
    }
};

class TreeGeometry : public ControlFixture {
protected:
    TreeGeometry()
    {
        initialize();
        control->resize(403, 300);
    }
    void show()
    {
        control->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(control.get()));
    }
    /// A closed group of two rows and a placeholder, a condition, and the placeholder.
    void showGroup()
    {
        loaded({groupRecord(), record(4, 2, "Title", "a", 1, 100), record(4, 1, "", "b", 1, 100),
                record(3, 2, "Author", "c", 1, 100)});
        show();
    }
    void showRows(int count)
    {
        std::vector<TransCond> records;
        for (int row = 0; row < count; ++row)
            records.push_back(record(3, 2, "Author", "a", 1, 100));
        loaded(records);
        show();
    }
    [[nodiscard]] const ConditionModel& model() const
    {
        return static_cast<const ConditionModel&>(*control->model());
    }
    [[nodiscard]] TreeHit hitAt(LONG x, LONG y) const { return hitTest(*control, model(), {x, y}); }
    [[nodiscard]] QModelIndex at(int row, const QModelIndex& parent = {}) const
    {
        return control->model()->index(row, 0, parent);
    }
    [[nodiscard]] RowAreas areasOf(const QModelIndex& index) const
    {
        return rowAreas(*control, index).value();
    }
    [[nodiscard]] int middleOf(const QModelIndex& index) const
    {
        return control->visualRect(index).center().y();
    }
    [[nodiscard]] int width() const { return control->viewport()->width(); }
    [[nodiscard]] int height() const { return control->viewport()->height(); }
    /// Whether a real click at a point opens or closes a row; puts it back.
    bool clickToggles(const QModelIndex& index, int x, int y)
    {
        const bool before = control->isExpanded(index);
        QTest::mouseClick(control->viewport(), Qt::LeftButton, {}, QPoint(x, y));
        const bool isToggled = control->isExpanded(index) != before;
        control->setExpanded(index, before);
        return isToggled;
    }
    /// Clicks along a row toggle it in its button and nowhere else.
    void expectTogglesInTheButtonAlone(const QModelIndex& index)
    {
        int inButton = 0;
        for (int x = 0; x < width(); ++x) {
            const bool isButton = hitAt(x, middleOf(index)).flags == TVHT_ONITEMBUTTON;
            inButton += isButton ? 1 : 0;
            ASSERT_EQ(clickToggles(index, x, middleOf(index)), isButton) << x;
        }
        EXPECT_GT(inButton, 0);
    }

    SpyStyle style; // outlives the control's use of it
    void useSpyStyle() { control->setStyle(&style); }
    void TearDown() override { control.reset(); }
};

TEST_F(TreeGeometry, TheScreenIsAsSharpAsTheTestsSurroundingsAsk)
{
    show();
    EXPECT_DOUBLE_EQ(control->devicePixelRatioF(),
                     qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
}

TEST_F(TreeGeometry, AreasOfAGroupFollowEachOther)
{
    showGroup();
    const RowAreas areas = areasOf(at(0));
    const QRect item = control->visualRect(at(0));
    EXPECT_EQ(areas.row, (RECT{0, item.top(), width(), item.bottom() + 1}));
    EXPECT_EQ(areas.buttonLeft, 0);
    EXPECT_EQ(areas.buttonRight, control->indentation());
    EXPECT_EQ(areas.pictureLeft, control->indentation());
    EXPECT_EQ(areas.textLeft, placeOfRow(*control, at(0))->textLeft);
    EXPECT_GT(areas.textLeft, areas.pictureLeft + iconSize.width());
    EXPECT_GT(areas.textRight, areas.textLeft);
    EXPECT_LE(areas.textRight, areas.textLeft + 8);
}

TEST_F(TreeGeometry, ARowIsHitInItsAreasFromItsFirstPixelToTheViewportsLast)
{
    showGroup();
    const HTREEITEM group = topRow(0).mhItem;
    const RowAreas areas = areasOf(at(0));
    const int y = middleOf(at(0));
    const auto expectFlags = [&](LONG from, LONG to, unsigned flags) {
        EXPECT_LT(from, to);
        for (LONG x = from; x < to; ++x)
            EXPECT_EQ(hitAt(x, y), (TreeHit{group, flags})) << x;
    };
    expectFlags(0, areas.buttonRight, TVHT_ONITEMBUTTON);
    expectFlags(areas.pictureLeft, areas.textLeft, TVHT_ONITEMICON);
    expectFlags(areas.textLeft, areas.textRight, TVHT_ONITEMLABEL);
    expectFlags(areas.textRight, width(), TVHT_ONITEMRIGHT);
    EXPECT_EQ(hitAt(width(), y), (TreeHit{nullptr, TVHT_TORIGHT}));
    EXPECT_EQ(hitAt(-1, y), (TreeHit{nullptr, TVHT_TOLEFT}));
}

TEST_F(TreeGeometry, ARowWithoutChildrenHasNoButton)
{
    showGroup();
    const RowAreas areas = areasOf(at(1));
    EXPECT_EQ(areas.buttonLeft, areas.buttonRight);
    for (LONG x = 0; x < areas.pictureLeft; ++x)
        EXPECT_EQ(hitAt(x, middleOf(at(1))), (TreeHit{topRow(1).mhItem, TVHT_ONITEMINDENT})) << x;
}

TEST_F(TreeGeometry, ARowReachesFromItsFirstLineToTheNextRows)
{
    showGroup();
    const QRect item = control->visualRect(at(1));
    EXPECT_EQ(hitAt(200, item.top() - 1).item, topRow(0).mhItem);
    EXPECT_EQ(hitAt(200, item.top()).item, topRow(1).mhItem);
    EXPECT_EQ(hitAt(200, item.bottom()).item, topRow(1).mhItem);
    EXPECT_EQ(hitAt(200, item.bottom() + 1).item, topRow(2).mhItem);
}

TEST_F(TreeGeometry, BelowTheLastRowIsNowhere)
{
    showGroup();
    const QRect last = control->visualRect(at(2));
    EXPECT_EQ(hitAt(0, last.bottom()).item, topRow(2).mhItem);
    EXPECT_EQ(hitAt(0, last.bottom() + 1), kNowhere);
    EXPECT_EQ(hitAt(200, height() - 1), kNowhere);
}

TEST_F(TreeGeometry, OutsideTheViewportThereAreDirectionsAndNoRows)
{
    showRows(50);
    ASSERT_NE(hitAt(width() - 1, 0).item, nullptr);
    ASSERT_NE(hitAt(0, height() - 1).item, nullptr);
    EXPECT_EQ(hitAt(5, -1), (TreeHit{nullptr, TVHT_ABOVE}));
    EXPECT_EQ(hitAt(5, height()), (TreeHit{nullptr, TVHT_BELOW}));
    EXPECT_EQ(hitAt(-1, -1), (TreeHit{nullptr, TVHT_ABOVE | TVHT_TOLEFT}));
    EXPECT_EQ(hitAt(width(), -1), (TreeHit{nullptr, TVHT_ABOVE | TVHT_TORIGHT}));
    EXPECT_EQ(hitAt(-1, height()), (TreeHit{nullptr, TVHT_BELOW | TVHT_TOLEFT}));
    EXPECT_EQ(hitAt(width(), height()), (TreeHit{nullptr, TVHT_BELOW | TVHT_TORIGHT}));
    EXPECT_EQ(hitAt(-100000, 100000), (TreeHit{nullptr, TVHT_BELOW | TVHT_TOLEFT}));
}

TEST_F(TreeGeometry, WithoutRowsTheViewportIsNowhere)
{
    show();
    EXPECT_EQ(rows(), "no top");
    EXPECT_EQ(hitAt(0, 0), kNowhere);
    EXPECT_EQ(hitAt(width() - 1, height() - 1), kNowhere);
    EXPECT_EQ(hitAt(width(), 0), (TreeHit{nullptr, TVHT_TORIGHT}));
}

TEST_F(TreeGeometry, RowsOfAnOpenGroupAreHitBetweenItAndTheNext)
{
    showGroup();
    const int rowHeight = control->visualRect(at(0)).height();
    const VarTreeCtrlNode& group = topRow(0);
    control->expand(at(0));
    const std::vector<HTREEITEM> expected{group.mhItem,
                                          group.mChildren.at(0)->mhItem,
                                          group.mChildren.at(1)->mhItem,
                                          group.mChildren.at(2)->mhItem,
                                          topRow(1).mhItem,
                                          topRow(2).mhItem};
    for (std::size_t row = 0; row < expected.size(); ++row)
        EXPECT_EQ(hitAt(300, static_cast<LONG>(row) * rowHeight + 1),
                  (TreeHit{expected[row], TVHT_ONITEMRIGHT}))
            << row;
    control->collapse(at(0));
    EXPECT_EQ(hitAt(300, rowHeight + 1).item, topRow(1).mhItem);
}

TEST_F(TreeGeometry, EachLevelIsIndentedAndHasItsButtonBeforeItsPicture)
{
    showGroup();
    VarTreeCtrlNode& inner = *topRow(0).mChildren.at(0);
    control->mhAddNode(&inner, new VarTreeCtrlNode(NodeVariable), false);
    control->expandAll();
    const int indent = control->indentation();
    const QModelIndex second = at(0, at(0));
    const RowAreas areas = areasOf(second);
    EXPECT_EQ(areas.buttonLeft, indent);
    EXPECT_EQ(areas.buttonRight, 2 * indent);
    EXPECT_EQ(areas.pictureLeft, 2 * indent);
    EXPECT_EQ(areas.textLeft, areasOf(at(0)).textLeft + indent);
    const int y = middleOf(second);
    EXPECT_EQ(hitAt(indent - 1, y), (TreeHit{inner.mhItem, TVHT_ONITEMINDENT}));
    EXPECT_EQ(hitAt(indent, y), (TreeHit{inner.mhItem, TVHT_ONITEMBUTTON}));
    EXPECT_EQ(hitAt(2 * indent - 1, y), (TreeHit{inner.mhItem, TVHT_ONITEMBUTTON}));
    EXPECT_EQ(hitAt(2 * indent, y), (TreeHit{inner.mhItem, TVHT_ONITEMICON}));
    const RowAreas third = areasOf(at(0, second));
    EXPECT_EQ(third.buttonLeft, third.buttonRight);
    EXPECT_EQ(third.pictureLeft, 3 * indent);
}

TEST_F(TreeGeometry, ARowInAClosedGroupHasNoAreas)
{
    showGroup();
    EXPECT_FALSE(rowAreas(*control, at(0, at(0))));
    EXPECT_FALSE(rowAreas(*control, QModelIndex()));
    control->expand(at(0));
    EXPECT_TRUE(rowAreas(*control, at(0, at(0))));
}

TEST_F(TreeGeometry, ScrolledRowsAreHitWhereTheyAre)
{
    showRows(60);
    const int rowHeight = control->visualRect(at(0)).height();
    control->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    const int offset = 7 * rowHeight + 5;
    control->verticalScrollBar()->setValue(offset);
    ASSERT_EQ(control->verticalScrollBar()->value(), offset);
    for (int y = 0; y < height(); ++y) {
        const auto row = static_cast<std::size_t>((y + offset) / rowHeight);
        ASSERT_EQ(hitAt(300, y), (TreeHit{topRow(row).mhItem, TVHT_ONITEMRIGHT})) << y;
    }
    EXPECT_EQ(areasOf(at(7)).row, (RECT{0, -5, width(), rowHeight - 5}));
    control->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    control->verticalScrollBar()->setValue(20);
    EXPECT_EQ(hitAt(300, 0).item, topRow(20).mhItem);
    EXPECT_EQ(hitAt(300, rowHeight).item, topRow(21).mhItem);
}

TEST_F(TreeGeometry, ANarrowViewHitsItsRowsInTheIndentation)
{
    showGroup();
    control->expand(at(0));
    control->setMinimumWidth(1);
    control->resize(2 * control->frameWidth() + 12, 300);
    ASSERT_LT(width(), control->indentation());
    const QModelIndex inner = at(0, at(0));
    EXPECT_EQ(areasOf(inner).pictureLeft, 2 * control->indentation());
    EXPECT_EQ(hitAt(5, middleOf(at(0))), (TreeHit{topRow(0).mhItem, TVHT_ONITEMBUTTON}));
    EXPECT_EQ(hitAt(5, control->visualRect(inner).top()),
              (TreeHit{topRow(0).mChildren.at(0)->mhItem, TVHT_ONITEMINDENT}));
    EXPECT_EQ(hitAt(width(), middleOf(at(0))), (TreeHit{nullptr, TVHT_TORIGHT}));
}

TEST_F(TreeGeometry, ARowWithoutAPictureHasItsTextBehindTheIndentation)
{
    icons->result = IconResult::NoLibrary;
    control = std::make_unique<OpenCtrl>(nullptr, services());
    initialize();
    showGroup();
    const RowAreas areas = areasOf(at(1));
    EXPECT_EQ(areas.pictureLeft, areas.textLeft);
    EXPECT_EQ(areas.textLeft, control->indentation());
    EXPECT_EQ(hitAt(areas.textLeft - 1, middleOf(at(1))).flags, TVHT_ONITEMINDENT);
    EXPECT_EQ(hitAt(areas.textLeft, middleOf(at(1))).flags, TVHT_ONITEMLABEL);
}

TEST_F(TreeGeometry, ThePictureIsPaintedInThePicturesArea)
{
    showGroup();
    const QImage image = control->viewport()->grab().toImage();
    const double scale = image.devicePixelRatio();
    const int y = middleOf(at(1));
    int coloured = 0;
    for (int x = 0; x < width(); ++x) {
        const QPoint pixel(static_cast<int>(x * scale), static_cast<int>(y * scale));
        if (image.pixelColor(pixel) != ColouredIcons::colour(3))
            continue;
        ++coloured;
        EXPECT_EQ(hitAt(x, y).flags, TVHT_ONITEMICON) << x;
    }
    EXPECT_GT(coloured, 8);
}

TEST_F(TreeGeometry, TheButtonIsWhereTheViewPaintsIt)
{
    useSpyStyle();
    showGroup();
    control->mhAddNode(topRow(0).mChildren.at(1), new VarTreeCtrlNode(NodeVariable), false);
    control->expand(at(0));
    style.buttons.clear();
    control->viewport()->grab();
    ASSERT_EQ(style.buttons.size(), 2U);
    for (const QModelIndex& index : {at(0), at(1, at(0))}) {
        const RowAreas areas = areasOf(index);
        const QRect painted = style.buttons[areas.row.top];
        EXPECT_EQ(areas.buttonLeft, painted.left());
        EXPECT_EQ(areas.buttonRight, painted.right() + 1);
    }
}

TEST_F(TreeGeometry, ARealClickOpensAGroupInItsButtonAndNowhereElse)
{
    showGroup();
    expectTogglesInTheButtonAlone(at(0));
    control->expand(at(0));
    expectTogglesInTheButtonAlone(at(0));
}

TEST_F(TreeGeometry, ARealClickOpensANestedRowInItsButtonAndNowhereElse)
{
    showGroup();
    control->mhAddNode(topRow(0).mChildren.at(1), new VarTreeCtrlNode(NodeVariable), false);
    control->expand(at(0));
    expectTogglesInTheButtonAlone(at(1, at(0)));
}

TEST_F(TreeGeometry, AStyleWithASmallerButtonLeavesIndentationBesideIt)
{
    useSpyStyle();
    style.hasSmallButtons = true;
    showGroup();
    const RowAreas areas = areasOf(at(0));
    EXPECT_EQ(areas.buttonLeft, 5);
    EXPECT_EQ(areas.buttonRight, control->indentation() - 7);
    EXPECT_EQ(hitAt(4, middleOf(at(0))).flags, TVHT_ONITEMINDENT);
    EXPECT_EQ(hitAt(areas.buttonRight, middleOf(at(0))).flags, TVHT_ONITEMINDENT);
    expectTogglesInTheButtonAlone(at(0));
}

TEST_F(TreeGeometry, AViewWithoutButtonsAtItsTopLevelHasNoneThere)
{
    control->setRootIsDecorated(false);
    showGroup();
    control->mhAddNode(topRow(0).mChildren.at(1), new VarTreeCtrlNode(NodeVariable), false);
    control->expand(at(0));
    const RowAreas areas = areasOf(at(0));
    EXPECT_EQ(areas.buttonLeft, areas.buttonRight);
    EXPECT_EQ(areas.pictureLeft, 0);
    EXPECT_EQ(hitAt(0, middleOf(at(0))).flags, TVHT_ONITEMICON);
    expectTogglesInTheButtonAlone(at(1, at(0)));
}

} // namespace
} // namespace condtree::test
