#pragma once

#include <condtree/storedprocs/SpTransitions.h>

#include <QHash>
#include <QTreeWidget>

#include <optional>
#include <vector>

namespace condtree::workbench {

/// The workflows with their transitions, each with the number of its records or a mark when it has
/// none.
class TransitionList final : public QTreeWidget {
    Q_OBJECT
public:
    explicit TransitionList(QWidget* parent = nullptr);

    /// Replaces the list; the selection and the place that is scrolled to stay where they can.
    void setTransitions(const std::vector<SpTransition>& transitions);
    [[nodiscard]] const std::vector<SpTransition>& transitions() const { return m_transitions; }

    /// Selects a transition without telling so; nothing when there is none of this id.
    void select(std::optional<LONG> id);
    /// Marks one transition as changed and not saved, and no other.
    void setUnsaved(std::optional<LONG> id);
    /// The row of a transition; null when there is none.
    [[nodiscard]] QTreeWidgetItem* itemOf(LONG id) const;

Q_SIGNALS:
    /// The user selected a transition.
    void transitionChosen(int id);

protected:
    void changeEvent(QEvent* event) override;

private:
    void tellSelection();
    void refill(std::optional<LONG> id);
    void fillItem(QTreeWidgetItem& item, const SpTransition& transition) const;

    std::vector<SpTransition> m_transitions;
    /// Where a transition is, by its id.
    struct Place {
        QTreeWidgetItem* item;
        std::size_t index;
    };
    QHash<LONG, Place> m_places;
    std::optional<LONG> m_unsaved;
};

} // namespace condtree::workbench
