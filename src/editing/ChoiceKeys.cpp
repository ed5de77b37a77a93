#include "ChoiceKeys.h"

#include <QChar>
#include <QList>

#include <algorithm>

namespace condtree {

namespace {

constexpr char16_t kBehindText = 0xFFFF;
constexpr char32_t kNoCharacter = QChar::ReplacementCharacter;
constexpr char32_t kPlaneSize = 0x10000;

// The marks of Latin, Greek and Cyrillic letters alone: elsewhere a mark makes another letter.
bool isAccent(char16_t unit)
{
    return (unit >= 0x0300 && unit <= 0x036F) || (unit >= 0x1AB0 && unit <= 0x1AFF)
           || (unit >= 0x1DC0 && unit <= 0x1DFF);
}

// The toolkit folds a letter to one letter.
bool isSharpS(char32_t point)
{
    return point == U'\u00DF' || point == U'\u1E9E';
}

std::u16string foldedPoint(char32_t point)
{
    if (isSharpS(point))
        return u"ss";
    const QString text = QString::fromUcs4(&point, 1)
                             .toCaseFolded()
                             .normalized(QString::NormalizationForm_KD)
                             .toCaseFolded();
    std::u16string folded;
    for (const QChar unit : text) {
        if (!isAccent(unit.unicode()) && unit.unicode() != kBehindText)
            folded.push_back(unit.unicode());
    }
    return folded;
}

/// Folds many texts: what a unit becomes is worked out once.
class Folder {
public:
    Folder()
        : m_known(kPlaneSize, 0)
    {
    }

    void append(QStringView text, std::u16string& out)
    {
        qsizetype i = appendSimple(text, out);
        for (; i < text.size(); ++i) {
            const QChar unit = text[i];
            if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
                out += foldedPoint(QChar::surrogateToUcs4(unit, text[++i]));
            else
                appendUnit(unit.unicode(), out);
        }
    }

private:
    /// Appends the units at the beginning that become one unit each; how many there are.
    qsizetype appendSimple(QStringView text, std::u16string& out)
    {
        const std::size_t before = out.size();
        out.resize(before + static_cast<std::size_t>(text.size()));
        char16_t* next = out.data() + before;
        qsizetype done = 0;
        for (const QChar unit : text) {
            const char32_t folded = m_known[unit.unicode()];
            if (folded == 0 || folded >= kPlaneSize)
                break;
            *next++ = static_cast<char16_t>(folded);
            ++done;
        }
        out.resize(before + static_cast<std::size_t>(done));
        return done;
    }

    void appendUnit(char16_t unit, std::u16string& out)
    {
        if (m_known[unit] == 0)
            learn(unit);
        if (m_known[unit] < kPlaneSize)
            out.push_back(static_cast<char16_t>(m_known[unit]));
        else
            out += m_others[m_known[unit] - kPlaneSize];
    }

    void learn(char16_t unit)
    {
        std::u16string folded =
            foldedPoint(QChar::isSurrogate(unit) ? kNoCharacter : char32_t(unit));
        if (folded.size() == 1 && folded[0] != 0) {
            m_known[unit] = folded[0];
            return;
        }
        m_known[unit] = static_cast<char32_t>(kPlaneSize + m_others.size());
        m_others.push_back(std::move(folded));
    }

    std::vector<char32_t> m_known; // 0 is not yet worked out, from kPlaneSize a place in m_others
    std::vector<std::u16string> m_others;
};

} // namespace

QString searchKey(QStringView text)
{
    std::u16string key;
    for (const char32_t point : text.toUcs4())
        key += foldedPoint(point);
    return QString::fromStdU16String(key);
}

ChoiceKeys::ChoiceKeys(const ChoiceEntries& entries)
{
    Folder folder;
    std::size_t units = entries.size();
    for (const ChoiceEntry& entry : entries)
        units += static_cast<std::size_t>(entry.text.size());
    m_block.reserve(units);
    m_ends.reserve(entries.size());
    for (const ChoiceEntry& entry : entries) {
        folder.append(entry.text, m_block);
        m_ends.push_back(m_block.size());
        m_block.push_back(kBehindText);
    }
}

QStringView ChoiceKeys::at(int index) const
{
    const auto i = static_cast<std::size_t>(index);
    const std::size_t begin = i == 0 ? 0 : m_ends[i - 1] + 1;
    return QStringView(m_block).sliced(static_cast<qsizetype>(begin),
                                       static_cast<qsizetype>(m_ends[i] - begin));
}

bool ChoiceKeys::startsWith(int index, QStringView key) const
{
    return at(index).startsWith(key);
}

bool ChoiceKeys::contains(int index, QStringView key) const
{
    return at(index).contains(key);
}

void ChoiceKeys::collect(QStringView key, int firstRow, std::vector<int>& rows) const
{
    const QStringView block(m_block);
    std::size_t index = 0;
    for (qsizetype at = block.indexOf(key); at >= 0;) {
        while (m_ends[index] < static_cast<std::size_t>(at))
            ++index;
        rows.push_back(firstRow + static_cast<int>(index));
        at = block.indexOf(key, static_cast<qsizetype>(m_ends[index]) + 1);
    }
}

} // namespace condtree
