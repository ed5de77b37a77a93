#include "CDPIHelper.h"

#include <condtree/platform/Services.h>
#include <condtree/presentation/SystemMetrics.h>

#include <QStringView>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <utility>

namespace condtree {

namespace {

constexpr int kDesignDpi = 96;
/// The grid of fonts, deliberately another one.
constexpr int kFontGrid = 104;
constexpr int kPointsPerInch = 72;
constexpr int kTreeItemHeight = 22;
constexpr int kListItemHeight = 20;
constexpr int kToolbarButtonSize = 28;
/// What a button is wider than its image.
constexpr int kButtonBorder = 8;
constexpr int kFixedSize = 256;

/// From a value on, an image size.
struct Rung {
    int from;
    int size;
};

/// Descending; the last rung takes every value that is left.
using Ladder = std::span<const Rung>;

constexpr int kAnyValue = std::numeric_limits<int>::min();
constexpr std::array kToolbarLadder{Rung{128, 128}, Rung{96, 96}, Rung{64, 64},
                                    Rung{40, 40},   Rung{32, 32}, Rung{kAnyValue, 20}};
constexpr std::array kTreeLadder{Rung{40, 40}, Rung{32, 32}, Rung{kAnyValue, 20}};
constexpr std::array kScreenLadder{Rung{193, 40}, Rung{144, 32}, Rung{kAnyValue, 20}};
/// 0 is an image without a suffix.
constexpr std::array kSmallIconLadder{Rung{40, 40}, Rung{32, 32}, Rung{24, 24}, Rung{20, 20},
                                      Rung{kAnyValue, 0}};
constexpr std::array kLargeIconLadder{Rung{80, 80}, Rung{64, 64}, Rung{48, 48}, Rung{40, 40},
                                      Rung{kAnyValue, 32}};
constexpr std::array kIconSheetLadder{Rung{97, 256}, Rung{65, 128}, Rung{32, 96},
                                      Rung{kAnyValue, 256}};
constexpr std::array kTreeIconLadder{Rung{40, 44}, Rung{32, 36}, Rung{kAnyValue, 24}};

int sizeFor(Ladder ladder, int value)
{
    return std::find_if(ladder.begin(), ladder.end() - 1,
                        [value](const Rung& rung) { return value >= rung.from; })
        ->size;
}

/// The size of a toolbar button's image.
int imageSizeInButton(int buttonSize)
{
    const std::int64_t size = std::int64_t{buttonSize} - kButtonBorder;
    return sizeFor(kToolbarLadder, static_cast<int>(std::max<std::int64_t>(size, 0)));
}

CString suffixOf(int size)
{
    return size == 0 ? CString() : QLatin1Char('_') + CString::number(size);
}

/// Image sizes to try one after the other, and what follows the last one and any size that is not
/// there.
struct Descent {
    std::span<const int> sizes;
    int otherwise;
};

constexpr std::array kToolbarSizes{128, 96, 64, 40, 32, 20};
constexpr std::array kTreeSizes{40, 32, 20};
constexpr std::array kSmallIconSizes{40, 32, 24, 20};
constexpr std::array kFixedSizes{256, 128, 96, 80, 64, 48, 40, 32};
constexpr std::span kLargeIconSizes = std::span(kFixedSizes).subspan<3>();

/// In the order of the uses.
constexpr std::array<Descent, 7> kDescents{{{kToolbarSizes, 20},
                                            {kTreeSizes, 0},
                                            {kTreeSizes, 0},
                                            {kSmallIconSizes, 0},
                                            {kLargeIconSizes, 32},
                                            {{}, 0},
                                            {kFixedSizes, 32}}};

int asFlag(bool condition)
{
    return condition ? 1 : 0;
}

} // namespace

CDPIHelper* CDPIHelper::pInstance = nullptr;

CDPIHelper* CDPIHelper::get()
{
    if (pInstance == nullptr)
        pInstance = new CDPIHelper;
    return pInstance;
}

void CDPIHelper::deleteInstance()
{
    delete std::exchange(pInstance, nullptr);
}

CDPIHelper::CDPIHelper()
    : CDPIHelper(realSystemMetric, primaryScreenDpi)
{
}

CDPIHelper::CDPIHelper(Metrics metrics, int dpiX, int dpiY)
    : CDPIHelper(std::move(metrics), [dpiX, dpiY] {
        return SIZE{dpiX, dpiY};
    })
{
}

CDPIHelper::CDPIHelper(Metrics metrics, ScreenDpi screen)
    : m_metrics(std::move(metrics))
    , m_screen(std::move(screen))
{
    iInit();
    setToolbarButtonSizeExp();
}

CDPIHelper::~CDPIHelper() = default;

int CDPIHelper::iInit()
{
    if (m_initialised == 0) {
        if (const std::optional<SIZE> dpi = m_screen()) {
            m_osDpiX = dpi->cx;
            m_osDpiY = dpi->cy;
            m_initialised = 1;
        }
    }
    return m_initialised;
}

void CDPIHelper::setUseOSDPI(bool use)
{
    m_useOsDpi = asFlag(use);
}

void CDPIHelper::setVeltrixDPI(int dpi)
{
    m_veltrixDpi = dpi;
}

int CDPIHelper::is_96DPI() const
{
    return asFlag(getDPI_inUse() == 96);
}

int CDPIHelper::is_144DPI() const
{
    return asFlag(getDPI_inUse() == 144);
}

int CDPIHelper::is_192DPI() const
{
    return asFlag(getDPI_inUse() == 192);
}

int CDPIHelper::is_240DPI() const
{
    return asFlag(getDPI_inUse() == 240);
}

int CDPIHelper::is_96DPIandAbove() const
{
    return asFlag(getDPI_inUse() > 96);
}

int CDPIHelper::isGreaterThan_96DPI() const
{
    return asFlag(getDPI_inUse() > 96 && getDPI_inUse() < 120);
}

int CDPIHelper::isGreaterThanOrEqualTo_120DPI() const
{
    return asFlag(getDPI_inUse() >= 120 && getDPI_inUse() < 144);
}

int CDPIHelper::isGreaterThanOrEqualTo_144DPI() const
{
    return asFlag(getDPI_inUse() >= 144);
}

int CDPIHelper::scaleX(int value) const
{
    return MulDiv(value, getDPI_inUse(), kDesignDpi);
}

int CDPIHelper::unscaleX(int value) const
{
    return MulDiv(value, kDesignDpi, getDPI_inUse());
}

void CDPIHelper::scaleRect(RECT* rect) const
{
    if (rect != nullptr)
        *rect = {scaleX(rect->left), scaleY(rect->top), scaleX(rect->right), scaleY(rect->bottom)};
}

void CDPIHelper::scaleSize(SIZE* size) const
{
    if (size != nullptr)
        *size = {scaleX(size->cx), scaleY(size->cy)};
}

void CDPIHelper::scalePoint(POINT* point) const
{
    if (point != nullptr)
        *point = {scaleX(point->x), scaleY(point->y)};
}

int CDPIHelper::scaleFontHeight(int height) const
{
    return m_osDpiX == kDesignDpi ? height : MulDiv(height, getDPI_inUse(), kFontGrid);
}

int CDPIHelper::unscaleFontHeight(int height) const
{
    return m_osDpiX == kDesignDpi ? height : MulDiv(height, kFontGrid, getDPI_inUse());
}

int CDPIHelper::getOstraLogFontHeight(int points)
{
    return -MulDiv(points, get()->getDPI_inUse(), kPointsPerInch);
}

int CDPIHelper::scale_VeltrixToSystem(int value) const
{
    return MulDiv(value, m_osDpiX, m_veltrixDpi);
}

int CDPIHelper::scale_SystemToVeltrix(int value) const
{
    return MulDiv(value, m_veltrixDpi, m_osDpiX);
}

int CDPIHelper::getTreeItemHeight()
{
    if (m_treeItemHeight == 0)
        m_treeItemHeight = calculateTreeItemHeight();
    return m_treeItemHeight;
}

int CDPIHelper::calculateTreeItemHeight() const
{
    const int height = MulDiv(kTreeItemHeight, getDPI_inUse(), kDesignDpi);
    const int icon = sizeFor(kTreeIconLadder, height);
    // A menu height that is negative is none, and so loses against any icon.
    int limit = std::max(m_metrics(SM_CYMENU), icon);
    if (usingOSDPI() == 0)
        limit = scale_SystemToVeltrix(limit);
    const int smaller = std::min(height, limit);
    return smaller & ~1;
}

int CDPIHelper::getMenuItemHeight(int a, int b) const
{
    const int height = std::max({a, m_metrics(SM_CYMENU), b});
    return usingOSDPI() != 0 ? height : scale_SystemToVeltrix(height);
}

int CDPIHelper::getListAndComboBoxItemHeight() const
{
    return MulDiv(kListItemHeight, getDPI_inUse(), kDesignDpi);
}

int CDPIHelper::setToolbarButtonSizeVx(int size)
{
    return m_toolbarButtonSizeVx = size;
}

int CDPIHelper::setToolbarButtonSizeExp()
{
    return m_toolbarButtonSizeExp = m_metrics(SM_CXSMICON) + kButtonBorder;
}

int CDPIHelper::getToolbarImageSizeVx() const
{
    return imageSizeInButton(m_toolbarButtonSizeVx);
}

int CDPIHelper::getToolbarImageSizeExp() const
{
    return m_metrics(SM_CXSMICON);
}

int CDPIHelper::setToolBarBtnTypeVx(int type)
{
    int size = imageSizeInButton(MulDiv(kToolbarButtonSize, getDPI_inUse(), kDesignDpi));
    const int steps = type == 1 || type == 2 ? type : 0;
    for (int step = 0; step < steps; ++step)
        size = getNextImageSize(size);
    return setToolbarButtonSizeVx(size + kButtonBorder);
}

int CDPIHelper::getDesiredBitmapImageSz(e_kiroImageUseType use)
{
    return getDesiredBitmapImageSize(use, {0, 0}).cx;
}

CSize CDPIHelper::getDesiredBitmapImageSize(e_kiroImageUseType use, CSize defaultSize)
{
    const auto square = [](int side) { return CSize{side, side}; };
    switch (use) {
    case ImageUseToolbar:
        return square(getToolbarImageSizeVx());
    case ImageUseTreeItem:
        return square(sizeFor(kTreeLadder, getTreeItemHeight()));
    case ImageUseScreen:
        return square(sizeFor(kScreenLadder, m_osDpiX));
    case ImageUseSmallIcon:
        return {m_metrics(SM_CXSMICON), m_metrics(SM_CYSMICON)};
    case ImageUseLargeIcon:
        return {m_metrics(SM_CXICON), m_metrics(SM_CYICON)};
    case ImageUseFixed:
        return square(kFixedSize);
    case ImageUseIconSheet:
        break;
    }
    return defaultSize;
}

int CDPIHelper::getImageSize(e_kiroImageUseType use)
{
    return use == ImageUseScreen ? get()->getDesiredBitmapImageSz(use) : 0;
}

int CDPIHelper::getNextImageSize(int size)
{
    constexpr std::array kSizes{20, 32, 40, 64, 96};
    const auto* const found = std::find(kSizes.begin(), kSizes.end() - 1, size);
    return found == kSizes.end() - 1 ? 128 : *(found + 1);
}

CString CDPIHelper::getImageSizeSuffix(e_kiroImageUseType use)
{
    switch (use) {
    case ImageUseSmallIcon:
        return suffixOf(sizeFor(kSmallIconLadder, m_metrics(SM_CXSMICON)));
    case ImageUseLargeIcon:
        return suffixOf(sizeFor(kLargeIconLadder, m_metrics(SM_CXICON)));
    case ImageUseIconSheet:
        return suffixOf(sizeFor(kIconSheetLadder, m_metrics(SM_CXICON)));
    default:
        return suffixOf(getDesiredBitmapImageSz(use));
    }
}

CString CDPIHelper::getSmallerImageSizeSuffix(e_kiroImageUseType use, const char16_t* current)
{
    const auto index = static_cast<unsigned>(use);
    if (index >= kDescents.size())
        return {};
    const Descent& descent = kDescents[index];
    const auto isCurrent = [current](int size) { return QStringView(current) == suffixOf(size); };
    const auto found = std::find_if(descent.sizes.begin(), descent.sizes.end(), isCurrent);
    const bool hasNext = found != descent.sizes.end() && found + 1 != descent.sizes.end();
    return suffixOf(hasNext ? *(found + 1) : descent.otherwise);
}

} // namespace condtree
