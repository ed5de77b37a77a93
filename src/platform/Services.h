#pragma once

#include <condtree/platform/IconLibrary.h>
#include <condtree/platform/RegistryStore.h>
#include <condtree/platform/ResultTexts.h>
#include <condtree/platform/TextRef.h>
#include <condtree/platform/WinTypes.h>

#include <functional>
#include <memory>

class QObject;
class QWidget;

namespace condtree {

/// The metrics that Services::systemMetric answers, in device-independent pixels.
enum : int {
    SM_CXVSCROLL = 2,
    SM_CXICON = 11,
    SM_CYICON = 12,
    SM_CYMENU = 15,
    SM_CXDOUBLECLK = 36,
    SM_CYDOUBLECLK = 37,
    SM_CXEDGE = 45,
    SM_CXSMICON = 49,
    SM_CYSMICON = 50
};

/// A message box with an OK button and no icon.
inline constexpr unsigned MB_OK = 0;
/// The same with the icon of an error.
inline constexpr unsigned MB_ICONERROR = 0x10;

/// Everything that the control asks of the world around it, but for the data-access library.
/// A port that is left empty is the real one.
struct Services {
    /// Shows a plain text, modal to owner's window (to the application where owner is null), and
    /// waits until it is closed; type is MB_OK or MB_ICONERROR. While a message is open over a
    /// window, the real one adds further texts for that window to it, each once, and returns at
    /// once. Owner and its window may die meanwhile.
    std::function<int(QWidget* owner, const CString& text, unsigned type)> messageBox;
    StringSource string;
    std::function<SYSTEMTIME()> localTime;
    /// Milliseconds since some start; wraps around.
    std::function<DWORD()> tickCount;
    /// The pointer's place in screen co-ordinates.
    std::function<POINT()> cursorPos;
    std::function<int(int metric)> systemMetric;
    /// Milliseconds.
    std::function<DWORD()> doubleClickTime;
    /// The screen's colour depth; 0 when it is not known.
    std::function<int()> bitsPerPixel;
    /// Sends receiver a TimerMessage with this id, once, when the time has passed; starts anew
    /// where one of the same id is running for it. The receiver may die meanwhile.
    std::function<void(QObject* receiver, std::uintptr_t id, unsigned ms)> startTimer;
    /// Stops a timer, if it is running.
    std::function<void(QObject* receiver, std::uintptr_t id)> stopTimer;
    std::shared_ptr<RegistryStore> registry;
    std::shared_ptr<IconLibrary> icons;
    /// The messages of result codes that the control does not know; the host may add some at any
    /// time.
    std::shared_ptr<ResultTexts> resultTexts;
};

} // namespace condtree
