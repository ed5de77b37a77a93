#include <condtree/presentation/ElfCheck.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <vector>

#include <link.h>

using namespace condtree;

namespace {

constexpr ElfKind kKind{ELFCLASS64, ELFDATA2LSB, EM_X86_64};
constexpr std::uint64_t kSize = 0x3000;

/// The beginning of a module: two segments that are mapped, a dynamic one in the second.
struct Start {
    Elf64_Ehdr header{};
    Elf64_Phdr segments[3]{};

    Start()
    {
        std::memcpy(header.e_ident, ELFMAG, SELFMAG);
        header.e_ident[EI_CLASS] = ELFCLASS64;
        header.e_ident[EI_DATA] = ELFDATA2LSB;
        header.e_ident[EI_VERSION] = EV_CURRENT;
        header.e_type = ET_DYN;
        header.e_machine = EM_X86_64;
        header.e_version = EV_CURRENT;
        header.e_phoff = sizeof header;
        header.e_phentsize = sizeof(Elf64_Phdr);
        header.e_phnum = 3;
        segments[0] = {PT_LOAD, PF_R, 0, 0, 0, 0x1000, 0x1000, 0x1000};
        segments[1] = {PT_LOAD, PF_R | PF_W, 0x2000, 0x5000, 0x5000, 0x1000, 0x1800, 0x1000};
        segments[2] = {PT_DYNAMIC, PF_R | PF_W, 0x2100, 0x5100, 0x5100, 0x200, 0x200, 8};
    }
};

CString problemOf(const Start& start, std::uint64_t fileSize = kSize,
                  std::size_t length = sizeof(Start))
{
    std::vector<std::byte> bytes(kElfStart);
    std::memcpy(bytes.data(), &start, sizeof start);
    return elfProblem(std::span(bytes).first(length), fileSize, kKind);
}

struct Row {
    const char* name;
    std::function<void(Start&)> change;
    const char* problem;
};

const char* const kNoElf = "it is no ELF file";
const char* const kOtherMachine = "it is made for another machine";
const char* const kNoLibrary = "it is no shared library";
const char* const kCutOff = "it is cut off";

const std::vector<Row> kRows{
    {"nothing changed", [](Start&) {}, ""},
    {"another magic", [](Start& s) { s.header.e_ident[3] = 'G'; }, kNoElf},
    {"32 bits", [](Start& s) { s.header.e_ident[EI_CLASS] = ELFCLASS32; }, kOtherMachine},
    {"big-endian", [](Start& s) { s.header.e_ident[EI_DATA] = ELFDATA2MSB; }, kOtherMachine},
    {"another processor", [](Start& s) { s.header.e_machine = EM_AARCH64; }, kOtherMachine},
    {"another version", [](Start& s) { s.header.e_version = 2; }, kNoLibrary},
    {"another version in front", [](Start& s) { s.header.e_ident[EI_VERSION] = 0; }, kNoLibrary},
    {"an object file", [](Start& s) { s.header.e_type = ET_REL; }, kNoLibrary},
    {"a program", [](Start& s) { s.header.e_type = ET_EXEC; }, kNoLibrary},
    {"segments of another size", [](Start& s) { s.header.e_phentsize = 32; }, kNoLibrary},
    {"no segments", [](Start& s) { s.header.e_phnum = 0; }, kNoLibrary},
    {"more segments than there are", [](Start& s) { s.header.e_phnum = 0xFFFF; }, kCutOff},
    {"segments far away", [](Start& s) { s.header.e_phoff = kSize; }, kCutOff},
    {"segments at the end of all", [](Start& s) { s.header.e_phoff = ~std::uint64_t{7}; }, kCutOff},
    {"a byte too long", [](Start& s) { s.segments[1].p_filesz = s.segments[1].p_memsz = 0x1001; },
     kCutOff},
    {"behind the file", [](Start& s) { s.segments[1].p_offset = 0x4000; }, kCutOff},
    {"an end that overflows", [](Start& s) { s.segments[1].p_offset = ~std::uint64_t{0xFFF}; },
     kCutOff},
    {"more in the file than in memory", [](Start& s) { s.segments[0].p_memsz = 0xFFF; }, kCutOff},
    {"memory that overflows", [](Start& s) { s.segments[1].p_vaddr = ~std::uint64_t{0xFFF}; },
     kCutOff},
    {"another kind that is cut off", [](Start& s) { s.segments[2].p_filesz = kSize; }, kCutOff},
    {"nothing dynamic", [](Start& s) { s.segments[2].p_type = PT_NOTE; }, kNoLibrary},
    {"twice dynamic", [](Start& s) { s.segments[0].p_type = PT_DYNAMIC; }, kNoLibrary},
    {"nothing mapped", [](Start& s) { s.segments[0].p_type = s.segments[1].p_type = PT_NOTE; },
     kNoLibrary},
    {"dynamic outside what is mapped", [](Start& s) { s.segments[2].p_offset = 0x1100; },
     kNoLibrary},
    {"dynamic beyond what is mapped",
     [](Start& s) { s.segments[1].p_filesz = s.segments[1].p_memsz = 0x200; }, kNoLibrary},
    {"dynamic mapped elsewhere", [](Start& s) { s.segments[2].p_vaddr = 0x6000; }, kNoLibrary},
    {"what is null may lie anywhere",
     [](Start& s) { s.segments[0] = {PT_NULL, 0, ~std::uint64_t{0}, 0, 0, 99, 0, 0}; }, ""},
    {"the stack has no place in the file",
     [](Start& s) { s.segments[0] = {PT_GNU_STACK, 0, ~std::uint64_t{0}, 0, 0, 99, 0, 0}; }, ""},
};

TEST(ElfCheck, EachFaultOfAHeaderIsTold)
{
    for (const Row& row : kRows) {
        Start start;
        row.change(start);
        EXPECT_EQ(problemOf(start), QString::fromUtf8(row.problem)) << row.name;
    }
}

TEST(ElfCheck, AFileThatEndsTooEarlyIsCutOffWhereverItEnds)
{
    EXPECT_EQ(problemOf(Start()), QString());
    for (std::uint64_t size = 0; size < kSize; ++size)
        ASSERT_EQ(problemOf(Start(), size), QString::fromUtf8(kCutOff)) << size;
}

TEST(ElfCheck, AStartThatEndsTooEarlyIsNoElfOrCutOff)
{
    for (std::size_t length = 0; length < sizeof(Start); ++length) {
        const CString problem = problemOf(Start(), length, length);
        EXPECT_FALSE(problem.isEmpty()) << length;
        if (length >= sizeof(Elf64_Ehdr)) {
            EXPECT_EQ(problem, QString::fromUtf8(kCutOff)) << length;
        }
    }
    EXPECT_EQ(problemOf(Start(), 0, 0), QString::fromUtf8(kNoElf));
}

TEST(ElfCheck, TheProcesssKindIsThatOfItsPlatform)
{
    const ElfKind kind = ElfKind::ofProcess();
    EXPECT_EQ(kind.fileClass, sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32);
    EXPECT_EQ(kind.byteOrder, Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2LSB : ELFDATA2MSB);
    EXPECT_NE(kind.machine, EM_NONE);
}

} // namespace
