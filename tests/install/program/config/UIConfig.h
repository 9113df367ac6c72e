#pragma once

/// A header of the program's own, which has the name of one of the library's.
struct WindowConfig
{
    int width = 800;
};
