#include "Catalogue.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTranslator>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>

namespace condtree {

namespace {

constexpr auto kTexts = [] {
    auto texts = std::to_array<CatalogueText>({
#include "texts.inc"
    });
    std::ranges::sort(texts, {}, &CatalogueText::name);
    return texts;
}();

static_assert(std::ranges::adjacent_find(kTexts, {}, &CatalogueText::name) == kTexts.end());
static_assert(std::ranges::none_of(kTexts, &std::u16string_view::empty, &CatalogueText::english));

/// Rows ask for operators with "?" in the default's place.
constexpr std::u16string_view kOperatorKey = u"OpName";

/// A short text in UTF-8, null-terminated, without a heap allocation where it is ASCII.
class NarrowText {
public:
    void append(std::u16string_view text)
    {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] >= 0x80) {
                const QByteArray rest = owned(text.substr(i)).toUtf8();
                m_bytes.append(rest.constData(), rest.size());
                return;
            }
            m_bytes.append(static_cast<char>(text[i]));
        }
    }

    void append(LONG number)
    {
        char digits[12];
        const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
        m_bytes.append(std::begin(digits), end - std::begin(digits));
    }

    void append(const TextName& name)
    {
        append(name.key);
        append(u" ");
        append(name.id);
    }

    /// Valid until the next append.
    [[nodiscard]] const char* terminated()
    {
        m_bytes.append('\0');
        return m_bytes.constData();
    }

private:
    QVarLengthArray<char, 256> m_bytes;
};

/// The product's English text of a name; empty where it has none.
std::u16string_view englishText(const TextName& name)
{
    const auto* const found = std::ranges::lower_bound(kTexts, name, {}, &CatalogueText::name);
    return found != kTexts.end() && found->name == name ? found->english : std::u16string_view();
}

/// What an English text is translated to; empty where it is not, or to itself.
CString translated(const TextName& name, std::u16string_view english, const QTranslator* translator)
{
    // An empty source is a catalogue's own header, and without an application nothing is installed.
    if (english.empty() || (translator == nullptr && QCoreApplication::instance() == nullptr))
        return {};
    NarrowText context;
    context.append(name.section);
    NarrowText source;
    source.append(english);
    NarrowText disambiguation;
    disambiguation.append(name);
    if (translator != nullptr)
        return translator->translate(context.terminated(), source.terminated(),
                                     disambiguation.terminated());
    CString text = QCoreApplication::translate(context.terminated(), source.terminated(),
                                               disambiguation.terminated());
    return QStringView(text) == QStringView(english.data(), qsizetype(english.size())) ? CString()
                                                                                       : text;
}

CString translatedByEither(const TextName& name, std::u16string_view known,
                           std::u16string_view english, const QTranslator* translator)
{
    CString text = translated(name, known, translator);
    return text.isEmpty() && english != known ? translated(name, english, translator) : text;
}

} // namespace

std::span<const CatalogueText> catalogueTexts()
{
    return kTexts;
}

QByteArray disambiguationOf(const TextName& name)
{
    NarrowText text;
    text.append(name);
    return {text.terminated()};
}

std::optional<CString> tableText(const TextName& name, std::u16string_view english,
                                 const QTranslator* translator)
{
    const std::u16string_view known = englishText(name);
    CString text = translatedByEither(name, known, english, translator);
    if (text.isEmpty() && known.empty())
        return std::nullopt;
    return text.isEmpty() ? owned(known) : text;
}

CString localisedText(const TextName& name, std::u16string_view english,
                      const QTranslator* translator)
{
    const std::u16string_view known = englishText(name);
    CString text = translatedByEither(name, known, english, translator);
    if (!text.isEmpty())
        return text;
    const bool isKnownBetter = english.empty() || name.key == kOperatorKey;
    return owned(isKnownBetter && !known.empty() ? known : english);
}

} // namespace condtree
