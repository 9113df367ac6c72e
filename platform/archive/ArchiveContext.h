#pragma once

/// \file ArchiveContext.h

namespace cl::archive {

/// What the project archive hands through every `read` and `write` of a saved project.
///
/// The records pass the context on to their children as they got it and ask it for nothing, so the stand-in is empty.
class ArchiveContext
{
};

} // namespace cl::archive
