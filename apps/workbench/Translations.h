#pragma once

#include <QString>

class QCoreApplication;

namespace condtree::workbench {

/// Makes a language the program's: of the condition's texts, of its own, of the toolkit's dialogs,
/// and of the form of dates. asked is a name like "de", "de_AT" or "de-AT", in any case, or what
/// the environment names one with: "de_DE.UTF-8", "de_DE@euro", "POSIX"; a null text is the first
/// of the user's languages that there are texts in. The program's own texts are in the program; no
/// other file is read for them. Texts that are missing are English, and a line in the log says so.
/// Texts that were fetched before stay as they are.
void useLanguage(QCoreApplication& application, const QString& asked);

} // namespace condtree::workbench
