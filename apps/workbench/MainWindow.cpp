#include "MainWindow.h"

#include "ConditionEditor.h"
#include "Dialogs.h"
#include "Files.h"
#include "Messages.h"
#include "TransitionList.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QRegularExpression>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

namespace condtree::workbench {

namespace {

constexpr int kStatusTime = 8000; // ms

/// A file name without the characters that file systems or shells take for something else.
QString fileNameFor(const SpTransition& transition)
{
    QString name = transitionTitle(transition);
    name.replace(QRegularExpression(QStringLiteral("[^\\w.-]+"),
                                    QRegularExpression::UseUnicodePropertiesOption),
                 QStringLiteral("-"));
    return name + QStringLiteral(".json");
}

} // namespace

MainWindow::MainWindow(const Database& database, const std::vector<SpTransition>& transitions,
                       const Services& services, QWidget* parent)
    : QMainWindow(parent)
    , m_database(database)
    , m_list(new TransitionList)
    , m_editor(new ConditionEditor(database, services))
{
    makeActions();
    makeLayout();
    makeStatusBar();
    m_list->setTransitions(transitions);
    // Queued: asking runs a loop of its own, and the list must not be in the middle of a click
    // then.
    connect(m_list, &TransitionList::transitionChosen, this, &MainWindow::openChosen,
            Qt::QueuedConnection);
    connect(m_editor, &ConditionEditor::unsavedChanged, this, &MainWindow::showState);
    showState();
    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 225, metrics.height() * 48);
}

MaybeFailure MainWindow::open(const SpTransition& transition)
{
    const MaybeFailure failure = m_editor->open(transition);
    showState();
    return failure;
}

void MainWindow::openOrTell(const SpTransition& transition)
{
    if (const auto failure = open(transition))
        tellFailure(this, failure->text);
}

// A dialog lets everything happen meanwhile, the end of the window included: behind each one it is
// looked whether the window is still there.

void MainWindow::closeEvent(QCloseEvent* event)
{
    const bool isLeaving = mayLeave();
    event->setAccepted(isLeaving);
    if (isLeaving)
        m_editor->keepColumns();
}

void MainWindow::makeActions()
{
    QAction* const saveAction =
        newAction(QStringLiteral("save"), tr("&Save"), QStyle::SP_DialogSaveButton,
                  QKeySequence::Save, &MainWindow::save);
    QAction* const revertAction =
        newAction(QStringLiteral("revert"), tr("&Revert"), QStyle::SP_BrowserReload,
                  QKeySequence(Qt::Key_F5), &MainWindow::revert);
    QAction* const importAction =
        newAction(QStringLiteral("import"), tr("&Import…"), QStyle::SP_DialogOpenButton,
                  QKeySequence(Qt::CTRL | Qt::Key_I), &MainWindow::importFile);
    QAction* const exportAction =
        newAction(QStringLiteral("export"), tr("&Export…"), QStyle::SP_ArrowUp,
                  QKeySequence(Qt::CTRL | Qt::Key_E), &MainWindow::exportFile);
    QAction* const quitAction = newAction(QStringLiteral("quit"), tr("&Quit"), -1,
                                          QKeySequence(Qt::CTRL | Qt::Key_Q), &MainWindow::quit);
    m_onTransition = {saveAction, revertAction, importAction, exportAction};

    //: The menu of what is done with a condition
    QMenu* const menu = menuBar()->addMenu(tr("&Condition"));
    menu->addActions({saveAction, revertAction});
    menu->addSeparator();
    menu->addActions({importAction, exportAction});
    menu->addSeparator();
    menu->addAction(quitAction);

    //: The name of the tool bar, as its context menu shows it
    QToolBar* const bar = addToolBar(tr("Condition"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({saveAction, revertAction});
    bar->addSeparator();
    bar->addActions({importAction, exportAction});
}

QAction* MainWindow::newAction(const QString& name, const QString& text, int icon,
                               const QKeySequence& shortcut, void (MainWindow::*slot)())
{
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    if (icon >= 0)
        action->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)));
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void MainWindow::makeLayout()
{
    auto* side = new QWidget;
    auto* sideLayout = new QVBoxLayout(side);
    auto* caption = new QLabel(tr("&Transitions"));
    caption->setBuddy(m_list);
    sideLayout->addWidget(caption);
    sideLayout->addWidget(m_list);
    auto* splitter = new QSplitter(Qt::Horizontal);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(side);
    splitter->addWidget(m_editor);
    // The list keeps the width of its names; the condition takes what a larger window brings.
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    const int character = fontMetrics().averageCharWidth();
    splitter->setSizes({character * 44, character * 181});
    setCentralWidget(splitter);
}

void MainWindow::makeStatusBar()
{
    const QString url = m_database.displayUrl();
    auto* where =
        //: %1 is a login name, %2 the name of a database
        new QLabel(tr("%1 on %2").arg(m_database.userName(), url.section(QLatin1Char('/'), -1)));
    where->setObjectName(QStringLiteral("connection"));
    where->setTextFormat(Qt::PlainText);
    where->setToolTip(url.toHtmlEscaped());
    statusBar()->addPermanentWidget(where);
}

void MainWindow::openChosen(int id)
{
    const auto& current = m_editor->transition();
    if (current && current->id == id)
        return;
    const QPointer<MainWindow> alive(this);
    const bool isLeaving = mayLeave();
    if (!alive)
        return;
    const auto& transitions = m_list->transitions();
    const auto chosen = std::find_if(transitions.begin(), transitions.end(),
                                     [id](const SpTransition& t) { return t.id == id; });
    if (isLeaving && chosen != transitions.end())
        openOrTell(SpTransition(*chosen));
    // Also back to what is still open when it was not left.
    if (alive)
        showState();
}

bool MainWindow::mayLeave()
{
    m_editor->control().finishEditing();
    if (!m_editor->isUnsaved())
        return true;
    const QPointer<MainWindow> alive(this);
    const Leaving answer = askBeforeLeaving(this, transitionTitle(*m_editor->transition()));
    if (!alive)
        return false;
    return answer == Leaving::Discard || (answer == Leaving::Save && trySave());
}

bool MainWindow::trySave()
{
    if (const auto failure = m_editor->save()) {
        tellFailure(this, failure->text,
                    tr("Nothing was stored, and your changes are still here. You can export them "
                       "to a file, or revert to the condition in the database."));
        return false;
    }
    const QPointer<MainWindow> alive(this);
    refresh();
    if (alive)
        statusBar()->showMessage(tr("Saved."), kStatusTime);
    return !alive.isNull();
}

void MainWindow::save()
{
    m_editor->control().finishEditing();
    if (m_editor->isUnsaved())
        trySave();
    else
        statusBar()->showMessage(tr("There is nothing to save."), kStatusTime);
}

void MainWindow::revert()
{
    m_editor->control().finishEditing();
    const SpTransition transition = *m_editor->transition();
    const QPointer<MainWindow> alive(this);
    if (m_editor->isUnsaved() && !askBeforeReverting(this, transitionTitle(transition)))
        return;
    if (!alive)
        return;
    if (const auto failure = open(transition)) {
        tellFailure(this, failure->text);
        return;
    }
    refresh();
    if (alive)
        statusBar()->showMessage(tr("Read from the database again."), kStatusTime);
}

void MainWindow::importFile()
{
    const QPointer<MainWindow> alive(this);
    const QString path = askFileToImport(this);
    if (!alive || path.isEmpty() || !mayLeave())
        return;
    const Outcome<QByteArray> json = readFile(path, kLargestJson);
    if (!json.hasValue()) {
        tellFailure(this, json.failure().text);
        return;
    }
    if (const auto failure = m_editor->importJson(json.value())) {
        tellFailure(this, atPlace(path, failure->text));
        return;
    }
    statusBar()->showMessage(tr("Imported. Save stores it in the database."), kStatusTime);
}

void MainWindow::exportFile()
{
    const Outcome<QByteArray> json = m_editor->exportJson();
    if (!json.hasValue()) {
        tellFailure(this, json.failure().text);
        return;
    }
    const QPointer<MainWindow> alive(this);
    const QString path = askFileToExport(this, fileNameFor(*m_editor->transition()));
    if (!alive || path.isEmpty())
        return;
    if (const auto failure = writeFile(path, json.value()))
        tellFailure(this, failure->text);
    else
        statusBar()->showMessage(tr("Exported to %1").arg(path), kStatusTime);
}

void MainWindow::quit()
{
    close();
}

void MainWindow::refresh()
{
    const Outcome<std::vector<SpTransition>> transitions = m_database.transitions();
    if (!transitions.hasValue()) {
        tellFailure(this, transitions.failure().text);
        return;
    }
    m_list->setTransitions(transitions.value());
    for (const SpTransition& transition : m_list->transitions()) {
        if (m_editor->transition() && m_editor->transition()->id == transition.id)
            m_editor->setTransition(transition);
    }
    showState();
}

void MainWindow::showState()
{
    const auto& transition = m_editor->transition();
    const std::optional<LONG> id = transition ? std::optional(transition->id) : std::nullopt;
    m_list->setUnsaved(m_editor->isUnsaved() ? id : std::nullopt);
    m_list->select(id);
    setWindowModified(m_editor->isUnsaved());
    setWindowTitle(
        transition
            ? transitionTitle(*transition).replace(QLatin1String("[*]"), QLatin1String("[*][*]"))
                  + QStringLiteral("[*]")
            : QString());
    for (QAction* action : std::as_const(m_onTransition))
        action->setEnabled(transition.has_value());
}

} // namespace condtree::workbench
