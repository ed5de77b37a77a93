#pragma once

#include "Database.h"

#include <condtree/platform/Services.h>

#include <QMainWindow>

class QAction;

namespace condtree::workbench {

class ConditionEditor;
class TransitionList;

/// The window: the transitions on the left, the condition of one of them on the right. Nothing is
/// stored without Save, and changes are never given up without asking.
class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    /// database must outlive the window.
    MainWindow(const Database& database, const std::vector<SpTransition>& transitions,
               const Services& services, QWidget* parent = nullptr);

    /// Opens a transition without asking; on failure the one that was open stays.
    [[nodiscard]] MaybeFailure open(const SpTransition& transition);
    /// The same; a failure is told to the user.
    void openOrTell(const SpTransition& transition);
    [[nodiscard]] ConditionEditor& editor() const { return *m_editor; }
    [[nodiscard]] TransitionList& list() const { return *m_list; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeActions();
    void makeLayout();
    void makeStatusBar();
    QAction* newAction(const QString& name, const QString& text, int icon,
                       const QKeySequence& shortcut, void (MainWindow::*slot)());

    void openChosen(int id);
    bool mayLeave();
    bool trySave();
    void save();
    void revert();
    void importFile();
    void exportFile();
    void quit();
    void refresh();
    void showState();

    const Database& m_database;
    TransitionList* m_list;
    ConditionEditor* m_editor;
    QList<QAction*> m_onTransition;
};

} // namespace condtree::workbench
