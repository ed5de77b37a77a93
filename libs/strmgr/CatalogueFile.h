#pragma once

#include <condtree/platform/WinTypes.h>

#include <QStringList>
#include <QTranslator>

#include <memory>

namespace condtree {

/// What was read of a language.
struct CatalogueRead {
    /// Null for English and where the catalogue is missing or broken.
    std::unique_ptr<QTranslator> translator;
    /// Whether the texts are what was asked for. False has been told to the log, in one line.
    bool isGood = false;
};

/// Reads the catalogue of a language from the first folder that has one.
[[nodiscard]] CatalogueRead readCatalogue(const CString& language, const QStringList& folders);

/// The translator of a language, for texts that are to be in it alone; one without texts for
/// English and where the catalogue is missing or broken. Never null.
[[nodiscard]] std::unique_ptr<QTranslator> translatorOf(const CString& language,
                                                        const QStringList& folders);

/// The catalogue file of a language, or else that of the language without its country or script;
/// empty when no folder has one.
[[nodiscard]] CString findCatalogue(const CString& language, const QStringList& folders);

/// Whether a language needs no catalogue: a kind of English, the locale "C", or an empty name.
[[nodiscard]] bool isEnglish(const CString& language);

} // namespace condtree
