#pragma once

#include <condtree/platform/IconLibrary.h>

#include <functional>

namespace condtree {

/// The icon library as long as none is drawn: blank pictures of the right size and number.
class BlankIcons final : public IconLibrary {
public:
    /// systemMetric answers the size of small icons.
    explicit BlankIcons(std::function<int(int metric)> systemMetric);

    IconResult loadIcon(const CString& name, int use, IconPixels& icon) override;
    IconResult loadImage(const CString& name, int use, IconPixels& strip) override;

private:
    [[nodiscard]] IconPixels blank(int images) const;

    std::function<int(int metric)> m_systemMetric;
};

} // namespace condtree
