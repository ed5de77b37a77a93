#pragma once

#include <condtree/platform/WinTypes.h>

#include <map>

namespace condtree {

/// How the message of a result code is made.
enum class ResultTextKind {
    Plain,           ///< The translated text.
    DatabaseVersion, ///< Which versions of the database server are supported.
    SystemVersion,   ///< What is asked of the operating system.
    SymbolicName     ///< The default text as it stands: the name of the code.
};

/// The message of one result code. Plain texts are translated by id, key and section; the other
/// kinds do not use these. Kinds of versions have texts of their own and use no default text
/// either.
struct ResultText {
    HRESULT code = S_OK;
    LONG id = 0;
    CString key;
    CString section;
    CString defaultText; ///< English.
    ResultTextKind kind = ResultTextKind::Plain;
};

/// The messages of a host's own result codes, such as those of its data-access library.
class CONDTREE_EXPORT ResultTexts {
public:
    /// Adds a message, or replaces the one of the same code. May be called at any time; a message
    /// that is asked for from then on has the new text. Codes of the control's own catalogue keep
    /// their messages, whatever is added for them.
    void add(ResultText text);

    /// The message of a code, valid until the next add; null when there is none.
    [[nodiscard]] const ResultText* find(HRESULT code) const;

private:
    std::map<HRESULT, ResultText> m_texts;
};

} // namespace condtree
