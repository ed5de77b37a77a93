// The columns of the workbench, as one run leaves them to the next.
#include "Program.h"
#include "WindowFixture.h"

#include "workbench/ConditionControl.h"
#include "workbench/KeptColumns.h"

#include <condtree/control/ColumnHeader.h>

#include <QTemporaryDir>

#include <array>
#include <cmath>
#include <limits>
#include <memory>

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

using Shares = std::array<double, 3>;
constexpr Shares kDefault{0.33, 0.24, 0.24};

/// Settings of the test's own, of which there is nothing yet.
class SettingsOfTheTest {
public:
    SettingsOfTheTest() { qputenv("CONDTREE_REGISTRY_DIR", m_folder.path().toUtf8()); }
    SettingsOfTheTest(const SettingsOfTheTest&) = delete;
    SettingsOfTheTest& operator=(const SettingsOfTheTest&) = delete;
    ~SettingsOfTheTest() { qputenv("CONDTREE_REGISTRY_DIR", m_before); }

    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QString file() const { return m_folder.filePath(QStringLiteral("user.reg")); }
    void write(const QByteArray& content) const
    {
        QFile out(file());
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }
    /// A file with one value for the columns, in the syntax of such files.
    void writeValue(const QByteArray& value) const
    {
        write("Windows Registry Editor Version 5.00\r\n\r\n"
              "[HKEY_CURRENT_USER\\Software\\CondTree\\Workbench]\r\n\"ColumnShares\"="
              + value + "\r\n");
    }
    [[nodiscard]] QByteArray read() const
    {
        QFile in(file());
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

private:
    QByteArray m_before = qgetenv("CONDTREE_REGISTRY_DIR");
    QTemporaryDir m_folder;
};

/// A window as a run of the program opens it: with a store of its own on the same files.
class Session {
public:
    Session()
        : m_database(m_sample.open())
        , m_window(*m_database, m_database->transitions().value(), realServices())
    {
        EXPECT_FALSE(m_window.open(m_database->transitions().value().front()).has_value());
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }
    [[nodiscard]] ConditionControl& control() const { return m_window.editor().control(); }
    [[nodiscard]] Shares shares() const { return control().columnShares(); }
    [[nodiscard]] ColumnHeader& header() const
    {
        return *m_window.findChild<ColumnHeader*>(QStringLiteral("columns"));
    }
    /// Drags the boundary behind a column by some pixels.
    void drag(int column, int by) const
    {
        const QWidget& viewport = *control().viewport();
        int x = viewport.mapTo(&m_window, QPoint()).x() - header().mapTo(&m_window, QPoint()).x();
        for (int before = 0; before <= column; ++before)
            x += control().miGetColumnSize(before, viewport.width());
        const QPoint from(x, 5);
        QTest::mousePress(&header(), Qt::LeftButton, {}, from);
        const QPoint to(x + by, 5);
        QMouseEvent event(QEvent::MouseMove, to, header().mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(&header(), &event);
        QTest::mouseRelease(&header(), Qt::LeftButton, {}, to);
    }
    bool close() { return m_window.close(); }

private:
    SampleDatabase m_sample;
    std::unique_ptr<workbench::Database> m_database;
    MainWindow m_window;
};

TEST(KeptColumns, TheHeaderStandsOnTheRowsAndIsHiddenWithThem)
{
    const SettingsOfTheTest settings;
    Session session;
    const QWidget& control = session.control();
    EXPECT_TRUE(session.header().isVisible());
    EXPECT_EQ(session.header().geometry().bottom() + 1, control.geometry().top());
    EXPECT_EQ(session.header().geometry().left(), control.geometry().left());
    EXPECT_EQ(session.header().width(), control.width());
    const SampleDatabase sample;
    const auto database = sample.open();
    MainWindow empty(*database, {}, realServices());
    empty.show();
    EXPECT_FALSE(empty.findChild<ColumnHeader*>(QStringLiteral("columns"))->isVisible());
}

TEST(KeptColumns, TheNextRunHasTheSharesToTheLastDigit)
{
    const SettingsOfTheTest settings;
    Shares left{};
    {
        Session first;
        EXPECT_EQ(first.shares(), kDefault);
        first.drag(0, 37);
        first.drag(1, -61);
        left = first.shares();
        ASSERT_NE(left, kDefault);
        EXPECT_TRUE(first.close());
    }
    for (int runs = 0; runs < 3; ++runs) {
        Session next;
        EXPECT_EQ(next.shares(), left) << runs;
        EXPECT_TRUE(next.close());
    }
}

TEST(KeptColumns, ResettingBringsTheWorkbenchsOwnSharesBackAndTheyAreKeptToo)
{
    const SettingsOfTheTest settings;
    {
        Session first;
        first.drag(2, 40);
        first.close();
    }
    {
        Session second;
        ASSERT_NE(second.shares(), kDefault);
        second.header().setFocus();
        QTest::keyClick(&second.header(), Qt::Key_Home);
        EXPECT_EQ(second.shares(), kDefault);
        second.close();
    }
    EXPECT_EQ(Session().shares(), kDefault);
}

TEST(KeptColumns, ARunThatChangesNothingWritesNothing)
{
    const SettingsOfTheTest settings;
    Session session;
    session.close();
    EXPECT_FALSE(QFile::exists(settings.file()));
}

TEST(KeptColumns, AWindowThatIsNotLeftKeepsNothingYet)
{
    const SettingsOfTheTest settings;
    Session session;
    session.drag(0, 30);
    auto& control = session.control();
    control.mpoGetNode(TVI_ROOT)->mChildren.front()->mValue = QStringLiteral("changed");
    Q_EMIT control.conditionChanged();
    const Answers answers(
        {press(QMessageBox::Cancel, "not saved"), press(QMessageBox::Discard, "not saved")});
    EXPECT_FALSE(session.close());
    EXPECT_FALSE(QFile::exists(settings.file()));
    EXPECT_TRUE(session.close());
    EXPECT_TRUE(settings.read().contains("ColumnShares"));
}

TEST(KeptColumns, OtherSettingsStay)
{
    const SettingsOfTheTest settings;
    settings.write("Windows Registry Editor Version 5.00\r\n\r\n"
                   "[HKEY_CURRENT_USER\\Software\\Other]\r\n\"Kept\"=dword:0000002a\r\n");
    Session session;
    session.drag(0, 30);
    session.close();
    EXPECT_TRUE(settings.read().contains("\"Kept\"=dword:0000002a"))
        << settings.read().toStdString();
    EXPECT_TRUE(settings.read().contains("ColumnShares"));
}

struct Damage {
    const char* name;
    const char* value;
};

class DamagedColumns : public testing::TestWithParam<Damage> {};

TEST_P(DamagedColumns, AreTheDefault)
{
    const SettingsOfTheTest settings;
    settings.writeValue(GetParam().value);
    EXPECT_EQ(Session().shares(), kDefault);
}

INSTANTIATE_TEST_SUITE_P(
    KeptColumns, DamagedColumns,
    testing::Values(Damage{"Empty", R"("")"}, Damage{"Words", R"("a b c")"},
                    Damage{"TwoNumbers", R"("0.1 0.2")"},
                    Damage{"FourNumbers", R"("0.1 0.2 0.3 0.4")"},
                    Damage{"TwoBlanks", R"("0.1  0.2 0.3")"}, Damage{"Commas", R"("0,1 0,2 0,3")"},
                    Damage{"Negative", R"("-0.1 0.2 0.3")"},
                    Damage{"MoreThanTheRow", R"("0.5 0.5 0.1")"},
                    Damage{"AboveOne", R"("1.5 0 0")"}, Damage{"NoNumber", R"("nan 0.1 0.1")"},
                    Damage{"Infinite", R"("0.1 inf 0.1")"}, Damage{"Huge", R"("0.1 1e999 0.1")"},
                    Damage{"ANumberOfAnotherType", "dword:00000001"},
                    Damage{"BytesOfAnotherType", "hex:30,00,20,00,30,00,20,00,30,00,00,00"},
                    Damage{"HalfAUnit", "hex(1):30,00,20"}, Damage{"NoText", "hex(1):"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(KeptColumns, ALongTextIsNotRead)
{
    const SettingsOfTheTest settings;
    settings.writeValue("\"0.1 0.2 0.3" + QByteArray(300, '0') + "\"");
    EXPECT_EQ(Session().shares(), kDefault);
}

TEST(KeptColumns, SharesComeBackAsTheyWentIn)
{
    const SettingsOfTheTest settings;
    const Services services = realServices();
    EXPECT_FALSE(keptColumnShares(*services.registry).has_value());
    for (const Shares& shares :
         {Shares{0, 0, 0}, Shares{1, 0, 0}, Shares{1.0 / 3, 61.0 / 601, 1e-9},
          Shares{std::nextafter(0.25, 1), 0.1 + 0.2, std::numeric_limits<double>::min()}}) {
        keepColumnShares(*services.registry, shares);
        EXPECT_EQ(keptColumnShares(*realServices().registry), shares);
    }
}

using KeptColumnsOfPrograms = Program;

/// What the program draws on the settings of a folder.
TEST_F(KeptColumnsOfPrograms, AreSeenByAnotherProcess)
{
    const SettingsOfTheTest settings;
    const auto drawn = [&] {
        const Finished drawing =
            runPlain({QStringLiteral("--db"), m_database.url(), QStringLiteral("--screenshot"),
                      QStringLiteral("-")},
                     {}, {{QStringLiteral("CONDTREE_REGISTRY_DIR"), settings.folder()}});
        EXPECT_EQ(drawing.exitCode, 0);
        EXPECT_EQ(drawing.errors.toStdString(), "");
        return drawing.output;
    };
    const QByteArray before = drawn();
    EXPECT_FALSE(before.isEmpty());
    EXPECT_EQ(drawn(), before);
    EXPECT_FALSE(QFile::exists(settings.file()));
    Session session;
    session.drag(0, 50);
    session.close();
    EXPECT_NE(drawn(), before);
    settings.writeValue("\"damaged\"");
    EXPECT_EQ(drawn(), before);
}

} // namespace
