#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

class FocusEdit;

/// What the in-place editor edits: it reads and writes its text, and asks how to behave, through
/// these operations alone. The order of the virtual operations is part of the interface.
class CONDTREE_EXPORT FocusEditValue {
public:
    FocusEditValue() = default;
    FocusEditValue(const FocusEditValue&) = delete;
    FocusEditValue& operator=(const FocusEditValue&) = delete;

    /// Takes the edited text.
    virtual void mvSetEditText(FocusEdit* editor, const CString& text) = 0;
    /// The text to edit.
    [[nodiscard]] virtual CString moGetEditText() const = 0;
    [[nodiscard]] virtual bool mbIsReadOnly(FocusEdit* editor) = 0;
    /// A character was typed; true when it is consumed.
    virtual bool mbFilterChar(unsigned character, unsigned repeatCount, unsigned flags) = 0;
    /// A key was pressed; true when it is consumed.
    virtual bool mbFilterKey(unsigned key, unsigned repeatCount, unsigned flags) = 0;
    [[nodiscard]] virtual bool mbHasBorder() = 0;
    [[nodiscard]] virtual bool mbIsMultiLine() = 0;
    /// Text was pasted into the editor.
    virtual void mvAfterPaste() = 0;

protected:
    // Not virtual: an editor never owns what it edits.
    ~FocusEditValue() = default;
};

} // namespace condtree
