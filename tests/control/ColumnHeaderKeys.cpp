// What is done with the header by the keyboard and by its host, what it says, and how it ends.
#include "HeaderFixture.h"

#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>

namespace condtree::test {
namespace {

TEST_F(ColumnHeaders, TheKeyboardChoosesABoundaryAndMovesIt)
{
    m_header->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Plus);
    EXPECT_EQ(widths(), (std::array{110, 90, 100, 100}));
    key(Qt::Key_Right);
    key(Qt::Key_Minus);
    EXPECT_EQ(widths(), (std::array{110, 80, 110, 100}));
    key(Qt::Key_Right);
    key(Qt::Key_Right); // there is no other
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(widths(), (std::array{110, 80, 100, 110}));
    key(Qt::Key_Left);
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(widths(), (std::array{110, 90, 90, 110}));
    key(Qt::Key_Home);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
    EXPECT_TRUE(m_header->hasFocus());
}

TEST_F(ColumnHeaders, TheChosenBoundaryIsMarkedWhileTheHeaderHasTheFocus)
{
    const QColor highlight = m_header->palette().color(QPalette::Highlight);
    const auto marked = [&](int column) {
        const QImage image = m_header->grab().toImage();
        const QPointF place = QPointF(boundary(column) + 0.5, 5) * image.devicePixelRatio();
        return image.pixelColor(int(place.x()), int(place.y())) == highlight;
    };
    control->setFocus();
    EXPECT_FALSE(marked(0));
    m_header->setFocus();
    EXPECT_TRUE(marked(0));
    key(Qt::Key_Right);
    EXPECT_FALSE(marked(0));
    EXPECT_TRUE(marked(1));
}

TEST_F(ColumnHeaders, OtherKeysAreLeftToTheWindow)
{
    m_header->setFocus();
    for (const Qt::Key which : {Qt::Key_Escape, Qt::Key_A, Qt::Key_End}) {
        QKeyEvent event(QEvent::KeyPress, which, {});
        QApplication::sendEvent(m_header, &event);
        EXPECT_FALSE(event.isAccepted()) << which;
    }
}

TEST_F(ColumnHeaders, ADoubleClickOnABoundaryBringsTheFirstSharesBack)
{
    control->setColumnShares({0.1, 0.2, 0.3});
    QTest::mouseClick(m_header, Qt::LeftButton, {}, at(boundary(1)));
    QTest::mouseDClick(m_header, Qt::LeftButton, {}, at(boundary(1)));
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
    control->setColumnShares({0.1, 0.2, 0.3});
    QTest::mouseDClick(m_header, Qt::LeftButton, {}, at(boundary(1) + 20));
    EXPECT_EQ(control->columnShares(), (Shares{0.1, 0.2, 0.3}));
}

TEST_F(ColumnHeaders, AnEditorInARowCommitsAndTheFocusGoesBackToTheRows)
{
    auto* editor = new QLineEdit(control->viewport());
    editor->show();
    editor->setFocus();
    QTest::keyClicks(editor, QStringLiteral("typed"));
    QSignalSpy commits(editor, &QLineEdit::editingFinished);
    press(boundary(0));
    EXPECT_EQ(commits.count(), 1);
    EXPECT_TRUE(m_header->hasFocus());
    release(boundary(0));
    EXPECT_TRUE(control->hasFocus());
}

TEST_F(ColumnHeaders, TheHostMayGiveTitlesWhichAreElidedWhenTheyAreLong)
{
    m_header->setTitles({QStringLiteral("A & B"), QString(300, u'm'), {}, QStringLiteral("d")});
    const SpyStyle& style = drawn();
    EXPECT_EQ(style.texts.at(0), QStringLiteral("A & B"));
    EXPECT_TRUE(style.texts.at(1).endsWith(u'…')) << style.texts.at(1).toStdString();
    EXPECT_LE(m_header->fontMetrics().horizontalAdvance(style.texts.at(1)), 97);
    EXPECT_EQ(style.texts.at(3), QStringLiteral("d"));
    EXPECT_EQ(m_header->titles()[0], QStringLiteral("A & B"));
}

TEST_F(ColumnHeaders, AChangedLanguageChangesItsTexts)
{
    translations = {{1, QStringLiteral("Uno")}, {5, QStringLiteral("Cinco")}};
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m_header, &change);
    EXPECT_EQ(drawn().texts.at(0), QStringLiteral("Uno"));
    EXPECT_EQ(m_header->accessibleName(), QStringLiteral("Cinco"));
}

TEST_F(ColumnHeaders, ItTellsWhoHearsTheWindowWhatIsChosenAndHowWideItIs)
{
    const auto heard = [&](QAccessible::Text text) {
        return QAccessible::queryAccessibleInterface(m_header)->text(text);
    };
    const QString help = QStringLiteral(
        "Left and Right choose a boundary, plus and minus move it, Home resets the columns.");
    EXPECT_EQ(heard(QAccessible::Name), QStringLiteral("Columns"));
    EXPECT_EQ(heard(QAccessible::Description), QStringLiteral("Variable: 25 %. ") + help);
    m_header->setFocus();
    key(Qt::Key_Right);
    EXPECT_EQ(heard(QAccessible::Description), QStringLiteral("Operator: 25 %. ") + help);
    control->mvResizeCol(1, 40, 400);
    EXPECT_EQ(heard(QAccessible::Description), QStringLiteral("Operator: 10 %. ") + help);
}

TEST_F(ColumnHeaders, AControlThatIsGoneLeavesAnEmptyHeader)
{
    press(boundary(0));
    delete control.release();
    move(200);
    release(200);
    press(100);
    for (const Qt::Key which : {Qt::Key_Right, Qt::Key_Plus, Qt::Key_Home, Qt::Key_Escape})
        key(which);
    m_header->resetColumns();
    EXPECT_TRUE(drawn().sections.empty());
    control = std::make_unique<OpenCtrl>(&m_window, services());
}

TEST_F(ColumnHeaders, AHostMayDeleteBothWhileADragResizes)
{
    QPointer<ColumnHeader> header(m_header);
    QObject::connect(control.get(), &CondTreeCtrl::columnsResized, m_header, [&] {
        delete m_header;
        delete control.release();
    });
    press(boundary(0));
    move(boundary(0) + 40);
    EXPECT_TRUE(header.isNull());
    control = std::make_unique<OpenCtrl>(&m_window, services());
}

} // namespace
} // namespace condtree::test
