#pragma once

#include <cstddef>
#include <cstring>

/// \file VirtualSlot.h
/// The application is built against the order of a record's virtual operations. Where a pointer to a virtual member
/// function tells its slot, tests read the order from it.

#if defined(__GNUC__) && defined(__x86_64__)
#define HAVE_VIRTUAL_SLOTS 1

/// The slot of a virtual member function, from 0. A virtual destructor takes two slots here: one destroys, the other
/// one also deletes. The C++ ABI of this platform stores the slot's byte offset plus one in the pointer.
template <typename MemberFunction>
std::size_t virtualSlot(MemberFunction function)
{
    std::size_t offsetPlusOne = 0;
    std::memcpy(&offsetPlusOne, &function, sizeof offsetPlusOne);
    return (offsetPlusOne - 1) / sizeof(void*);
}

/// How many slots \p Record's virtual operations take: the slot that the next one would get.
template <typename Record>
std::size_t virtualSlots()
{
    struct Next : Record
    {
        virtual void next() { }
    };
    return virtualSlot(&Next::next);
}
#else
#define HAVE_VIRTUAL_SLOTS 0
#endif
