#include "ComboSession.h"

#include <condtree/platform/Services.h>
#include <condtree/values/OperatorCatalogue.h>

#include <QFontMetrics>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

constexpr LONG kFirstNamed = 100;
constexpr int kSpaceBesideText = 19;
// A list is never wider than the screen, and longer texts take long to measure.
constexpr qsizetype kMostMeasured = 4096;

bool isNamed(LONG code)
{
    return code >= kFirstNamed && code < VariableBase;
}

bool isShorter(const ChoiceEntry& left, const ChoiceEntry& right)
{
    return left.text.size() < right.text.size();
}

} // namespace

ComboSession::~ComboSession()
{
    clear();
}

CommandCombo& ComboSession::create(QWidget* parent, const RECT& cell, const Services& services,
                                   const ImgLst* images)
{
    clear();
    m_strings = services.string;
    m_systemMetric = services.systemMetric;
    m_combo = new CommandCombo(parent, cell, m_systemMetric);
    m_combo->setImages(images);
    return *m_combo;
}

void ComboSession::clear()
{
    m_indices.clear();
    if (m_combo != nullptr)
        std::exchange(m_combo, nullptr)->retire();
}

void ComboSession::add(LONG code, const CString& text, int image, int position)
{
    const QPointer<CommandCombo> combo = m_combo;
    const CString shown = shownText(code, text);
    if (combo == nullptr || combo != m_combo)
        return;
    m_indices[code] = combo->addEntry({code, shown, image}, position);
    widenFor(shown);
}

void ComboSession::addAll(const SharedChoices& entries, int startPosition)
{
    if (entries == nullptr || entries->empty())
        return;
    const QPointer<CommandCombo> combo = m_combo;
    const SharedChoices choices = named(entries);
    if (combo == nullptr || combo != m_combo)
        return;
    const int count = combo->entryCount();
    const bool atEnd = startPosition < 0 || startPosition >= count;
    if (atEnd)
        combo->setTail(choices, choices == entries ? keysOf(choices) : TailKeys());
    else
        combo->addEntries(*choices, startPosition);
    remember(*choices, atEnd ? count : startPosition);
    widenFor(std::max_element(choices->begin(), choices->end(), isShorter)->text);
}

CString ComboSession::shownText(LONG code, const CString& text) const
{
    if (!isNamed(code))
        return text;
    const StringSource strings = m_strings;
    return strings ? operatorName(code, reinterpret_cast<const char16_t*>(text.utf16()), strings)
                   : text;
}

// The names of the operators' numbers that these entries bear, where the user's language has one:
// asked for once a number, since a list may be long.
std::map<LONG, CString> ComboSession::namesOf(const ChoiceEntries& entries) const
{
    std::map<LONG, CString> names;
    for (const ChoiceEntry& entry : entries) {
        if (isNamed(entry.code))
            names.try_emplace(entry.code);
    }
    for (auto& [code, name] : names)
        name = shownText(code, CString());
    return names;
}

// The entries themselves where none of them is named otherwise.
SharedChoices ComboSession::named(const SharedChoices& entries) const
{
    const SharedChoices original = entries;
    const std::map<LONG, CString> names = namesOf(*original);
    const auto isNameless = [](const auto& name) { return name.second.isEmpty(); };
    if (std::all_of(names.begin(), names.end(), isNameless))
        return original;
    auto copy = std::make_shared<ChoiceEntries>(*original);
    for (ChoiceEntry& entry : *copy) {
        const auto name = names.find(entry.code);
        if (name != names.end() && !name->second.isEmpty())
            entry.text = name->second;
    }
    return copy;
}

const TailKeys& ComboSession::keysOf(const SharedChoices& tail)
{
    if (m_tail.lock() != tail || m_tailKeys == nullptr) {
        m_tail = tail;
        m_tailKeys = std::make_shared<std::optional<ChoiceKeys>>();
    }
    return m_tailKeys;
}

// From the last on, so that the map is written once a code.
void ComboSession::remember(const ChoiceEntries& entries, int firstIndex)
{
    std::map<LONG, int> last;
    for (int i = static_cast<int>(entries.size()) - 1; i >= 0; --i)
        last.try_emplace(entries[static_cast<std::size_t>(i)].code, firstIndex + i);
    for (const auto& [code, index] : last)
        m_indices[code] = index;
}

void ComboSession::widenFor(const CString& text)
{
    if (text.size() <= m_longest)
        return;
    m_longest = text.size();
    const QPointer<CommandCombo> combo = m_combo;
    const auto metric = m_systemMetric;
    const int edges = metric(SM_CXVSCROLL) + 2 * metric(SM_CXEDGE);
    if (combo == nullptr || combo != m_combo)
        return;
    const QFontMetrics font(combo->font());
    const int wanted = font.horizontalAdvance(text.left(kMostMeasured)) + font.averageCharWidth()
                       + kSpaceBesideText + edges;
    combo->setDroppedWidth(std::max(combo->width(), wanted));
}

void ComboSession::selectCode(LONG code)
{
    if (m_combo != nullptr)
        m_combo->select(indexOf(code));
}

void ComboSession::show()
{
    if (m_combo != nullptr)
        m_combo->dropDown();
}

} // namespace condtree
