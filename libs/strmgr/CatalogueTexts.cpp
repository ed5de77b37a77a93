#include "CatalogueTexts.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <map>

namespace condtree {

namespace {

constexpr std::array<uchar, 16> kMagic{0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                       0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

enum Section : uchar {
    Contexts = 0x2f,
    Hashes = 0x42,
    Messages = 0x69,
    NumerusRules = 0x88,
    Language = 0xa7
};

enum Tag : uchar { End = 1, Translation = 3, SourceText = 6, Context = 7, Comment = 8 };

/// Reads from the front of some bytes; once it has been asked for more than there is, it has failed
/// and gives nothing more.
class Bytes {
public:
    explicit Bytes(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }
    [[nodiscard]] bool isAtEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] qsizetype left() const { return m_rest.size(); }

    QByteArrayView take(qsizetype count)
    {
        m_hasFailed = m_hasFailed || count > m_rest.size();
        if (m_hasFailed)
            return {};
        const QByteArrayView taken = m_rest.first(count);
        m_rest = m_rest.sliced(count);
        return taken;
    }
    uchar byte()
    {
        const QByteArrayView taken = take(1);
        return taken.isEmpty() ? uchar(0) : static_cast<uchar>(taken.front());
    }
    quint32 number()
    {
        const QByteArrayView taken = take(sizeof(quint32));
        return taken.isEmpty() ? 0 : qFromBigEndian<quint32>(taken.data());
    }
    QByteArrayView counted() { return take(number()); }

private:
    QByteArrayView m_rest;
    bool m_hasFailed = false;
};

/// The hash by which the format finds a text.
quint32 hashOf(const TranslatedText& text)
{
    quint32 hash = 0;
    for (const QByteArray* part : {&text.source, &text.disambiguation}) {
        for (const char c : *part) {
            hash = (hash << 4) + static_cast<uchar>(c);
            hash ^= (hash & 0xf0000000) >> 24;
            hash &= 0x0fffffff;
        }
    }
    return hash == 0 ? 1 : hash;
}

/// A name may end with one null. A null pointer before it was read.
bool readName(Bytes& bytes, QByteArray& name)
{
    QByteArrayView read = bytes.counted();
    if (bytes.hasFailed() || !name.isNull())
        return false;
    if (read.endsWith('\0'))
        read.chop(1);
    name = QByteArray(read.isEmpty() ? "" : read.data(), read.size());
    return !name.contains('\0');
}

bool readTranslation(Bytes& bytes, QString& translation)
{
    const QByteArrayView read = bytes.counted();
    if (bytes.hasFailed() || read.size() % 2 != 0)
        return false;
    if (translation.isNull()) {
        translation = QString(read.size() / 2, Qt::Uninitialized);
        qFromBigEndian<char16_t>(read.data(), translation.size(), translation.data());
    }
    return true;
}

/// One text, up to its end mark. None where one of its parts is missing, or there twice.
std::optional<TranslatedText> readText(Bytes& bytes)
{
    TranslatedText text;
    for (;;) {
        bool isGood = false;
        switch (bytes.byte()) {
        case Translation:
            isGood = readTranslation(bytes, text.translation);
            break;
        case SourceText:
            isGood = readName(bytes, text.source);
            break;
        case Context:
            isGood = readName(bytes, text.context);
            break;
        case Comment:
            isGood = readName(bytes, text.disambiguation);
            break;
        case End:
            if (text.translation.isNull() || text.source.isNull() || text.context.isNull()
                || text.disambiguation.isNull())
                return std::nullopt;
            return text;
        default:
            break;
        }
        if (!isGood)
            return std::nullopt;
    }
}

/// The sections by their kind. None where the file does not end with the last of them.
std::optional<std::map<uchar, QByteArrayView>> readSections(const QByteArray& file)
{
    Bytes bytes(file);
    if (!std::ranges::equal(bytes.take(kMagic.size()), kMagic, {},
                            [](char c) { return static_cast<uchar>(c); }))
        return std::nullopt;
    std::map<uchar, QByteArrayView> sections;
    while (!bytes.isAtEnd()) {
        const uchar kind = bytes.byte();
        const bool isKnown = kind == Contexts || kind == Hashes || kind == Messages
                             || kind == NumerusRules || kind == Language;
        const QByteArrayView section = bytes.counted();
        if (!isKnown || section.isEmpty() || !sections.emplace(kind, section).second)
            return std::nullopt;
    }
    return sections;
}

} // namespace

std::optional<std::vector<TranslatedText>> catalogueTextsOf(const QByteArray& file)
{
    const auto sections = readSections(file);
    if (!sections || !sections->contains(Hashes) || !sections->contains(Messages))
        return std::nullopt;
    const QByteArrayView messages = sections->at(Messages);
    std::vector<TranslatedText> texts;
    std::vector<std::pair<quint32, quint32>> expected; // hash and place of each text
    for (Bytes bytes(messages); !bytes.isAtEnd();) {
        const auto place = static_cast<quint32>(messages.size() - bytes.left());
        auto text = readText(bytes);
        if (!text)
            return std::nullopt;
        expected.emplace_back(hashOf(*text), place);
        texts.push_back(*std::move(text));
    }
    std::vector<std::pair<quint32, quint32>> table;
    for (Bytes bytes(sections->at(Hashes)); !bytes.isAtEnd();) {
        const quint32 hash = bytes.number();
        table.emplace_back(hash, bytes.number());
        if (bytes.hasFailed())
            return std::nullopt;
    }
    std::ranges::sort(expected);
    std::ranges::sort(table);
    return table == expected ? std::optional(std::move(texts)) : std::nullopt;
}

} // namespace condtree
