#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace condtree::workbench {

/// Why something could not be done: one line in the user's language that names the place. It may
/// quote texts of others; oneLine() of Messages.h makes it fit for a line of output.
struct Failure {
    QString text;
};

/// A value, or why there is none.
template <class T>
class [[nodiscard]] Outcome {
public:
    Outcome(T value)
        : m_content(std::move(value))
    {
    }
    Outcome(Failure failure)
        : m_content(std::move(failure))
    {
    }

    [[nodiscard]] bool hasValue() const { return m_content.index() == 0; }
    /// Only with a value.
    [[nodiscard]] const T& value() const& { return std::get<0>(m_content); }
    [[nodiscard]] T&& value() && { return std::get<0>(std::move(m_content)); }
    /// Only without a value.
    [[nodiscard]] const Failure& failure() const { return std::get<1>(m_content); }

private:
    std::variant<T, Failure> m_content;
};

/// Done, or why not.
using MaybeFailure = std::optional<Failure>;

} // namespace condtree::workbench
