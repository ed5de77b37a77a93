#pragma once

#include <condtree/platform/WinTypes.h>

#include <cstddef>
#include <limits>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace condtree {

struct PositionTag;
/// A place in a Lst; null is behind the end.
using POSITION = PositionTag*;

/// Throws std::length_error("list too long") when a list of count elements may not take another.
inline void requireRoomInList(std::size_t count,
                              std::size_t limit = std::numeric_limits<LONG>::max())
{
    if (count >= limit)
        throw std::length_error("list too long");
}

/// The data-access library's doubly linked list. Its nodes come from CoTaskMemAlloc; the elements
/// are copied in and out, and what they point at is not owned (AutoLst owns it).
///
/// Adding throws _com_error(E_OUTOFMEMORY) when the memory is exhausted and std::length_error when
/// the list is full. Not copyable: a copy of a list of pointers has no clear owner.
template <class T>
class Lst {
public:
    using value_type = T;

    Lst() = default;
    ~Lst() { RemoveAll(); }
    Lst(const Lst&) = delete;
    Lst& operator=(const Lst&) = delete;

    POSITION AddTail(T value) { return link(makeNode(std::move(value)), m_tail, nullptr); }
    POSITION AddHead(T value) { return link(makeNode(std::move(value)), nullptr, m_head); }

    /// Takes off the first element. The list must not be empty.
    T RemoveHead() { return unlink(m_head); }
    /// Takes off the last element. The list must not be empty.
    T RemoveTail() { return unlink(m_tail); }

    [[nodiscard]] LONG GetCount() const { return m_count; }
    [[nodiscard]] bool IsEmpty() const { return m_count == 0; }

    /// Null when the list is empty.
    [[nodiscard]] POSITION GetHeadPosition() const { return reinterpret_cast<POSITION>(m_head); }

    /// The element at position, which moves on to the next one. position must not be null.
    T& GetNext(POSITION& position) { return next(position)->value; }
    const T& GetNext(POSITION& position) const { return next(position)->value; }

    /// Frees every node; what the elements point at is left alone.
    void RemoveAll()
    {
        while (m_head != nullptr)
            unlink(m_head);
    }

private:
    struct Node {
        T value;
        Node* before;
        Node* after;
    };
    static_assert(alignof(Node) <= alignof(std::max_align_t));

    Node* makeNode(T&& value)
    {
        requireRoomInList(static_cast<std::size_t>(m_count));
        void* memory = CoTaskMemAlloc(sizeof(Node));
        if (memory == nullptr)
            throw _com_error(E_OUTOFMEMORY);
        return new (memory) Node{std::move(value), nullptr, nullptr};
    }

    POSITION link(Node* node, Node* before, Node* after)
    {
        node->before = before;
        node->after = after;
        (before != nullptr ? before->after : m_head) = node;
        (after != nullptr ? after->before : m_tail) = node;
        ++m_count;
        return reinterpret_cast<POSITION>(node);
    }

    T unlink(Node* node)
    {
        T value = std::move(node->value);
        (node->before != nullptr ? node->before->after : m_head) = node->after;
        (node->after != nullptr ? node->after->before : m_tail) = node->before;
        --m_count;
        node->~Node();
        CoTaskMemFree(node);
        return value;
    }

    static Node* next(POSITION& position)
    {
        Node* node = reinterpret_cast<Node*>(position);
        position = reinterpret_cast<POSITION>(node->after);
        return node;
    }

    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    LONG m_count = 0;
};

/// Destroys a record that a data-access library handed over, and frees it. Null does nothing.
template <class T>
void SpDelete(T* record)
{
    if (record == nullptr)
        return;
    record->~T();
    CoTaskMemFree(record);
}

/// A list of records that owns them: when it goes, it takes them off the tail, destroys and frees
/// each one. L is a Lst of pointers to records from CoTaskMemAlloc.
template <class L>
class AutoLst : public L {
public:
    static_assert(std::is_pointer_v<typename L::value_type>);

    AutoLst() = default;
    ~AutoLst()
    {
        while (!this->IsEmpty())
            SpDelete(this->RemoveTail());
    }
};

} // namespace condtree
