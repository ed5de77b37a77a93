#include <condtree/control/CondTreeCtrl.h>
#include <condtree/control/CondTreeParts.h>
#include <condtree/control/RowDrawing.h>
#include <condtree/presentation/RowStyle.h>

#include "presentation/ModuleFiles.h"
#include "support/WarningGuard.h"
#include "together/LocationSettings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QTest>
#include <QTreeView>

#include <optional>
#include <string>
#include <vector>

// Where the settings say that the icon library is, with what lies there, as controls see it. The
// folder of this program has no installed module to fall back on.
namespace condtree::test {

namespace {

enum class Name { Absolute, Relative, None };

struct Row {
    const char* name;
    /// What lies at the location: a test module, else a text.
    const char* module;
    mode_t folderMode;
    Name location;
    /// What the line in the log says of the library at the location; the line itself where that
    /// names none.
    const char* line;
    int rowPictures;
    int operatorPictures;
};

/// How the machine's settings name a folder.
std::optional<QString> locationOf(const QString& folder, Name how)
{
    if (how == Name::None)
        return std::nullopt;
    return how == Name::Relative ? QDir::current().relativeFilePath(folder) : folder;
}

/// A control with the real services but for the message box, from its set-up to its first painting.
class Host {
public:
    Host()
        : control(nullptr, services())
    {
        control.mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
        TransCond record;
        record.lRowKind = RowKindTop;
        record.lCondType = 2;
        record.lArgType = 1;
        record.lOperator = 100;
        record.oName = QStringLiteral("Author");
        control.mvLoad({record});
        control.resize(403, 200);
        control.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&control));
        control.clearFocus();
        image = control.viewport()->grab().toImage();
    }
    [[nodiscard]] Services services()
    {
        Services ports;
        ports.messageBox = [this](QWidget*, const CString&, unsigned) { return ++messages; };
        ports.cursorPos = [] { return POINT{-1000, -1000}; };
        ports.systemMetric = [](int) { return 16; };
        return ports;
    }
    [[nodiscard]] QModelIndex row(int number) const { return control.model()->index(number, 0); }
    [[nodiscard]] QIcon picture(int number) const
    {
        return row(number).data(Qt::DecorationRole).value<QIcon>();
    }
    /// How many pixels of a part of the first row are not white, its frame left out.
    [[nodiscard]] int ink(int left, int right) const
    {
        const QRect rect = control.visualRect(row(0));
        int count = 0;
        for (int y = rect.top() + 1; y < rect.bottom(); ++y) {
            for (int x = left; x < right; ++x)
                count += image.pixelColor(x, y) == QColor(Qt::white) ? 0 : 1;
        }
        return count;
    }

    int messages = 0;
    CondTreeCtrl control;
    QImage image;
};

/// The row is framed, its texts are there, and no picture is.
void expectARowOfTextsAlone(const Host& host, const Row& row)
{
    const RowPlace place = placeOfRow(host.control, host.row(0)).value();
    const QRect rect = host.control.visualRect(host.row(0));
    const QColor line = toQColor(kRowLineColour);
    EXPECT_EQ(host.image.pixelColor(host.image.width() - 1, rect.center().y()), line) << row.name;
    EXPECT_EQ(host.image.pixelColor(place.textLeft, rect.center().y()), line) << row.name;
    const int boundary = host.control.miGetColumnSize(0, host.control.viewport()->width());
    EXPECT_GT(host.ink(place.textLeft + 1, boundary), 10) << row.name;
    EXPECT_GT(host.ink(boundary + 3 + 16 + 3, 2 * boundary), 10) << row.name;
    EXPECT_EQ(host.ink(boundary + 1, boundary + 3 + 16), 0) << row.name;
    const QImage picture = host.picture(0).pixmap(QSize(16, 16)).toImage();
    EXPECT_EQ(picture.isNull(), row.rowPictures == 0) << row.name;
    QImage blank(picture.size(), picture.format());
    blank.fill(Qt::white);
    EXPECT_TRUE(picture == blank) << row.name;
}

/// The lists behind a control that is set up as the host's.
void expectCounts(const Row& row)
{
    QTreeView view;
    CondTreeParts parts(view, Services{});
    parts.setUp(nullptr, 120, KiroVaultType{}, TreeType{});
    parts.appendImages();
    EXPECT_EQ(parts.images.rows()->count(), row.rowPictures) << row.name;
    EXPECT_EQ(parts.images.operators()->count(), row.operatorPictures) << row.name;
}

const std::vector<Row> kRows{
    {"relative", "Good", 0700, Name::Relative, " is not looked for: its location is relative", 0,
     0},
    {"a folder that all may write", "Good", 0777, Name::Absolute,
     " is not loaded: others may write a folder that it lies in", 0, 0},
    {"no library", "", 0700, Name::Absolute, " is not loaded: it is no ELF file", 0, 0},
    {"no entry points", "NoEntryPoints", 0700, Name::Absolute,
     "the icon library has no ghLoadWFPngImageIconAsPerDPI", 0, 0},
    {"in the user's settings alone", "Good", 0700, Name::None, "there is no icon library", 0, 0},
    // The last one, for what is bound stays so as long as the process runs.
    {"no pictures", "NoPictures", 0700, Name::Absolute,
     "the icon library has no picture PNG_NEW_FILE", 8, 0},
};

TEST(IconLocations, ALibraryThatCannotBeHadIsOneLineAndRowsOfTextsAlone)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        const ModuleFiles good;
        good.write("WfIcons.dll", ModuleFiles::module("Good"));
        const ModuleFiles files;
        const std::string module = row.module;
        files.write("WfIcons.dll", module.empty() ? "hello" : ModuleFiles::module(row.module));
        chmod(files.path("").toUtf8().constData(), row.folderMode);

        // Whatever the machine's settings say, the user's name a library that is there.
        const LocationSettings settings;
        settings.setUsers(good.path(""));
        const std::optional<QString> location = locationOf(files.path(""), row.location);
        if (location)
            settings.setMachines(*location);

        QString line = QString::fromUtf8(row.line);
        if (line.startsWith(u' '))
            line.prepend(*location + QStringLiteral("/WfIcons.dll"));
        {
            const ExpectWarning warning(line); // any other line fails the test
            const Host host;
            expectARowOfTextsAlone(host, row);
            EXPECT_EQ(host.messages, 0);
            EXPECT_EQ(warning.count(), 1);
        }
        const ExpectWarning warning(line);
        expectCounts(row);
        EXPECT_EQ(warning.count(), 1);
    }
}

} // namespace

} // namespace condtree::test
