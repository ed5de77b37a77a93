#pragma once

#include <cstdint>

class QObject;

namespace condtree {

/// Sends receiver a TimerMessage with this id, once, when the time has passed. A timer of the same
/// receiver and id that is still running starts anew. It ends with its receiver; null does nothing.
void startRealTimer(QObject* receiver, std::uintptr_t id, unsigned milliseconds);

/// Stops a timer; one that is not running stays so.
void stopRealTimer(QObject* receiver, std::uintptr_t id);

} // namespace condtree
