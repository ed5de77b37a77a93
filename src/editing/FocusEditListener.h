#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

class FocusEdit;

/// Hears what becomes of the text in an editor. In any of its operations it may remove itself or
/// others from the editor, and delete the editor.
class CONDTREE_EXPORT FocusEditListener {
public:
    FocusEditListener() = default;
    FocusEditListener(const FocusEditListener&) = delete;
    FocusEditListener& operator=(const FocusEditListener&) = delete;

    /// The edit is finished; text is the edited object's own, whether or not anything was
    /// committed into it.
    virtual void editFinished(FocusEdit* editor, const CString& text) = 0;
    /// The user paused with this text in the editor: the moment before the edited object gets it,
    /// should live update be on, and the one after.
    virtual void beforeLiveUpdate(FocusEdit* editor, const CString& text) = 0;
    virtual void afterLiveUpdate(FocusEdit* editor, const CString& text) = 0;

protected:
    // Not virtual: an editor never owns its listeners.
    ~FocusEditListener() = default;
};

} // namespace condtree
