#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace condtree {

/// While a list is open, hands on what is typed and the turns of the wheel that other widgets get,
/// whichever of them has the focus.
class InputRelay final : public QObject {
public:
    using Hook = std::function<bool(QEvent*)>;

    InputRelay() = default;
    ~InputRelay() override;

    /// What gets the events, and answers whether it took one. It may call leave, and delete this
    /// with whatever owns it.
    void setHook(Hook hook);
    /// Listens until leave is called. What list's own widgets get, it has already.
    void listenFor(QWidget& list);
    void leave();

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QPointer<QWidget> m_list;
    Hook m_hook;
};

} // namespace condtree
