#pragma once

#include <condtree/editing/ChoiceKeys.h>

#include <QString>

#include <optional>
#include <vector>

namespace condtree {

/// The searched forms of a whole list: own entries, and the tail behind them.
struct ListKeys {
    const ChoiceKeys* own = nullptr;
    const ChoiceKeys* tail = nullptr;

    [[nodiscard]] int count() const { return own->count() + tail->count(); }
    [[nodiscard]] bool startsWith(int row, QStringView key) const;
    [[nodiscard]] bool contains(int row, QStringView key) const;
    [[nodiscard]] std::vector<int> rowsWith(QStringView key) const;
};

/// What is typed into an open list: finds rows by how they begin, as a list does, and with the
/// filter on shows only the rows that contain it. Rows are always those of the whole list.
class TypedSearch final {
public:
    void setFilter(bool on) { m_filters = on; }

    /// The current row after a text was typed; current is the one before, -1 for none.
    /// It is the next row that begins with what was typed; the same letter again goes from row to
    /// row. Where none begins so, the current row stays as long as it is shown, else the first
    /// shown row becomes current.
    /// After a pause the search begins anew, but the filter goes on as long as that finds anything.
    [[nodiscard]] int type(QStringView text, bool afterPause, int current, const ListKeys& keys);
    /// The current row after the last character was taken back.
    [[nodiscard]] int eraseLast(int current, const ListKeys& keys);
    void clear();

    /// What the list is searched for; a letter once, however often it was repeated.
    [[nodiscard]] QString text() const;
    /// The shown rows, ascending; none for all.
    [[nodiscard]] const std::optional<std::vector<int>>& shown() const { return m_shown; }

private:
    [[nodiscard]] QStringView wanted() const;
    [[nodiscard]] bool goesOn(const QString& key, const ListKeys& keys) const;
    void show(const ListKeys& keys, bool narrower);
    [[nodiscard]] bool isShown(int row) const;
    [[nodiscard]] int findStart(int from, const ListKeys& keys) const;
    [[nodiscard]] int settle(int found, int current) const;

    bool m_filters = true;
    QString m_text;
    QString m_key;
    std::optional<std::vector<int>> m_shown;
};

} // namespace condtree
