#include "TypedSearch.h"

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

bool isOneLetterRepeated(const QString& key)
{
    return key.size() > 1 && key.count(key.front()) == key.size();
}

} // namespace

bool ListKeys::startsWith(int row, QStringView key) const
{
    return row < own->count() ? own->startsWith(row, key)
                              : tail->startsWith(row - own->count(), key);
}

bool ListKeys::contains(int row, QStringView key) const
{
    return row < own->count() ? own->contains(row, key) : tail->contains(row - own->count(), key);
}

std::vector<int> ListKeys::rowsWith(QStringView key) const
{
    std::vector<int> rows;
    own->collect(key, 0, rows);
    tail->collect(key, own->count(), rows);
    return rows;
}

int TypedSearch::type(QStringView text, bool afterPause, int current, const ListKeys& keys)
{
    const QString key = searchKey(text);
    if (key.isEmpty())
        return current;
    const QString before = wanted().toString();
    const bool isNew = m_key.isEmpty() || (afterPause && !goesOn(m_key + key, keys));
    m_text = isNew ? text.toString() : m_text + text.toString();
    m_key = isNew ? key : m_key + key;
    show(keys, !isNew && wanted().startsWith(before));
    const bool fromNext = isNew || isOneLetterRepeated(m_key);
    return settle(findStart(fromNext ? current + 1 : std::max(current, 0), keys), current);
}

int TypedSearch::eraseLast(int current, const ListKeys& keys)
{
    const bool isPair = m_text.size() > 1 && m_text.back().isLowSurrogate();
    if (isOneLetterRepeated(m_key))
        m_text.clear();
    m_text.chop(isPair ? 2 : 1);
    m_key = searchKey(m_text);
    if (m_key.isEmpty()) {
        clear();
        return current;
    }
    show(keys, false);
    return current >= 0 ? current : settle(findStart(0, keys), current);
}

void TypedSearch::clear()
{
    m_text.clear();
    m_key.clear();
    m_shown.reset();
}

QString TypedSearch::text() const
{
    return isOneLetterRepeated(m_key) ? m_text.left(1) : m_text;
}

QStringView TypedSearch::wanted() const
{
    return QStringView(m_key).left(isOneLetterRepeated(m_key) ? 1 : m_key.size());
}

bool TypedSearch::goesOn(const QString& key, const ListKeys& keys) const
{
    if (!m_filters || !m_shown)
        return false;
    return isOneLetterRepeated(key) || std::any_of(m_shown->begin(), m_shown->end(), [&](int row) {
               return keys.contains(row, key);
           });
}

void TypedSearch::show(const ListKeys& keys, bool narrower)
{
    if (!m_filters)
        return;
    if (narrower && m_shown)
        std::erase_if(*m_shown, [&](int row) { return !keys.contains(row, wanted()); });
    else
        m_shown = keys.rowsWith(wanted());
}

bool TypedSearch::isShown(int row) const
{
    return !m_shown || std::binary_search(m_shown->begin(), m_shown->end(), row);
}

// From a row on to the end, then from the beginning, among the shown rows.
int TypedSearch::findStart(int from, const ListKeys& keys) const
{
    const int count = m_shown ? static_cast<int>(m_shown->size()) : keys.count();
    const auto rowAt = [this](int i) {
        return m_shown ? (*m_shown)[static_cast<std::size_t>(i)] : i;
    };
    const int first =
        m_shown ? static_cast<int>(std::lower_bound(m_shown->begin(), m_shown->end(), from)
                                   - m_shown->begin())
                : from;
    for (int i = 0; i < count; ++i) {
        const int row = rowAt((first + i) % count);
        if (keys.startsWith(row, wanted()))
            return row;
    }
    return -1;
}

int TypedSearch::settle(int found, int current) const
{
    if (found >= 0)
        return found;
    if (current >= 0 && isShown(current))
        return current;
    return m_shown && !m_shown->empty() ? m_shown->front() : -1;
}

} // namespace condtree
