#include "BdfHeader.h"

#include <batterydata/ClConfigDataArrayManager.h>

#include <QHash>

#include <algorithm>
#include <array>

using cl::batterydata::ClConfigDataArray;

namespace cluiedit {

namespace {

/// The arrays of recorded rows by both of their names. Where two arrays have the same name but for the case, that
/// spelling is nobody's.
class ColumnNames
{
public:
    explicit ColumnNames(const uiconfig::Catalogue& catalogue)
    {
        const QString category = ClConfigDataArray::PotentiostatMeasure();
        for (const ClConfigDataArray* array : catalogue.getAll()) {
            if (array->getCategory() == category) {
                add(array->getMachineName(), array);
                add(array->getName(), array);
            }
        }
    }

    const ClConfigDataArray* find(const QString& header) const
    {
        const ClConfigDataArray* exact = m_exact.value(header);
        return exact != nullptr ? exact : m_folded.value(header.toCaseFolded());
    }

private:
    void add(const QString& name, const ClConfigDataArray* array)
    {
        if (name.isEmpty()) {
            return;
        }
        if (!m_exact.contains(name)) {
            m_exact.insert(name, array);
        }
        const auto folded = m_folded.find(name.toCaseFolded());
        if (folded == m_folded.end()) {
            m_folded.insert(name.toCaseFolded(), array);
        } else if (*folded != array) {
            *folded = nullptr;
        }
    }

    QHash<QString, const ClConfigDataArray*> m_exact;
    QHash<QString, const ClConfigDataArray*> m_folded;
};

} // namespace

QList<BdfColumn> bdfColumns(const std::vector<std::string>& headers, const uiconfig::Catalogue& catalogue)
{
    const ColumnNames names(catalogue);
    QList<BdfColumn> columns;
    for (const std::string& text : headers) {
        const QString header = QString::fromStdString(text).trimmed();
        columns.append({header, names.find(header)});
    }
    return columns;
}

char bdfDelimiter(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of("\r\n \t"), text.size()));
    constexpr std::array Delimiters{',', ';', '\t'};
    std::array<int, Delimiters.size()> counts{};
    bool isQuoted = false;
    for (const char c : text.substr(0, text.find_first_of("\r\n"))) {
        isQuoted = isQuoted != (c == '"');
        if (const auto* found = std::ranges::find(Delimiters, c); !isQuoted && found != Delimiters.end()) {
            ++counts.at(static_cast<std::size_t>(found - Delimiters.begin()));
        }
    }
    const auto* most = std::ranges::max_element(counts);
    return Delimiters.at(static_cast<std::size_t>(most - counts.begin()));
}

} // namespace cluiedit
