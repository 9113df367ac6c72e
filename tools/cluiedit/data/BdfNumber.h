#pragma once

#include <string_view>

namespace cluiedit {

/// What a cell of a file of measurements holds.
struct BdfNumber
{
    enum class Problem { None, NotANumber, DecimalComma, OutOfRange };

    double value = 0; ///< NaN for a cell without content.
    Problem problem = Problem::None;
};

/// Reads \p cell: a number with a decimal point, whatever the locale; with \p isBoolean, "true" and "false", too.
/// Blanks around it and a plus sign do no harm.
BdfNumber bdfNumber(std::string_view cell, bool isBoolean);

/// \p text without the blanks around it.
std::string_view trimmed(std::string_view text);

} // namespace cluiedit
