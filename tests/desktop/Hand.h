#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

class QWidget;

namespace condtree::test {

/// A user's hand at a real pointer and keyboard: xdotool moves them on the display that the program
/// runs on, and the window system brings the events. What it does has arrived when a call returns;
/// what comes of it may take some more events (see QTest::qWaitFor). What does not arrive fails the
/// test.
///
/// Buttons are the window system's: 1 left, 2 middle, 3 right. Keys have its names: "Down",
/// "Return", "Escape", "ctrl+a".
class Hand final : public QObject {
public:
    Hand();
    ~Hand() override;

    /// Moves the pointer to a point of a widget.
    void moveTo(const QWidget& widget, QPoint at);
    /// The same in equal steps, each of which arrives: what a drag needs.
    void glideTo(const QWidget& widget, QPoint at, int steps);
    void press(int button = 1);
    void release(int button = 1);
    void click(const QWidget& widget, QPoint at, int button = 1);
    /// Turns the wheel towards the user, or away with a negative number.
    void turnWheel(int steps);
    void key(const char* name);
    /// Types letters, digits and blanks.
    void type(const QString& text);

    /// Writes a picture of the whole screen into the folder that the variable CONDTREE_PICTURES
    /// names, or the current one.
    static void screenshot(const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void run(const QStringList& arguments, const int& counter, int count);
    void moveOnScreen(QPoint target);

    int m_presses = 0;
    int m_releases = 0;
    int m_turns = 0;
    int m_keys = 0;
};

} // namespace condtree::test
