#pragma once

/// How often this process has asked the C library for memory. Counted by functions of the bench program that stand in
/// front of the library's own.
long long allocationCount();
