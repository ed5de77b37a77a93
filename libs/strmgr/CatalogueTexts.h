#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace condtree {

/// A text of a catalogue file, in the file's terms; UTF-8 without nulls.
struct TranslatedText {
    QByteArray context;
    QByteArray source;
    QByteArray disambiguation;
    QString translation;
};

/// The texts of a compiled translation file (Qt's .qm format), whose structure is checked to the
/// last byte: sections, the table of hashes, which is a check sum of what the texts are found by,
/// and the tags and lengths of every text. None where anything is amiss, the file has no texts, is
/// compressed (lrelease -compress), or depends on other files. Of plural forms the first is taken.
[[nodiscard]] std::optional<std::vector<TranslatedText>> catalogueTextsOf(const QByteArray& file);

} // namespace condtree
