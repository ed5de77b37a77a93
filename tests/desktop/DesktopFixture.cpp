#include "DesktopFixture.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>

namespace condtree::test {

DesktopFixture::DesktopFixture()
{
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(hostField);
    layout->addWidget(control);
    QObject::connect(control, &CondTreeCtrl::conditionChanged, &window, [this] { ++changes; });
    const CString url = SpSqliteUrl(folder.filePath(QStringLiteral("sample.db")));
    EXPECT_EQ(SpMakeSampleDatabase(url), S_OK);
    manager = SpConnect(url, QStringLiteral("admin"), nullptr);
}

DesktopFixture::~DesktopFixture()
{
    delete control;
    if (manager != nullptr)
        manager->Release();
}

void DesktopFixture::start(TreeType treeType)
{
    ASSERT_NE(manager, nullptr);
    control->mvInitialize(manager, 120, KiroVaultType{0}, treeType);
    control->mvLoad({});
    window.setGeometry(100, 100, 900, 500);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

VarTreeCtrlNode& DesktopFixture::add(LONG code, const char* name, const char* value, LONG op,
                                     LONG arg, VarTreeCtrlNode* group)
{
    auto* node = new VarTreeCtrlNode(code);
    node->mName = QString::fromUtf8(name);
    node->mValue = QString::fromUtf8(value);
    node->mlOperator = op;
    node->mlArgType = arg;
    control->mhAddNode(group == nullptr ? control->mpoGetNode(TVI_ROOT) : group, node, true);
    return *node;
}

VarTreeCtrlNode& DesktopFixture::placeholder() const
{
    return *control->mpoGetNode(TVI_ROOT)->mChildren.back();
}

std::string DesktopFixture::rows() const
{
    return rowsBelow(*control->mpoGetNode(TVI_ROOT));
}

QPoint DesktopFixture::placeOf(const VarTreeCtrlNode& row, int column) const
{
    QModelIndex index;
    const std::function<QModelIndex(const VarTreeCtrlNode&)> indexOf =
        [&](const VarTreeCtrlNode& node) -> QModelIndex {
        if (node.mpParent == nullptr)
            return {};
        const auto& level = node.mpParent->mChildren;
        const auto place = std::find(level.begin(), level.end(), &node) - level.begin();
        return control->model()->index(static_cast<int>(place), 0, indexOf(*node.mpParent));
    };
    const int width = control->viewport()->width();
    int left = 0;
    for (int before = 0; before < column; ++before)
        left += control->miGetColumnSize(before, width);
    return {left + control->miGetColumnSize(column, width) / 2,
            control->visualRect(indexOf(row)).center().y()};
}

// Two quick clicks on one place would be a double click.
void DesktopFixture::click(const VarTreeCtrlNode& row, int column, int button)
{
    m_aside = -m_aside;
    hand.click(*control->viewport(), placeOf(row, column) + QPoint(m_aside, 0), button);
}

QComboBox* DesktopFixture::combo() const
{
    for (auto* found : control->findChildren<QComboBox*>(QStringLiteral("900"))) {
        if (found->isVisible())
            return found;
    }
    return nullptr;
}

bool DesktopFixture::isOpen() const
{
    return combo() != nullptr && combo()->view()->isVisible();
}

void DesktopFixture::open(const VarTreeCtrlNode& row, int column)
{
    click(row, column);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isOpen(); }));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(combo()->view()->window()));
}

void DesktopFixture::waitForEditor()
{
    ASSERT_TRUE(QTest::qWaitFor([this] {
        const auto* editor = control->findChild<QWidget*>(QStringLiteral("902"));
        return editor != nullptr && editor->isAncestorOf(QApplication::focusWidget());
    }));
}

void DesktopFixture::expectClosed()
{
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo() == nullptr; }));
}

void DesktopFixture::choose(const char* text)
{
    ASSERT_TRUE(isOpen());
    const int entry = combo()->findText(QString::fromUtf8(text), Qt::MatchExactly);
    ASSERT_GE(entry, 0) << text;
    const QModelIndex index = combo()->model()->index(entry, 0);
    QAbstractItemView& view = *combo()->view();
    view.scrollTo(index);
    hand.click(*view.viewport(), view.visualRect(index).center());
    expectClosed();
}

} // namespace condtree::test
