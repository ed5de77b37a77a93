#include "KeptColumns.h"

#include <condtree/refdata/Registry.h>

#include <QLocale>
#include <QStringList>

#include <vector>

namespace condtree::workbench {

namespace {

const QString kKey = QStringLiteral("Software\\CondTree\\Workbench");
const QString kName = QStringLiteral("ColumnShares");
// More than three numbers ever take, in bytes.
constexpr DWORD kLargest = 256;

/// A text of the store; null where there is none.
QString textOf(Registry& key)
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (key.query(kName, &type, nullptr, &size) != ERROR_SUCCESS || type != REG_SZ)
        return {};
    if (size > kLargest || size % sizeof(char16_t) != 0)
        return {};
    std::vector<char16_t> units(size / sizeof(char16_t) + 1);
    if (key.query(kName, nullptr, units.data(), &size) != ERROR_SUCCESS)
        return {};
    return QString::fromUtf16(units.data()); // to the null
}

} // namespace

std::optional<std::array<double, 3>> keptColumnShares(RegistryStore& store)
{
    Registry key(store);
    key.open(HKEY_CURRENT_USER, kKey, KEY_QUERY_VALUE);
    const QStringList numbers = textOf(key).split(u' ');
    std::array<double, 3> shares{};
    if (static_cast<std::size_t>(numbers.size()) != shares.size())
        return std::nullopt;
    for (std::size_t i = 0; i < shares.size(); ++i) {
        bool isNumber = false;
        shares[i] = numbers[static_cast<qsizetype>(i)].toDouble(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    return shares;
}

void keepColumnShares(RegistryStore& store, const std::array<double, 3>& shares)
{
    QStringList numbers;
    for (const double share : shares) // as many digits as bring back the very number
        numbers += QString::number(share, 'g', QLocale::FloatingPointShortest);
    const QString text = numbers.join(u' ');
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.utf16());
    const std::size_t size = (static_cast<std::size_t>(text.size()) + 1) * sizeof(char16_t);
    Registry key(store);
    if (key.create(HKEY_CURRENT_USER, kKey, KEY_READ_WRITE) == ERROR_SUCCESS)
        store.setValue(key.key(), kName, REG_SZ, {bytes, bytes + size});
}

} // namespace condtree::workbench
