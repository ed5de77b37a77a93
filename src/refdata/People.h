#pragma once

#include <condtree/platform/StoredProcs.h>
#include <condtree/refdata/CardVariables.h>
#include <condtree/refdata/ManagerRef.h>

#include <QHash>
#include <QStringView>

#include <vector>

namespace condtree {

/// Which name of a record is shown.
enum class ShownName { First, Second };

/// The name by which lists offer a person: unlike a look-up by name, they offer one without a
/// second name by the first.
[[nodiscard]] QStringView offeredName(const SpuLightData& person, ShownName shown);

/// The users, or the groups: loaded on first use and kept for good.
class People {
public:
    enum class Kind { Users, Groups };

    People(Kind kind, const ManagerRef& manager, FailureReport report);
    People(const People&) = delete;
    People& operator=(const People&) = delete;
    /// Frees the records, those of earlier tries included.
    ~People();

    /// mbInitUsers and mbInitGroups: loads the list if it is not loaded. False without a manager or
    /// its procedure object, silently, and after a failure of the library, which is reported; the
    /// next call empties the list and tries again.
    bool init();

    /// The list as it stands, in the library's order. Loads nothing.
    [[nodiscard]] const Lst<SpuLightData*>& list() const { return m_list; }
    /// The name of the first record with an id, which is loaded if need be; empty when there is
    /// none or the list cannot be loaded. Constant time.
    CString nameOf(LONG id, ShownName shown);
    /// The id of the first record of the list as it stands whose shown name is name, case ignored;
    /// 0 when there is none. Loads nothing; constant time.
    [[nodiscard]] LONG idOf(const CString& name, ShownName shown) const;

private:
    void setAside();
    void index();

    Kind m_kind;
    const ManagerRef& m_manager;
    FailureReport m_report;
    Lst<SpuLightData*> m_list;
    bool m_loaded = false;
    std::vector<SpuLightData*> m_orphans;
    QHash<LONG, const SpuLightData*> m_byId;
    QHash<CString, const SpuLightData*> m_byFirstName;
    QHash<CString, const SpuLightData*> m_bySecondName;
};

} // namespace condtree
