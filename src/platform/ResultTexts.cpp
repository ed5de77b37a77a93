#include "ResultTexts.h"

#include <utility>

namespace condtree {

namespace {

/// A copy that owns its characters and ends with a null, as look-ups are handed pointers to them.
CString owned(const CString& text)
{
    return CString(text.constData(), text.size());
}

} // namespace

void ResultTexts::add(ResultText text)
{
    text.key = owned(text.key);
    text.section = owned(text.section);
    text.defaultText = owned(text.defaultText);
    const HRESULT code = text.code;
    m_texts.insert_or_assign(code, std::move(text));
}

const ResultText* ResultTexts::find(HRESULT code) const
{
    const auto found = m_texts.find(code);
    return found == m_texts.end() ? nullptr : &found->second;
}

} // namespace condtree
