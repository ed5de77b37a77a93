#include "CardVariables.h"

#include <condtree/platform/NativeText.h>
#include <condtree/refdata/OutOfMemory.h>
#include <condtree/refdata/RecordText.h>
#include <condtree/values/OperatorRules.h>

#include <utility>

namespace condtree {

CardVariables::CardVariables(const ManagerRef& manager, FailureReport report)
    : m_manager(manager)
    , m_report(std::move(report))
{
}

CardVariables::~CardVariables()
{
    while (!mVariables.IsEmpty())
        SpDelete(mVariables.RemoveTail());
}

bool CardVariables::mbInitVars()
{
    if (mbVariablesLoaded)
        return true;
    auto* proc = m_manager.proc<SpUpdateVariableDefinition>(SPID_VARIABLE_DEFINITION);
    if (proc == nullptr)
        return false;
    const HRESULT result = raisingOutOfMemory([&] {
        const HRESULT loaded = proc->mhGetVariables(mVariables, false);
        indexNewVariables();
        return loaded;
    });
    if (FAILED(result)) {
        // A copy: the report shows a message, and this may be gone when it is closed.
        const FailureReport report = m_report;
        report(result);
        return false;
    }
    mbVariablesLoaded = true;
    return true;
}

void CardVariables::indexNewVariables()
{
    POSITION position = m_lastIndexed;
    if (position == nullptr)
        position = mVariables.GetHeadPosition();
    else
        mVariables.GetNext(position);
    while (position != nullptr) {
        const POSITION indexed = position;
        const VarDef* variable = mVariables.GetNext(position);
        if (variable != nullptr)
            addToIndexes(*variable);
        m_lastIndexed = indexed; // only now: a try that ran out of memory is made good by the next
    }
}

void CardVariables::addToIndexes(const VarDef& variable)
{
    const CString name = recordText(variable.mName).toString();
    // The first of all equal names answers to every spelling, later ones' own included.
    const VarDef*& first = m_byFoldedName[localeFoldedKey(name)];
    if (first == nullptr)
        first = &variable;
    m_bySpelling.insert(name, first);
    m_last = &variable;
}

const VarDef* CardVariables::find(const CString& name) const
{
    const auto spelled = m_bySpelling.constFind(name);
    if (spelled != m_bySpelling.cend())
        return *spelled;
    return m_byFoldedName.value(localeFoldedKey(name), nullptr);
}

const VarDef* CardVariables::last() const
{
    return m_last;
}

ComboCmd CardVariables::meGetDefaultOp(const CString& name)
{
    const VarDef* variable = mbInitVars() ? find(name) : nullptr;
    return variable == nullptr ? StringContains : defaultOperator(variable->mlType);
}

ArgType CardVariables::meGetArgumentType(const CString& name)
{
    const VarDef* variable = mbInitVars() ? find(name) : nullptr;
    return variable == nullptr ? ArgText : static_cast<ArgType>(variable->mlType);
}

} // namespace condtree
