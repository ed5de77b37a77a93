#include "ResultTexts.h"

#include <utility>

namespace condtree {

void ResultTexts::add(ResultText text)
{
    const HRESULT code = text.code;
    m_texts.insert_or_assign(code, std::move(text));
}

const ResultText* ResultTexts::find(HRESULT code) const
{
    const auto found = m_texts.find(code);
    return found == m_texts.end() ? nullptr : &found->second;
}

} // namespace condtree
