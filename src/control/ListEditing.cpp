#include "ListEditing.h"

#include <condtree/editing/ChoiceText.h>
#include <condtree/editing/CloseUp.h>
#include <condtree/editing/CommandCombo.h>
#include <condtree/editing/ListSearch.h>
#include <condtree/editing/OperatorList.h>
#include <condtree/editing/Preselection.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ReferenceData.h>

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
    m_input.setHook(std::move(input));
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

CommandCombo* ListEditing::make(const RECT& cell, const ImgLst* images)
{
    clear();
    if (m_view.isNull())
        return nullptr;
    CommandCombo& combo = m_session.create(m_view->viewport(), cell, m_services, images);
    if (const VarTreeCtrlNode* node = m_tree.node(m_clicked))
        combo.setAccessibleName(node->mName);
    QObject::connect(&combo, &CommandCombo::closedUp, m_view.data(), [this] {
        m_input.leave();
        m_closedUp();
    });
    return &combo;
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
    const HTREEITEM item = m_clicked;
    const QPointer<CommandCombo> combo = make(cell, m_images.rows());
    if (combo.isNull())
        return;
    const KindListFor list = kindListFor();
    int position = 0;
    for (const ChoiceEntry& entry : kindCommands(list, m_services.string))
        m_session.add(entry.code, entry.text, entry.image, position++);
    // A message about the variables lets the host in, who may have opened another list meanwhile.
    if (!m_reference.variables.mbInitVars() || combo.isNull() || m_session.combo() != combo
        || m_clicked != item || m_tree.node(item) == nullptr)
        return;
    m_session.addAll(m_cache.variables(m_reference.variables.list()), position);
    preselectKind(list);
    drop();
}

void ListEditing::preselectKind(const KindListFor& list)
{
    const VarTreeCtrlNode& node = *m_tree.node(m_clicked);
    const Preselection wanted = kindPreselection(node.mlCode, node.mName, list, m_services.string);
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
    const VarTreeCtrlNode* node = m_tree.node(m_clicked);
    if (node == nullptr || make(cell, m_images.operators()) == nullptr)
        return;
    const LONG code = node->mlCode;
    int position = 0;
    for (const ChoiceEntry& entry : operatorChoices(code, node->mlArgType, m_services.string))
        m_session.add(entry.code, entry.text, entry.image, position++);
    selectText(operatorPreselection(code, m_services.string), 0);
    drop();
}

void ListEditing::openValues(const RECT& cell, const SharedChoices& values)
{
    if (make(cell, nullptr) == nullptr)
        return;
    m_session.addAll(values, 0);
    drop();
}

bool ListEditing::closeUp()
{
    const CommandCombo* combo = m_session.combo();
    const int selected = combo == nullptr ? -1 : combo->selection();
    CloseUpResult result;
    if (selected >= 0) {
        if (m_tree.node(m_clicked) == nullptr)
            return false;
        const ChoiceEntry entry = combo->entry(selected);
        const std::function<SYSTEMTIME()>& clock = m_services.localTime;
        const bool wasApplying = std::exchange(m_isApplying, true);
        result = applyChoice(m_clicked, {entry.code, choiceTextAsRead(entry.text), selected},
                             {m_tree, m_reference, m_settings, m_services.string, clock});
        m_isApplying = wasApplying;
        forgetDeadRows();
    }
    if (result.end == CloseUpEnd::HideCombo)
        hide();
    m_tree.invalidate();
    return result.isChanged;
}

void ListEditing::hide()
{
    if (CommandCombo* combo = m_session.combo())
        combo->hide();
}

void ListEditing::close()
{
    if (CommandCombo* combo = m_session.combo())
        combo->closeList();
}

void ListEditing::dismiss()
{
    const CommandCombo* combo = m_session.combo();
    if (combo != nullptr && combo->isDroppedDown())
        clear();
}

void ListEditing::forward(QEvent& event)
{
    CommandCombo* combo = m_session.combo();
    if (combo != nullptr && combo->isDroppedDown())
        combo->forward(&event);
}

// The row that a choice removes is hidden with its list by the one who applies it.
void ListEditing::forgetDeadRows()
{
    if (m_clicked == nullptr || m_tree.node(m_clicked) != nullptr)
        return;
    m_clicked = nullptr;
    if (m_isApplying)
        return;
    clear();
}

} // namespace condtree
