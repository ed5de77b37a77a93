#include "Catalogue.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTranslator>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <tuple>

namespace condtree {

namespace {

struct CatalogueText {
    LONG id;
    std::u16string_view key;
    std::u16string_view section;
    std::u16string_view english;

    [[nodiscard]] constexpr auto name() const { return std::tuple(id, key, section); }
};

constexpr auto kTexts = [] {
    auto texts = std::to_array<CatalogueText>({
#include "texts.inc"
    });
    std::ranges::sort(texts, {}, &CatalogueText::name);
    return texts;
}();

static_assert(std::ranges::adjacent_find(kTexts, {}, &CatalogueText::name) == kTexts.end());
static_assert(std::ranges::none_of(kTexts, &std::u16string_view::empty, &CatalogueText::english));

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

    /// Valid until the next append.
    [[nodiscard]] const char* terminated()
    {
        m_bytes.append('\0');
        return m_bytes.constData();
    }

private:
    QVarLengthArray<char, 256> m_bytes;
};

} // namespace

std::u16string_view englishText(const TextName& name)
{
    const std::tuple wanted(name.id, name.key, name.section);
    const auto* const found = std::ranges::lower_bound(kTexts, wanted, {}, &CatalogueText::name);
    return found != kTexts.end() && found->name() == wanted ? found->english
                                                            : std::u16string_view();
}

CString translation(const TextName& name, std::u16string_view english,
                    const QTranslator* translator)
{
    // An empty source is a catalogue's own header, and without an application nothing is installed.
    if (english.empty() || (translator == nullptr && QCoreApplication::instance() == nullptr))
        return {};
    NarrowText context;
    context.append(name.section);
    NarrowText source;
    source.append(english);
    NarrowText disambiguation;
    disambiguation.append(name.key);
    disambiguation.append(u" ");
    disambiguation.append(name.id);
    if (translator != nullptr)
        return translator->translate(context.terminated(), source.terminated(),
                                     disambiguation.terminated());
    return QCoreApplication::translate(context.terminated(), source.terminated(),
                                       disambiguation.terminated());
}

} // namespace condtree
