#include "CatalogueTranslator.h"

#include "Catalogue.h"

namespace condtree {

namespace {

/// Nulls separate the parts, which have none.
QByteArray nameOf(QByteArrayView context, QByteArrayView source, QByteArrayView disambiguation)
{
    QByteArray name;
    name.reserve(context.size() + source.size() + disambiguation.size() + 2);
    name.append(context).append('\0').append(source).append('\0').append(disambiguation);
    return name;
}

/// The product's texts by context and source.
QMultiHash<QByteArray, QByteArray> ownNumbers()
{
    QMultiHash<QByteArray, QByteArray> numbers;
    for (const CatalogueText& text : catalogueTexts())
        numbers.insert(nameOf(owned(text.name.section).toUtf8(), owned(text.english).toUtf8(), {}),
                       disambiguationOf(text.name));
    return numbers;
}

} // namespace

CatalogueTranslator::CatalogueTranslator(const std::vector<TranslatedText>& texts)
{
    // A file leaves out the disambiguation of the first of several equal texts, and so of nearly
    // all. The product's get theirs back; a text that is not the product's stays without.
    const QMultiHash<QByteArray, QByteArray> numbers = ownNumbers();
    for (const TranslatedText& text : texts) {
        if (!text.disambiguation.isEmpty())
            m_texts.insert(nameOf(text.context, text.source, text.disambiguation),
                           text.translation);
    }
    for (const TranslatedText& text : texts) {
        if (!text.disambiguation.isEmpty())
            continue;
        const QByteArray plain = nameOf(text.context, text.source, {});
        QList<QByteArray> own = numbers.values(plain);
        if (own.isEmpty())
            own << QByteArray();
        for (const QByteArray& number : own) {
            const QByteArray name = plain + number;
            if (!m_texts.contains(name))
                m_texts.insert(name, text.translation);
        }
    }
}

QString CatalogueTranslator::translate(const char* context, const char* source,
                                       const char* disambiguation, int) const
{
    if (context == nullptr || source == nullptr || disambiguation == nullptr
        || *disambiguation == '\0')
        return {};
    const auto found = m_texts.constFind(nameOf(context, source, disambiguation));
    return found != m_texts.constEnd() ? *found : m_texts.value(nameOf(context, source, {}));
}

} // namespace condtree
