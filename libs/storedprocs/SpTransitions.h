#pragma once

#include <condtree/platform/StoredProcs.h>

#include <QDateTime>

#include <cstdint>
#include <vector>

// Workflow transitions and their conditions, beside the procedures that every data-access library
// has.
namespace condtree {

// Result codes of saving, outside the catalogue's range. SpSaveReport::message tells what happened
// in the case at hand; SpAddResultTexts (SpConnect.h) gives each a message that holds for any case.

/// Somebody else saved the condition since it was loaded.
inline constexpr HRESULT SP_E_CHANGED = static_cast<HRESULT>(0x80040501U);
/// A text holds U+0000 or an unpaired surrogate, which no database carries.
inline constexpr HRESULT SP_E_BAD_TEXT = static_cast<HRESULT>(0x80040502U);
/// A text is larger than kSpLargestText both as UTF-16 and as UTF-8.
inline constexpr HRESULT SP_E_TOO_LONG = static_cast<HRESULT>(0x80040503U);

/// How many bytes a text of a condition may take, as UTF-16 or as UTF-8, whichever is smaller.
inline constexpr std::int64_t kSpLargestText = 16 * 1024 * 1024;

/// A transition of a workflow, as lists show it.
struct SpTransition {
    /// From 1; what loading and saving a condition take.
    LONG id = 0;
    /// The name of the workflow that it belongs to.
    SpStr workflow;
    /// Unique in its workflow, the case of ASCII letters ignored.
    SpStr name;
    /// The names of the states that it leads from and to; may be the same.
    SpStr fromState;
    SpStr toState;
    /// How many records its condition has; 0 for an empty condition.
    LONG records = 0;
    /// The login of who saved the condition last; empty when nobody has.
    SpStr changedBy;
    /// When that was, in UTC, to the millisecond; null when nobody has, or when the database holds
    /// no time there.
    QDateTime changedAt;
    /// From 1; grows by one with every saving of the condition.
    std::int64_t version = 0;
};

/// A record of a condition: the exchange record without the two fields that belong to the host.
/// Any numbers are kept; nothing is normalised. Texts may be of kSpLargestText bytes each, and hold
/// anything but U+0000 and unpaired surrogates.
struct SpConditionRecord {
    LONG rowKind = 0;  ///< TransCond::lRowKind
    LONG condType = 0; ///< TransCond::lCondType
    SpStr name;        ///< TransCond::oName
    SpStr extra;       ///< TransCond::oExtra
    SpStr value;       ///< TransCond::oValue
    LONG argType = 0;  ///< TransCond::lArgType
    LONG op = 0;       ///< TransCond::lOperator

    bool operator==(const SpConditionRecord&) const = default;
};

/// The condition of a transition as it was at one moment.
struct SpCondition {
    /// In their order, which is the condition's; empty for an empty condition.
    std::vector<SpConditionRecord> records;
    /// To be given back when the condition is saved.
    std::int64_t version = 0;
};

/// What saving has to say beside its result code.
struct SpSaveReport {
    /// The texts of an SpConditionRecord.
    enum class Field { None, Name, Extra, Value };
    /// What E_FAIL does not tell apart, but a user can do something about.
    enum class Cause {
        None,
        DiskFull,  ///< There is no room for the condition.
        NotWritten ///< The file could not be written: a quota, a device that failed.
    };

    /// S_OK: the condition's new version. SP_E_CHANGED: the version in the database. Else 0.
    std::int64_t version = 0;
    /// SP_E_CHANGED: who saved in between (a login) and when (UTC); empty and null where that is
    /// not known, and for all other results.
    SpStr changedBy;
    QDateTime changedAt;
    /// SP_E_BAD_TEXT, SP_E_TOO_LONG: the index of the refused record, from 0, and its field. Else
    /// -1.
    LONG row = -1;
    Field field = Field::None;
    /// E_FAIL: why, where that is known. Else None.
    Cause cause = Cause::None;
    /// All this in one line that is always English, rows counted from 1: for hosts that have no
    /// translated texts of their own for it. Empty where the report has nothing beside the result
    /// code, whose own text says it. Never what the database said, which is in the log.
    CString message;
};

/// The procedures on transitions. Like every procedure object it is owned by its manager, lives
/// until the manager's last Release, and answers E_UNEXPECTED on another thread than the manager's.
/// All records are copied in and out; nothing that is handed over stays with the library.
///
/// Beside what a procedure names, all of them answer 0x8004020A when somebody else held the
/// database for longer than the busy timeout, 0x80040206 when it cannot be reached or is damaged,
/// 0x80040207 when it holds what does not fit the types here, E_OUTOFMEMORY, and E_FAIL for
/// anything else.
struct CONDTREE_EXPORT SpTransitions : SpProc {
    ~SpTransitions() override;

    /// Replaces transitions by all there are, by the id of their workflow and then by their own.
    /// Untouched on failure.
    virtual HRESULT mhGetTransitions(std::vector<SpTransition>& transitions) = 0;

    /// Replaces condition by that of a transition, read in one transaction. Untouched on failure;
    /// 0x80040207 when there is no such transition.
    virtual HRESULT mhLoadCondition(LONG transitionId, SpCondition& condition) = 0;

    /// Replaces a transition's condition in one transaction: all of it or nothing. loadedVersion is
    /// the version that the caller loaded or last saved; the save is refused with SP_E_CHANGED when
    /// the database holds another one. Texts are looked through first, and refused with
    /// SP_E_BAD_TEXT or SP_E_TOO_LONG. 0x80040207 when there is no such transition, 0x80040203 when
    /// the database may not be written, E_FAIL when the disk is full, E_INVALIDARG for more than
    /// 2147483647 records. report is filled anew by every call on the manager's thread.
    virtual HRESULT mhSaveCondition(LONG transitionId,
                                    const std::vector<SpConditionRecord>& records,
                                    std::int64_t loadedVersion, SpSaveReport& report) = 0;
};

/// The procedures on transitions of a manager from SpConnect; null for null and for another
/// library's manager. The manager owns them, and no reference is taken. They have no SPID, so that
/// asking a foreign manager can never yield a wrong object.
[[nodiscard]] CONDTREE_EXPORT SpTransitions* SpTransitionsOf(SpMgr* manager);

} // namespace condtree
