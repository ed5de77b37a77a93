#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/editing/ChoiceKeys.h>
#include <condtree/editing/TypedSearch.h>

#include <QComboBox>
#include <QElapsedTimer>

#include <functional>
#include <memory>
#include <optional>

class QFrame;

namespace condtree {

class ChoiceListView;
class ChoiceModel;
class ImgLst;

/// Where the searched form of a shared tail is kept: empty until somebody searches, then for every
/// list that offers the same tail.
using TailKeys = std::shared_ptr<std::optional<ChoiceKeys>>;

/// The list that is offered over a cell of the tree: a box that is not editable, with a picture and
/// a text an entry. It is made hidden.
///
/// The closed box changes nothing by wheel or typing. In the open list typing finds entries by how
/// they begin and shows only those that contain what was typed, without case and accents; the box
/// shows what that is, Backspace takes it back, and closing ends it. Indices are always those of
/// the whole list.
class CommandCombo final : public QComboBox {
    Q_OBJECT
public:
    /// cell is in the parent's co-ordinates, and as high as the box and the dropped list together.
    /// The box takes the height of one of its rows: a line of text or a picture, with some space.
    CommandCombo(QWidget* parent, const RECT& cell, const std::function<int(int)>& systemMetric);
    ~CommandCombo() override;

    /// Null for no pictures. The list must outlive the combo.
    void setImages(const ImgLst* images);
    /// Inserts an entry; a position that is negative or beyond the end appends. Its index.
    int addEntry(ChoiceEntry entry, int position);
    void addEntries(const ChoiceEntries& entries, int position);
    /// Appends entries without copying them.
    void setTail(SharedChoices tail, TailKeys keys = {});
    [[nodiscard]] int entryCount() const;
    /// index must be below entryCount().
    [[nodiscard]] const ChoiceEntry& entry(int index) const;

    /// Selects an entry and tells nobody; an index outside the list selects none.
    void select(int index);
    /// -1 for none.
    [[nodiscard]] int selection() const { return currentIndex(); }

    /// Shows the box and opens the list, also an empty one.
    void dropDown();
    [[nodiscard]] bool isDroppedDown() const { return m_isDropped; }
    /// The list is at least as wide as this and as the box, at most as the screen.
    void setDroppedWidth(int width) { m_droppedWidth = width; }
    [[nodiscard]] int droppedWidth() const { return m_droppedWidth; }
    /// Whether typing hides the entries that do not contain what was typed; on until set.
    void setQuickFilter(bool on) { m_search.setFilter(on); }

    /// Applies a key that types something, or a turn of the wheel, to the open list as if it had
    /// got it. Does nothing when the list is closed, and when receiver is the list itself.
    void forward(QEvent* event, const QObject* receiver = nullptr);
    /// Tells now, not later, that the list was closed, if that is not told yet: before something
    /// else happens to the tree. The receiver may delete the combo.
    void tellClosed();
    /// Takes it out of use: hides everything, tells nothing any more, and deletes it later.
    void retire();

    void showPopup() override;
    void hidePopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Closes the list without choosing. The box stays.
    void closeList();

Q_SIGNALS:
    /// The list was closed, by whatever way: once for each time that it was opened, from the event
    /// loop, and then selection() is what was chosen, or as before where nothing was. The receiver
    /// may delete the combo.
    void closedUp();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QFrame& popup() const;
    void makeView();
    void placeOver(const RECT& cell);
    void showEmptyPopup();
    void popupHidden();
    void closeIfFocusLeft();
    [[nodiscard]] bool isLostOnList(QEvent& event) const;
    [[nodiscard]] bool closesEmptyHanded(QEvent& event) const;
    void passKey(const QKeyEvent& event);
    void forgetKeys();
    [[nodiscard]] ListKeys keys();
    void type(const QString& text);
    void eraseTyped();
    void showSearch(int current);

    ChoiceModel* m_model;
    ChoiceListView* m_view;
    int m_arrowWidth;
    int m_margin;
    int m_droppedWidth = 0;
    bool m_isDropped = false;
    bool m_isUntold = false;
    bool m_isRetired = false;
    bool m_isForwarding = false;
    TypedSearch m_search;
    QElapsedTimer m_sinceTyped;
    std::optional<ChoiceKeys> m_ownKeys;
    TailKeys m_tailKeys;
};

} // namespace condtree
