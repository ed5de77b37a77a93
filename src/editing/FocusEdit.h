#pragma once

#include <condtree/editing/Completion.h>
#include <condtree/editing/FocusEditListener.h>
#include <condtree/model/FocusEditValue.h>
#include <condtree/platform/Services.h>

#include <QEvent>
#include <QWidget>

#include <functional>
#include <memory>
#include <typeinfo>
#include <utility>
#include <vector>

namespace condtree {

class EditField;

/// The in-place editor: a small edit over a cell, in which the text of a FocusEditValue is changed.
///
/// The edit finishes once, by Return, by losing the focus (the editor's own menu and other popups
/// do not count), by being hidden together with its window, or by finish(): the text is committed
/// into the edited object, the listeners are told, and the editor hides and deletes itself. There
/// is no cancelling; Escape does nothing. Make it with new.
///
/// The edited object must live until the edit is finished. Whoever destroys it calls finish()
/// before, or abandon(). An editor whose parent is being destroyed commits nothing, since the
/// object may have been a part of it. In an edit that ends because it is hidden, only deleteLater()
/// may be used on the editor and the widgets around it: the toolkit is still hiding them.
///
/// A line keeps all characters that are set, typed or pasted, line breaks and control characters
/// included, and has no limit of length. Tab leaves a single-line editor as it is, and enters a tab
/// into a multi-line one. The keys and characters that the object's filters get have the native
/// platform's numbers: letters and digits their capital's code, Return 13, Escape 27, Tab 9, Back
/// 8, Delete 46, Page Up 33, Page Down 34, End 35, Home 36, arrows 37 to 40, F1 112 and on; bit 13
/// of the flags is set while Alt is held, bit 14 for a key that repeats. Key and character are
/// filtered apart: a consumed key still types its character. The Return key finishes the edit and
/// is not told; keys with Alt are not told either.
class CONDTREE_EXPORT FocusEdit : public QWidget {
    Q_OBJECT

public:
    FocusEdit();
    /// Commits nothing.
    ~FocusEdit() override;

    /// Makes the editor a child of parent, which then owns it, and shows it over cell (in parent's
    /// co-ordinates), at least 20 pixels of 96 dots per inch high. It opens with the object's text,
    /// all of it selected, in parent's font, and takes the focus a moment later. Of the services it
    /// needs the timers; they may be gone before the editor is.
    ///
    /// False, and no window, without a parent or for an editor that was created before. The
    /// completions are cleared; completion and committing are on.
    bool Create(FocusEditValue& object, const RECT& cell, QWidget* parent,
                const Services& services);

    /// What is in the editor; empty before it is created.
    [[nodiscard]] CString text() const;
    /// Replaces it, and selects all. It counts as a change, like typing.
    void setText(const CString& text);

    /// Finishes the edit, if it is not finished yet. The editor, and all that the object's and the
    /// listeners' owner likes to delete, may be gone afterwards.
    void finish();
    /// Closes the editor without touching the edited object again. The listeners are not told.
    void abandon();
    [[nodiscard]] bool isFinished() const { return m_isFinished; }

    /// Whether pauses in typing are told to the listeners, and to the object with live update.
    void setCompletionOn(bool on) { m_isCompletionOn = on; }
    [[nodiscard]] bool isCompletionOn() const { return m_isCompletionOn; }
    /// Whether finishing commits the text.
    void setCommitOnFinish(bool on) { m_commitsOnFinish = on; }
    [[nodiscard]] bool commitsOnFinish() const { return m_commitsOnFinish; }
    /// Whether the object gets the text at every pause of 500 milliseconds. Off unless a host sets
    /// it.
    void setLiveUpdate(bool on) { m_updatesLive = on; }
    [[nodiscard]] bool updatesLive() const { return m_updatesLive; }

    /// Adds or replaces what a text stands for, whatever its case. With any completion, texts
    /// without one are not committed.
    void addCompletion(const CString& text, const CString& fullText, bool mustMatch);
    void clearCompletions() { m_completions.clear(); }
    [[nodiscard]] const CompletionDictionary& completions() const { return m_completions; }

    /// Listeners are told in the order in which they were added, each once. They are not owned.
    void addListener(FocusEditListener& listener);
    void removeListener(FocusEditListener& listener);

    /// The type of ClassNameMessage, which the editor answers with "FocusEdit".
    [[nodiscard]] static QEvent::Type classNameMessage();

Q_SIGNALS:
    /// The editor is finished or abandoned; it hides, and will delete itself.
    void finished();

protected:
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Link;

    [[nodiscard]] bool isOpen() const { return m_field != nullptr && !m_isFinished; }
    void makeWindow(const RECT& cell, QWidget& parent, bool isMultiLine);
    void placeField();
    void rememberAncestors();
    [[nodiscard]] bool isAncestorDying() const;
    void restartPauseTimer();
    void stopPauseTimer();
    void onPause();
    void updateLive(const CString& text);
    void finishByItself();
    void commit();
    void tellFinished();
    void closeWindow();
    template <class Call>
    void tellListeners(Call call);
    void handFocusBack();
    void enter();
    void leave();

    FocusEditValue* m_object = nullptr;
    bool m_isSettingText = false;
    bool m_isCompletionOn = true;
    bool m_commitsOnFinish = true;
    bool m_updatesLive = false;
    bool m_isFinished = false;
    CompletionDictionary m_completions;
    std::vector<FocusEditListener*> m_listeners;
    /// The timer that is running; 0 for none.
    std::uintptr_t m_timer = 0;

    std::function<void(QObject*, std::uintptr_t, unsigned)> m_startTimer;
    std::function<void(QObject*, std::uintptr_t)> m_stopTimer;
    std::unique_ptr<Link> m_link;
    /// A child; null before the window is created.
    EditField* m_field = nullptr;
    bool m_hasBorder = false;
    bool m_isTakingComposition = false;
    /// Events that are being handled, one inside the other: as long as there are any, the closed
    /// editor stays.
    int m_handling = 0;
    bool m_isClosed = false;
    /// The widgets around the editor with their classes, which change as their destructors run.
    std::vector<std::pair<const QWidget*, const std::type_info*>> m_ancestors;
};

} // namespace condtree
