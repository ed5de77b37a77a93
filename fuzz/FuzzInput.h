#pragma once

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

namespace condtree::fuzz {

/// What a target makes of the bytes that it is given: the first is a choice, the rest a text.
struct FuzzInput {
    explicit FuzzInput(std::span<const std::uint8_t> bytes)
    {
        if (bytes.empty())
            return;
        choice = bytes[0];
        text = textOf(bytes.subspan(1));
    }

    std::uint8_t choice = 0;
    QString text;

private:
    /// ASCII stands for itself. A byte above it says that the next two are any code unit, halves of
    /// surrogate pairs included.
    static QString textOf(std::span<const std::uint8_t> bytes)
    {
        QString text;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] < 0x80 || i + 2 >= bytes.size()) {
                text.append(QChar(char16_t{bytes[i]}));
            } else {
                text.append(QChar(static_cast<char16_t>(bytes[i + 1] << 8 | bytes[i + 2])));
                i += 2;
            }
        }
        return text;
    }
};

/// Ends the run with a word on what does not hold.
inline void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace condtree::fuzz
