#include "CellHand.h"

#include <QAbstractItemView>

namespace condtree::test {
namespace {

/// Choosing a value in the list that a click opened.
class ValueChoices : public CellHand {
protected:
    void chooseEntry(int index)
    {
        QWindow* const popup = list()->view()->window()->windowHandle();
        QTest::keyClick(popup, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
        letEventsPass();
    }
    /// Chooses an entry in the list of the first row's value; the row afterwards.
    std::string chosen(int index)
    {
        click(0, 2);
        if (list() == nullptr) {
            ADD_FAILURE() << "no list";
            return {};
        }
        chooseEntry(index);
        EXPECT_EQ(whatIsOpen(), "nothing");
        return toText(topRow(0));
    }
};

TEST_F(ValueChoices, AnObjectType)
{
    only(record(RowKindTop, 5, "", "", ArgText, StringEqualTo));
    EXPECT_EQ(chosen(1), "6 Object Type | BOM op=100 arg=1 object=1");
    EXPECT_EQ(chosen(2), "6 Object Type | Item op=100 arg=1 object=2");
    EXPECT_EQ(chosen(0), "6 Object Type | File op=100 arg=1 object=0");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(chosen(0), "6 Object Type | File op=100 arg=1 object=0");
    EXPECT_EQ(changes, 3) << "the same again is no change";
}

TEST_F(ValueChoices, AUser)
{
    only(record(RowKindTop, 8, "", "7", ArgText, StringNotEqualTo));
    EXPECT_EQ(chosen(1), "9 User | jones op=101 arg=1 id=8");
    EXPECT_EQ(chosen(0), "9 User | smith op=101 arg=1 id=7");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(savedRecords().at(0).oValue.str(), QStringLiteral("7"));
}

TEST_F(ValueChoices, AUserByTheFullName)
{
    library->settings[24] = QStringLiteral("1");
    initialize();
    only(record(RowKindTop, 8, "", "7", ArgText, StringEqualTo));
    EXPECT_EQ(chosen(1), "9 User | Bo Jones op=100 arg=1 id=8");
}

TEST_F(ValueChoices, AGroup)
{
    only(record(RowKindTop, 9, "", "3", ArgText, StringEqualTo));
    EXPECT_EQ(chosen(1), "10 Group | Checkers op=100 arg=1 id=4");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(savedRecords().at(0).oValue.str(), QStringLiteral("4"));
}

TEST_F(ValueChoices, YesOrNo)
{
    only(record(RowKindTop, 2, "Approved", "", ArgBinary, BinaryEqualTo));
    EXPECT_EQ(chosen(0), "1000 Approved | Yes op=139 arg=4");
    EXPECT_EQ(chosen(1), "1000 Approved | No op=139 arg=4");
    EXPECT_EQ(changes, 2);
}

TEST_F(ValueChoices, ADocumentType)
{
    library->docTypes = {{QStringLiteral("Drawing"), {}}, {QStringLiteral("Spec"), {}}};
    only(record(RowKindTop, 4, "", "Old", ArgText, StringEqualTo));
    EXPECT_EQ(chosen(1), "3 Category | Spec op=100 arg=1");
    EXPECT_EQ(changes, 1);
}

TEST_F(ValueChoices, AStateOfAChildReference)
{
    for (const LONG type : {7, 10}) {
        only(record(RowKindTop, type, "", "12", ArgText, StringEqualTo));
        changes = 0;
        const std::string after = chosen(1);
        EXPECT_NE(after.find("| Release.Done op=100 arg=1 state=13"), std::string::npos) << after;
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(savedRecords().at(0).oValue.str(), QStringLiteral("13"));
    }
}

TEST_F(ValueChoices, ClosingTheListByEscapeAppliesNothing)
{
    only(record(RowKindTop, 5, "", "", ArgText, StringEqualTo));
    const std::string before = toText(topRow(0));
    click(0, 2);
    QTest::keyClick(list()->view()->window()->windowHandle(), Qt::Key_Escape);
    letEventsPass();
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(toText(topRow(0)), before);
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace condtree::test
