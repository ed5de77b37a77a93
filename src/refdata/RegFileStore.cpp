#include "RegFileStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QLoggingCategory>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <optional>
#include <utility>

namespace condtree {

namespace {

/// How long a write waits for another process to finish its own.
constexpr int kLockMilliseconds = 2000;
Q_LOGGING_CATEGORY(lcSettings, "condtree.settings")

/// The right to write values.
constexpr DWORD kSetValue = 0x2;

/// The path of a key; backslashes that enclose no name do not count.
CString keyPath(const CString& rootName, const CString& subKey)
{
    return (QStringList(rootName) + subKey.split(u'\\', Qt::SkipEmptyParts)).join(u'\\');
}

/// The machine's file: the first that there is in its configuration folders, else in the first of
/// them.
QString machineFile()
{
    QStringList files;
    for (const QString& folder : qEnvironmentVariable("XDG_CONFIG_DIRS").split(u':')) {
        if (QDir::isAbsolutePath(folder))
            files << folder + QStringLiteral("/condtree/machine.reg");
    }
    if (files.isEmpty())
        return QStringLiteral("/etc/xdg/condtree/machine.reg");
    const auto existing = std::find_if(files.cbegin(), files.cend(),
                                       [](const QString& file) { return QFileInfo::exists(file); });
    return existing == files.cend() ? files.front() : *existing;
}

/// The bytes of a regular file, none when it cannot be read.
std::optional<QByteArray> bytesOf(const QString& path)
{
    QFile file(path);
    // Opening anything but a regular file might wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(bytes) : std::nullopt;
}

} // namespace

RegFilePaths RegFilePaths::standard()
{
    const QString folder = qEnvironmentVariable("CONDTREE_REGISTRY_DIR");
    if (!folder.isEmpty())
        return {folder + QStringLiteral("/user.reg"), folder + QStringLiteral("/machine.reg")};
    return {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                + QStringLiteral("/condtree/user.reg"),
            machineFile()};
}

RegFileStore::RegFileStore(RegFilePaths paths)
    : m_user{std::move(paths.user), QStringLiteral("HKEY_CURRENT_USER"), {}, true, {}}
    , m_machine{std::move(paths.machine), QStringLiteral("HKEY_LOCAL_MACHINE"), {}, true, {}}
{
}

RegFileStore::~RegFileStore() = default;

RegFileStore::File* RegFileStore::fileOf(HKEY root)
{
    if (root == HKEY_CURRENT_USER)
        return &m_user;
    return root == HKEY_LOCAL_MACHINE ? &m_machine : nullptr;
}

const RegFileStore::OpenKey* RegFileStore::find(HKEY key) const
{
    const auto found = m_openKeys.find(key);
    return found == m_openKeys.end() ? nullptr : &found->second;
}

/// Handles are never used twice, so that a closed one opens nothing.
HKEY RegFileStore::remember(const OpenKey& key)
{
    const HKEY handle = reinterpret_cast<HKEY>(++m_lastHandle);
    m_openKeys.emplace(handle, key);
    return handle;
}

void RegFileStore::read(File& file)
{
    file.contents = {};
    QString warning;
    if (QFileInfo::exists(file.path)) {
        const auto bytes = bytesOf(file.path);
        if (!bytes) {
            warning = QStringLiteral("%1: the file cannot be read").arg(file.path);
        } else {
            auto parsed = RegFile::parse(*bytes);
            if (const auto* error = std::get_if<RegFileError>(&parsed))
                warning = QStringLiteral("%1:%2: %3")
                              .arg(file.path, QString::number(error->line), error->what);
            else
                file.contents = std::get<RegFile>(std::move(parsed));
        }
    }
    file.isWritable = warning.isEmpty();
    if (!warning.isEmpty() && warning != file.reported)
        qCWarning(lcSettings, "%s", qUtf8Printable(warning));
    file.reported = warning;
}

/// Reads a file, edits it and replaces it, while no other process does.
LONG RegFileStore::change(File& file, const std::function<void(RegFile&)>& edit)
{
    const QString folder = QFileInfo(file.path).absolutePath();
    QLockFile lock(file.path + QStringLiteral(".lock"));
    if (!QDir().mkpath(folder) || !lock.tryLock(kLockMilliseconds))
        return ERROR_WRITE_FAULT;
    read(file);
    if (!file.isWritable)
        return ERROR_WRITE_FAULT;
    RegFile edited = file.contents;
    edit(edited);
    QSaveFile saved(file.path);
    if (!saved.open(QIODevice::WriteOnly))
        return ERROR_WRITE_FAULT;
    saved.write(edited.write());
    if (!saved.commit())
        return ERROR_WRITE_FAULT;
    file.contents = std::move(edited);
    return ERROR_SUCCESS;
}

LONG RegFileStore::openKey(HKEY root, const CString& subKey, DWORD access, HKEY& out)
{
    out = nullptr;
    File* file = fileOf(root);
    if (file == nullptr)
        return ERROR_INVALID_HANDLE;
    read(*file);
    const CString path = keyPath(file->rootName, subKey);
    if (path != file->rootName && !file->contents.hasKey(path))
        return ERROR_FILE_NOT_FOUND;
    out = remember({file, path, access});
    return ERROR_SUCCESS;
}

LONG RegFileStore::createKey(HKEY root, const CString& subKey, DWORD access, HKEY& out)
{
    const LONG opened = openKey(root, subKey, access, out);
    if (opened != ERROR_FILE_NOT_FOUND)
        return opened;
    File& file = *fileOf(root);
    const CString path = keyPath(file.rootName, subKey);
    if (!RegFile::isPath(path))
        return ERROR_INVALID_PARAMETER;
    const LONG status = change(file, [&path](RegFile& contents) { contents.addKey(path); });
    if (status == ERROR_SUCCESS)
        out = remember({&file, path, access});
    return status;
}

LONG RegFileStore::queryValue(HKEY key, const CString& name, DWORD* type, void* data, DWORD* size)
{
    const OpenKey* open = find(key);
    if (open == nullptr)
        return ERROR_INVALID_HANDLE;
    if (data != nullptr && size == nullptr)
        return ERROR_INVALID_PARAMETER;
    if ((open->access & KEY_QUERY_VALUE) == 0)
        return ERROR_ACCESS_DENIED;
    const RegValue* value = open->file->contents.value(open->path, name);
    if (value == nullptr)
        return ERROR_FILE_NOT_FOUND;
    if (type != nullptr)
        *type = value->type;
    const auto bytes = static_cast<DWORD>(value->data.size());
    const DWORD room = size == nullptr ? 0 : std::exchange(*size, bytes);
    if (data == nullptr)
        return ERROR_SUCCESS;
    if (room < bytes)
        return ERROR_MORE_DATA;
    std::copy(value->data.begin(), value->data.end(), static_cast<std::uint8_t*>(data));
    return ERROR_SUCCESS;
}

LONG RegFileStore::setValue(HKEY key, const CString& name, DWORD type,
                            const std::vector<std::uint8_t>& data)
{
    const OpenKey* open = find(key);
    if (open == nullptr)
        return ERROR_INVALID_HANDLE;
    if ((open->access & kSetValue) == 0)
        return ERROR_ACCESS_DENIED;
    if (!RegFile::isName(name))
        return ERROR_INVALID_PARAMETER;
    return change(*open->file, [&](RegFile& contents) {
        contents.setValue(open->path, {name, type, data});
    });
}

LONG RegFileStore::closeKey(HKEY key)
{
    return m_openKeys.erase(key) == 1 ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

} // namespace condtree
