#include "Conditions.h"

#include <condtree/model/ComboCmd.h>

#include <algorithm>
#include <array>

namespace condtree::bench {

namespace {

constexpr std::size_t kVariables = 1000;
constexpr std::size_t kRecordsAGroup = 10;

struct TypedValue {
    LONG type;
    LONG op;
    const char16_t* value;
};
constexpr std::array<TypedValue, 5> kValues{{
    {VarText, StringContains, u"a value of ordinary length"},
    {VarNumberA, NumberBiggerThan, u"1250"},
    {VarNumberB, NumberLessOrEqual, u"0.75"},
    {VarBinary, BinaryEqualTo, u"Yes"},
    {VarDate, DateBiggerOrEqual, u"2024-02-29"},
}};

CString variableName(std::size_t index)
{
    return QStringLiteral("Card variable %1").arg(index);
}

TransCond makeRow(std::size_t position, RowKind kind)
{
    // Neighbours name variables that lie far apart in the list.
    const std::size_t variable = position * 617 % kVariables;
    const TypedValue& value = kValues[variable % kValues.size()];
    TransCond row;
    row.lRowKind = kind;
    row.lCondType = 2;
    row.oName = SpStr(variableName(variable));
    row.oExtra = SpStr(u"n/a");
    row.oValue = SpStr(value.value);
    row.lArgType = value.type;
    row.lOperator = value.op;
    return row;
}

class Variables final : public SpUpdateVariableDefinition {
public:
    HRESULT mhGetVariables(Lst<VarDef*>& variables, bool) override
    {
        for (std::size_t i = 0; i < kVariables; ++i) {
            auto* const variable = SpNew<VarDef>();
            const CString name = variableName(i);
            variable->mlId = static_cast<LONG>(i) + 1;
            variable->mlType = kValues[i % kValues.size()].type;
            std::ranges::transform(name, variable->mName, [](QChar c) { return c.unicode(); });
            variables.AddTail(variable);
        }
        return S_OK;
    }
};

class Manager final : public SpMgr {
public:
    SpProc* mpoGetProc(SPID id) override
    {
        return id == SPID_VARIABLE_DEFINITION ? &m_variables : nullptr;
    }
    bool mbGetConnectInfo(SpConnectInfo&) override { return false; }

private:
    Variables m_variables;
};

} // namespace

std::vector<TransCond> makeCondition(std::size_t count)
{
    std::vector<TransCond> records;
    records.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t place = i % (kRecordsAGroup + 1);
        if (place == 0)
            records.emplace_back().lRowKind = RowKindGroup;
        else
            records.push_back(makeRow(i, place < kRecordsAGroup ? RowKindInGroup : RowKindTop));
    }
    return records;
}

ManagerPtr makeManager()
{
    return ManagerPtr(new Manager);
}

} // namespace condtree::bench
