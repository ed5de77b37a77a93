#include "ChoiceModel.h"

#include <condtree/presentation/ListIcon.h>

#include <utility>

namespace condtree {

void ChoiceModel::setImages(const ImgLst* images)
{
    // Shared with nobody: icons that outlive the model are null icons.
    m_images =
        images == nullptr ? nullptr : std::shared_ptr<const ImgLst>(images, [](const ImgLst*) {});
}

int ChoiceModel::insert(ChoiceEntry entry, int position)
{
    const int at = position < 0 || position > count() ? count() : position;
    insert(ChoiceEntries{std::move(entry)}, at);
    return at;
}

void ChoiceModel::insert(const ChoiceEntries& entries, int position)
{
    if (entries.empty())
        return;
    const int at = position < 0 || position > count() ? count() : position;
    if (at > static_cast<int>(m_own.size()))
        ownTail();
    beginInsertRows({}, at, at + static_cast<int>(entries.size()) - 1);
    m_own.insert(m_own.begin() + at, entries.begin(), entries.end());
    endInsertRows();
}

void ChoiceModel::setTail(SharedChoices tail)
{
    if (tail == nullptr || tail->empty())
        return;
    ownTail();
    beginInsertRows({}, count(), count() + static_cast<int>(tail->size()) - 1);
    m_tail = std::move(tail);
    endInsertRows();
}

// Nobody sees a difference, so nobody is told.
void ChoiceModel::ownTail()
{
    m_own.insert(m_own.end(), m_tail->begin(), m_tail->end());
    m_tail = std::make_shared<const ChoiceEntries>();
}

int ChoiceModel::count() const
{
    return static_cast<int>(m_own.size() + m_tail->size());
}

const ChoiceEntry& ChoiceModel::entry(int index) const
{
    const auto i = static_cast<std::size_t>(index);
    return i < m_own.size() ? m_own[i] : (*m_tail)[i - m_own.size()];
}

int ChoiceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ChoiceModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const ChoiceEntry& choice = entry(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return choice.text;
    case Qt::DecorationRole:
        return m_images == nullptr || choice.image < 0 ? QVariant()
                                                       : listIcon(m_images, choice.image);
    case Qt::UserRole:
        return choice.code;
    default:
        return {};
    }
}

} // namespace condtree
