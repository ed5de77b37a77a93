// Another process at work on the settings files of the folder CONDTREE_REGISTRY_DIR:
//
//     set KEY NAME NUMBER      writes a value and prints the status
//     get KEY NAME             prints the value, or the status after a question mark
//     fill KEY PREFIX COUNT    writes COUNT values, one after the other, and prints the last status
#include <condtree/refdata/RegFileStore.h>

#include <cstring>
#include <iostream>

namespace {

using namespace condtree;

std::vector<std::uint8_t> bytesOf(DWORD number)
{
    std::vector<std::uint8_t> bytes(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

int get(RegistryStore& store, HKEY key, const CString& name)
{
    DWORD number = 0;
    DWORD size = sizeof number;
    const LONG status = store.queryValue(key, name, nullptr, &number, &size);
    if (status == ERROR_SUCCESS)
        std::cout << number;
    else
        std::cout << '?' << status;
    return 0;
}

int fill(RegistryStore& store, HKEY key, const CString& prefix, unsigned count)
{
    LONG status = ERROR_SUCCESS;
    for (unsigned i = 0; i < count && status == ERROR_SUCCESS; ++i)
        status = store.setValue(key, prefix + QString::number(i), REG_DWORD, bytesOf(i));
    std::cout << status;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const auto argument = [&](int i) { return i < argc ? QString::fromUtf8(argv[i]) : QString(); };
    RegFileStore store;
    HKEY key = nullptr;
    const LONG opened = store.createKey(HKEY_CURRENT_USER, argument(2), KEY_READ_WRITE, key);
    if (opened != ERROR_SUCCESS) {
        std::cout << '?' << opened;
        return 1;
    }
    if (argument(1) == QStringLiteral("get"))
        return get(store, key, argument(3));
    if (argument(1) == QStringLiteral("fill"))
        return fill(store, key, argument(3), argument(4).toUInt());
    std::cout << store.setValue(key, argument(3), REG_DWORD, bytesOf(argument(4).toUInt()));
    return 0;
}
