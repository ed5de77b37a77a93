// The messages of a control whose texts are the string library's, as hosts have it.
#include "ControlFixture.h"

#include <condtree/control/RealServices.h>
#include <condtree/refdata/ErrorText.h>
#include <condtree/strmgr/LanguageTexts.h>
#include <condtree/strmgr/StringTable.h>

#include <QCoreApplication>

namespace condtree::test {
namespace {

struct Row {
    DWORD code;
    const char* english;
    const char* german;
    const char* french;
};

const Row kRows[] = {
    {0x80004005, "An unspecified error occurred.",
     "Es ist ein nicht näher bezeichneter Fehler aufgetreten.",
     "Une erreur non spécifiée s’est produite."},
    {0x80040203, "You don't have permission to perform this action.",
     "Sie sind nicht berechtigt, diese Aktion auszuführen.",
     "Vous n’êtes pas autorisé à effectuer cette action."},
    // Of a range, of the system, and of nothing: English everywhere.
    {0x80072EE7, "The server name could not be resolved.", "The server name could not be resolved.",
     "The server name could not be resolved."},
    {0x80040F00, "IDispatch error #3328", "IDispatch error #3328", "IDispatch error #3328"},
};

class MessageLanguages : public ControlFixture {
protected:
    void SetUp() override
    {
        Services ports = services();
        ports.string = nullptr; // the real one
        control = std::make_unique<OpenCtrl>(nullptr, ports);
        initialize();
    }
    void TearDown() override { load("en"); }

    static void load(const char* language)
    {
        ASSERT_TRUE(loadLanguage(*QCoreApplication::instance(), QLatin1String(language)));
    }
    /// What the control shows when the library fails.
    std::string shown(DWORD code)
    {
        messages.clear();
        library->getUsers.results = {static_cast<HRESULT>(code)};
        control->mvLoad({record(3, 8, "", "7", 1, 100)});
        return messages.size() == 1 ? messages.front().toStdString() : "not one message";
    }
};

TEST_F(MessageLanguages, AMessageIsInTheLanguageThatIsLoaded)
{
    for (const Row& row : kRows) {
        load("en");
        EXPECT_EQ(shown(row.code), row.english);
        load("de");
        EXPECT_EQ(shown(row.code), row.german);
        load("fr");
        EXPECT_EQ(shown(row.code), row.french);
    }
}

TEST_F(MessageLanguages, AMessageIsTheOneOfTheStringTableService)
{
    const LanguageTexts texts;
    for (const char* language : {"en", "de", "fr"}) {
        load(language);
        for (const Row& row : kRows) {
            const auto code = static_cast<HRESULT>(row.code);
            const std::string message = shown(row.code);
            EXPECT_EQ(ResultCodeText(code).toStdString(), message);
            EXPECT_EQ(ResultCodeText(code, texts, QLatin1String(language)).toStdString(), message);
            EXPECT_EQ(ResultCodeText(code, &StringTableText, CString()).toStdString(), message);
        }
    }
}

} // namespace
} // namespace condtree::test
