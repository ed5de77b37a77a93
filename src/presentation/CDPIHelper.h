#pragma once

#include <condtree/platform/WinTypes.h>

#include <functional>
#include <optional>

class QWidget;

namespace condtree {

/// What an image is used for, which decides its size.
enum e_kiroImageUseType : int {
    /// Follows the size of the first toolbar style's buttons.
    ImageUseToolbar = 0,
    /// Follows the height of tree rows.
    ImageUseTreeItem = 1,
    /// Follows the operating system's resolution.
    ImageUseScreen = 2,
    /// The small icons of the desktop.
    ImageUseSmallIcon = 3,
    /// The large icons of the desktop.
    ImageUseLargeIcon = 4,
    /// Chosen by the desktop's large icons; it has a suffix only, and no size.
    ImageUseIconSheet = 5,
    /// 256 pixels, whatever the resolution.
    ImageUseFixed = 6
};

/// Scales lengths between the design grid of 96 dots per inch and the screen, and chooses the sizes
/// of images and the suffixes of their names.
///
/// It knows two resolutions, the operating system's and that of the application around the control;
/// one of them is in use. All lengths are device-independent pixels. One instance serves the
/// process; it belongs to the user-interface thread.
class CONDTREE_EXPORT CDPIHelper {
public:
    /// Makes the instance on the first call; it lives until deleteInstance. Never null.
    static CDPIHelper* get();
    /// Frees the instance, if there is one; the next get() makes another.
    static void deleteInstance();
    /// Null before the first get() and after deleteInstance().
    static CDPIHelper* pInstance;

    CDPIHelper(const CDPIHelper&) = delete;
    CDPIHelper& operator=(const CDPIHelper&) = delete;

    /// Reads the operating system's resolution if it could not be read so far, as when the instance
    /// was made before the application. 1 when it is known, else 0.
    int iInit();
    /// Whether the operating system's resolution is in use, rather than the application's. It is
    /// until this is called. A tree item height that was asked for before stays.
    void setUseOSDPI(bool use);
    /// The application's resolution, 96 until this is called. It should be positive.
    void setVeltrixDPI(int dpi);

    [[nodiscard]] int getDPI_OS() const { return m_osDpiX; }
    [[nodiscard]] int getSystemDPI() const { return getDPI_OS(); }
    [[nodiscard]] int getDPI_OS_Y() const { return m_osDpiY; }
    [[nodiscard]] int getDPI_inUse() const { return usingOSDPI() ? m_osDpiX : m_veltrixDpi; }
    [[nodiscard]] int usingOSDPI() const { return m_useOsDpi != 0 ? 1 : 0; }

    // Tests of the resolution in use: 1 or 0.
    [[nodiscard]] int is_96DPI() const;
    [[nodiscard]] int is_144DPI() const;
    [[nodiscard]] int is_192DPI() const;
    [[nodiscard]] int is_240DPI() const;
    /// Above 96 only, whatever the name says.
    [[nodiscard]] int is_96DPIandAbove() const;
    /// From 97 to 119 only.
    [[nodiscard]] int isGreaterThan_96DPI() const;
    /// From 120 to 143 only.
    [[nodiscard]] int isGreaterThanOrEqualTo_120DPI() const;
    [[nodiscard]] int isGreaterThanOrEqualTo_144DPI() const;

    // From the design grid to the resolution in use and back, rounded half away from zero.
    [[nodiscard]] int scaleX(int value) const;
    [[nodiscard]] int scaleY(int value) const { return scaleX(value); }
    [[nodiscard]] int unscaleX(int value) const;
    [[nodiscard]] int unscaleY(int value) const { return unscaleX(value); }
    /// Null is ignored, here and below.
    void scaleRect(RECT* rect) const;
    void scaleSize(SIZE* size) const;
    void scalePoint(POINT* point) const;
    /// Fonts have a grid of their own, of 104; a height stays as it is when the operating system's
    /// resolution is 96, even while the application's is in use.
    [[nodiscard]] int scaleFontHeight(int height) const;
    [[nodiscard]] int unscaleFontHeight(int height) const;
    /// The (negative) character height of a font of so many points, by the process's instance.
    [[nodiscard]] static int getOstraLogFontHeight(int points);
    /// From the application's resolution to the operating system's and back.
    [[nodiscard]] int scale_VeltrixToSystem(int value) const;
    [[nodiscard]] int scale_SystemToVeltrix(int value) const;

    /// The height of tree rows, always even; worked out once, and kept from then on.
    [[nodiscard]] int getTreeItemHeight();
    /// The largest of two heights and the desktop's menu height, in the resolution in use.
    [[nodiscard]] int getMenuItemHeight(int a, int b) const;
    [[nodiscard]] int getListAndComboBoxItemHeight() const;
    /// Gives the rows of a list that height: of a combo box's list where the class of window has
    /// "Combo" in its name, else of a list box (QListView) where it has "List". Case counts; any
    /// other window, and null, stay as they are.
    void adjustListBoxAndComboBoxItemHeight(QWidget* window) const;

    // The button and image sizes of the two toolbar styles. The setters return the size that they
    // set.
    [[nodiscard]] int getToolbarButtonSizeVx() const { return m_toolbarButtonSizeVx; }
    [[nodiscard]] int getToolbarButtonSizeExp() const { return m_toolbarButtonSizeExp; }
    int setToolbarButtonSizeVx(int size);
    /// Makes the second style's buttons fit the desktop's small icons.
    int setToolbarButtonSizeExp();
    [[nodiscard]] int getToolbarImageSizeVx() const;
    [[nodiscard]] int getToolbarImageSizeExp() const;
    /// Makes the first style's buttons fit the resolution in use: one size larger for type 1, two
    /// for type 2, neither for any other.
    int setToolBarBtnTypeVx(int type);

    /// The side of an image for a use; 0 where the use has none.
    [[nodiscard]] int getDesiredBitmapImageSz(e_kiroImageUseType use);
    /// The same as a size; defaultSize where the use has none.
    [[nodiscard]] CSize getDesiredBitmapImageSize(e_kiroImageUseType use, CSize defaultSize);
    /// The side of an image for ImageUseScreen, by the process's instance; 0 for every other use.
    [[nodiscard]] static int getImageSize(e_kiroImageUseType use);
    /// The size after 20, 32, 40 or 64; 128 for any other.
    [[nodiscard]] static int getNextImageSize(int size);
    /// What the name of an image for a use ends with, such as "_20"; empty where it ends with
    /// nothing.
    [[nodiscard]] CString getImageSizeSuffix(e_kiroImageUseType use);
    /// The suffix to try when there is no image with the current one. Null is no suffix.
    [[nodiscard]] static CString getSmallerImageSizeSuffix(e_kiroImageUseType use,
                                                           const char16_t* current);

protected:
    /// Answers the metrics SM_...
    using Metrics = std::function<int(int metric)>;
    /// Answers the operating system's two resolutions; none while they are not known.
    using ScreenDpi = std::function<std::optional<SIZE>()>;

    /// By the desktop's metrics and screen.
    CDPIHelper();
    CDPIHelper(Metrics metrics, int dpiX, int dpiY);
    CDPIHelper(Metrics metrics, ScreenDpi screen);
    virtual ~CDPIHelper();

private:
    [[nodiscard]] int calculateTreeItemHeight() const;

    int m_initialised = 0;
    int m_useOsDpi = 1;
    int m_osDpiX = 96;
    int m_osDpiY = 96;
    int m_veltrixDpi = 96;
    /// Kept for a second application's resolution; no operation reads it.
    [[maybe_unused]] int m_secondVeltrixDpi = 96;
    /// 0 as long as nobody has asked for it.
    int m_treeItemHeight = 0;
    int m_toolbarButtonSizeVx = 28;
    int m_toolbarButtonSizeExp = 24;
    Metrics m_metrics;
    ScreenDpi m_screen;
};

} // namespace condtree
