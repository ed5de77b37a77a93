// Nothing of a text is lost or changed in the editor.
#include "FocusEditFixture.h"

#include <QClipboard>
#include <QGuiApplication>

#include <rapidcheck/gtest.h>

namespace condtree::test {
namespace {

/// Code units that an edit may change, among others that the machine's fonts can draw: controls,
/// surrogates with and without their other half, noncharacters, signs of direction.
CString anyText()
{
    const auto units = *rc::gen::container<std::vector<char16_t>>(rc::gen::oneOf(
        rc::gen::inRange<char16_t>(0, 0x250), rc::gen::inRange<char16_t>(0x5D0, 0x5EA),
        rc::gen::inRange<char16_t>(0x2000, 0x2070), rc::gen::inRange<char16_t>(0x3040, 0x30A0),
        rc::gen::inRange<char16_t>(0xDC00, 0xE010), rc::gen::inRange<char16_t>(0xFDD0, 0xFDF0),
        rc::gen::inRange<char16_t>(0xFFF0, 0xFFFF),
        rc::gen::elementOf(std::vector<char16_t>{u'\r', u'\n', 0, 0x85, 0xA0, 0x2028, 0x2029,
                                                 0xD83D, 0xD83D, 0xFEFF, 0xFFFF})));
    CString text;
    for (const char16_t unit : units)
        text += QChar(unit);
    return text;
}

/// What an edit commits that nobody changed.
CString committedUnchanged(const CString& text, bool multiLine, bool byDocument)
{
    Value value;
    Timers timers;
    QWidget parent;
    value.multiLine = multiLine;
    value.text = byDocument ? CString() : text;
    auto* editor = new FocusEdit;
    RC_ASSERT(editor->Create(value, {0, 0, 100, 20}, &parent, timers.services()));
    if (byDocument)
        editor->setText(text);
    editor->finish();
    RC_ASSERT(value.commits.size() == 1U);
    return value.commits.front();
}

RC_GTEST_PROP(FocusEditTexts, AnUnchangedLineComesBackAsItWas, ())
{
    const CString text = anyText();
    RC_ASSERT(committedUnchanged(text, false, *rc::gen::arbitrary<bool>()) == text);
}

RC_GTEST_PROP(FocusEditTexts, UnchangedLinesComeBackAsTheyWere, ())
{
    const CString text = anyText();
    RC_ASSERT(committedUnchanged(text, true, *rc::gen::arbitrary<bool>()) == text);
}

RC_GTEST_PROP(FocusEditTexts, APastedTextStaysAsItIsInALine, ())
{
    const CString text = anyText();
    QGuiApplication::clipboard()->setText(text);
    Value value;
    Timers timers;
    QWidget parent;
    value.text = QStringLiteral("replaced");
    auto* editor = new FocusEdit;
    RC_ASSERT(editor->Create(value, {0, 0, 100, 20}, &parent, timers.services()));
    QTest::keyClick(editor->focusProxy(), Qt::Key_V, Qt::ControlModifier);
    editor->finish();
    RC_ASSERT(value.text == text);
}

class FocusEditTextsTyped : public FocusEdits {};

TEST_F(FocusEditTextsTyped, NoTextIsTooLong)
{
    // Not shown: the toolkit takes a second to paint a line so long.
    around.window->hide();
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        const CString megabyte(1 << 20, u'x');
        value->text = megabyte;
        editor = new FocusEdit;
        ASSERT_TRUE(editor->Create(*value, cell, around.parent, timers.services()));
        QTest::keyClick(editor->focusProxy(), Qt::Key_End);
        QTest::keyClick(editor->focusProxy(), Qt::Key_Y);
        QTest::keyClick(editor->focusProxy(), Qt::Key_Return);
        EXPECT_TRUE(value->text == megabyte + u'y');
    }
}

struct BreakRow {
    const char* before;
    const char* after;
};

TEST_F(FocusEditTextsTyped, ChangedLinesHaveTheBreaksThatTheyHadFirst)
{
    for (const auto& [before, after] :
         {BreakRow{"a\r\nb", "a\r\nb!"}, BreakRow{"a\rb", "a\rb!"}, BreakRow{"a\nb", "a\nb!"},
          BreakRow{"a\r\nb\nc", "a\r\nb\r\nc!"}, BreakRow{"\u00A0", "\u00A0!"}}) {
        value->multiLine = true;
        open(QString::fromUtf8(before));
        press(Qt::Key_End, Qt::ControlModifier);
        type("!");
        EXPECT_EQ(editor->text(), QString::fromUtf8(after));
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(editor->text(), QString::fromUtf8(before)) << "undone";
        editor->finish();
        EXPECT_EQ(value->text, QString::fromUtf8(before));
    }
}

TEST_F(FocusEditTextsTyped, TextByTheOwnerIsSelectedAsAWhole)
{
    open(QStringLiteral("value"));
    editor->setText(QStringLiteral("fourth column"));
    EXPECT_EQ(line().selectedText(), QStringLiteral("fourth column"));
    type("x");
    EXPECT_EQ(editor->text(), QStringLiteral("x"));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), QStringLiteral("fourth column"));
}

TEST_F(FocusEditTextsTyped, AreWrittenFromTheRightWhereTheDesktopIs)
{
    around.window->setLayoutDirection(Qt::RightToLeft);
    open(QStringLiteral("שלום"));
    EXPECT_EQ(field->layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(editor->geometry().left(), 10) << "the cell is where it is";
    press(Qt::Key_Return);
    EXPECT_EQ(value->text, QStringLiteral("שלום"));
}

} // namespace
} // namespace condtree::test
