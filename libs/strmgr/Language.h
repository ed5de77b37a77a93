#pragma once

#include <condtree/platform/WinTypes.h>

#include <QStringList>

class QCoreApplication;

namespace condtree {

/// The language of the texts, as a name like "de" or "pt_BR". A catalogue is a file of Qt's
/// translation format named condtree_<language>.qm, not compressed and without dependencies; its
/// entries have the section as the context, the English text as the source and "<key> <id>" as the
/// disambiguation. The product's numbers have no texts but their own. As the format has it, a
/// number that is not the product's takes an entry without a disambiguation of its section and
/// English text.

/// Where the catalogues that come with the library may lie, most specific first: beside the
/// library, in its prefix, and in the data folders of the user and the machine. Not all of them
/// need exist.
[[nodiscard]] CONDTREE_EXPORT QStringList languageFolders();

/// Which of several wanted languages to load, in order of preference and in either spelling
/// ("de_AT", "de-AT"), as QLocale::uiLanguages lists them: the first that has a catalogue in one of
/// the folders, or English. The first wanted one where there is a catalogue for none, so that
/// loading it says what is missing; "en" for an empty list and for the locale "C".
[[nodiscard]] CONDTREE_EXPORT CString
preferredLanguage(const QStringList& wanted, const QStringList& folders = languageFolders());

/// Makes a language the application's, in place of the one that was loaded so before: the catalogue
/// in the first of folders that has one is installed as a translator that the application owns.
/// Texts that were fetched before stay as they are. Language "en" needs no catalogue; an empty name
/// is "en". False when the texts stay English because the catalogue is missing or cannot be read,
/// is damaged or has no texts, which is written to the log as one line.
CONDTREE_EXPORT bool loadLanguage(QCoreApplication& application, const CString& language,
                                  const QStringList& folders = languageFolders());

} // namespace condtree
