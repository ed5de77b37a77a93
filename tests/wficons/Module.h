#pragma once

#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

#include <gtest/gtest.h>

#include <QImage>

#include <dlfcn.h>

namespace condtree::test {

/// The icon library as the control loads it; unloaded with this.
class Module {
public:
    Module()
        : m_handle(dlopen(CONDTREE_WFICONS_MODULE, RTLD_NOW | RTLD_LOCAL))
    {
        if (m_handle == nullptr)
            ADD_FAILURE() << dlerror();
    }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    ~Module()
    {
        if (m_handle != nullptr)
            dlclose(m_handle);
    }

    [[nodiscard]] WfImage* icon(const char16_t* name, int use = 3) const
    {
        return call("ghLoadWFPngImageIconAsPerDPI", name, use);
    }
    [[nodiscard]] WfImage* image(const char16_t* name, int use = 3) const
    {
        return call("ghLoadWFPNGImageAsPerDPI", name, use);
    }
    [[nodiscard]] WfImage* atSize(const char16_t* name, int height) const
    {
        return call("ghLoadWFImageAtSize", name, height);
    }

private:
    WfImage* call(const char* entry, const char16_t* name, int number) const
    {
        using Entry = WfImage*(const char16_t*, int);
        void* function = m_handle == nullptr ? nullptr : dlsym(m_handle, entry);
        if (function == nullptr) {
            ADD_FAILURE() << "no " << entry;
            return nullptr;
        }
        return reinterpret_cast<Entry*>(function)(name, number);
    }

    void* m_handle;
};

/// A copy of a picture, which is freed; null for none. Fails the test when the handle is not of
/// the form that is agreed.
inline QImage taken(WfImage* image)
{
    if (image == nullptr)
        return {};
    EXPECT_EQ(image->size, 24U);
    EXPECT_EQ(image->version, 1U);
    EXPECT_EQ(image->bytes, reinterpret_cast<const std::uint8_t*>(image) + 24);
    const QImage copy =
        QImage(image->bytes, image->width, image->height, 4 * image->width, QImage::Format_ARGB32)
            .copy();
    CoTaskMemFree(image);
    return copy;
}

} // namespace condtree::test
