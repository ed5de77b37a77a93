#include "CellHand.h"

#include <QClipboard>
#include <QImage>

namespace condtree::test {
namespace {

/// Texts of all kinds, pasted into a cell as a user does.
class InPlaceTexts : public CellHand {
protected:
    static TransCond author(const QString& value)
    {
        TransCond result = record(RowKindTop, 2, "Author", "", ArgText, StringEqualTo);
        result.oValue = value;
        return result;
    }
    void paste(int column, const QString& text)
    {
        click(0, column);
        letEventsPass();
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(window->windowHandle(), Qt::Key_V, Qt::ControlModifier);
        key(Qt::Key_Return);
        letEventsPass();
    }
    [[nodiscard]] QImage picture() const { return control->viewport()->grab().toImage(); }
};

const std::vector<std::pair<const char*, QString>>& oddTexts()
{
    static const std::vector<std::pair<const char*, QString>> texts = {
        {"control characters", QStringLiteral("a\x01\x02\x1b\x7f\u0085z")},
        {"tabs and line breaks",
         QStringLiteral("one\ttwo\nthree\r\nfour\rfive\u2028six\u2029seven")},
        {"from right to left", QStringLiteral("\u05e9\u05dc\u05d5\u05dd \u0627\u0644\u0633 abc")},
        {"marks of direction", QStringLiteral("\u202eabc\u202c\u200f\u2066x\u2069")},
        {"pairs", QStringLiteral("\U0001F600\U00020000 e\u0301")},
        {"half a pair", QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b") + QChar(0xDC00)},
        {"a null", QStringLiteral("a") + QChar(0) + QStringLiteral("b")},
        {"no characters", QString(QChar(0xFFFE)) + QChar(0xFFFF) + QChar(0xFEFF)},
        {"blanks around", QStringLiteral("  x  ")},
        {"looks like an operator", QStringLiteral(">=5")}};
    return texts;
}

TEST_F(InPlaceTexts, WhatIsPastedIsStoredAsItIsInBothColumnsAndSavedAndLoadedAgain)
{
    for (const auto& [name, text] : oddTexts()) {
        only(author(QStringLiteral("old")));
        changes = 0;
        paste(2, text);
        paste(3, text);
        EXPECT_EQ(topRow(0).mValue, text) << name;
        EXPECT_EQ(topRow(0).mExtra, text) << name;
        EXPECT_EQ(changes, 2) << name;
        const std::vector<TransCond> saved = savedRecords();
        EXPECT_EQ(saved.at(0).oValue.str(), text) << name;
        EXPECT_EQ(saved.at(0).oExtra.str(), text) << name;
        loaded(saved);
        EXPECT_EQ(topRow(0).mValue, text) << name;
        EXPECT_EQ(topRow(0).mExtra, text) << name;
    }
}

TEST_F(InPlaceTexts, OpeningAndReturnLeaveATextAsItWas)
{
    for (const auto& [name, text] : oddTexts()) {
        only(author(text));
        changes = 0;
        click(0, 2);
        EXPECT_EQ(editor()->text(), text) << name;
        letEventsPass();
        key(Qt::Key_Return);
        EXPECT_EQ(topRow(0).mValue, text) << name;
        EXPECT_EQ(changes, 0) << name;
    }
}

TEST_F(InPlaceTexts, AMegabyteIsPastedSavedAndLoadedWhole)
{
    const QString megabyte = QStringLiteral("pump valve \u05e9 ").repeated(90'000);
    ASSERT_GT(megabyte.size(), 1024 * 1024);
    only(author(QStringLiteral("old")));
    paste(2, megabyte);
    EXPECT_TRUE(topRow(0).mValue == megabyte);
    EXPECT_EQ(changes, 1);
    const std::vector<TransCond> saved = savedRecords();
    EXPECT_TRUE(saved.at(0).oValue.str() == megabyte);
    loaded(saved);
    EXPECT_TRUE(topRow(0).mValue == megabyte);
}

TEST_F(InPlaceTexts, ARowLooksTheSameHoweverMuchFollowsWhatItsCellCanShow)
{
    const QString start = QStringLiteral("pump ").repeated(300);
    only(author(start));
    const QImage shortText = picture();
    topRow(0).mValue = start + QStringLiteral("valve ").repeated(200'000);
    EXPECT_EQ(picture(), shortText);
}

TEST_F(InPlaceTexts, LineBreaksAreDrawnAsBlanksOnOneLine)
{
    only(author(QStringLiteral("one two three four")));
    const QImage blanks = picture();
    topRow(0).mValue = QStringLiteral("one\ntwo\rthree\u2028four");
    EXPECT_EQ(picture(), blanks);
    topRow(0).mValue = QStringLiteral("one two three fife");
    EXPECT_NE(picture(), blanks);
}

} // namespace
} // namespace condtree::test
