#include "WfIconLibrary.h"

#include <QLoggingCategory>

#include <cstddef>
#include <utility>

#include <dlfcn.h>

namespace condtree {

namespace {

Q_LOGGING_CATEGORY(lcIcons, "condtree.icons")

/// More than the widest strip of the highest pictures, and few enough to be copied.
constexpr std::int32_t kWidestStrip = 64 * kWfLargestHeight;
constexpr std::int64_t kMostPixels = std::int64_t{64} * kWfLargestHeight * kWfLargestHeight;

bool isKnown(const WfImage& image)
{
    return image.size == sizeof(WfImage) && image.version == kWfImageVersion;
}

bool isPicture(const WfImage& image)
{
    return image.bytes != nullptr && image.width > 0 && image.height > 0
           && image.width <= kWidestStrip && image.height <= kWfLargestHeight
           && std::int64_t{image.width} * image.height <= kMostPixels;
}

} // namespace

IconEntryPoints& IconEntryPoints::ofProcess()
{
    static IconEntryPoints entryPoints;
    return entryPoints;
}

WfIconLibrary::WfIconLibrary(Places places, ModuleTrust trust, IconEntryPoints& bound)
    : m_places(std::move(places))
    , m_trust(std::move(trust))
    , m_bound(bound)
{
}

IconResult WfIconLibrary::loadIcon(const CString& name, int use, IconPixels& icon)
{
    return load(&IconEntryPoints::loadIcon, kWfLoadIconEntry, name, use, icon);
}

IconResult WfIconLibrary::loadImage(const CString& name, int use, IconPixels& strip)
{
    return load(&IconEntryPoints::loadImage, kWfLoadImageEntry, name, use, strip);
}

IconResult WfIconLibrary::loadAtSize(const CString& name, int height, IconPixels& pixels)
{
    if (m_bound.loadAtSize == nullptr)
        return IconResult::NoLibrary;
    WfImage* image = m_bound.loadAtSize(name.toStdU16String().c_str(), height);
    // Not worth a line: the picture is there at another size, or its lack has been told.
    return image == nullptr ? IconResult::NoImage : take(image, name, pixels);
}

IconResult WfIconLibrary::load(Entry entry, const char* entryName, const CString& name, int use,
                               IconPixels& pixels)
{
    if (m_bound.*entry == nullptr)
        bind(entry, entryName);
    if (m_bound.*entry == nullptr)
        return IconResult::NoLibrary;
    return take((m_bound.*entry)(name.toStdU16String().c_str(), use), name, pixels);
}

void WfIconLibrary::bind(Entry entry, const char* entryName)
{
    ModuleHandle module = findModule();
    if (module == nullptr)
        return;
    m_bound.*entry = reinterpret_cast<WfLoadAsPerDpi*>(dlsym(module.get(), entryName));
    if (m_bound.*entry == nullptr) {
        tell(Problem::NoEntryPoint,
             QStringLiteral("the icon library has no %1").arg(QLatin1String(entryName)));
        return;
    }
    if (m_bound.loadAtSize == nullptr)
        m_bound.loadAtSize =
            reinterpret_cast<WfLoadAtSize*>(dlsym(module.get(), kWfLoadAtSizeEntry));
    // It stays loaded as long as the process runs.
    [[maybe_unused]] const void* kept = module.release();
}

ModuleHandle WfIconLibrary::findModule()
{
    const QStringList places = m_places();
    bool isTold = false;
    for (const CString& place : places) {
        if (!place.startsWith(u'/')) {
            tell(Problem::RelativePlace,
                 QStringLiteral("the icon library %1 is not looked for: its location is relative")
                     .arg(place));
            isTold = true;
            continue;
        }
        ModuleLoad load = loadModule(place, m_trust);
        if (load.isThere && load.module == nullptr)
            tell(Problem::Refused,
                 QStringLiteral("the icon library %1 is not loaded: %2").arg(place, load.problem));
        if (load.isThere)
            return std::move(load.module);
    }
    if (!isTold)
        tell(Problem::Missing, QStringLiteral("there is no icon library"));
    return nullptr;
}

IconResult WfIconLibrary::take(WfImage* image, const CString& name, IconPixels& pixels)
{
    if (image == nullptr) {
        tell(Problem::NoPicture, QStringLiteral("the icon library has no picture %1").arg(name));
        return IconResult::NoImage;
    }
    if (!isKnown(*image)) { // so it is not known who frees it, either
        tell(Problem::OtherVersion, QStringLiteral("the icon library is of another version"));
        return IconResult::NoImage;
    }
    const bool isUsable = isPicture(*image);
    if (isUsable) {
        const auto count = static_cast<std::size_t>(image->width)
                           * static_cast<std::size_t>(image->height) * std::size_t{4};
        pixels = {image->width, image->height, {image->bytes, image->bytes + count}};
    } else {
        tell(Problem::Damaged,
             QStringLiteral("the icon library's picture %1 is damaged").arg(name));
    }
    CoTaskMemFree(image);
    return isUsable ? IconResult::Loaded : IconResult::NoImage;
}

void WfIconLibrary::tell(Problem problem, const CString& line)
{
    const unsigned bit = 1U << static_cast<unsigned>(problem);
    if ((m_told & bit) != 0)
        return;
    m_told |= bit;
    qCWarning(lcIcons).noquote() << line;
}

} // namespace condtree
