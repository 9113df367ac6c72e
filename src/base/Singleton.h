#pragma once

/// \file Singleton.h
/// The base of every class of which the whole process has exactly one object.

namespace lumo::tools {

/// Gives \p T one process-wide object and a passkey that keeps everybody else from making a second one.
///
/// Derive `T` publicly from `Singleton<T>` and let its only constructor take a `Singleton<T>::token`. The object lives
/// in static storage, is made by the first call of instance() and destroyed at process exit.
///
/// A class that several libraries and programs use must declare the instantiation as exported before its definition,
/// and define it in one source file of its own library:
/// \code
///     class Settings;
///     extern template SETTINGS_EXPORT Settings& lumo::tools::Singleton<Settings>::instance();   // Settings.h
///     template SETTINGS_EXPORT Settings& lumo::tools::Singleton<Settings>::instance();          // Settings.cpp
/// \endcode
/// Otherwise every library with hidden visibility, and every DLL, would get an object of its own.
template <typename T>
class Singleton
{
public:
    /// Proof that the caller is instance(): nobody else can make one, not even with `{}`.
    class token // NOLINT(readability-identifier-naming): the application writes it so
    {
        friend class Singleton;
        // User-provided on purpose: up to C++17 a defaulted one would let `{}` through.
        token() { } // NOLINT(modernize-use-equals-default)
    };

    /// The one object of the process. The first call constructs it; a thread that comes while another one constructs
    /// waits. If the constructor throws, the exception reaches the caller and the next call tries again.
    static T& instance();

protected:
    Singleton() = default;
};

template <typename T>
T& Singleton<T>::instance() // not inline, so that an extern template declaration keeps it out of the caller's code
{
    static T object{token()};
    return object;
}

} // namespace lumo::tools
