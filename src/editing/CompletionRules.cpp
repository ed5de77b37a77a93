#include "CompletionRules.h"

namespace condtree {

std::optional<CString> reportedText(const CompletionDictionary& dictionary, const CString& typed)
{
    if (dictionary.empty())
        return typed;
    const auto found = dictionary.find(typed.toLower());
    if (found == dictionary.end())
        return std::nullopt;
    const Completion& completion = found->second;
    if (completion.mustMatch && completion.fullText != typed)
        return std::nullopt;
    return completion.fullText;
}

std::optional<CString> committedText(const CompletionDictionary& dictionary, const CString& typed)
{
    if (dictionary.empty())
        return typed;
    const auto found = dictionary.find(typed.toLower());
    if (found == dictionary.end())
        return std::nullopt;
    return found->second.fullText;
}

} // namespace condtree
