// How the editor opens, what it is to its surroundings, and how it looks.
#include "FocusEditFixture.h"

#include <condtree/editing/ClassNameMessage.h>
#include <condtree/presentation/CDPIHelper.h>

#include <QDialog>
#include <QImage>
#include <QShortcut>

namespace condtree::test {
namespace {

/// The process's helper, at resolutions of the test's own.
class DpiForTest final : public CDPIHelper {
public:
    DpiForTest(int dpiX, int dpiY)
        : CDPIHelper([](int) { return 16; }, dpiX, dpiY)
    {
        deleteInstance();
        pInstance = this;
    }
    ~DpiForTest() override { pInstance = nullptr; }
};

TEST_F(FocusEdits, OpenOverTheirCellWithTheTextSelectedAndTheParentsFont)
{
    QFont font = around.parent->font();
    font.setItalic(true);
    around.parent->setFont(font);
    open(QStringLiteral("Berg"));
    EXPECT_EQ(editor->geometry(), QRect(10, 20, 200, 22));
    EXPECT_EQ(editor->parentWidget(), around.parent);
    EXPECT_EQ(editor->property("controlId").toInt(), 902);
    EXPECT_EQ(editor->objectName(), QStringLiteral("902"));
    EXPECT_EQ(line().text(), QStringLiteral("Berg"));
    EXPECT_EQ(line().selectedText(), QStringLiteral("Berg"));
    EXPECT_EQ(line().cursorPosition(), 4);
    EXPECT_TRUE(line().font().italic());
    EXPECT_FALSE(line().isReadOnly());
    EXPECT_TRUE(editor->isVisible());
    EXPECT_TRUE(editor->isCompletionOn());
    EXPECT_TRUE(editor->commitsOnFinish());
    EXPECT_FALSE(editor->updatesLive());
    EXPECT_FALSE(editor->isFinished());
    EXPECT_EQ(value->editor, editor) << "who asks whether the value is read-only";
}

TEST_F(FocusEdits, TakeTheFocusByAMessageNotAtOnce)
{
    around.beside->setFocus();
    editor = new FocusEdit;
    ASSERT_TRUE(editor->Create(*value, cell, around.parent, timers.services()));
    EXPECT_TRUE(around.beside->hasFocus());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(QApplication::focusWidget(), editor->focusProxy());
}

TEST_F(FocusEdits, AreNotCreatedWithoutAParentNorTwice)
{
    const auto orphan = std::make_unique<FocusEdit>();
    EXPECT_FALSE(orphan->Create(*value, cell, nullptr, timers.services()));
    EXPECT_EQ(orphan->text(), CString());
    orphan->setText(QStringLiteral("nowhere"));
    orphan->finish();
    orphan->abandon();
    EXPECT_TRUE(value->commits.empty());
    open();
    EXPECT_FALSE(editor->Create(*value, cell, around.parent, timers.services()));
    editor->finish();
    EXPECT_FALSE(editor->Create(*value, cell, around.parent, timers.services()));
}

TEST_F(FocusEdits, AreNotCreatedWhenTheirParentDiesOfAnAnswer)
{
    QPointer<QWidget> parent(around.parent);
    value->onGet = [&] { delete parent.data(); };
    const auto orphan = std::make_unique<FocusEdit>();
    EXPECT_FALSE(orphan->Create(*value, cell, around.parent, timers.services()));
    EXPECT_EQ(orphan->parentWidget(), nullptr);
}

struct HeightRow {
    int dpiX, dpiY, cellHeight, height;
};

TEST_F(FocusEdits, AreTwentyPixelsOf96DotsPerInchHighAtLeast)
{
    for (const HeightRow& row :
         {HeightRow{96, 96, 5, 20}, HeightRow{96, 96, 20, 20}, HeightRow{96, 96, 33, 33},
          HeightRow{96, 144, 22, 30}, HeightRow{192, 96, 12, 20}, HeightRow{96, 101, 1, 21}}) {
        const DpiForTest helper(row.dpiX, row.dpiY);
        cell.bottom = cell.top + row.cellHeight;
        open();
        EXPECT_EQ(editor->geometry(), QRect(10, 20, 200, row.height)) << row.dpiY;
        editor->finish();
    }
}

TEST_F(FocusEdits, MakeTheResolutionsHelperOnFirstUse)
{
    CDPIHelper::deleteInstance();
    open();
    EXPECT_NE(CDPIHelper::pInstance, nullptr);
}

TEST_F(FocusEdits, HaveTheLinesAndTheReadOnlynessThatTheObjectSays)
{
    value->multiLine = true;
    value->readOnly = true;
    open(QStringLiteral("a\nb"));
    EXPECT_TRUE(lines().isReadOnly());
    EXPECT_EQ(lines().textCursor().selectedText().size(), 3);
    EXPECT_EQ(lines().lineWrapMode(), QPlainTextEdit::NoWrap);
    type("x");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), QStringLiteral("a\nb"));
    EXPECT_EQ(value->pastes, 0);
}

QImage pictureOf(FocusEdit& editor, qreal scale)
{
    QImage image(editor.size() * scale, QImage::Format_ARGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    editor.render(&image);
    const QString folder = qEnvironmentVariable("CONDTREE_PICTURES");
    if (!folder.isEmpty()) {
        static int number = 0;
        image.save(QStringLiteral("%1/editor-%2.png").arg(folder).arg(number++));
    }
    return image;
}

TEST_F(FocusEdits, AreOpaqueWithABorderThatCanBeSeenInLightAndDark)
{
    for (const bool dark : {false, true}) {
        for (const bool border : {true, false}) {
            for (const bool multiLine : {false, true}) {
                QPalette palette;
                palette.setColor(QPalette::Base, dark ? QColor(30, 30, 30, 128) : Qt::white);
                palette.setColor(QPalette::Text, dark ? Qt::white : Qt::black);
                around.window->setPalette(palette);
                value->border = border;
                value->multiLine = multiLine;
                open(QStringLiteral("Quay"));
                for (const int scale : {1, 2}) {
                    const QImage image = pictureOf(*editor, scale);
                    const int base = palette.color(QPalette::Base).red();
                    EXPECT_EQ(qRed(image.pixel(0, 0)), border ? 255 - (dark ? 0 : 255) : base);
                    EXPECT_EQ(qGreen(image.pixel(image.width() - 3 * scale, 3 * scale)), base)
                        << "what is below shines through";
                }
                editor->finish();
            }
        }
    }
}

TEST_F(FocusEdits, KeepClicksOnTheirBorderFromWhatLiesBelow)
{
    struct Clicks final : QObject {
        int presses = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            presses += event->type() == QEvent::MouseButtonPress;
            return false;
        }
    } clicks;
    around.parent->installEventFilter(&clicks);
    open();
    QTest::mouseClick(editor, Qt::LeftButton, {}, QPoint(0, 0));
    EXPECT_EQ(clicks.presses, 0);
}

struct NameRow {
    std::size_t capacity;
    std::u16string answer;
};

TEST_F(FocusEdits, TellTheNameOfTheirClass)
{
    open();
    EXPECT_EQ(FocusEdit::classNameMessage(), ClassNameMessage::messageType());
    EXPECT_GE(FocusEdit::classNameMessage(), QEvent::User);
    for (const auto& [capacity, answer] :
         {NameRow{0, u"~~~~~~~~~~~~"}, NameRow{1, std::u16string(u"\0~~~~~~~~~~~", 12)},
          NameRow{6, std::u16string(u"Focus\0~~~~~~", 12)},
          NameRow{9, std::u16string(u"FocusEdi\0~~~", 12)},
          NameRow{10, std::u16string(u"FocusEdit\0~~", 12)},
          NameRow{12, std::u16string(u"FocusEdit\0~~", 12)}}) {
        std::u16string buffer(12, u'~');
        ClassNameMessage message(buffer.data(), capacity);
        EXPECT_TRUE(QCoreApplication::sendEvent(editor, &message));
        EXPECT_EQ(buffer, answer) << capacity;
    }
    ClassNameMessage nowhere(nullptr, 10);
    EXPECT_TRUE(QCoreApplication::sendEvent(editor, &nowhere));
}

/// A dialog that takes keys in all the ways that there are.
struct HostDialog {
    QDialog dialog;
    int taken = 0;
    QWidget* parent = new QWidget(&dialog);

    HostDialog()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab}) {
            auto* shortcut = new QShortcut(key, &dialog);
            QObject::connect(shortcut, &QShortcut::activated, &dialog, [this] { ++taken; });
        }
        parent->resize(200, 50);
        new QLineEdit(&dialog);
        dialog.show();
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
};

TEST_F(FocusEdits, KeepReturnEscapeAndTabFromTheDialog)
{
    for (const bool multiLine : {false, true}) {
        HostDialog host;
        value->multiLine = multiLine;
        value->text = QStringLiteral("kept");
        editor = new FocusEdit;
        ASSERT_TRUE(editor->Create(*value, cell, host.parent, timers.services()));
        QCoreApplication::sendPostedEvents();
        field = editor->focusProxy();
        ASSERT_TRUE(field->hasFocus());
        const auto pressIn = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            QTest::keyClick(host.dialog.windowHandle(), key, modifiers);
        };
        pressIn(Qt::Key_End);
        pressIn(Qt::Key_Escape);
        pressIn(Qt::Key_Tab);
        pressIn(Qt::Key_Backtab, Qt::ShiftModifier);
        ASSERT_FALSE(editor->isFinished());
        EXPECT_TRUE(field->hasFocus());
        EXPECT_EQ(editor->text(), multiLine ? QStringLiteral("kept\t") : QStringLiteral("kept"));
        EXPECT_TRUE(value->commits.empty()) << "Escape and Tab end nothing";
        pressIn(Qt::Key_Return);
        expectClosed();
        EXPECT_EQ(value->commits.size(), 1U);
        value->commits.clear();
        EXPECT_TRUE(host.parent->hasFocus()) << "the focus stays beside the cell";
        EXPECT_TRUE(host.dialog.isVisible());
        EXPECT_EQ(host.taken, 0);
    }
}

} // namespace
} // namespace condtree::test
