#pragma once

#include <condtree/platform/WinTypes.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace condtree {

/// What a module must be made for to fit this process.
struct ElfKind {
    std::uint8_t fileClass; ///< ELFCLASS...
    std::uint8_t byteOrder; ///< ELFDATA...
    std::uint16_t machine;  ///< EM_...

    /// That of the file that this code was loaded from.
    [[nodiscard]] static ElfKind ofProcess();
};

/// How much of a file elfProblem looks at.
inline constexpr std::size_t kElfStart = 4096;

/// Why a file is no module for the loader, which trusts what it maps and takes the process down
/// where the file ends too early; empty when nothing speaks against it. start is the file's
/// beginning: kElfStart bytes of it, or all that it has.
[[nodiscard]] CString elfProblem(std::span<const std::byte> start, std::uint64_t fileSize,
                                 const ElfKind& kind);

} // namespace condtree
