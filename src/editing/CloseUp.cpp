#include "CloseUp.h"

#include <condtree/editing/NodeChange.h>
#include <condtree/editing/NodeWatch.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/model/ConditionKind.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ReferenceData.h>
#include <condtree/values/CommandCatalogue.h>
#include <condtree/values/DefaultValue.h>
#include <condtree/values/OperatorRules.h>

#include <algorithm>
#include <array>
#include <limits>
#include <tuple>
#include <utility>

namespace condtree {

namespace {

/// What of a row counts as a change. The object type that was picked does not: nobody sees it.
auto condition(const VarTreeCtrlNode& node)
{
    return std::tuple(node.mlCode, node.mName, node.mValue, node.mExtra, node.mlArgType,
                      node.mlOperator, node.mlStateId, node.mlUserOrGroupId, node.mChildren.size());
}

/// The first person of a list; null when there is none.
const SpuLightData* firstOf(const Lst<SpuLightData*>& people)
{
    for (POSITION position = people.GetHeadPosition(); position != nullptr;) {
        if (const SpuLightData* person = people.GetNext(position))
            return person;
    }
    return nullptr;
}

constexpr LONG kFirstUserChoice = 2000;
constexpr LONG kFirstGroupChoice = 3000;

/// Applies one choice to one row. Each step says whether the next may follow: not when the row is
/// gone, nor when a list could not be loaded.
class Choice final {
public:
    Choice(VarTreeCtrlNode& node, Chosen chosen, const CloseUpContext& context)
        : m_node(node)
        , m_chosen(std::move(chosen))
        , m_context(context)
        , m_watch(context.tree, node)
        , m_before(condition(node))
    {
    }

    [[nodiscard]] CloseUpResult apply();

private:
    struct Band {
        LONG first;
        LONG last;
        bool (Choice::*step)();
    };
    static const std::array<Band, 19> kBands;

    bool remove();
    bool becomeGroup() { return change(m_chosen.code); }
    bool becomeKind();
    bool becomeChildRefState();
    bool becomeUser();
    bool becomeUserGroup();
    bool becomeOtherName();
    bool becomeVariable();
    bool takeOperator();
    bool takeValue();
    bool takeFixedValue();
    bool takeState();
    bool takeUser();
    bool takeUserGroup();

    bool change(LONG code);
    bool setKind(LONG code);
    bool setPerson(People& people, ShownName shown);
    bool setDefaultValue();
    bool followOperator(LONG oldOperator);
    bool loadStates();
    bool isLoaded(bool success);
    void setFirstState();

    VarTreeCtrlNode& m_node;
    Chosen m_chosen;
    CloseUpContext m_context;
    NodeWatch m_watch;
    decltype(condition(std::declval<const VarTreeCtrlNode&>())) m_before;
    CloseUpEnd m_end = CloseUpEnd::HideCombo;
    bool m_isRemoved = false;
};

// Ascending.
const std::array<Choice::Band, 19> Choice::kBands{{
    {And, Or, &Choice::becomeGroup},
    {Remove, Remove, &Choice::remove},
    {Category, Category, &Choice::becomeKind},
    {DocTypeChoice, DocTypeChoice, &Choice::takeFixedValue},
    {FilePath, Revision, &Choice::becomeKind},
    {ChildRefState, ChildRefState, &Choice::becomeChildRefState},
    {User, User, &Choice::becomeUser},
    {Group, Group, &Choice::becomeUserGroup},
    {NodeOtherName, NodeOtherName, &Choice::becomeOtherName},
    {NodeHistoricState, NodeHistoricState, &Choice::becomeChildRefState},
    {StringEqualTo, ObjectTypeFile - 1, &Choice::takeOperator},
    {ObjectTypeFile, ObjectTypeItem, &Choice::takeFixedValue},
    {BinaryEqualTo, BinaryEqualTo, &Choice::takeOperator},
    {BinaryYes, BinaryNo, &Choice::takeValue},
    {StateChoice, StateChoice, &Choice::takeState},
    {StateChoice + 1, VariableBase - 1, &Choice::takeOperator},
    {VariableBase, kFirstUserChoice - 1, &Choice::becomeVariable},
    {kFirstUserChoice, kFirstGroupChoice - 1, &Choice::takeUser},
    {kFirstGroupChoice, std::numeric_limits<LONG>::max(), &Choice::takeUserGroup},
}};

CloseUpResult Choice::apply()
{
    const auto band =
        std::ranges::lower_bound(kBands, m_chosen.code, {}, [](const Band& b) { return b.last; });
    if (band != kBands.end() && band->first <= m_chosen.code)
        (this->*band->step)();
    const bool isChanged = m_watch.isThere() ? condition(m_node) != m_before : m_isRemoved;
    if (isChanged || m_end == CloseUpEnd::HideCombo)
        m_context.tree.invalidate();
    return {m_end, isChanged};
}

bool Choice::change(LONG code)
{
    return changeNodeType(m_node, code, m_context.tree, m_context.strings);
}

bool Choice::setKind(LONG code)
{
    m_node.mlCode = code;
    m_context.tree.setImage(m_watch.item(), rowImageIndex(code));
    return m_watch.isThere();
}

bool Choice::isLoaded(bool success)
{
    if (!success)
        m_end = CloseUpEnd::LeaveCombo;
    return success && m_watch.isThere();
}

bool Choice::loadStates()
{
    return isLoaded(m_context.reference.states.mbInitWorkflowStates());
}

bool Choice::remove()
{
    m_isRemoved = true;
    m_context.tree.remove(m_watch.item());
    return false;
}

bool Choice::becomeKind()
{
    const LONG kind = m_chosen.code;
    m_node.mName = m_chosen.text;
    if (!change(keptOperator(kind, m_node.mlOperator)))
        return false;
    if (m_node.mlCode != kind && kind != FilePath && !isChildRefState(kind))
        m_node.mValue.clear();
    if (!setKind(kind))
        return false;
    if (!isChildRefState(kind))
        m_node.mExtra.clear();
    return true;
}

bool Choice::becomeChildRefState()
{
    if (!becomeKind())
        return false;
    if (m_node.mlOperator != StringEqualTo && m_node.mlOperator != StringNotEqualTo)
        return true;
    if (!loadStates())
        return false;
    if (m_node.mValue.isEmpty())
        setFirstState();
    return true;
}

bool Choice::becomeUser()
{
    return becomeKind() && setPerson(m_context.reference.users, m_context.settings.shownUserName());
}

bool Choice::becomeUserGroup()
{
    return becomeKind() && setPerson(m_context.reference.groups, ShownName::First);
}

bool Choice::becomeOtherName()
{
    CardVariables& variables = m_context.reference.variables;
    m_node.mName = m_chosen.text;
    const ArgType type = variables.meGetArgumentType(m_chosen.text);
    if (!m_watch.isThere())
        return false;
    m_node.mlArgType = type;
    const ComboCmd op = variables.meGetDefaultOp(m_chosen.text);
    return m_watch.isThere() && change(op) && setKind(NodeOtherName);
}

bool Choice::becomeVariable()
{
    CardVariables& variables = m_context.reference.variables;
    m_node.mName = m_chosen.text;
    const ArgType type = variables.meGetArgumentType(m_chosen.text);
    if (!m_watch.isThere())
        return false;
    const LONG oldType = std::exchange(m_node.mlArgType, type);
    LONG op = m_node.mlOperator;
    if (mustResetOperator(type, op))
        op = variables.meGetDefaultOp(m_chosen.text);
    if (!m_watch.isThere() || !change(op))
        return false;
    if (type == ArgBinary && oldType != ArgBinary)
        m_node.mValue.clear();
    return setKind(NodeVariable) && setDefaultValue();
}

bool Choice::takeOperator()
{
    const LONG oldOperator = m_node.mlOperator;
    if (!change(m_chosen.code))
        return false;
    m_node.mlOperator = m_chosen.code; // also where the node's code is the operator already
    return setDefaultValue() && followOperator(oldOperator);
}

/// The value of a child reference's state is a state's name, with TextCompare a text of its own.
bool Choice::followOperator(LONG oldOperator)
{
    if (!isChildRefState(m_node.mlCode) || m_chosen.code == oldOperator)
        return true;
    if (m_chosen.code == TextCompare) {
        m_node.mValue.clear();
        m_node.mlStateId = -1;
        return true;
    }
    if (!loadStates())
        return false;
    if (oldOperator == TextCompare)
        m_node.mValue.clear();
    if (m_node.mValue.isEmpty())
        setFirstState();
    return true;
}

bool Choice::takeValue()
{
    m_node.mValue = m_chosen.text;
    return true;
}

bool Choice::takeFixedValue()
{
    return takeValue() && change(m_chosen.code);
}

bool Choice::takeState()
{
    m_node.mValue = m_chosen.text;
    // The list offers the table as it stands; a text from elsewhere names no state.
    const auto& states = m_context.reference.states.inOrder();
    const auto state = states.find(m_chosen.index);
    m_node.mlStateId = state == states.end() ? -1 : state->second.first;
    return change(m_chosen.code);
}

bool Choice::takeUser()
{
    m_node.mValue = m_chosen.text;
    m_node.mlUserOrGroupId =
        m_context.reference.users.idOf(m_node.mValue, m_context.settings.shownUserName());
    return true;
}

bool Choice::takeUserGroup()
{
    m_node.mValue = m_chosen.text;
    m_node.mlUserOrGroupId = m_context.reference.groups.idOf(m_node.mValue, ShownName::First);
    return true;
}

/// Gives the row the first person of a list. One of an empty list keeps its id.
bool Choice::setPerson(People& people, ShownName shown)
{
    m_node.mValue.clear();
    if (!isLoaded(people.init()))
        return false;
    if (const SpuLightData* person = firstOf(people.list())) {
        m_node.mValue = offeredName(*person, shown).toString();
        m_node.mlUserOrGroupId = person->mlId;
    }
    return true;
}

/// Gives the row the first state. Without states, one whose list failed to load included, it keeps
/// the id that it has: it may be a good one whose name is not known.
void Choice::setFirstState()
{
    const auto& states = m_context.reference.states.inOrder();
    const auto first = states.find(0);
    if (first == states.end())
        return;
    m_node.mlStateId = first->second.first;
    m_node.mValue = first->second.second;
}

bool Choice::setDefaultValue()
{
    if (!m_node.mValue.isEmpty())
        return true;
    const SYSTEMTIME now = m_context.localTime();
    if (!m_watch.isThere())
        return false;
    const auto style = static_cast<std::uint32_t>(m_context.settings.dateStyle);
    if (const auto value = defaultSearchValue(m_node.mlOperator, now, style))
        m_node.mValue = *value;
    return true;
}

} // namespace

LONG keptOperator(LONG kind, LONG current)
{
    // A revision keeps what a text keeps: the whole band, also the numbers that name no operator.
    const auto offered = offeredOperators(kind, ArgText);
    const bool isKept = kind == Revision ? !mustResetOperator(ArgText, current)
                                         : std::ranges::find(offered, current) != offered.end();
    if (isKept)
        return current;
    return kind == FilePath ? StringContains : StringEqualTo;
}

CloseUpResult applyChoice(HTREEITEM clicked, const Chosen& chosen, const CloseUpContext& context)
{
    VarTreeCtrlNode* node = context.tree.node(clicked);
    if (node == nullptr)
        return {CloseUpEnd::LeaveCombo, false};
    return Choice(*node, chosen, context).apply();
}

} // namespace condtree
