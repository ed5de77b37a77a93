#pragma once

#include <QString>

class QWidget;

// What the window asks and tells. Every function waits for the answer.
namespace condtree::workbench {

/// What becomes of changes that are not saved.
enum class Leaving { Save, Discard, Cancel };

/// Asks what to do with the changes of a transition before something else takes its place.
[[nodiscard]] Leaving askBeforeLeaving(QWidget* parent, const QString& transition);

/// Asks whether the changes of a transition may be given up.
[[nodiscard]] bool askBeforeReverting(QWidget* parent, const QString& transition);

/// Tells that something failed; advice says what the user still has and can do.
void tellFailure(QWidget* parent, const QString& text, const QString& advice = {});

/// The file to read or to write; empty when the user chose none.
[[nodiscard]] QString askFileToImport(QWidget* parent);
[[nodiscard]] QString askFileToExport(QWidget* parent, const QString& suggestedName);

} // namespace condtree::workbench
