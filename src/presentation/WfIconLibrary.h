#pragma once

#include <condtree/platform/IconLibrary.h>
#include <condtree/platform/WfIcons.h>
#include <condtree/presentation/ModuleLoader.h>
#include <condtree/presentation/ModuleTrust.h>

#include <QStringList>

#include <functional>

namespace condtree {

/// The functions of the icon library that were found, each bound on its own and for good: the
/// module that it is in stays loaded. Null until then.
struct IconEntryPoints {
    WfLoadAsPerDpi* loadIcon = nullptr;
    WfLoadAsPerDpi* loadImage = nullptr;
    /// Bound with whichever of the two comes from a library that has it.
    WfLoadAtSize* loadAtSize = nullptr;

    /// Those of the process, which its controls share.
    [[nodiscard]] static IconEntryPoints& ofProcess();
};

/// The icon library, a module that is looked for when a picture is needed, as long as none is
/// bound: a failure is tried again at the next call. Every kind of reason why there is no picture
/// is one line in the log (condtree.icons), which names the first case.
class WfIconLibrary final : public IconLibrary {
public:
    /// What to try, in its order: the first file that is there is taken or refused. Relative paths
    /// are passed over.
    using Places = std::function<QStringList()>;

    WfIconLibrary(Places places, ModuleTrust trust,
                  IconEntryPoints& bound = IconEntryPoints::ofProcess());

    IconResult loadIcon(const CString& name, int use, IconPixels& icon) override;
    IconResult loadImage(const CString& name, int use, IconPixels& strip) override;
    /// Of the library that is bound; looks for none.
    IconResult loadAtSize(const CString& name, int height, IconPixels& pixels) override;

private:
    using Entry = WfLoadAsPerDpi* IconEntryPoints::*;
    enum class Problem {
        RelativePlace,
        Refused,
        Missing,
        NoEntryPoint,
        NoPicture,
        OtherVersion,
        Damaged
    };

    IconResult load(Entry entry, const char* entryName, const CString& name, int use,
                    IconPixels& pixels);
    void bind(Entry entry, const char* entryName);
    [[nodiscard]] ModuleHandle findModule();
    IconResult take(WfImage* image, const CString& name, IconPixels& pixels);
    void tell(Problem problem, const CString& line);

    Places m_places;
    ModuleTrust m_trust;
    IconEntryPoints& m_bound;
    unsigned m_told = 0; ///< A bit a problem.
};

} // namespace condtree
