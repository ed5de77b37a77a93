#include <condtree/presentation/ModuleLoader.h>

#include "presentation/ModuleFiles.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>

#include <algorithm>
#include <cstring>
#include <set>
#include <vector>

#include <dlfcn.h>
#include <link.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace condtree::test {

namespace {

const ModuleTrust kTrust = ModuleTrust::ofProcess();

/// The problem with a file that is there and not loaded.
CString problemOf(const CString& path, const ModuleTrust& trust = kTrust)
{
    const ModuleLoad load = loadModule(path, trust);
    EXPECT_TRUE(load.isThere);
    EXPECT_EQ(load.module, nullptr);
    return load.problem;
}

void expectLoaded(const CString& path)
{
    const ModuleLoad load = loadModule(path, kTrust);
    EXPECT_TRUE(load.isThere);
    ASSERT_NE(load.module, nullptr) << load.problem.toStdString();
    EXPECT_EQ(load.problem, QString());
    EXPECT_NE(dlsym(load.module.get(), "ghLoadWFPngImageIconAsPerDPI"), nullptr);
}

TEST(ModuleLoader, AModuleIsLoadedWhateverItsName)
{
    const ModuleFiles files;
    expectLoaded(files.copy("Good"));
    expectLoaded(files.write("WfIcons.dll", ModuleFiles::module("Good")));
    expectLoaded(files.write("\xc3\xa4 b.so", ModuleFiles::module("Good")));
}

TEST(ModuleLoader, WhatIsNotThereIsNoProblem)
{
    const ModuleFiles files;
    QFile::link(files.path("nowhere"), files.path("dangling"));
    for (const char* name : {"nothing", "no folder/file", "dangling"}) {
        const ModuleLoad load = loadModule(files.path(name), kTrust);
        EXPECT_FALSE(load.isThere) << name;
        EXPECT_EQ(load.module, nullptr) << name;
        EXPECT_EQ(load.problem, QString()) << name;
    }
}

TEST(ModuleLoader, OnlyRegularFilesAreLoadedAndNothingIsWaitedFor)
{
    const ModuleFiles files;
    QElapsedTimer timer;
    timer.start();
    ASSERT_EQ(mkfifo(files.path("pipe").toUtf8().constData(), 0600), 0);
    QDir().mkdir(files.path("folder"));
    QFile::link(QStringLiteral("/dev/null"), files.path("device"));
    for (const char* name : {"pipe", "folder", "device"})
        EXPECT_EQ(problemOf(files.path(name)), QStringLiteral("it is no regular file")) << name;
    EXPECT_LT(timer.elapsed(), 10000);
}

TEST(ModuleLoader, AFileThatIsNoModuleIsRefused)
{
    const ModuleFiles files;
    EXPECT_EQ(problemOf(files.write("empty", {})), QStringLiteral("it is no ELF file"));
    EXPECT_EQ(problemOf(files.write("text", "hello")), QStringLiteral("it is no ELF file"));
    QByteArray foreign = ModuleFiles::module("Good");
    foreign[18] = EM_PPC64; // e_machine
    foreign[19] = 0;
    EXPECT_EQ(problemOf(files.write("foreign", foreign)),
              QStringLiteral("it is made for another machine"));
}

TEST(ModuleLoader, WhatTheLoaderRefusesIsToldInItsWordsWithoutItsName)
{
    const ModuleFiles files;
    const CString problem = problemOf(files.copy("Unresolved"));
    EXPECT_TRUE(problem.contains(QStringLiteral("nobodyHasThis"))) << problem.toStdString();
    EXPECT_FALSE(problem.contains(QStringLiteral("/proc"))) << problem.toStdString();
}

TEST(ModuleLoader, WhatOthersMayWriteIsRefusedAlsoBehindALink)
{
    const ModuleFiles files;
    const CString module = files.copy("Good");
    QFile::link(module, files.path("link"));
    const auto expectRefused = [&](const char* problem) {
        EXPECT_EQ(problemOf(module), QString::fromUtf8(problem));
        EXPECT_EQ(problemOf(files.path("link")), QString::fromUtf8(problem));
    };
    chmod(module.toUtf8().constData(), 0646);
    expectRefused("others may write it");
    chmod(module.toUtf8().constData(), 0644);

    QDir().mkdir(files.path("open"));
    QFile::rename(module, files.path("open/module"));
    QFile::remove(files.path("link"));
    QFile::link(files.path("open/module"), files.path("link"));
    chmod(files.path("open").toUtf8().constData(), 0777);
    EXPECT_EQ(problemOf(files.path("link")),
              QStringLiteral("others may write a folder that it lies in"));
    chmod(files.path("open").toUtf8().constData(), 0755);
    expectLoaded(files.path("link"));
}

TEST(ModuleLoader, AModuleOfSomebodyElseIsRefused)
{
    const ModuleFiles files;
    EXPECT_EQ(problemOf(files.copy("Good"), {{geteuid() + 1}, std::nullopt}),
              QStringLiteral("it belongs to another user"));
}

/// What becomes of loading a file in a process of its own.
enum class Outcome { Loaded, Refused, Died };

Outcome outcomeOf(const CString& path)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(loadModule(path, kTrust).module != nullptr ? 1 : 2);
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status) || (WEXITSTATUS(status) != 1 && WEXITSTATUS(status) != 2))
        return Outcome::Died;
    return WEXITSTATUS(status) == 1 ? Outcome::Loaded : Outcome::Refused;
}

/// Where the last of what the loader maps ends.
qsizetype endOfSegments(const QByteArray& module)
{
    ElfW(Ehdr) header{};
    std::memcpy(&header, module.constData(), sizeof header);
    std::uint64_t end = 0;
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment{};
        std::memcpy(&segment, module.constData() + header.e_phoff + i * sizeof segment,
                    sizeof segment);
        end = std::max<std::uint64_t>(end, segment.p_offset + segment.p_filesz);
    }
    return static_cast<qsizetype>(end);
}

TEST(ModuleLoader, ATruncatedModuleIsRefusedWhereverItEndsAndNeverFatal)
{
    const ModuleFiles files;
    const QByteArray whole = ModuleFiles::module("Good");
    const qsizetype end = endOfSegments(whole);
    ASSERT_LT(end, whole.size()); // names of sections lie behind it
    std::set<qsizetype> lengths{0, 1, 63, 64, 65, end - 1, end, end + 1, whole.size() - 1};
    for (qsizetype length = 0; length < whole.size(); length += whole.size() / 100)
        lengths.insert(length);
    for (qsizetype page = 4096; page < whole.size(); page += 4096)
        lengths.insert({page - 1, page, page + 1});
    for (const qsizetype length : lengths) {
        const CString path = files.write("cut", whole.first(length));
        EXPECT_EQ(outcomeOf(path), length < end ? Outcome::Refused : Outcome::Loaded) << length;
    }
    EXPECT_GT(lengths.size(), 100U);
}

// The loader knows modules by name before it looks at their files, and the descriptors of both
// files have the same number.
TEST(ModuleLoader, AModuleIsNotTakenForAnotherThatIsLoaded)
{
    const ModuleFiles files;
    const ModuleLoad good = loadModule(files.copy("Good"), kTrust);
    const ModuleLoad other = loadModule(files.copy("NoEntryPoints"), kTrust);
    ASSERT_NE(good.module, nullptr);
    ASSERT_NE(other.module, nullptr);
    EXPECT_EQ(dlsym(good.module.get(), "somethingElse"), nullptr);
    EXPECT_NE(dlsym(other.module.get(), "somethingElse"), nullptr);
}

TEST(ModuleLoader, NamesForTheLoaderDifferInEachOfTheirNumbersAndLeadToTheFile)
{
    std::set<QString> names;
    for (const int descriptor : {3, 4}) {
        for (const dev_t device : {dev_t{1}, dev_t{2}, dev_t{3}, ~dev_t{0}}) {
            for (const ino_t inode : {ino_t{1}, ino_t{2}, ino_t{0x100000001}, ~ino_t{0}})
                names.insert(nameForLoader(descriptor, device, inode));
        }
    }
    EXPECT_EQ(names.size(), 2U * 4U * 4U);
    for (const QString& name : names) {
        const QString clean = QDir::cleanPath(name);
        EXPECT_TRUE(clean == QStringLiteral("/proc/self/fd/3")
                    || clean == QStringLiteral("/proc/self/fd/4"))
            << clean.toStdString();
        EXPECT_LT(name.size(), 4096);
    }
}

TEST(ModuleLoader, NoDescriptorIsLeftOpen)
{
    const ModuleFiles files;
    const auto open = [] { return QDir(QStringLiteral("/proc/self/fd")).entryList().size(); };
    const auto before = open();
    {
        const ModuleLoad load = loadModule(files.copy("Good"), kTrust);
        EXPECT_EQ(open(), before);
    }
    problemOf(files.write("empty", {}));
    problemOf(files.copy("Unresolved"));
    EXPECT_EQ(open(), before);
}

} // namespace

} // namespace condtree::test
