#include "ModuleLoader.h"

#include <condtree/presentation/ElfCheck.h>

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace condtree {

namespace {

class Descriptor {
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

CString systemText(int error)
{
    return qt_error_string(error);
}

CString contentProblem(int descriptor, std::uint64_t fileSize)
{
    std::array<std::byte, kElfStart> start{};
    std::size_t count = 0;
    while (count < start.size()) {
        const ssize_t got =
            pread(descriptor, &start[count], start.size() - count, static_cast<off_t>(count));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return systemText(errno);
        if (got == 0)
            break;
        count += static_cast<std::size_t>(got);
    }
    return elfProblem(std::span(start).first(count), fileSize, ElfKind::ofProcess());
}

/// Why an open file may not be loaded; empty when it may.
CString problemOf(int descriptor, const struct stat& facts, const ModuleTrust& trust)
{
    CString problem = fileProblem({facts.st_mode, facts.st_uid, facts.st_gid}, trust);
    if (!problem.isEmpty())
        return problem;
    // Where the file lies really, behind links.
    const QFileInfo real(QStringLiteral("/proc/self/fd/%1").arg(descriptor));
    problem = foldersProblem(real.symLinkTarget(), trust);
    if (!problem.isEmpty())
        return problem;
    return contentProblem(descriptor, static_cast<std::uint64_t>(facts.st_size));
}

/// The loader's own words, without the name that only it knows the file by.
CString loaderProblem(const CString& name)
{
    return QString::fromLocal8Bit(dlerror()).remove(name + QLatin1String(": "));
}

/// A bit a slash: "/." is 1.
CString asSlashes(std::uint64_t number)
{
    CString slashes;
    for (; number != 0; number >>= 1U)
        slashes += (number & 1U) != 0 ? QLatin1String("/.") : QLatin1String("/");
    return slashes;
}

} // namespace

void CloseModule::operator()(void* handle) const
{
    dlclose(handle);
}

CString nameForLoader(int descriptor, dev_t device, ino_t inode)
{
    return QStringLiteral("/proc/self") + asSlashes(device) + QStringLiteral("/fd")
           + asSlashes(inode) + QLatin1Char('/') + CString::number(descriptor);
}

ModuleLoad loadModule(const CString& path, const ModuleTrust& trust)
{
    // A pipe or a device must not hold us up.
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const Descriptor file(open(QFile::encodeName(path).constData(), flags));
    if (file.number() < 0) {
        const int error = errno;
        const bool isThere = error != ENOENT && error != ENOTDIR;
        return {nullptr, isThere, isThere ? systemText(error) : CString()};
    }
    struct stat facts {};
    if (fstat(file.number(), &facts) != 0)
        return {nullptr, true, systemText(errno)};
    if (CString problem = problemOf(file.number(), facts, trust); !problem.isEmpty())
        return {nullptr, true, problem};
    const CString name = nameForLoader(file.number(), facts.st_dev, facts.st_ino);
    ModuleHandle module(dlopen(name.toLatin1().constData(), RTLD_NOW | RTLD_LOCAL));
    if (module == nullptr)
        return {nullptr, true, loaderProblem(name)};
    return {std::move(module), true, {}};
}

} // namespace condtree
