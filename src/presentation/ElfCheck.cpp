#include "ElfCheck.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

#include <dlfcn.h>
#include <link.h>

namespace condtree {

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

CString headerProblem(const Header& header, const ElfKind& kind)
{
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return QStringLiteral("it is no ELF file");
    if (header.e_ident[EI_CLASS] != kind.fileClass || header.e_ident[EI_DATA] != kind.byteOrder
        || header.e_machine != kind.machine)
        return QStringLiteral("it is made for another machine");
    if (header.e_type != ET_DYN || header.e_version != EV_CURRENT
        || header.e_ident[EI_VERSION] != EV_CURRENT)
        return QStringLiteral("it is no shared library");
    return {};
}

/// Whether a stretch of length from begin on ends at most at limit, sums that overflow included.
bool fits(std::uint64_t begin, std::uint64_t length, std::uint64_t limit)
{
    return begin <= limit && length <= limit - begin;
}

/// Whether the loader finds the whole segment in the file, and room for it in the memory.
bool isWhole(const Segment& segment, std::uint64_t fileSize)
{
    if (segment.p_type == PT_NULL || segment.p_type == PT_GNU_STACK)
        return true;
    constexpr std::uint64_t memory = std::numeric_limits<ElfW(Addr)>::max();
    const bool isMapped = segment.p_type == PT_LOAD;
    return fits(segment.p_offset, segment.p_filesz, fileSize)
           && (!isMapped
               || (segment.p_filesz <= segment.p_memsz
                   && fits(segment.p_vaddr, segment.p_memsz, memory)));
}

/// Whether a segment lies in the file's part of one that is mapped, at the same place in both.
bool isMappedBy(const Segment& segment, const Segment& load)
{
    return load.p_type == PT_LOAD && segment.p_offset >= load.p_offset
           && fits(segment.p_offset - load.p_offset, segment.p_filesz, load.p_filesz)
           && segment.p_vaddr - load.p_vaddr == segment.p_offset - load.p_offset;
}

CString segmentsProblem(const std::vector<Segment>& segments, std::uint64_t fileSize)
{
    const bool areWhole =
        std::all_of(segments.begin(), segments.end(),
                    [fileSize](const Segment& segment) { return isWhole(segment, fileSize); });
    if (!areWhole)
        return QStringLiteral("it is cut off");
    const auto isDynamic = [](const Segment& segment) { return segment.p_type == PT_DYNAMIC; };
    const auto dynamic = std::find_if(segments.begin(), segments.end(), isDynamic);
    const bool isLinked =
        dynamic != segments.end() && std::count_if(segments.begin(), segments.end(), isDynamic) == 1
        && std::any_of(segments.begin(), segments.end(), [&dynamic](const Segment& segment) {
               return isMappedBy(*dynamic, segment);
           });
    return isLinked ? CString() : QStringLiteral("it is no shared library");
}

} // namespace

ElfKind ElfKind::ofProcess()
{
    Dl_info info{};
    // Every address of this code is in some file, whose header is mapped with it.
    dladdr(reinterpret_cast<const void*>(&elfProblem), &info);
    const auto* header = static_cast<const Header*>(info.dli_fbase);
    return {header->e_ident[EI_CLASS], header->e_ident[EI_DATA], header->e_machine};
}

CString elfProblem(std::span<const std::byte> start, std::uint64_t fileSize, const ElfKind& kind)
{
    Header header{};
    std::memcpy(&header, start.data(), std::min(start.size(), sizeof header));
    if (CString problem = headerProblem(header, kind); !problem.isEmpty())
        return problem;
    if (start.size() < sizeof header)
        return QStringLiteral("it is cut off");
    if (header.e_phentsize != sizeof(Segment) || header.e_phnum == 0)
        return QStringLiteral("it is no shared library");
    const std::uint64_t length = std::uint64_t{header.e_phnum} * sizeof(Segment);
    if (!fits(header.e_phoff, length, std::min<std::uint64_t>(start.size(), fileSize)))
        return QStringLiteral("it is cut off");
    std::vector<Segment> segments(header.e_phnum);
    std::memcpy(segments.data(), start.data() + header.e_phoff, length);
    return segmentsProblem(segments, fileSize);
}

} // namespace condtree
