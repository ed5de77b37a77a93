#pragma once

#include <condtree/model/ComboCmd.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/refdata/ManagerRef.h>

#include <QHash>

#include <functional>

namespace condtree {

/// Tells the user of a failure of the data-access library, by its result code.
using FailureReport = std::function<void(HRESULT)>;

/// The card variables, loaded on first use and kept for good.
class CardVariables {
public:
    CardVariables(const ManagerRef& manager, FailureReport report);
    CardVariables(const CardVariables&) = delete;
    CardVariables& operator=(const CardVariables&) = delete;
    /// Frees the records.
    ~CardVariables();

    /// Loads the variables if they are not loaded. False without a manager or its procedure object,
    /// silently, and after a failure of the library, which is reported; the next call tries again.
    /// Throws _com_error(E_OUTOFMEMORY) when the memory is exhausted.
    /// A failed try leaves what the library had appended in the list, and the next one appends to
    /// it.
    bool mbInitVars();

    /// The list as it stands, in the library's order. Loads nothing.
    [[nodiscard]] const Lst<VarDef*>& list() const { return mVariables; }
    /// The first variable of a name, compared as variable names are; null if there is none. Loads
    /// nothing; constant time.
    [[nodiscard]] const VarDef* find(const CString& name) const;
    /// The last variable of the list as it stands; null when it is empty.
    [[nodiscard]] const VarDef* last() const;

    /// The default operator of the named variable, which is loaded if need be; StringContains when
    /// it cannot be found or the variables cannot be loaded.
    ComboCmd meGetDefaultOp(const CString& name);
    /// The type of the named variable, which is loaded if need be; ArgText when it cannot be found
    /// or the variables cannot be loaded.
    ArgType meGetArgumentType(const CString& name);

private:
    void indexNewVariables();
    void addToIndexes(const VarDef& variable);

    const ManagerRef& m_manager;
    FailureReport m_report;
    Lst<VarDef*> mVariables;
    bool mbVariablesLoaded = false;
    POSITION m_lastIndexed = nullptr;
    const VarDef* m_last = nullptr;
    QHash<CString, const VarDef*> m_bySpelling;
    QHash<CString, const VarDef*> m_byFoldedName;
};

} // namespace condtree
