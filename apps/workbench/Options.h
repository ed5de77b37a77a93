#pragma once

#include "Outcome.h"

#include <QStringList>

namespace condtree::workbench {

/// What the command line asks for. A missing option is a null text.
struct Options {
    QString database;
    QString user;
    QString transition;
    QString language;
    bool list = false;
    bool print = false;
    QString exportFile;
    QString importFile;
    QString screenshotFile;
    bool help = false;
    bool version = false;

    /// Whether something is to be done without showing a window.
    [[nodiscard]] bool isHeadless() const;
    /// Whether one of the tasks is about one transition.
    [[nodiscard]] bool needsTransition() const;
};

/// Reads the arguments behind the program's name. A value stands behind its option or after an
/// equals sign; one that begins with "--" only after an equals sign. The toolkit's own options of
/// the style
/// "-platform NAME" are passed over.
[[nodiscard]] Outcome<Options> parseOptions(const QStringList& arguments);

/// The language that a command line asks for, whatever else is wrong with it: what is wrong is told
/// in this language. Null when it asks for none.
[[nodiscard]] QString languageAsked(const QStringList& arguments);

/// The text that --help prints.
[[nodiscard]] QString usageText();

} // namespace condtree::workbench
