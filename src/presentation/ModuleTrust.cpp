#include "ModuleTrust.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace condtree {

namespace {

bool isTrusted(uid_t owner, const ModuleTrust& trust)
{
    return std::find(trust.owners.begin(), trust.owners.end(), owner) != trust.owners.end();
}

bool othersMayWrite(const FileAccess& file, const ModuleTrust& trust)
{
    const bool groupMay = (file.mode & S_IWGRP) != 0 && file.group != trust.group;
    return groupMay || (file.mode & S_IWOTH) != 0;
}

std::optional<FileAccess> accessOf(const CString& path)
{
    struct stat facts {};
    if (stat(QFile::encodeName(path).constData(), &facts) != 0)
        return std::nullopt;
    return FileAccess{facts.st_mode, facts.st_uid, facts.st_gid};
}

} // namespace

ModuleTrust ModuleTrust::ofProcess()
{
    ModuleTrust trust{{0, geteuid()}, std::nullopt};
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&fileProblem), &info) == 0)
        return trust;
    const QFileInfo code(QFile::decodeName(info.dli_fname));
    if (const auto file = accessOf(code.canonicalFilePath()))
        trust.owners.push_back(file->owner);
    const auto folder = accessOf(code.canonicalPath());
    if (folder && (folder->mode & S_IWGRP) != 0)
        trust.group = folder->group;
    return trust;
}

CString fileProblem(const FileAccess& file, const ModuleTrust& trust)
{
    if (!S_ISREG(file.mode))
        return QStringLiteral("it is no regular file");
    if (!isTrusted(file.owner, trust))
        return QStringLiteral("it belongs to another user");
    if (othersMayWrite(file, trust))
        return QStringLiteral("others may write it");
    return {};
}

CString folderProblem(const FileAccess& folder, const ModuleTrust& trust)
{
    if (!isTrusted(folder.owner, trust))
        return QStringLiteral("a folder that it lies in belongs to another user");
    if (othersMayWrite(folder, trust) && (folder.mode & S_ISVTX) == 0)
        return QStringLiteral("others may write a folder that it lies in");
    return {};
}

CString foldersProblem(const CString& path, const ModuleTrust& trust)
{
    for (qsizetype end = path.lastIndexOf(u'/'); end >= 0; end = path.lastIndexOf(u'/', end - 1)) {
        const auto folder = accessOf(end == 0 ? QStringLiteral("/") : path.left(end));
        CString problem = folder ? folderProblem(*folder, trust)
                                 : QStringLiteral("a folder that it lies in cannot be read");
        if (!problem.isEmpty() || end == 0)
            return problem;
    }
    return QStringLiteral("its location is relative");
}

} // namespace condtree
