#include "WindowFixture.h"

#include "workbench/Dialogs.h"
#include "workbench/SaveRefusal.h"

#include <QLocale>
#include <QMenuBar>

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

/// The window in a language that only the tests have.
class Translations : public WindowTest {
protected:
    Translations() { useLanguage(*qApp, QStringLiteral("da")); }
    ~Translations() override { useLanguage(*qApp, {}); }

    static Answers::Answer readBox(QString& text, QString& button)
    {
        return [&](QDialog& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            ASSERT_NE(box, nullptr);
            text = box->text();
            if (box->button(QMessageBox::Save) != nullptr)
                button = box->button(QMessageBox::Save)->text().remove(QLatin1Char('&'));
            box->reject();
        };
    }

    /// The text of the button with which a box offers to save.
    QString saveButton()
    {
        QString text;
        QString button;
        const Answers answers({readBox(text, button)});
        EXPECT_EQ(askBeforeLeaving(m_window.get(), QStringLiteral("t")), Leaving::Cancel);
        return button;
    }
};

TEST_F(Translations, TheWindowIsInTheLanguage)
{
    EXPECT_EQ(m_window->findChild<QAction*>(QStringLiteral("save"))->text(),
              QStringLiteral("&Gem betingelsen"));
    EXPECT_EQ(m_window->findChild<QAction*>(QStringLiteral("import"))->text(),
              QStringLiteral("&Hent…"));
    EXPECT_EQ(m_window->menuBar()->actions().first()->text(), QStringLiteral("&Betingelse"));
    EXPECT_EQ(label("connection"), QStringLiteral("sample.db som %1").arg(m_database->userName()));
    EXPECT_EQ(list().itemOf(find("Document Approval/Withdraw").id)->text(1), QStringLiteral("tom"));
    const Answers answers({});
    trigger("save");
    EXPECT_EQ(m_window->statusBar()->currentMessage(), QStringLiteral("Der er intet at gemme."));
}

TEST_F(Translations, DatesAreWrittenAsTheLanguageDoes)
{
    const QString changed = label("lastChange");
    EXPECT_TRUE(changed.startsWith(QStringLiteral("Sidst ændret "))) << changed.toStdString();
    const QDateTime when = find(kFirst).changedAt.toLocalTime();
    EXPECT_TRUE(changed.contains(when.toString(QStringLiteral("dd.MM.yyyy HH.mm"))))
        << changed.toStdString();
}

TEST_F(Translations, NumbersChooseTheirForms)
{
    const SpTransition one = [&] {
        sql({QStringLiteral("DELETE FROM condition_records WHERE position > 0 AND transition_id = "
                            "(SELECT id FROM transitions WHERE name = 'Evaluate')")});
        return find("Engineering Change/Evaluate");
    }();
    list().setTransitions(m_database->transitions().value());
    EXPECT_EQ(list().itemOf(one.id)->toolTip(1),
              QStringLiteral("Betingelsen har én række eller gruppe"));
    const SpTransition many = find("Document Approval/Approve");
    EXPECT_EQ(list().itemOf(many.id)->toolTip(1),
              QStringLiteral("Betingelsen har %1 rækker og grupper").arg(many.records));
    useLanguage(*qApp, QStringLiteral("en"));
    list().setTransitions(m_database->transitions().value());
    EXPECT_EQ(list().itemOf(one.id)->toolTip(1),
              QStringLiteral("The condition has one row or group"));
}

TEST_F(Translations, WarningsAreWholeSentences)
{
    sql({QStringLiteral(
        "UPDATE condition_records SET cond_type = 99, operator = -1, row_kind = 3 WHERE position = "
        "2 AND transition_id = (SELECT id FROM transitions WHERE name = 'Evaluate')")});
    click("Engineering Change/Evaluate");
    EXPECT_EQ(label("warning"), QStringLiteral("2 af 4 poster går tabt.\n"
                                               "2 af 4 poster ændres: rækkerne 3 og 4."));
}

TEST_F(Translations, ADialogIsInTheLanguageAndSoAreTheToolkitsButtons)
{
    edit("mine");
    QString text;
    QString button;
    {
        const Answers answers({readBox(text, button)});
        EXPECT_FALSE(m_window->close());
    }
    EXPECT_EQ(text, QStringLiteral("Betingelsen for \"%1\" er ændret og ikke gemt.")
                        .arg(QString::fromUtf8(kFirst)));
    EXPECT_EQ(button, QStringLiteral("Gem"));
}

TEST_F(Translations, OurButtonsStandInWhereTheToolkitHasNone)
{
    useLanguage(*qApp, QStringLiteral("xt"));
    EXPECT_EQ(saveButton(), QStringLiteral("Bevar"));
}

TEST_F(Translations, AnotherLanguageTakesThePlaceOfTheFirst)
{
    EXPECT_EQ(saveButton(), QStringLiteral("Gem"));
    useLanguage(*qApp, QStringLiteral("en"));
    EXPECT_EQ(saveButton(), QStringLiteral("Save"));
    EXPECT_EQ(QLocale().language(), QLocale::English);
    useLanguage(*qApp, QStringLiteral("da-DK"));
    EXPECT_EQ(saveButton(), QStringLiteral("Gem"));
    EXPECT_EQ(QLocale().language(), QLocale::Danish);
}

TEST_F(Translations, ANameIsUnderstoodAsUsersAndEnvironmentsWriteIt)
{
    struct Row {
        const char* name;
        const char* group; ///< of a condition
        const char* own;
        const char* toolkits;
        const char* locale;
    };
    const auto german = [](const char* name, const char* locale) {
        return Row{name, "Oder", "leer", "Suchen in:", locale};
    };
    const auto english = [](const char* name, const char* locale) {
        return Row{name, "Or", "empty", "Look in:", locale};
    };
    for (const Row& row :
         {german("de", "de_DE"),           german("DE", "de_DE"),
          german("De", "de_DE"),           german("de_AT", "de_AT"),
          german("de-AT", "de_AT"),        german("DE_at", "de_AT"),
          german("de_DE.UTF-8", "de_DE"),  german("de_CH.utf8", "de_CH"),
          german("de_DE@euro", "de_DE"),   german("de_AT.ISO-8859-15@euro", "de_AT"),
          german("de@euro", "de_DE"),      german("DE-LATN-at", "de_AT"),
          english("en", "en_US"),          english("EN", "en_US"),
          english("en_gb.UTF-8", "en_GB"), english("C", "en_US"),
          english("c", "en_US"),           english("C.UTF-8", "en_US"),
          english("POSIX", "en_US"),       english("posix", "en_US")}) {
        useLanguage(*qApp, QString::fromUtf8(row.name));
        EXPECT_EQ(realServices().string(39, u"TS", u"Search", u"Or"), QString::fromUtf8(row.group))
            << row.name;
        EXPECT_EQ(QCoreApplication::translate("condtree::workbench::TransitionList", "empty"),
                  QString::fromUtf8(row.own))
            << row.name;
        EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Look in:"),
                  QString::fromUtf8(row.toolkits))
            << row.name;
        EXPECT_EQ(QLocale().name(), QString::fromUtf8(row.locale)) << row.name;
    }
}

TEST_F(Translations, WhatAReportDoesNotTellIsTheResultsOwnMessage)
{
    useLanguage(*qApp, QStringLiteral("en"));
    EXPECT_EQ(saveRefusal(SP_E_CHANGED, {}),
              QStringLiteral(
                  "The condition was saved by somebody else after it was loaded; your changes were "
                  "not saved. Load the condition again and repeat your changes."));
    EXPECT_EQ(saveRefusal(SP_E_BAD_TEXT, {}),
              QStringLiteral("A text holds a character that the database cannot hold; your changes "
                             "were not saved. Remove the character and save again."));
    EXPECT_EQ(saveRefusal(SP_E_TOO_LONG, {}),
              QStringLiteral("A text is larger than 16 MiB, which the database cannot hold; your "
                             "changes were not saved. Shorten the text and save again."));
    EXPECT_EQ(saveRefusal(E_FAIL, {}), QStringLiteral("An unspecified error occurred."));
    useLanguage(*qApp, QStringLiteral("de"));
    EXPECT_EQ(saveRefusal(SP_E_CHANGED, {}),
              QStringLiteral("Die Bedingung wurde von jemand anderem gespeichert, nachdem sie "
                             "geladen worden war; Ihre Änderungen wurden nicht gespeichert. Laden "
                             "Sie die Bedingung neu, und wiederholen Sie Ihre Änderungen."));
    SpSaveReport report;
    report.message = QStringLiteral("English");
    EXPECT_EQ(saveRefusal(E_FAIL, report),
              QStringLiteral("Es ist ein nicht näher bezeichneter Fehler aufgetreten."));
}

TEST_F(Translations, RefusedSavesAreTold)
{
    SpSaveReport report;
    report.changedBy = QStringLiteral("gdeluca");
    report.changedAt = QDateTime(QDate(2024, 5, 3), QTime(10, 12), Qt::LocalTime);
    EXPECT_EQ(saveRefusal(SP_E_CHANGED, report),
              QStringLiteral("Betingelsen blev gemt af gdeluca (03.05.2024 10.12)."));
    report.row = 4;
    report.field = SpSaveReport::Field::Extra;
    EXPECT_EQ(saveRefusal(SP_E_TOO_LONG, report),
              QStringLiteral("Række 5: bemærkningen er for stor."));
}

TEST_F(Translations, AMissingLanguageIsALineInTheLogAndEnglish)
{
    const ExpectWarning expected(QStringLiteral("no texts for the language qq"));
    useLanguage(*qApp, QStringLiteral("qq"));
    EXPECT_EQ(expected.count(), 1);
    EXPECT_EQ(saveButton(), QStringLiteral("Save"));
    list().setTransitions(m_database->transitions().value());
    EXPECT_EQ(list().itemOf(find(kFirst).id)->toolTip(1),
              QStringLiteral("The condition has 8 rows and groups"));
}

} // namespace
