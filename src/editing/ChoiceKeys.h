#pragma once

#include <condtree/editing/ChoiceEntry.h>

#include <QString>
#include <QStringView>

#include <string>
#include <vector>

namespace condtree {

/// A text as it is searched: without case, accents and differences of width.
[[nodiscard]] QString searchKey(QStringView text);

/// The searched form of entries' texts, in one block. Made once, linear in the texts.
class ChoiceKeys final {
public:
    ChoiceKeys() = default;
    explicit ChoiceKeys(const ChoiceEntries& entries);

    [[nodiscard]] int count() const { return static_cast<int>(m_ends.size()); }
    /// key is a searchKey, index below count().
    [[nodiscard]] bool startsWith(int index, QStringView key) const;
    [[nodiscard]] bool contains(int index, QStringView key) const;
    /// Appends firstRow + the index of every entry that contains key, which is not empty.
    void collect(QStringView key, int firstRow, std::vector<int>& rows) const;

private:
    [[nodiscard]] QStringView at(int index) const;

    std::u16string m_block; // texts, each with a unit behind it that is in no text
    std::vector<std::size_t> m_ends;
};

} // namespace condtree
