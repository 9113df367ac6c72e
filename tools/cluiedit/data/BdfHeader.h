#pragma once

#include <batterydata/ClConfigDataArray.h>
#include <config/Configuration.h>

#include <QList>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace cluiedit {

/// A column of a file, and the array of the catalogue that it holds.
struct BdfColumn
{
    QString header; ///< as the file has it, without surrounding blanks
    const cl::batterydata::ClConfigDataArray* array = nullptr; ///< null where the catalogue has none
};

/// The columns that \p headers, UTF-8, name. Whether they can be read together is another matter.
QList<BdfColumn> bdfColumns(const std::vector<std::string>& headers, const uiconfig::Catalogue& catalogue);

/// What separates the headers in \p text, which begins with the header line: a comma, semicolon or tab.
char bdfDelimiter(std::string_view text);

} // namespace cluiedit
