#include "People.h"

#include <condtree/platform/NativeText.h>
#include <condtree/refdata/OutOfMemory.h>
#include <condtree/refdata/RecordText.h>

#include <utility>

namespace condtree {

namespace {

/// Adds a record to an index unless one is there for the key.
template <class Key>
void addFirst(QHash<Key, const SpuLightData*>& index, const Key& key, const SpuLightData* person)
{
    const SpuLightData*& first = index[key];
    if (first == nullptr)
        first = person;
}

CString foldedName(QStringView name)
{
    return simpleFoldedKey(name.toString());
}

} // namespace

QStringView offeredName(const SpuLightData& person, ShownName shown)
{
    const QStringView second = recordText(person.mSecondName);
    return shown == ShownName::Second && !second.isEmpty() ? second : recordText(person.mName);
}

People::People(Kind kind, const ManagerRef& manager, FailureReport report)
    : m_kind(kind)
    , m_manager(manager)
    , m_report(std::move(report))
{
}

People::~People()
{
    while (!m_list.IsEmpty())
        SpDelete(m_list.RemoveTail());
    for (SpuLightData* orphan : m_orphans)
        SpDelete(orphan);
}

bool People::init()
{
    if (m_loaded)
        return true;
    auto* proc = m_manager.proc<SpUserMgr>(SPID_USER_MGR);
    if (proc == nullptr)
        return false;
    const HRESULT result = raisingOutOfMemory([&] {
        setAside();
        const HRESULT loaded =
            m_kind == Kind::Users ? proc->mhGetUsers(m_list, 0, true) : proc->mhGetGroups(m_list);
        index();
        return loaded;
    });
    if (FAILED(result)) {
        // A copy: the report shows a message, and this may be gone when it is closed.
        const FailureReport report = m_report;
        report(result);
        return false;
    }
    m_loaded = true;
    return true;
}

/// Empties the list and the indexes. The records are kept for the destructor: who saw the list may
/// still hold one.
void People::setAside()
{
    m_byId.clear();
    m_byFirstName.clear();
    m_bySecondName.clear();
    m_orphans.reserve(m_orphans.size() + static_cast<std::size_t>(m_list.GetCount()));
    while (!m_list.IsEmpty())
        m_orphans.push_back(m_list.RemoveHead());
}

void People::index()
{
    for (POSITION position = m_list.GetHeadPosition(); position != nullptr;) {
        const SpuLightData* person = m_list.GetNext(position);
        if (person == nullptr)
            continue;
        addFirst(m_byId, person->mlId, person);
        addFirst(m_byFirstName, foldedName(recordText(person->mName)), person);
        if (m_kind == Kind::Users)
            addFirst(m_bySecondName, foldedName(recordText(person->mSecondName)), person);
    }
}

CString People::nameOf(LONG id, ShownName shown)
{
    const SpuLightData* person = init() ? m_byId.value(id, nullptr) : nullptr;
    if (person == nullptr)
        return {};
    const bool isSecond = m_kind == Kind::Users && shown == ShownName::Second;
    return (isSecond ? recordText(person->mSecondName) : recordText(person->mName)).toString();
}

LONG People::idOf(const CString& name, ShownName shown) const
{
    const bool isSecond = m_kind == Kind::Users && shown == ShownName::Second;
    const SpuLightData* person =
        (isSecond ? m_bySecondName : m_byFirstName).value(simpleFoldedKey(name), nullptr);
    return person == nullptr ? 0 : person->mlId;
}

} // namespace condtree
