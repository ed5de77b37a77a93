#pragma once

#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

namespace condtree::fuzz {

/// What a target makes of the bytes that it is given: the first four are a choice, the lowest byte
/// in front, the rest a text.
struct FuzzInput {
    explicit FuzzInput(std::span<const std::uint8_t> bytes)
    {
        const std::size_t ofChoice = std::min<std::size_t>(bytes.size(), 4);
        for (std::size_t i = 0; i < ofChoice; ++i)
            choice |= std::uint32_t{bytes[i]} << (8 * i);
        text = textOf(bytes.subspan(ofChoice));
    }

    std::uint32_t choice = 0;
    QString text;

private:
    /// A byte below 0x80 is the code unit of that number. One from there on is left out and the two
    /// behind it, the higher in front, are any code unit, halves of surrogate pairs included; where
    /// two are missing, it is the code unit of its own number.
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
