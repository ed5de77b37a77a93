#pragma once

#include "ConditionControl.h"
#include "Database.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QLabel;

namespace condtree {
class ColumnHeader;
}

namespace condtree::workbench {

/// Shows the condition of one transition with the transition's name, states and last change above
/// it, and knows whether it was changed since it was loaded or saved. Nothing here asks the user
/// anything, and whatever fails leaves the rows as they are.
class ConditionEditor final : public QWidget {
    Q_OBJECT
public:
    /// database must outlive the editor.
    ConditionEditor(const Database& database, const Services& services, QWidget* parent = nullptr);

    /// Loads a transition and shows it, in place of what was shown.
    [[nodiscard]] MaybeFailure open(const SpTransition& transition);
    /// Stores the condition, as a change of the version that was loaded or last saved.
    [[nodiscard]] MaybeFailure save();
    /// Replaces the rows by those of a file; nothing is stored.
    [[nodiscard]] MaybeFailure importJson(const QByteArray& json);
    /// The rows as they stand.
    [[nodiscard]] Outcome<QByteArray> exportJson();

    /// None while nothing is shown.
    [[nodiscard]] const std::optional<SpTransition>& transition() const { return m_transition; }
    /// Shows what the database says anew of the same transition: its last change.
    void setTransition(const SpTransition& transition);
    [[nodiscard]] bool isUnsaved() const { return m_isUnsaved; }
    /// What the control told of when the rows were last shown; not what saving would change.
    [[nodiscard]] const QStringList& failures() const { return m_failures; }
    [[nodiscard]] ConditionControl& control() const { return *m_control; }
    /// Keeps the columns for later runs, as the user has left them.
    void keepColumns();

Q_SIGNALS:
    void unsavedChanged(bool isUnsaved);

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Shows records, and what is amiss with them; returns what saving would store, none if that is
    /// unknown.
    std::optional<ConditionRecords> fill(const ConditionRecords& records);
    void compare();
    void setUnsaved(bool isUnsaved);
    [[nodiscard]] static QString lastChange(const SpTransition& transition);
    void showHeader();
    void restoreColumns();
    void showWarnings(const QStringList& warnings);
    void styleHeader();

    const Database& m_database;
    std::optional<SpTransition> m_transition;
    std::int64_t m_version = 0;
    /// The rows as saving would have stored them right after loading or saving; none when that
    /// failed.
    std::optional<ConditionRecords> m_clean;
    QStringList m_failures;
    bool m_isUnsaved = false;
    QLabel* m_title;
    QLabel* m_states;
    QLabel* m_lastChange;
    QLabel* m_warning;
    std::shared_ptr<RegistryStore> m_settings;
    ConditionControl* m_control;
    ColumnHeader* m_columns;
    /// As the settings have them, or as they are without settings.
    std::array<double, 3> m_keptShares{};
};

} // namespace condtree::workbench
