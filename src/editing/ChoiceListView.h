#pragma once

#include <QListView>

#include <optional>
#include <vector>

namespace condtree {

/// The dropped list: rows of one height in one column, of which it may show a part. It never lays
/// its rows out, so that it opens as fast with many as with few.
class ChoiceListView final : public QListView {
    Q_OBJECT
public:
    explicit ChoiceListView(QWidget* parent = nullptr);

    void setRowHeight(int height);
    [[nodiscard]] int rowHeight() const { return m_rowHeight; }
    /// Which rows of the model are shown, ascending; none for all. The current row is left alone.
    void setShownRows(const std::optional<std::vector<int>>& rows);
    [[nodiscard]] int shownCount() const;

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    /// Applies a key that another widget got, if it types something or takes it back.
    void takeText(const QKeyEvent& event);
    /// Scrolls by a turn of the wheel that another widget got.
    void takeWheel(const QWheelEvent& event);
    /// A text that was typed, by whatever way.
    void keyboardSearch(const QString& text) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    void typed(const QString& text);
    void backspacePressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    [[nodiscard]] QModelIndex rowAt(int position) const;
    [[nodiscard]] int positionOf(const QModelIndex& index) const;
    [[nodiscard]] int pageRows() const;

    int m_rowHeight = 1;
    std::optional<std::vector<int>> m_shown;
};

} // namespace condtree
