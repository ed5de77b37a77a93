#include "ClickFixture.h"

#include <QScrollBar>

namespace condtree::test {

ClickFixture::ClickFixture()
{
    viewport = control->viewport();
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(hostField);
    layout->addWidget(control.get());
    QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, &window, [this] {
        ++changes;
        if (duringChange)
            duringChange();
    });
}

ClickFixture::~ClickFixture()
{
    duringChange = nullptr;
    duringText = nullptr;
    duringClock = nullptr;
    control.reset();
}

void ClickFixture::start(KiroVaultType vaultType, TreeType treeType)
{
    initialize(vaultType, treeType);
    loaded({});
    window.setGeometry(40, 40, 700, 400);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    control->setFocus();
}

VarTreeCtrlNode& ClickFixture::only(const RowBefore& row)
{
    closeAll();
    loaded({});
    return row.code == NodePlaceholder ? placeholder() : add(row);
}

VarTreeCtrlNode& ClickFixture::add(const RowBefore& row, VarTreeCtrlNode* group)
{
    VarTreeCtrlNode* parent = group == nullptr ? control->mpoGetNode(TVI_ROOT) : group;
    auto* node = makeNode(row).release();
    control->mhAddNode(parent, node, true);
    if (row.code == NodeOr) {
        control->mhAddNode(node, makeNode({NodePlaceholder}).release(), false);
        control->expandAll();
    }
    return *node;
}

VarTreeCtrlNode& ClickFixture::placeholder() const
{
    return *control->mpoGetNode(TVI_ROOT)->mChildren.back();
}

QRect ClickFixture::itemRect(const VarTreeCtrlNode& row) const
{
    const auto& model = static_cast<const ConditionModel&>(*control->model());
    return control->visualRect(model.indexOf(row.mhItem));
}

QPoint ClickFixture::placeOf(const VarTreeCtrlNode& row, int column) const
{
    const int width = viewport->width();
    int left = 0;
    for (int before = 0; before < column; ++before)
        left += control->miGetColumnSize(before, width);
    return {left + control->miGetColumnSize(column, width) / 2, itemRect(row).center().y()};
}

void ClickFixture::press(QPoint at, Qt::MouseButton button)
{
    QTest::mousePress(window.windowHandle(), button, {}, viewport->mapTo(&window, at));
}

void ClickFixture::move(QPoint at)
{
    QTest::mouseMove(window.windowHandle(), viewport->mapTo(&window, at));
}

void ClickFixture::release(QPoint at, Qt::MouseButton button)
{
    QTest::mouseRelease(window.windowHandle(), button, {}, viewport->mapTo(&window, at));
}

void ClickFixture::click(QPoint at, Qt::MouseButton button)
{
    press(at, button);
    release(at, button);
}

CommandCombo* ClickFixture::combo() const
{
    for (auto* found : window.findChildren<CommandCombo*>(QStringLiteral("900"))) {
        if (found->isVisible())
            return found;
    }
    return nullptr;
}

int ClickFixture::combos() const
{
    return static_cast<int>(window.findChildren<CommandCombo*>(QStringLiteral("900")).size());
}

bool ClickFixture::isOpen() const
{
    return combo() != nullptr && combo()->isDroppedDown();
}

ChoiceListView& ClickFixture::list() const
{
    return dynamic_cast<ChoiceListView&>(*combo()->view());
}

FocusEdit* ClickFixture::editor() const
{
    auto* found = window.findChild<FocusEdit*>(QStringLiteral("902"));
    return found != nullptr && found->isVisible() ? found : nullptr;
}

std::string ClickFixture::selected() const
{
    const int index = combo()->selection();
    return index < 0 ? "" : combo()->entry(index).text.toStdString();
}

std::string ClickFixture::entries() const
{
    std::string text;
    for (int i = 0; i < combo()->entryCount(); ++i) {
        const ChoiceEntry& entry = combo()->entry(i);
        text += (i == 0 ? "" : ", ") + std::to_string(entry.code) + " " + entry.text.toStdString();
        if (entry.image >= 0)
            text += " img" + std::to_string(entry.image);
    }
    return text;
}

int ClickFixture::indexOf(const char* text) const
{
    for (int i = 0; i < combo()->entryCount(); ++i) {
        if (combo()->entry(i).text == QString::fromUtf8(text))
            return i;
    }
    ADD_FAILURE() << "no entry " << text << " in " << entries();
    return -1;
}

std::string ClickFixture::opens(QPoint at)
{
    closeAll();
    std::string opened = "nothing";
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (auto* picker = window.findChild<PickDateDlg*>(); picker && picker->isVisible()) {
            opened = "picker";
            picker->close();
        }
    });
    watch.start(0);
    click(at);
    if (isOpen())
        opened = "list: " + entries();
    else if (editor() != nullptr)
        opened = "editor: " + editor()->text().toStdString();
    else if (combo() != nullptr)
        opened = "a closed list";
    closeAll();
    return opened;
}

void ClickFixture::closeAll()
{
    control->mvClearCombo();
    if (FocusEdit* open = editor())
        open->finish();
    letEventsPass();
}

void ClickFixture::clickEntry(int index)
{
    list().scrollTo(combo()->model()->index(index, 0));
    const QRect rect = list().visualRect(combo()->model()->index(index, 0));
    QWidget* box = list().window();
    QTest::mouseClick(popup(), Qt::LeftButton, {}, list().viewport()->mapTo(box, rect.center()));
    letEventsPass();
}

void ClickFixture::choose(const char* text)
{
    ASSERT_TRUE(isOpen());
    const int index = indexOf(text);
    ASSERT_GE(index, 0);
    clickEntry(index);
}

void ClickFixture::typeText(QWindow* into, const char* text)
{
    for (const char* letter = text; *letter != '\0'; ++letter)
        QTest::keyClick(into, *letter);
}

void ClickFixture::letEventsPass()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace condtree::test
