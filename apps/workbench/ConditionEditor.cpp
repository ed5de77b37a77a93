#include "ConditionEditor.h"

#include "KeptColumns.h"
#include "RecordChanges.h"

#include <condtree/control/ColumnHeader.h>

#include <QEvent>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace condtree::workbench {

namespace {

/// A label for texts of others: never read as mark-up, wrapped instead of widening the window.
QLabel* newLabel(QWidget* parent, const char* name)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

QString ConditionEditor::lastChange(const SpTransition& transition)
{
    if (transition.changedAt.isNull())
        return tr("Never changed");
    const QString when =
        QLocale().toString(transition.changedAt.toLocalTime(), QLocale::ShortFormat);
    //: %1 is a login name, %2 a date and time
    return tr("Last changed by %1, %2").arg(transition.changedBy.str(), when);
}

ConditionEditor::ConditionEditor(const Database& database, const Services& services,
                                 QWidget* parent)
    : QWidget(parent)
    , m_database(database)
    , m_title(newLabel(this, "title"))
    , m_states(newLabel(this, "states"))
    , m_lastChange(newLabel(this, "lastChange"))
    , m_warning(newLabel(this, "warning"))
    , m_settings(services.registry)
    , m_control(new ConditionControl(database.manager(), this, services))
    , m_columns(new ColumnHeader(*m_control, this, services))
{
    m_control->setObjectName(QStringLiteral("condition"));
    //: What the rows are to those who hear the window
    m_control->setAccessibleName(tr("Condition"));
    auto* layout = new QVBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    layout->setSpacing(gap);
    layout->addWidget(m_title);
    layout->addWidget(m_states);
    layout->addWidget(m_lastChange);
    layout->addWidget(m_warning);
    layout->addSpacing(gap);
    auto* table = new QVBoxLayout;
    table->setSpacing(0);
    table->addWidget(m_columns);
    table->addWidget(m_control, 1);
    layout->addLayout(table, 1);
    // Hidden, the control leaves the words at the top all the same.
    layout->addStretch();
    connect(m_control, &CondTreeCtrl::conditionChanged, this, &ConditionEditor::compare);
    styleHeader();
    restoreColumns();
    showHeader();
    showWarnings({});
}

MaybeFailure ConditionEditor::open(const SpTransition& transition)
{
    const Outcome<SpCondition> condition = m_database.load(transition);
    if (!condition.hasValue())
        return condition.failure();
    if (const auto failure = m_control->prepare(condition.value().records))
        return failure;
    m_version = condition.value().version;
    m_transition = transition;
    m_clean = fill(condition.value().records);
    showHeader();
    setUnsaved(false);
    return std::nullopt;
}

MaybeFailure ConditionEditor::save()
{
    if (!m_transition)
        return Failure{tr("There is no transition to save.")};
    m_control->finishEditing();
    const Outcome<ConditionRecords> records = m_control->records();
    if (!records.hasValue())
        return records.failure();
    const Outcome<std::int64_t> version =
        m_database.save(*m_transition, records.value(), m_version);
    if (!version.hasValue())
        return version.failure();
    m_version = version.value();
    m_clean = records.value();
    m_failures.clear();
    showWarnings({});
    setUnsaved(false);
    return std::nullopt;
}

MaybeFailure ConditionEditor::importJson(const QByteArray& json)
{
    if (!m_transition)
        return Failure{tr("There is no transition to import into.")};
    const Outcome<ConditionRecords> records = conditionFromJson(json);
    if (!records.hasValue())
        return records.failure();
    if (const auto failure = m_control->prepare(records.value()))
        return failure;
    const std::optional<ConditionRecords> filled = fill(records.value());
    setUnsaved(!filled || filled != m_clean);
    return std::nullopt;
}

Outcome<QByteArray> ConditionEditor::exportJson()
{
    m_control->finishEditing();
    const Outcome<ConditionRecords> records = m_control->records();
    if (!records.hasValue())
        return records.failure();
    return conditionToJson(records.value());
}

void ConditionEditor::restoreColumns()
{
    m_columns->setObjectName(QStringLiteral("columns"));
    setTabOrder(m_columns, m_control);
    const auto shares = m_settings ? keptColumnShares(*m_settings) : std::nullopt;
    if (shares)
        m_control->setColumnShares(*shares); // damaged ones change nothing
    m_keptShares = m_control->columnShares();
}

void ConditionEditor::keepColumns()
{
    const auto shares = m_control->columnShares();
    if (!m_settings || shares == m_keptShares)
        return;
    keepColumnShares(*m_settings, shares);
    m_keptShares = shares;
}

void ConditionEditor::setTransition(const SpTransition& transition)
{
    m_transition = transition;
    showHeader();
}

void ConditionEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        styleHeader();
}

std::optional<ConditionRecords> ConditionEditor::fill(const ConditionRecords& records)
{
    m_failures = m_control->setRecords(records);
    const Outcome<ConditionRecords> stored = m_control->records();
    if (!stored.hasValue() && !m_failures.contains(stored.failure().text))
        m_failures.append(stored.failure().text);
    QStringList warnings = m_failures;
    if (stored.hasValue() && stored.value().size() < records.size())
        warnings.append(tr("Saving will drop %n of the %1 record(s) that were read.", nullptr,
                           static_cast<int>(records.size() - stored.value().size()))
                            .arg(records.size()));
    const auto changed = stored.hasValue() ? rowsChangedBySaving(records, stored.value())
                                           : std::vector<std::size_t>();
    if (!changed.empty())
        //: %n counts the records that change, %1 all; %2 names the first: "3", "1, 2 and 9"
        warnings.append(tr("Saving will store something other than what was read: %n of the %1 "
                           "record(s), row(s) %2.",
                           nullptr, static_cast<int>(changed.size()))
                            .arg(QString::number(records.size()), rowNumbers(changed)));
    showWarnings(warnings);
    return stored.hasValue() ? std::optional(stored.value()) : std::nullopt;
}

void ConditionEditor::compare()
{
    const Outcome<ConditionRecords> records = m_control->records();
    setUnsaved(!records.hasValue() || !m_clean || records.value() != *m_clean);
}

void ConditionEditor::setUnsaved(bool isUnsaved)
{
    if (m_isUnsaved == isUnsaved)
        return;
    m_isUnsaved = isUnsaved;
    Q_EMIT unsavedChanged(isUnsaved);
}

void ConditionEditor::showHeader()
{
    m_control->setVisible(m_transition.has_value());
    m_columns->setVisible(m_transition.has_value());
    m_states->setVisible(m_transition.has_value());
    m_lastChange->setVisible(m_transition.has_value());
    if (!m_transition) {
        m_title->setText(tr("No transition is open"));
        return;
    }
    m_title->setText(m_transition->name.str());
    //: A workflow and the states that a transition goes from and to
    m_states->setText(tr("%1: %2 → %3")
                          .arg(m_transition->workflow.str(), m_transition->fromState.str(),
                               m_transition->toState.str()));
    m_lastChange->setText(lastChange(*m_transition));
}

void ConditionEditor::showWarnings(const QStringList& warnings)
{
    m_warning->setText(warnings.join(QLatin1Char('\n')));
    m_warning->setVisible(!warnings.isEmpty());
}

void ConditionEditor::styleHeader()
{
    QFont titleFont = font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.3);
    m_title->setFont(titleFont);
    QPalette muted = palette();
    muted.setBrush(QPalette::WindowText, palette().brush(QPalette::PlaceholderText));
    m_lastChange->setPalette(muted);
    QFont warningFont = font();
    warningFont.setBold(true);
    m_warning->setFont(warningFont);
}

} // namespace condtree::workbench
