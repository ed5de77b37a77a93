#include "Dialogs.h"

#include "Messages.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

#include <array>

namespace condtree::workbench {

namespace {

// The toolkit's texts of the buttons of our boxes, for languages that it has no texts in itself.
[[maybe_unused]] constexpr std::array kButtons{
    //: A button of a message box
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    //: A button of a message box
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    //: A button of a message box
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    //: A button of a message box: gives up the changes
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"),
    //: A button of a message box on a GNOME desktop
    QT_TRANSLATE_NOOP("QGnomeTheme", "&OK"),
    //: A button of a message box on a GNOME desktop
    QT_TRANSLATE_NOOP("QGnomeTheme", "&Save"),
    //: A button of a message box on a GNOME desktop
    QT_TRANSLATE_NOOP("QGnomeTheme", "&Cancel"),
    //: A button of a message box on a GNOME desktop: goes on and gives up the changes
    QT_TRANSLATE_NOOP("QGnomeTheme", "Close without Saving"),
};

QMessageBox::StandardButton ask(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                const QString& detail, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton chosen)
{
    // On the heap and watched: the window may be destroyed, and take the box along, while it is
    // open.
    const QPointer<QMessageBox> box(new QMessageBox(icon, programTitle(), text, buttons, parent));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(detail);
    box->setDefaultButton(chosen);
    const int answer = box->exec();
    delete box;
    return static_cast<QMessageBox::StandardButton>(answer);
}

QString askFile(QWidget* parent, const QString& title, QFileDialog::AcceptMode mode,
                const QString& suggestedName)
{
    const QPointer<QFileDialog> dialog(new QFileDialog(
        parent, title, QString(),
        QCoreApplication::translate("Dialogs", "Conditions (*.json);;All files (*)")));
    dialog->setAcceptMode(mode);
    dialog->setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                        : QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    if (!suggestedName.isEmpty())
        dialog->selectFile(suggestedName);
    const bool isChosen = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    const QString file = isChosen ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return file;
}

} // namespace

Leaving askBeforeLeaving(QWidget* parent, const QString& transition)
{
    const auto answer =
        ask(parent, QMessageBox::Warning,
            QCoreApplication::translate("Dialogs",
                                        "The condition of %1 has changes that are not saved.")
                .arg(quoted(transition)),
            QCoreApplication::translate("Dialogs", "Save them before going on?"),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return Leaving::Save;
    return answer == QMessageBox::Discard ? Leaving::Discard : Leaving::Cancel;
}

bool askBeforeReverting(QWidget* parent, const QString& transition)
{
    return ask(parent, QMessageBox::Warning,
               QCoreApplication::translate("Dialogs", "Give up the changes to the condition of %1?")
                   .arg(quoted(transition)),
               QCoreApplication::translate("Dialogs",
                                           "The condition will be read from the database again."),
               QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel)
           == QMessageBox::Discard;
}

void tellFailure(QWidget* parent, const QString& text, const QString& advice)
{
    ask(parent, QMessageBox::Critical, text, advice, QMessageBox::Ok, QMessageBox::Ok);
}

QString askFileToImport(QWidget* parent)
{
    return askFile(parent, QCoreApplication::translate("Dialogs", "Import a condition"),
                   QFileDialog::AcceptOpen, {});
}

QString askFileToExport(QWidget* parent, const QString& suggestedName)
{
    return askFile(parent, QCoreApplication::translate("Dialogs", "Export the condition"),
                   QFileDialog::AcceptSave, suggestedName);
}

} // namespace condtree::workbench
