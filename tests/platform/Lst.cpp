#include <condtree/platform/Lst.h>
#include <condtree/platform/SpStr.h>
#include <condtree/platform/StoredProcs.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace condtree {

namespace {

template <class T>
std::vector<T> walked(const Lst<T>& list)
{
    std::vector<T> result;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        result.push_back(list.GetNext(position));
    return result;
}

/// A record that tells when it is destroyed.
struct Record {
    int number = 0;
    std::vector<int>* destroyed = nullptr;
    Record() = default;
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    ~Record()
    {
        if (destroyed != nullptr)
            destroyed->push_back(number);
    }
};

Record* newRecord(int number, std::vector<int>& destroyed)
{
    auto* record = SpNew<Record>();
    record->number = number;
    record->destroyed = &destroyed;
    return record;
}

std::string lengthErrorOf(std::size_t count, std::size_t limit)
{
    try {
        requireRoomInList(count, limit);
    } catch (const std::length_error& error) {
        return error.what();
    }
    return "none";
}

} // namespace

static_assert(!std::is_copy_constructible_v<Lst<int>> && !std::is_copy_assignable_v<Lst<int>>);
static_assert(std::is_same_v<Lst<VarDef*>::value_type, VarDef*>);

TEST(Lst, IsEmptyAtFirst)
{
    const Lst<int> list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
}

TEST(Lst, KeepsTheOrderOfBothEnds)
{
    Lst<int> list;
    list.AddTail(2);
    list.AddTail(3);
    list.AddHead(1);
    list.AddTail(4);
    EXPECT_EQ(walked(list), (std::vector{1, 2, 3, 4}));
    EXPECT_EQ(list.GetCount(), 4);
    EXPECT_FALSE(list.IsEmpty());
}

TEST(Lst, IsWalkedFromTheHeadToANullPosition)
{
    Lst<int> list;
    list.AddTail(1);
    const POSITION second = list.AddTail(2);
    POSITION position = list.GetHeadPosition();
    EXPECT_EQ(list.GetNext(position), 1);
    EXPECT_EQ(position, second);
    list.GetNext(position) = 20;
    EXPECT_EQ(position, nullptr);
    EXPECT_EQ(walked(list), (std::vector{1, 20}));
}

TEST(Lst, GivesThePositionOfWhatItTakes)
{
    Lst<int> list;
    POSITION tail = list.AddTail(5);
    POSITION head = list.AddHead(4);
    EXPECT_EQ(head, list.GetHeadPosition());
    EXPECT_EQ(list.GetNext(tail), 5);
    EXPECT_EQ(tail, nullptr);
}

TEST(Lst, IsTakenOffAtEitherEnd)
{
    Lst<int> list;
    for (const int value : {1, 2, 3, 4})
        list.AddTail(value);
    EXPECT_EQ(list.RemoveHead(), 1);
    EXPECT_EQ(list.RemoveTail(), 4);
    EXPECT_EQ(walked(list), (std::vector{2, 3}));
    EXPECT_EQ(list.RemoveTail(), 3);
    EXPECT_EQ(list.RemoveHead(), 2);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    list.AddTail(7);
    EXPECT_EQ(walked(list), (std::vector{7}));
}

TEST(Lst, ForgetsEverythingAtOnce)
{
    Lst<int> list;
    list.AddTail(1);
    list.AddTail(2);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    list.AddHead(9);
    EXPECT_EQ(walked(list), (std::vector{9}));
}

TEST(Lst, DestroysItsElementsWithItself)
{
    const CString witness(3, u'w');
    {
        Lst<SpStr> list;
        list.AddTail(SpStr(witness));
        list.AddTail(SpStr(witness));
        EXPECT_FALSE(witness.isDetached());
    }
    EXPECT_TRUE(witness.isDetached());
}

TEST(Lst, LeavesWhatItsElementsPointAt)
{
    std::vector<int> destroyed;
    Record* record = newRecord(1, destroyed);
    {
        Lst<Record*> list;
        list.AddTail(record);
        list.RemoveAll();
        list.AddTail(record);
    }
    EXPECT_TRUE(destroyed.empty());
    SpDelete(record);
    EXPECT_EQ(destroyed, std::vector{1});
}

TEST(Lst, RefusesToOutgrowItsLimit)
{
    EXPECT_EQ(lengthErrorOf(4, 5), "none");
    EXPECT_EQ(lengthErrorOf(5, 5), "list too long");
    EXPECT_EQ(lengthErrorOf(6, 5), "list too long");
    EXPECT_NO_THROW(requireRoomInList(2147483646));
    EXPECT_THROW(requireRoomInList(2147483647), std::length_error);
}

TEST(AutoLst, DestroysItsRecordsFromTheTail)
{
    std::vector<int> destroyed;
    {
        AutoLst<Lst<Record*>> list;
        for (const int number : {1, 2, 3})
            list.AddTail(newRecord(number, destroyed));
        EXPECT_EQ(list.GetCount(), 3);
        EXPECT_TRUE(destroyed.empty());
    }
    EXPECT_EQ(destroyed, (std::vector{3, 2, 1}));
}

TEST(AutoLst, DestroysTheTextsOfItsRecords)
{
    const CString witness(3, u'w');
    {
        AutoLst<Lst<SpDocType::DocType*>> types;
        auto* type = SpNew<SpDocType::DocType>();
        type->moName = witness;
        type->moSecond = witness;
        types.AddTail(type);
        types.AddTail(nullptr);
    }
    EXPECT_TRUE(witness.isDetached());
}

TEST(AutoLst, DoesNotOwnWhatWasTakenOff)
{
    std::vector<int> destroyed;
    Record* taken = nullptr;
    {
        AutoLst<Lst<Record*>> list;
        list.AddTail(newRecord(1, destroyed));
        list.AddTail(newRecord(2, destroyed));
        taken = list.RemoveHead();
    }
    EXPECT_EQ(destroyed, std::vector{2});
    SpDelete(taken);
}

} // namespace condtree
