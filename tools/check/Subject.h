#pragma once

namespace cluiconfig::check {

/// What a file is to be.
enum class Subject {
    Document, ///< A UIConfig.json.
    Catalogue, ///< A catalogue of data arrays.
};

} // namespace cluiconfig::check
