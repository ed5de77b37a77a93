#pragma once

#include <condtree/editing/CommandCombo.h>
#include <condtree/platform/TextRef.h>
#include <condtree/platform/WinTypes.h>

#include <QPointer>

#include <functional>
#include <map>
#include <memory>

namespace condtree {

class ImgLst;
struct Services;

/// The one list that may be open over the tree, and which of its entries stands for which command.
/// What it needs of the host's ports may run the host, who may take the list away meanwhile.
class ComboSession final {
public:
    ComboSession() = default;
    ComboSession(const ComboSession&) = delete;
    ComboSession& operator=(const ComboSession&) = delete;
    ~ComboSession();

    /// A new click: the next entry added decides how wide the list drops.
    void resetLongest() { m_longest = 0; }
    /// Makes an empty list over a cell, as CommandCombo does, in place of the one before.
    CommandCombo& create(QWidget* parent, const RECT& cell, const Services& services,
                         const ImgLst* images);
    /// Forgets the commands and takes the list away; it tells nothing any more.
    void clear();
    /// Null when there is none.
    [[nodiscard]] CommandCombo* combo() const { return m_combo; }

    /// Adds an entry at a position, at the end when it is negative or beyond. An operator's text is
    /// its name in the user's language, and text only where there is none. A text of more
    /// characters than all before widens the dropped list, or narrows it, to itself. Nothing
    /// without a list.
    void add(LONG code, const CString& text, int image, int position);
    /// The same as adding one after the other, from startPosition up; all at the end when it is
    /// negative. Entries at the end are not copied.
    void addAll(const SharedChoices& entries, int startPosition);

    /// The entry added last under a code. An unknown code is the first entry's from now on.
    int indexOf(LONG code) { return m_indices[code]; }
    void selectCode(LONG code);
    /// Shows the list and drops it down.
    void show();

private:
    [[nodiscard]] CString shownText(LONG code, const CString& text) const;
    [[nodiscard]] std::map<LONG, CString> namesOf(const ChoiceEntries& entries) const;
    [[nodiscard]] SharedChoices named(const SharedChoices& entries) const;
    [[nodiscard]] const TailKeys& keysOf(const SharedChoices& tail);
    void remember(const ChoiceEntries& entries, int firstIndex);
    void widenFor(const CString& text);

    QPointer<CommandCombo> m_combo;
    std::map<LONG, int> m_indices;
    qsizetype m_longest = 0;
    StringSource m_strings;
    std::function<int(int)> m_systemMetric;
    std::weak_ptr<const ChoiceEntries> m_tail; // the one that m_tailKeys are of
    TailKeys m_tailKeys;
};

} // namespace condtree
