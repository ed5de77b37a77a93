#include "InputRelay.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

#include <utility>

namespace condtree {

namespace {

bool isInput(const QEvent& event)
{
    if (event.type() == QEvent::Wheel)
        return true;
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool isCommand = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    const bool isTyped = !key.text().isEmpty() && key.text().at(0) >= QLatin1Char(' ');
    return !isCommand && (isTyped || key.key() == Qt::Key_Backspace);
}

// A popup is a window of its own, and yet its list's child.
bool belongsTo(const QWidget& list, const QObject* receiver)
{
    for (; receiver != nullptr; receiver = receiver->parent()) {
        if (receiver == &list)
            return true;
    }
    return false;
}

} // namespace

InputRelay::~InputRelay()
{
    leave();
}

void InputRelay::setHook(Hook hook)
{
    m_hook = std::move(hook);
}

void InputRelay::listenFor(QWidget& list)
{
    leave();
    m_list = &list;
    QCoreApplication::instance()->installEventFilter(this);
}

void InputRelay::leave()
{
    m_list.clear();
    if (QCoreApplication* application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

// What the list takes does not go to the other widget too: it would come again to each of its
// parents, and move the row below.
bool InputRelay::eventFilter(QObject* receiver, QEvent* event)
{
    if (m_list.isNull() || !isInput(*event) || !receiver->isWidgetType()
        || belongsTo(*m_list, receiver))
        return false;
    const Hook hook = m_hook; // this may go meanwhile
    return hook(event);
}

} // namespace condtree
