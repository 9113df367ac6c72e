#pragma once

/// How often this thread has asked the C library for memory. Counted by functions of the bench program that stand in
/// front of the library's own.
long long allocationCount();

/// Takes memory from the system and hands it to the allocator, once. The first touch of a new page costs more than what
/// is then written there, and whether an operation meets new pages depends on what was measured before it.
void growHeap();

/// Fills the processor's caches with other things, as they are when an operation is done once in a while and not again
/// and again.
void emptyCaches();
