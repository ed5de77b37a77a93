#pragma once

#include <condtree/platform/StoredProcs.h>

#include <QDateTime>

#include <cstdint>
#include <vector>

// Workflow transitions and their conditions, beside the procedures that every data-access library
// has.
namespace condtree {

// Result codes of saving, outside the catalogue's range: their texts are SpSaveReport::message.

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
    LONG id = 0;
    SpStr workflow;
    SpStr name;
    SpStr fromState;
    SpStr toState;
    /// How many records its condition has; 0 for an empty condition.
    LONG records = 0;
    /// The login of who saved the condition last; empty when nobody has.
    SpStr changedBy;
    /// When that was, in UTC; null when nobody has.
    QDateTime changedAt;
    /// Grows by one with every saving of the condition.
    std::int64_t version = 0;
};

/// A record of a condition: the exchange record without the two fields that belong to the host.
/// Any numbers are kept; nothing is normalised.
struct SpConditionRecord {
    LONG rowKind = 0;
    LONG condType = 0;
    SpStr name;
    SpStr extra;
    SpStr value;
    LONG argType = 0;
    LONG op = 0;

    bool operator==(const SpConditionRecord&) const = default;
};

/// The condition of a transition as it was at one moment.
struct SpCondition {
    std::vector<SpConditionRecord> records;
    /// To be given back when the condition is saved.
    std::int64_t version = 0;
};

/// What saving has to say beside its result code.
struct SpSaveReport {
    enum class Field { None, Name, Extra, Value };

    /// S_OK: the condition's new version. SP_E_CHANGED: the version in the database. Else 0.
    std::int64_t version = 0;
    /// SP_E_CHANGED: who saved in between (a login) and when (UTC).
    SpStr changedBy;
    QDateTime changedAt;
    /// SP_E_BAD_TEXT, SP_E_TOO_LONG: the index of the refused record, from 0, and its field. Else
    /// -1.
    LONG row = -1;
    Field field = Field::None;
    /// For SP_E_CHANGED, SP_E_BAD_TEXT and SP_E_TOO_LONG one line of English that names all this,
    /// rows counted from 1. Empty otherwise: the result code's own text says it.
    CString message;
};

/// The procedures on transitions. Like every procedure object it is owned by its manager and bound
/// to the manager's thread.
struct CONDTREE_EXPORT SpTransitions : SpProc {
    ~SpTransitions() override;

    /// Replaces transitions by all there are, by workflow and then by id. Untouched on failure.
    virtual HRESULT mhGetTransitions(std::vector<SpTransition>& transitions) = 0;

    /// Replaces condition by that of a transition, read in one transaction. Untouched on failure;
    /// 0x80040207 when there is no such transition.
    virtual HRESULT mhLoadCondition(LONG transitionId, SpCondition& condition) = 0;

    /// Replaces a transition's condition in one transaction: all of it or nothing. loadedVersion is
    /// the version that the caller loaded or last saved; the save is refused with SP_E_CHANGED when
    /// the database holds another one. Texts are looked through first, and refused with
    /// SP_E_BAD_TEXT or SP_E_TOO_LONG. 0x80040207 when there is no such transition, 0x80040203 when
    /// the database may not be written. report is filled anew by every call.
    virtual HRESULT mhSaveCondition(LONG transitionId,
                                    const std::vector<SpConditionRecord>& records,
                                    std::int64_t loadedVersion, SpSaveReport& report) = 0;
};

/// The procedures on transitions of a manager from SpConnect; null for null and for another
/// library's manager. They have no SPID, so that asking a foreign manager can never yield a wrong
/// object.
[[nodiscard]] CONDTREE_EXPORT SpTransitions* SpTransitionsOf(SpMgr* manager);

} // namespace condtree
