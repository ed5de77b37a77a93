// What may die while a message is open: what it was shown over, the control that shows it, the
// application.
#include "ControlFixture.h"
#include "MessageBoxScript.h"

#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace condtree::test {
namespace {

const QString kText = QStringLiteral("The folder does not have a parent.");
const QString kUnspecified = QStringLiteral("An unspecified error occurred.");
const QString kMemory = QStringLiteral("Not enough memory to complete the operation.");

/// The box can be read, and the user can close it.
void expectReadable(QMessageBox& box, const QString& text)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_EQ(openBoxes(), std::vector<QMessageBox*>{&box});
    EXPECT_EQ(box.text(), text);
    QTest::keyClick(box.windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(openBoxes().empty());
}

TEST(MessageBoxLifetime, TheBoxOutlivesItsOwner)
{
    ClickedWindow window;
    auto owner = std::make_unique<QWidget>(&window);
    window.show();
    showMessageDuring(owner.get(), kText, [&](QMessageBox& box) {
        owner.reset();
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        expectReadable(box, kText);
    });
}

TEST(MessageBoxLifetime, TheBoxOutlivesItsWindow)
{
    auto window = std::make_unique<ClickedWindow>();
    window->showActive();
    showMessageDuring(window.get(), kText, [&](QMessageBox& box) {
        window.reset();
        expectReadable(box, kText);
    });
}

TEST(MessageBoxLifetime, TheBoxOutlivesAWindowThatWasNeverShown)
{
    auto window = std::make_unique<ClickedWindow>();
    showMessageDuring(window.get(), kText, [&](QMessageBox& box) {
        window.reset();
        expectReadable(box, kText);
    });
}

TEST(MessageBoxLifetime, TheBoxStaysWhenItsWindowIsHiddenOrClosed)
{
    for (const bool isClosed : {false, true}) {
        ClickedWindow window;
        window.show();
        showMessageDuring(&window, kText, [&](QMessageBox& box) {
            if (isClosed)
                window.close();
            else
                window.hide();
            EXPECT_FALSE(window.isVisible());
            expectReadable(box, kText);
        });
    }
}

TEST(MessageBoxLifetime, TheBoxOfADeadWindowTakesNothingInOfAnother)
{
    auto window = std::make_unique<ClickedWindow>();
    window->show();
    ClickedWindow other({400, 400});
    other.show();
    showMessageDuring(window.get(), kText, [&](QMessageBox& box) {
        window.reset();
        for (QWidget* owner : {static_cast<QWidget*>(&other), static_cast<QWidget*>(nullptr)}) {
            showMessageDuring(owner, kMemory,
                              [](QMessageBox& second) { EXPECT_EQ(second.text(), kMemory); });
        }
        expectReadable(box, kText);
    });
}

TEST(MessageBoxLifetime, ThePortMayBeDestroyedWhileItsBoxIsOpen)
{
    ClickedWindow window;
    window.show();
    auto ports = std::make_unique<Services>(realServices());
    showMessageDuring(
        &window, kText,
        [&](QMessageBox& box) {
            ports.reset();
            expectReadable(box, kText);
        },
        *ports);
}

/// Runs the application with a message over a window; ends it as told while the message is open.
void quitDuringMessage(const std::function<void()>& quit)
{
    ClickedWindow window;
    window.show();
    bool hasReturned = false;
    QTimer::singleShot(0, [&] {
        showMessageDuring(&window, kText, [&](QMessageBox&) { quit(); });
        hasReturned = true;
    });
    QApplication::exec();
    EXPECT_TRUE(hasReturned);
    EXPECT_TRUE(openBoxes().empty());
}

TEST(MessageBoxLifetime, TheApplicationMayQuitOrExit)
{
    quitDuringMessage([] { QApplication::quit(); });
    quitDuringMessage([] { QApplication::exit(); });
    quitDuringMessage([] { QApplication::closeAllWindows(); });
}

TEST(MessageBoxLifetime, ClosingTheBoxDoesNotEndAnApplicationWithoutWindows)
{
    const QSignalSpy ended(qApp, &QGuiApplication::lastWindowClosed);
    QTimer::singleShot(0, [&] {
        showMessageDuring(nullptr, kText, [](QMessageBox&) {});
        QTimer::singleShot(0, [] { QApplication::exit(); });
    });
    QApplication::exec();
    EXPECT_EQ(ended.count(), 0);
}

/// A control in a window of the host, with the real message box.
class ControlWithRealBox : public ControlFixture {
protected:
    ControlWithRealBox()
    {
        Services ports = services();
        ports.messageBox = nullptr;
        auto* layout = new QVBoxLayout(window.get());
        control = std::make_unique<OpenCtrl>(nullptr, ports);
        layout->addWidget(control.get());
        initialize();
        library->getUsers.results = {E_FAIL, E_FAIL, E_FAIL};
        library->getGroups.results = {E_OUTOFMEMORY};
        library->getVariables.results = {E_FAIL};
        window->showActive();
    }
    ~ControlWithRealBox() override { control.reset(); } // before the window, its parent
    void deleteWindow()
    {
        static_cast<void>(control.release()); // the window's child
        window.reset();
    }
    std::unique_ptr<ClickedWindow> window = std::make_unique<ClickedWindow>();
};

TEST_F(ControlWithRealBox, AFailedLoaderBlocksTheControlsWindow)
{
    bool isLoaded = true;
    test::duringMessage([&] { isLoaded = control->mbInitUsers(); },
                        [&](QMessageBox& box) {
                            EXPECT_EQ(window->clicksAfterOneMore(), 0);
                            expectReadable(box, kUnspecified);
                        });
    EXPECT_FALSE(isLoaded);
}

TEST_F(ControlWithRealBox, EveryOperationThatShowsAMessageSurvivesTheControl)
{
    const std::vector<TransCond> users(3, record(3, 8, "", "7", 1, 100));
    std::vector<TransCond> saved;
    const std::vector<std::function<void()>> calls = {
        [&] { control->mbInitUsers(); },
        [&] { control->mbInitGroups(); },
        [&] { control->mbInitVars(); },
        [&] { control->moGetNameForUserId(7); },
        [&] { control->moGetNameForGroupId(3); },
        [&] { control->meGetDefaultOp(QStringLiteral("Author")); },
        [&] { control->meGetArgumentType(QStringLiteral("Author")); },
        [&] { control->mvLoad(users); },
        [&] { control->mvSave(saved, nullptr, true); }};
    for (const bool isWindowDeleted : {false, true}) {
        for (const auto& call : calls) {
            library->getUsers.results = {};
            control.reset();
            window = std::make_unique<ClickedWindow>();
            Services ports = services();
            ports.messageBox = nullptr;
            control = std::make_unique<OpenCtrl>(window.get(), ports);
            initialize();
            control->mvLoad({record(3, 2, "Author", "a", 1, 100)});
            library->getUsers.results = {E_FAIL};
            library->getGroups.results = {E_FAIL};
            library->getVariables.results = {E_FAIL};
            window->showActive();
            test::duringMessage(call, [&](QMessageBox& box) {
                if (isWindowDeleted)
                    deleteWindow();
                else
                    control.reset();
                expectReadable(box, kUnspecified);
            });
            EXPECT_EQ(library->references(), 1);
        }
    }
}

TEST_F(ControlWithRealBox, TheSameFailureAgainIsNotASecondBox)
{
    test::duringMessage([&] { control->mbInitUsers(); },
                        [&](QMessageBox& box) {
                            expectToJoin([&] { EXPECT_FALSE(control->mbInitUsers()); });
                            expectToJoin([&] { EXPECT_FALSE(control->mbInitVars()); });
                            EXPECT_EQ(library->getUsers.calls, 2);
                            expectReadable(box, kUnspecified);
                        });
}

TEST_F(ControlWithRealBox, AnotherFailureJoinsTheOpenBox)
{
    test::duringMessage([&] { control->mbInitUsers(); },
                        [&](QMessageBox& box) {
                            expectToJoin([&] { EXPECT_FALSE(control->mbInitGroups()); });
                            expectReadable(box, kUnspecified + QStringLiteral("\n\n") + kMemory);
                        });
}

TEST_F(ControlWithRealBox, AnotherControlOfTheWindowJoinsTheOpenBox)
{
    Services ports; // the real ones but for the pictures
    ports.icons = icons;
    OpenCtrl second(window.get(), ports);
    second.mvInitialize(library.get(), 120, KiroVaultType{}, TreeType{});
    test::duringMessage([&] { control->mbInitUsers(); },
                        [&](QMessageBox& box) {
                            expectToJoin([&] { EXPECT_FALSE(second.mbInitUsers()); });
                            expectToJoin([&] { EXPECT_FALSE(second.mbInitGroups()); });
                            expectReadable(box, kUnspecified + QStringLiteral("\n\n") + kMemory);
                        });
}

TEST_F(ControlWithRealBox, TheControlMayDieAfterAnotherFailureHasJoined)
{
    test::duringMessage([&] { control->mbInitUsers(); },
                        [&](QMessageBox& box) {
                            expectToJoin([&] { control->mbInitGroups(); });
                            deleteWindow();
                            expectReadable(box, kUnspecified + QStringLiteral("\n\n") + kMemory);
                        });
    EXPECT_EQ(library->references(), 1);
}

} // namespace
} // namespace condtree::test
