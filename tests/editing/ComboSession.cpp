#include <condtree/editing/ComboSession.h>

#include <condtree/platform/Services.h>

#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <QWidget>

using namespace condtree;

namespace {

int textWidth(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().horizontalAdvance(text) + widget.fontMetrics().averageCharWidth();
}

class ComboSessionTest : public testing::Test {
protected:
    ComboSessionTest()
    {
        services.systemMetric = [](int metric) {
            return metric == SM_CXVSCROLL ? 17 : metric == SM_CXEDGE ? 2 : 0;
        };
        services.string = [this](LONG id, const char16_t* key, const char16_t* section,
                                 const char16_t* text) {
            asked << QStringLiteral("%1 %2 %3")
                         .arg(id)
                         .arg(QString::fromUtf16(key), QString::fromUtf16(section));
            return id == 100 ? QStringLiteral("equals") : QString::fromUtf16(text);
        };
        window.resize(400, 300);
        window.show();
        session.create(&window, {10, 10, 110, 210}, services, nullptr);
    }

    [[nodiscard]] QStringList texts() const
    {
        QStringList found;
        for (int i = 0; i < session.combo()->entryCount(); ++i)
            found << session.combo()->entry(i).text;
        return found;
    }
    static SharedChoices shared(ChoiceEntries entries)
    {
        return std::make_shared<const ChoiceEntries>(std::move(entries));
    }
    static QString letters(int count, char letter = 'i')
    {
        return QString(count, QLatin1Char(letter));
    }
    static void passAway() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QStringList asked;
    Services services;
    QWidget window;
    ComboSession session;
};

TEST_F(ComboSessionTest, AddsAnEntryAndRemembersItsIndex)
{
    session.add(5, QStringLiteral("FilePath"), 5, 0);
    session.add(2, QStringLiteral("Remove"), 4, 0);
    session.add(7, QStringLiteral("Revision"), -1, 99);
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("Remove"), QStringLiteral("FilePath"),
                                    QStringLiteral("Revision")}));
    EXPECT_EQ(session.combo()->entry(0), (ChoiceEntry{2, QStringLiteral("Remove"), 4}));
    // The index at which each was inserted, not the one to which it was moved.
    EXPECT_EQ(session.indexOf(5), 0);
    EXPECT_EQ(session.indexOf(2), 0);
    EXPECT_EQ(session.indexOf(7), 2);
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(ComboSessionTest, TheLastEntryOfACodeWinsAndAnUnknownCodeIsTheFirstEntrys)
{
    session.add(1106, QStringLiteral("a"), 3, 0);
    session.add(1106, QStringLiteral("b"), 3, 1);
    EXPECT_EQ(session.indexOf(1106), 1);
    EXPECT_EQ(session.indexOf(12), 0);
    session.selectCode(1106);
    EXPECT_EQ(session.combo()->selection(), 1);
    session.selectCode(99);
    EXPECT_EQ(session.combo()->selection(), 0);
}

TEST_F(ComboSessionTest, CodesFrom100To999AreNamedByTheStringLibrary)
{
    session.add(99, QStringLiteral("A"), -1, 0);
    session.add(100, QStringLiteral("B"), -1, 1);
    session.add(999, QStringLiteral("C"), -1, 2);
    session.add(1000, QStringLiteral("D"), -1, 3);
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("A"), QStringLiteral("equals"),
                                    QStringLiteral("C"), QStringLiteral("D")}));
    EXPECT_EQ(asked, (QStringList{QStringLiteral("100 OpName Search"),
                                  QStringLiteral("999 OpName Search")}));
}

TEST_F(ComboSessionTest, TheLongestTextByCharactersWidensTheDroppedList)
{
    const QWidget& combo = *session.combo();
    session.add(1, letters(60), -1, 0);
    EXPECT_EQ(session.combo()->droppedWidth(), textWidth(combo, letters(60)) + 19 + 17 + 2 * 2);
    const int before = session.combo()->droppedWidth();
    // Wider, but not longer.
    session.add(1, letters(60, 'W'), -1, 1);
    EXPECT_EQ(session.combo()->droppedWidth(), before);
    session.add(1, letters(61, 'W'), -1, 2);
    EXPECT_EQ(session.combo()->droppedWidth(),
              textWidth(combo, letters(61, 'W')) + 19 + 17 + 2 * 2);
    // Longer, but narrower.
    session.add(1, letters(62), -1, 3);
    EXPECT_EQ(session.combo()->droppedWidth(), textWidth(combo, letters(62)) + 19 + 17 + 2 * 2);
}

TEST_F(ComboSessionTest, TheDroppedListIsNeverNarrowerThanTheBox)
{
    session.add(1, letters(1), -1, 0);
    EXPECT_EQ(session.combo()->droppedWidth(), 100);
}

TEST_F(ComboSessionTest, TheLongestTextIsForgottenByAClickAlone)
{
    session.add(1, letters(60), -1, 0);
    session.create(&window, {10, 10, 110, 210}, services, nullptr);
    session.add(1, letters(59), -1, 0);
    EXPECT_EQ(session.combo()->droppedWidth(), 0);
    session.resetLongest();
    session.add(1, letters(50), -1, 0);
    EXPECT_EQ(session.combo()->droppedWidth(),
              textWidth(*session.combo(), letters(50)) + 19 + 17 + 2 * 2);
}

/// Adding many is adding one after the other.
struct Adding {
    const char* name;
    int before;
    int start;
    ChoiceEntries entries;
};

class AddAll : public ComboSessionTest, public testing::WithParamInterface<Adding> {};

TEST_P(AddAll, IsAddingOneAfterTheOther)
{
    const auto fill = [this](ComboSession& filled, bool atOnce) {
        filled.create(&window, {10, 10, 110, 210}, services, nullptr);
        for (int i = 0; i < GetParam().before; ++i)
            filled.add(i, QString(i + 20, QLatin1Char('a')), i, i);
        int position = GetParam().start;
        if (atOnce)
            filled.addAll(shared(GetParam().entries), position);
        for (const ChoiceEntry& entry : atOnce ? ChoiceEntries() : GetParam().entries)
            filled.add(entry.code, entry.text, entry.image, position < 0 ? position : position++);
    };
    ComboSession other;
    fill(session, true);
    fill(other, false);
    ASSERT_EQ(session.combo()->entryCount(), other.combo()->entryCount());
    for (int i = 0; i < other.combo()->entryCount(); ++i)
        EXPECT_EQ(session.combo()->entry(i), other.combo()->entry(i)) << i;
    for (const LONG code : {0, 1, 2, 100, 142, 1106, 1120, 2001})
        EXPECT_EQ(session.indexOf(code), other.indexOf(code)) << code;
    EXPECT_EQ(session.combo()->droppedWidth(), other.combo()->droppedWidth());
    EXPECT_EQ(session.combo()->selection(), -1);
}

ChoiceEntries mixed()
{
    return {{1106, QStringLiteral("short"), 3},
            {1120, QString(40, QLatin1Char('i')), 3},
            {1106, QString(40, QLatin1Char('W')), 3},
            {1120, QStringLiteral("last"), 3}};
}

ChoiceEntries operators()
{
    return {{100, QStringLiteral("="), 0}, {142, QStringLiteral("State"), -1}, {100, {}, 1}};
}

INSTANTIATE_TEST_SUITE_P(
    All, AddAll,
    testing::Values(Adding{"ToAnEmptyList", 0, 0, mixed()}, Adding{"AtTheEnd", 3, 3, mixed()},
                    Adding{"BeyondTheEnd", 3, 9, mixed()}, Adding{"Negative", 3, -1, mixed()},
                    Adding{"InTheMiddle", 3, 1, mixed()}, Adding{"Operators", 2, 2, operators()},
                    Adding{"ShorterThanThoseBefore", 40, 40, operators()},
                    Adding{"Nothing", 2, 2, {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(ComboSessionTest, ASharedTailIsNotCopied)
{
    const SharedChoices tail = shared(mixed());
    session.addAll(tail, 0);
    EXPECT_EQ(&session.combo()->entry(2), &(*tail)[2]);
    session.addAll(nullptr, 0);
    EXPECT_EQ(session.combo()->entryCount(), 4);
}

TEST_F(ComboSessionTest, TypingFindsInATailThatWasOfferedBefore)
{
    const SharedChoices tail =
        shared({{1106, QStringLiteral("Alpha"), -1}, {1106, QStringLiteral("Beta"), -1}});
    const SharedChoices another = shared({{1106, QStringLiteral("Beta"), -1}});
    for (const auto& [offered, row] :
         {std::pair(tail, 2), std::pair(tail, 2), std::pair(another, 1), std::pair(tail, 2)}) {
        session.create(&window, {10, 10, 110, 210}, services, nullptr);
        session.add(2, QStringLiteral("Remove"), -1, 0);
        session.addAll(offered, 1);
        session.show();
        QTest::keyClicks(session.combo()->view(), QStringLiteral("be"));
        EXPECT_EQ(session.combo()->view()->currentIndex().row(), row);
    }
}

TEST_F(ComboSessionTest, ANewListTakesThePlaceOfTheOneBefore)
{
    const QPointer<CommandCombo> before = session.combo();
    session.add(5, QStringLiteral("FilePath"), 5, 0);
    session.add(7, QStringLiteral("Revision"), 5, 1);
    session.show();
    EXPECT_TRUE(before->isDroppedDown());
    int told = 0;
    QObject::connect(before, &CommandCombo::closedUp, [&told] { ++told; });
    CommandCombo& now = session.create(&window, {10, 10, 110, 210}, services, nullptr);
    EXPECT_EQ(session.combo(), &now);
    EXPECT_EQ(window.findChildren<CommandCombo*>(QStringLiteral("900")).size(), 1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(now.entryCount(), 0);
    EXPECT_EQ(session.indexOf(7), 0);
    QCoreApplication::processEvents();
    passAway();
    EXPECT_EQ(before, nullptr);
    EXPECT_EQ(told, 0);
}

TEST_F(ComboSessionTest, ClearingTakesTheListAway)
{
    session.add(5, QStringLiteral("FilePath"), 5, 0);
    session.show();
    EXPECT_TRUE(session.combo()->isVisible());
    session.clear();
    EXPECT_EQ(session.combo(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    session.clear();
    session.add(5, QStringLiteral("FilePath"), 5, 0);
    session.addAll(shared(mixed()), 0);
    session.selectCode(5);
    session.show();
    EXPECT_EQ(session.combo(), nullptr);
}

TEST_F(ComboSessionTest, TheStringLibraryMayTakeTheListAway)
{
    services.string = [this](LONG, const char16_t*, const char16_t*, const char16_t*) {
        session.clear();
        passAway();
        return QString();
    };
    session.create(&window, {10, 10, 110, 210}, services, nullptr);
    session.add(100, QStringLiteral("="), 0, 0);
    EXPECT_EQ(session.combo(), nullptr);
    session.create(&window, {10, 10, 110, 210}, services, nullptr);
    session.addAll(shared(operators()), 0);
    EXPECT_EQ(session.combo(), nullptr);
}

TEST_F(ComboSessionTest, TheMetricsMayTakeTheListAway)
{
    bool takes = false;
    services.systemMetric = [&](int) {
        if (takes)
            session.clear();
        passAway();
        return 2;
    };
    session.create(&window, {10, 10, 110, 210}, services, nullptr);
    takes = true;
    session.add(1, letters(60), 0, 0);
    EXPECT_EQ(session.combo(), nullptr);
}

TEST_F(ComboSessionTest, TheListMayGoWithItsParent)
{
    auto parent = std::make_unique<QWidget>();
    session.create(parent.get(), {10, 10, 110, 210}, services, nullptr);
    parent.reset();
    EXPECT_EQ(session.combo(), nullptr);
    session.clear();
    session.create(&window, {10, 10, 110, 210}, services, nullptr);
    EXPECT_NE(session.combo(), nullptr);
}

} // namespace
