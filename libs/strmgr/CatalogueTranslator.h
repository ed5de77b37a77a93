#pragma once

#include "CatalogueTexts.h"

#include <QHash>
#include <QTranslator>

#include <vector>

namespace condtree {

/// The texts of one catalogue file. Unlike a translator of Qt's, it answers for the numbers whose
/// texts it has, and not for another number of the same English text; nor for texts without a
/// number, which are other people's.
class CatalogueTranslator final : public QTranslator {
public:
    explicit CatalogueTranslator(const std::vector<TranslatedText>& texts);

    [[nodiscard]] QString translate(const char* context, const char* source,
                                    const char* disambiguation, int n) const override;
    [[nodiscard]] bool isEmpty() const override { return m_texts.isEmpty(); }

private:
    /// By context, source and disambiguation.
    QHash<QByteArray, QString> m_texts;
};

} // namespace condtree
