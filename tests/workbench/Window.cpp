#include "WindowFixture.h"

#include <condtree/platform/StrMgr.h>

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

using Window = WindowTest;

TEST_F(Window, ATransitionIsOpenedByAClick)
{
    click("Document Approval/Approve");
    EXPECT_EQ(label("title"), QStringLiteral("Approve"));
    EXPECT_EQ(label("states"), QStringLiteral("Document Approval: In Review \u2192 Approved"));
    const QDateTime changed = find("Document Approval/Approve").changedAt.toLocalTime();
    EXPECT_EQ(changed.date().year(), 2024);
    EXPECT_EQ(label("lastChange"), QStringLiteral("Last changed by fhoffmann, ")
                                       + QLocale().toString(changed, QLocale::ShortFormat));
    EXPECT_EQ(label("warning"), QStringLiteral("(hidden)"));
    EXPECT_EQ(m_window->windowTitle(), QStringLiteral("Document Approval/Approve[*]"));
    EXPECT_EQ(editor().control().model()->rowCount(), 6);
    EXPECT_TRUE(editor().control().isExpanded(editor().control().model()->index(3, 0)));
    expectUnsaved(false);
}

TEST_F(Window, ATransitionThatNobodyChangedSaysSo)
{
    click("Document Approval/Withdraw");
    EXPECT_EQ(label("lastChange"), QStringLiteral("Never changed"));
    EXPECT_EQ(editor().control().model()->rowCount(), 1);
    expectUnsaved(false);
}

TEST_F(Window, NoTransitionOfTheSampleIsUnsavedRightAfterLoading)
{
    for (const SpTransition& transition : list().transitions()) {
        click(qUtf8Printable(transitionTitle(transition)));
        EXPECT_EQ(shownTransition(), transitionTitle(transition));
        expectUnsaved(false);
        EXPECT_EQ(label("warning"), QStringLiteral("(hidden)"));
    }
}

TEST_F(Window, ItTellsWhereItIsConnected)
{
    EXPECT_EQ(label("connection"), QStringLiteral("%1 on sample.db").arg(m_database->userName()));
}

TEST_F(Window, ItsFirstSizeShowsKindsAndOperatorsOfEveryLanguageWhole)
{
    const ConditionControl& control = editor().control();
    const QModelIndex nested = control.model()->index(0, 0, control.model()->index(3, 0));
    // The first column begins where the row's icon ends, the others count from the row's left edge.
    const int row = control.viewport()->width();
    const int icon = realServices().systemMetric(SM_CXSMICON);
    const int indented = control.visualRect(nested).left() + icon;
    const int nameRoom = control.miGetColumnSize(0, row) - indented - 8;
    const int room = control.miGetColumnSize(1, row) - icon - 6; // the margins of icon and text
    const std::pair<LONG, const char16_t*> kinds[] = {{20, u"FilePath"},
                                                      {732, u"Object Type"},
                                                      {756, u"Child Reference State"},
                                                      {757, u"Child Reference historic State"}};
    struct Row {
        const char* language;
        const char* equal;
    };
    for (const Row& named :
         {Row{"en", "String Equal To"}, Row{"de", "Text ist gleich"}, Row{"es", "Texto igual a"},
          Row{"fr", "Texte égal à"}, Row{"ja", "文字列が等しい"}, Row{"sv", "Text lika med"}}) {
        useLanguage(*qApp, QLatin1String(named.language));
        ASSERT_EQ(TSS_internal(100, u"OpName", u"Search", u"?"), QString::fromUtf8(named.equal));
        for (LONG op = 100; op < 140; ++op) {
            const QString name = TSS_internal(op, u"OpName", u"Search", u"?");
            EXPECT_LE(control.fontMetrics().horizontalAdvance(name), room) << name.toStdString();
        }
        for (const auto& [id, english] : kinds) {
            const QString name = TSS_internal(id, u"TS", u"Workflow", english);
            EXPECT_LE(control.fontMetrics().horizontalAdvance(name), nameRoom)
                << name.toStdString();
        }
    }
    useLanguage(*qApp, {});
}

TEST_F(Window, NamesAreNeverReadAsMarkUp)
{
    for (const char* name : {"title", "states", "lastChange", "warning", "connection"})
        EXPECT_EQ(m_window->findChild<QLabel*>(QLatin1String(name))->textFormat(), Qt::PlainText)
            << name;
}

TEST_F(Window, AnEditMarksTheTransitionAndUndoingItUnmarksIt)
{
    const QString before = firstValue();
    edit("changed");
    expectUnsaved(true);
    edit("changed again");
    expectUnsaved(true);
    edit(qUtf8Printable(before));
    expectUnsaved(false);
}

TEST_F(Window, ImportingWhatIsThereAlreadyChangesNothing)
{
    const QString file = m_sample.file("same.json");
    const Answers answers({choose(file), choose(file)});
    trigger("export");
    trigger("import");
    expectUnsaved(false);
}

TEST_F(Window, AnImportAsksBeforeItReplacesChanges)
{
    edit("mine");
    const Answers answers({choose(importFile()), press(QMessageBox::Cancel, "not saved")});
    trigger("import");
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
}

TEST_F(Window, ABadImportIsToldAndKeepsTheRows)
{
    edit("mine");
    const QString bad = fileOf("bad.json", "{}");
    const Answers answers({choose(bad), press(QMessageBox::Discard, "not saved"),
                           press(QMessageBox::Ok, "format: the field is missing")});
    trigger("import");
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
}

TEST_F(Window, AFileDialogThatIsCancelledDoesNothing)
{
    const Answers answers({cancel, cancel});
    trigger("import");
    trigger("export");
    expectUnsaved(false);
}

TEST_F(Window, AFirstTransitionThatCannotBeReadIsToldInTheWindow)
{
    MainWindow fresh(*m_database, list().transitions(), realServices());
    fresh.show();
    SpTransition gone = find(kFirst);
    gone.id = 4711;
    const Answers answers({press(QMessageBox::Ok, "cannot read the condition of")});
    fresh.openOrTell(gone);
    EXPECT_TRUE(fresh.isVisible());
    EXPECT_FALSE(fresh.editor().transition().has_value());
}

TEST_F(Window, AWindowThatGoesWhileItAsksIsLeftAlone)
{
    edit("mine");
    const Answers answers({[this](QDialog&) { m_window.reset(); }});
    QAction* revert = m_window->findChild<QAction*>(QStringLiteral("revert"));
    revert->trigger();
    EXPECT_EQ(m_window, nullptr);
}

TEST(Deadline, ADialogThatNobodyAnswersIsRejected)
{
    const Deadline deadline(0);
    QMessageBox box;
    EXPECT_EQ(box.exec(), QDialog::Rejected);
    EXPECT_EQ(deadline.rejected(), 1);
}

TEST(EmptyWindow, ADatabaseWithoutTransitionsIsAnEmptyWindow)
{
    const SampleDatabase sample;
    const auto database = sample.open();
    MainWindow window(*database, {}, realServices());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("title"))->text(),
              QStringLiteral("No transition is open"));
    EXPECT_FALSE(window.editor().control().isVisible());
    for (const char* name : {"save", "revert", "import", "export"})
        EXPECT_FALSE(window.findChild<QAction*>(QLatin1String(name))->isEnabled()) << name;
    EXPECT_TRUE(window.close());
}

} // namespace
