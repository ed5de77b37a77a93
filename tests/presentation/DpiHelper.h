#pragma once

#include <condtree/platform/Services.h>
#include <condtree/presentation/CDPIHelper.h>

#include <ostream>

namespace condtree {
// So that failures show numbers.
inline void PrintTo(const SIZE& size, std::ostream* out)
{
    *out << size.cx << " x " << size.cy;
}
} // namespace condtree

namespace condtree::test {

/// The desktop's metrics, as a test wants them.
struct Desktop {
    int smallIconX = 16, smallIconY = 16, iconX = 32, iconY = 32, menu = 19;

    int operator()(int metric) const
    {
        switch (metric) {
        case SM_CXSMICON:
            return smallIconX;
        case SM_CYSMICON:
            return smallIconY;
        case SM_CXICON:
            return iconX;
        case SM_CYICON:
            return iconY;
        case SM_CYMENU:
            return menu;
        default:
            return 0;
        }
    }
};

/// A choice of resolutions, and which of them is in use.
struct Setting {
    int os;
    bool usesOs;
    int application;
};

inline void PrintTo(const Setting& setting, std::ostream* out)
{
    *out << "OS " << setting.os << ", application " << setting.application << ", "
         << (setting.usesOs ? "OS" : "application") << " in use";
}

/// A helper at a resolution, with a desktop of the test's own.
class DpiHelper final : public CDPIHelper {
public:
    explicit DpiHelper(int dpi, const Desktop& desktop = {})
        : CDPIHelper(desktop, dpi, dpi)
    {
    }
    explicit DpiHelper(const Setting& setting, const Desktop& desktop = {})
        : DpiHelper(setting.os, desktop)
    {
        setUseOSDPI(setting.usesOs);
        setVeltrixDPI(setting.application);
    }
    DpiHelper(int dpiX, int dpiY, const Desktop& desktop)
        : CDPIHelper(desktop, dpiX, dpiY)
    {
    }
    explicit DpiHelper(const ScreenDpi& screen)
        : CDPIHelper(Desktop{}, screen)
    {
    }
    ~DpiHelper() override = default;
};

/// Lets the process's instance be a helper of the test's own, and frees it in the end.
class InstanceForTest {
public:
    explicit InstanceForTest(const Setting& setting)
    {
        CDPIHelper::deleteInstance();
        CDPIHelper::pInstance = new DpiHelper(setting);
    }
    InstanceForTest(const InstanceForTest&) = delete;
    InstanceForTest& operator=(const InstanceForTest&) = delete;
    ~InstanceForTest() { CDPIHelper::deleteInstance(); }
};

} // namespace condtree::test
