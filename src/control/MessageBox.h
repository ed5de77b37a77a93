#pragma once

#include <condtree/platform/Services.h>
#include <condtree/platform/WinTypes.h>

class QWidget;

namespace condtree {

/// Shows text in a box with an OK button and, for MB_ICONERROR, the icon of an error, modal to
/// owner's window (to the whole application without an owner), and waits until it is closed.
///
/// While such a box is open over a window, a further text for that window joins it, unless it is
/// there already, and the call returns at once; one of an error gives the box its icon. The box
/// belongs to nobody: while it is open the host may delete the owner and its window, and the box
/// stays until the user has read it.
void showMessage(QWidget* owner, const CString& text, unsigned type = MB_OK);

} // namespace condtree
