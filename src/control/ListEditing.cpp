#include "ListEditing.h"

#include <condtree/editing/ChoiceText.h>
#include <condtree/editing/CommandCombo.h>
#include <condtree/editing/ListSearch.h>
#include <condtree/editing/OperatorList.h>
#include <condtree/editing/Preselection.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ReferenceData.h>

#include <QAbstractItemView>

#include <utility>
#include <variant>

namespace condtree {

ListEditing::ListEditing(QTreeView& view, const Services& services, ControlSettings& settings,
                         ReferenceData& reference, const ConditionImages& images, EditedTree& tree)
    : m_view(&view)
    , m_services(services)
    , m_settings(settings)
    , m_reference(reference)
    , m_images(images)
    , m_tree(tree)
{
}

void ListEditing::setHooks(std::function<void()> closedUp, std::function<void(QEvent*)> input)
{
    m_closedUp = std::move(closedUp);
    // A closed list takes nothing from those who have the focus.
    m_input.setHook([this, input = std::move(input)](QEvent* event) {
        const CommandCombo* combo = m_session.combo();
        if (combo == nullptr || !combo->isDroppedDown())
            return false;
        const auto tell = input; // this may go meanwhile
        tell(event);
        return true;
    });
}

void ListEditing::shutDown()
{
    clear();
    m_view.clear();
}

void ListEditing::clear()
{
    m_input.leave();
    m_session.clear();
}

// The metrics are the host's, who may take the view away when asked: never while a list is made.
Services ListEditing::knowingMetrics() const
{
    Services services = m_services;
    const int scrollBar = services.systemMetric(SM_CXVSCROLL);
    const int edge = services.systemMetric(SM_CXEDGE);
    services.systemMetric = [scrollBar, edge](int metric) {
        return metric == SM_CXVSCROLL ? scrollBar : edge;
    };
    return services;
}

CommandCombo* ListEditing::make(const RECT& cell, const ImgLst* images)
{
    clear();
    const Services services = knowingMetrics();
    if (m_view.isNull())
        return nullptr;
    CommandCombo& combo = m_session.create(m_view->viewport(), cell, services, images);
    combo.setQuickFilter(m_filters);
    if (const VarTreeCtrlNode* node = m_tree.node(m_clicked))
        combo.setAccessibleName(node->mName);
    // It has a style sheet, which keeps its parts from the colours of what is around them.
    for (QWidget* part : {static_cast<QWidget*>(&combo), static_cast<QWidget*>(combo.view()),
                          combo.view()->viewport()})
        part->setPalette(m_view->palette());
    QObject::connect(&combo, &CommandCombo::closedUp, m_view.data(), [this] {
        const auto closedUp = m_closedUp; // this may go meanwhile
        closedUp();
    });
    return &combo;
}

// Texts, metrics and messages let the host in, who may have taken the list or the row away, or have
// opened another list.
bool ListEditing::isStill(const QPointer<CommandCombo>& combo, HTREEITEM row) const
{
    return !combo.isNull() && m_session.combo() == combo && m_clicked == row
           && m_tree.node(row) != nullptr;
}

void ListEditing::drop()
{
    const QPointer<CommandCombo> combo = m_session.combo();
    if (combo.isNull())
        return;
    m_session.show();
    if (!combo.isNull() && combo->isDroppedDown())
        m_input.listenFor(*combo);
}

KindListFor ListEditing::kindListFor() const
{
    const VarTreeCtrlNode* node = m_tree.node(m_clicked);
    KindListFor list{!m_tree.hasParentItem(m_clicked),
                     node != nullptr && node->mlCode == NodePlaceholder,
                     m_settings.vaultType,
                     m_settings.treeType,
                     m_settings.transitionType,
                     false};
    if (asksForChildRefState(list.vaultType, list.treeType, list.transitionType))
        list.childRefStateOffered = m_settings.mbChildRefStateEnabled();
    return list;
}

void ListEditing::openKinds(const RECT& cell)
{
    const HTREEITEM row = m_clicked;
    const QPointer<CommandCombo> combo = make(cell, m_images.rows());
    if (!isStill(combo, row))
        return;
    const KindListFor list = kindListFor();
    const ChoiceEntries commands = kindCommands(list, m_services.string);
    int position = 0;
    for (const ChoiceEntry& entry : commands) {
        if (isStill(combo, row))
            m_session.add(entry.code, entry.text, entry.image, position++);
    }
    if (!isStill(combo, row) || !m_reference.variables.mbInitVars() || !isStill(combo, row))
        return;
    m_session.addAll(m_cache.variables(m_reference.variables.list()), position);
    if (!isStill(combo, row))
        return;
    preselectKind(list);
    if (isStill(combo, row))
        drop();
}

void ListEditing::preselectKind(const KindListFor& list)
{
    const QPointer<CommandCombo> combo = m_session.combo();
    const HTREEITEM row = m_clicked;
    const VarTreeCtrlNode& node = *m_tree.node(row);
    const CString name = node.mName; // the row may go meanwhile
    const Preselection wanted = kindPreselection(node.mlCode, name, list, m_services.string);
    if (!isStill(combo, row))
        return;
    if (const auto* code = std::get_if<PreselectCode>(&wanted))
        m_session.selectCode(code->code);
    else if (const auto* text = std::get_if<PreselectText>(&wanted))
        selectText(text->text, text->start);
}

void ListEditing::selectText(const CString& text, int start)
{
    CommandCombo* combo = m_session.combo();
    if (combo == nullptr || text.isEmpty())
        return;
    const auto textOf = [combo](int index) -> const CString& { return combo->entry(index).text; };
    combo->select(
        findStringExact(static_cast<std::size_t>(combo->entryCount()), textOf, text, start));
}

void ListEditing::openOperators(const RECT& cell)
{
    const HTREEITEM row = m_clicked;
    const QPointer<CommandCombo> combo = make(cell, m_images.operators());
    if (!isStill(combo, row))
        return;
    const VarTreeCtrlNode& node = *m_tree.node(row);
    const LONG code = node.mlCode;
    const ChoiceEntries operators = operatorChoices(code, node.mlArgType, m_services.string);
    int position = 0;
    for (const ChoiceEntry& entry : operators) {
        if (isStill(combo, row))
            m_session.add(entry.code, entry.text, entry.image, position++);
    }
    const CString wanted = operatorPreselection(code, m_services.string);
    if (!isStill(combo, row))
        return;
    selectText(wanted, 0);
    drop();
}

void ListEditing::openValues(const RECT& cell, const SharedChoices& values)
{
    const QPointer<CommandCombo> combo = make(cell, nullptr);
    m_session.addAll(values, 0);
    if (!combo.isNull() && m_session.combo() == combo)
        drop();
}

bool ListEditing::closeUp()
{
    const QPointer<CommandCombo> combo = m_session.combo();
    const int selected = combo.isNull() ? -1 : combo->selection();
    CloseUpResult result;
    if (selected >= 0) {
        if (m_tree.node(m_clicked) == nullptr)
            return false;
        result = apply(combo, selected);
    }
    // Whatever the host did meanwhile: a list that it opened stays, and one without a row does not.
    const bool isOver = result.end == CloseUpEnd::HideCombo || m_tree.node(m_clicked) == nullptr;
    if (isOver && !combo.isNull() && m_session.combo() == combo) {
        m_input.leave();
        combo->hide();
    }
    m_tree.invalidate();
    return result.isChanged;
}

CloseUpResult ListEditing::apply(const QPointer<CommandCombo>& combo, int selected)
{
    const ChoiceEntry entry = combo->entry(selected);
    const QPointer<CommandCombo> outer = std::exchange(m_applying, combo);
    const CloseUpResult result =
        applyChoice(m_clicked, {entry.code, choiceTextAsRead(entry.text), selected},
                    {m_tree, m_reference, m_settings, m_services.string, m_services.localTime});
    m_applying = outer;
    return result;
}

void ListEditing::settle()
{
    if (CommandCombo* combo = m_session.combo())
        combo->tellClosed();
}

void ListEditing::close()
{
    if (CommandCombo* combo = m_session.combo())
        combo->closeList();
}

bool ListEditing::isOpen() const
{
    const CommandCombo* combo = m_session.combo();
    return combo != nullptr && combo->isDroppedDown();
}

void ListEditing::dismiss()
{
    if (isOpen())
        clear();
}

void ListEditing::forward(QEvent& event)
{
    CommandCombo* combo = m_session.combo();
    if (combo != nullptr && combo->isDroppedDown())
        combo->forward(&event);
}

// The list that is being applied is hidden by who applies it.
void ListEditing::forgetDeadRows()
{
    if (m_clicked == nullptr || m_tree.node(m_clicked) != nullptr)
        return;
    m_clicked = nullptr;
    if (m_applying.isNull() || m_applying != m_session.combo())
        clear();
}

} // namespace condtree
