#pragma once

#include "ConditionJson.h"
#include "Outcome.h"

#include <condtree/storedprocs/SpTransitions.h>

#include <memory>
#include <vector>

namespace condtree::workbench {

/// A database that is open, with what the workbench does on it. Failures say what could not be done
/// and why.
class Database {
public:
    /// Opens the database of a URL, whose file must be there, as a user; an empty name lets the
    /// library choose.
    [[nodiscard]] static Outcome<std::unique_ptr<Database>> open(const QString& url,
                                                                 const QString& user);
    /// Opens the sample database in the user's data folder, and makes it before where it is
    /// missing.
    [[nodiscard]] static Outcome<std::unique_ptr<Database>> openSample(const QString& user);

    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    /// Never null; lent. Who keeps it takes a reference.
    [[nodiscard]] SpMgr* manager() const { return m_manager; }
    /// The URL without a password.
    [[nodiscard]] QString displayUrl() const;
    /// The login name.
    [[nodiscard]] QString userName() const;

    /// Every transition, by workflow.
    [[nodiscard]] Outcome<std::vector<SpTransition>> transitions() const;
    [[nodiscard]] Outcome<SpCondition> load(const SpTransition& transition) const;
    /// Stores a condition and returns its new version. loadedVersion is the version that the
    /// records go back to; when the database holds another one, nothing is stored.
    [[nodiscard]] Outcome<std::int64_t> save(const SpTransition& transition,
                                             const ConditionRecords& records,
                                             std::int64_t loadedVersion) const;

private:
    Database(SpMgr* manager, SpTransitions* procedures, QString url);

    SpMgr* m_manager;
    SpTransitions* m_procedures;
    QString m_url;
};

/// A transition's name on the command line and in messages: WORKFLOW/NAME.
[[nodiscard]] QString transitionTitle(const SpTransition& transition);

/// The transition of a title, as it is or as oneLine() writes it; fails when there is none, or more
/// than one.
[[nodiscard]] Outcome<SpTransition> findTransition(const std::vector<SpTransition>& transitions,
                                                   const QString& title);

} // namespace condtree::workbench
