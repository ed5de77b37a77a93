#pragma once

#include "CellHand.h"
#include "editing/CalendarHand.h"

#include <condtree/editing/PickDateDlg.h>

#include <QTimer>

namespace condtree::test {

/// A click on a date opens the calendar and waits; what a user or the host does meanwhile.
class PickingHand : public CellHand {
protected:
    static TransCond due(const char* value)
    {
        return record(RowKindTop, 2, "Due", value, ArgDate, DateEqualTo, "note");
    }
    [[nodiscard]] PickDateDlg* picker() const
    {
        return dynamic_cast<PickDateDlg*>(QApplication::activePopupWidget());
    }
    [[nodiscard]] CalendarHand hand() const
    {
        return CalendarHand(*picker()->findChild<CMonthCalCtrlEx*>());
    }
    /// Does something that opens the picker, and a script while it is open. Afterwards it is
    /// closed, by the script or, if the script left it open, from outside.
    void picking(const std::function<void()>& open, const std::function<void()>& script)
    {
        bool hasRun = false;
        wasOpen = false;
        QTimer::singleShot(0, qApp, [&] {
            ASSERT_NE(picker(), nullptr);
            hasRun = true;
            script();
            QCoreApplication::processEvents();
            wasOpen = picker() != nullptr;
            if (wasOpen)
                picker()->close();
        });
        open();
        EXPECT_TRUE(hasRun);
        letEventsPass();
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
    void clicking(const std::function<void()>& script)
    {
        picking([this] { click(0, 2); }, script);
    }
    void pickDay(int day) const { hand().click(hand().day(day)); }

    bool wasOpen = false;
};

} // namespace condtree::test
