#include "BdfFile.h"

#include "BdfHeader.h"
#include "BdfNumber.h"
#include "CsvParser.h"

#include <batterydata/ClConfigDataArrayManager.h>
#include <check/Suggest.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <new>
#include <string_view>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::datastorage::DataType;

namespace cluiedit {

namespace {

constexpr qint64 ChunkSize = 1 << 19;
constexpr std::size_t MaximumHeaderLength = 1000;
constexpr std::size_t MaximumColumns = 4096;
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// Reads one file. The parser calls cell() and rowEnd(), which note the first error and ignore what follows it; they do
/// not allocate for rows without an error: room for all rows of a chunk is made before it is parsed.
class BdfReader : private CsvRows
{
    Q_DECLARE_TR_FUNCTIONS(BdfReader)

public:
    BdfReader(const QString& path, const uiconfig::Catalogue& catalogue)
        : m_file(path)
        , m_name(QFileInfo(path).fileName())
        , m_catalogue(catalogue)
    {
    }

    BdfFile read(const std::stop_token& stop, const ReadProgress& progress)
    {
        try {
            if (open() && parse(stop, progress)) {
                takeMeasurement();
            }
        } catch (const std::bad_alloc&) {
            fail(tr("%1 does not fit into the memory.").arg(m_name));
        }
        return std::move(m_result);
    }

private:
    struct Column
    {
        QString header;
        const ClConfigDataArray* array = nullptr;
        bool isRead = false;
        bool isBoolean = false;
        std::vector<double> values;
    };

    bool open()
    {
        const QFileInfo info(m_file);
        if (info.isDir()) {
            fail(tr("%1 is a directory, not a file.").arg(m_name));
        } else if (info.exists() && !info.isFile()) {
            fail(tr("%1 is not an ordinary file.").arg(m_name));
        } else if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            fail(tr("%1 cannot be opened: %2").arg(m_name, m_file.errorString()));
        }
        return !hasFailed();
    }

    void takeMeasurement()
    {
        if (m_columns.empty()) {
            fail(tr("%1 is empty: it has no line of headers.").arg(m_name));
            return;
        }
        m_result.measurement.emplace(m_name);
        for (Column& column : m_columns) {
            if (column.isRead) {
                if (column.values.capacity() / 2 > m_rows) { // of a small file: room for a whole chunk
                    column.values.shrink_to_fit();
                }
                m_result.measurement->add({column.array->getName(), column.array->getCategory()},
                                          std::move(column.values));
            }
        }
    }

    /// Whether the file was read to its end without an error.
    bool parse(const std::stop_token& stop, const ReadProgress& progress)
    {
        const qint64 size = m_file.size();
        std::vector<char> chunk(ChunkSize);
        qint64 read = 0;
        while (!hasFailed()) {
            if (stop.stop_requested()) {
                m_result.wasCancelled = true;
                return false;
            }
            const qint64 count = m_file.read(chunk.data(), ChunkSize);
            if (count < 0) {
                fail(tr("%1 cannot be read: %2").arg(m_name, m_file.errorString()));
            }
            if (count <= 0) {
                break;
            }
            std::string_view text(chunk.data(), static_cast<std::size_t>(count));
            if (read == 0) {
                text.remove_prefix(text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
                m_parser.setDelimiter(bdfDelimiter(text));
            }
            parse(text, read, size);
            read += count;
            if (progress) {
                progress(read, std::max(size, read));
            }
        }
        if (!hasFailed() && m_parser.finish() == CsvParser::Error::OpenQuote) {
            failInRow(tr("a quote is missing at the end of the cell."));
        }
        return !hasFailed();
    }

    /// Parses \p text, which stands behind the first \p read bytes of \p size.
    void parse(std::string_view text, qint64 read, qint64 size)
    {
        if (text.find('\0') != std::string_view::npos) {
            fail(tr("%1 is not a text in UTF-8.").arg(m_name));
            return;
        }
        while (m_columns.empty() && !text.empty() && !hasFailed()) { // line by line: there is no room for rows yet
            const std::size_t length = std::min(text.find_first_of("\r\n"), text.size() - 1) + 1;
            parseInRoom(text.substr(0, length));
            text.remove_prefix(length);
        }
        if (!hasFailed()) {
            makeRoom(read, size);
            parseInRoom(text);
        }
    }

    /// REQUIRES: there is room for the rows of \p text.
    void parseInRoom(std::string_view text)
    {
        const CsvParser::Error error = m_parser.parse(text);
        if (error == CsvParser::Error::StrayQuote) {
            failInRow(tr("there is a quote where none may be. A cell in quotes begins and ends with one, and quotes in "
                         "it are written twice."));
        } else if (error == CsvParser::Error::LongCell) {
            failInRow(tr("the cell is longer than %1 bytes.").arg(CsvParser::MaximumCellLength));
        }
    }

    /// Makes room for the rows of one more chunk when \p read bytes of \p size are parsed. Where room is short, for all
    /// rows of the file, if they go on like those before: memory that is never written to costs nothing.
    void makeRoom(qint64 read, qint64 size)
    {
        const std::size_t enough = m_rows + mostRowsOfChunk();
        const double rowsPerByte = read > 0 ? static_cast<double>(m_rows) / static_cast<double>(read) : 0;
        const auto estimate = static_cast<std::size_t>(1.02 * rowsPerByte * static_cast<double>(size));
        for (Column& column : m_columns) {
            if (column.isRead && column.values.capacity() < enough) {
                column.values.reserve(std::max({enough, estimate + mostRowsOfChunk(), m_rows + m_rows / 2}));
            }
        }
    }

    /// A row has a delimiter or line end after each cell, and a single cell at least a character.
    std::size_t mostRowsOfChunk() const
    {
        return static_cast<std::size_t>(ChunkSize) / std::max<std::size_t>(m_columns.size(), 2) + 2;
    }

    void cell(std::string_view text) override
    {
        if (hasFailed()) {
            return;
        }
        if (m_columns.empty()) {
            headerCell(text);
        } else if (m_cell == m_columns.size()) {
            failInRow(tr("the row has more cells than the header, which has %1.").arg(m_columns.size()));
        } else if (Column& column = m_columns[m_cell]; column.isRead) {
            numberCell(text, column);
        }
        ++m_cell;
    }

    void headerCell(std::string_view text)
    {
        if (m_headers.size() == MaximumColumns) {
            failInRow(tr("the header has more than %1 columns.").arg(MaximumColumns));
        } else if (text.size() > MaximumHeaderLength) {
            failInRow(tr("the header of the column is longer than %1 bytes.").arg(MaximumHeaderLength));
        } else {
            m_headers.emplace_back(text);
        }
    }

    void numberCell(std::string_view text, Column& column)
    {
        using enum BdfNumber::Problem;
        const BdfNumber number = bdfNumber(text, column.isBoolean);
        if (number.problem == None) {
            column.values.push_back(number.value);
            return;
        }
        const std::string_view start = trimmed(text).substr(0, 200);
        const QString cell = cluiconfig::check::quoted(QString::fromUtf8(start.data(), std::ssize(start)));
        if (number.problem == OutOfRange) {
            failInRow(tr("%1 is beyond the numbers that can be computed with.").arg(cell));
        } else if (number.problem == DecimalComma) {
            failInRow(tr("%1 has a decimal comma. Numbers have a decimal point.").arg(cell));
        } else {
            failInRow(tr("%1 is not a number.").arg(cell));
        }
    }

    void rowEnd() override
    {
        if (!hasFailed() && m_cell > 0) {
            if (m_columns.empty()) {
                readHeader();
            } else if (m_cell < m_columns.size()) {
                failInRow(tr("the row has %1 cells, and the header has %2.").arg(m_cell).arg(m_columns.size()));
            } else {
                ++m_rows;
            }
        }
        m_cell = 0;
    }

    void readHeader()
    {
        QList<const ClConfigDataArray*> seen;
        m_cell = 0;
        std::vector<Column> columns;
        for (const BdfColumn& named : bdfColumns(m_headers, m_catalogue)) {
            Column& column = columns.emplace_back(Column{named.header, named.array, false, false, {}});
            if (named.array == nullptr) {
                m_result.unknownColumns.append(named.header.isEmpty() ? tr("column %1, without a name").arg(m_cell + 1)
                                                                      : named.header);
            } else if (seen.contains(named.array)) {
                failInRow(tr("this is another column of %1.").arg(cluiconfig::check::quoted(named.array->getName())));
                return;
            } else if (named.array->getDataType() == DataType::Text) {
                m_result.skippedColumns.append(named.header);
            } else {
                column.isRead = true;
                column.isBoolean = named.array->getDataType() == DataType::Boolean;
            }
            seen.append(named.array);
            ++m_cell;
        }
        if (std::ranges::none_of(columns, &Column::isRead)) {
            fail(tr("%1, line %2: the header names no column of numbers that is known, such as \"voltage_volt\".")
                     .arg(m_name)
                     .arg(m_parser.line()));
            return;
        }
        m_columns = std::move(columns);
    }

    bool hasFailed() const { return !m_result.error.isEmpty(); }

    void fail(const QString& error)
    {
        if (!hasFailed()) {
            m_result.error = error;
        }
    }

    /// \p what is wrong with the cell at hand.
    void failInRow(const QString& what)
    {
        const QString header = m_cell < m_columns.size() ? m_columns[m_cell].header : QString();
        if (header.isEmpty()) {
            fail(tr("%1, line %2, column %3: %4").arg(m_name).arg(m_parser.line()).arg(m_cell + 1).arg(what));
        } else {
            fail(tr("%1, line %2, column %3 (%4): %5")
                     .arg(m_name)
                     .arg(m_parser.line())
                     .arg(m_cell + 1)
                     .arg(header, what));
        }
    }

    QFile m_file;
    QString m_name;
    const uiconfig::Catalogue& m_catalogue;
    CsvParser m_parser{*this};
    BdfFile m_result;

    std::vector<std::string> m_headers;
    std::vector<Column> m_columns; // none before the header is read
    std::size_t m_rows = 0;
    std::size_t m_cell = 0; // of the row
};

} // namespace

BdfFile readBdf(const QString& path, const uiconfig::Catalogue& catalogue, const std::stop_token& stop,
                const ReadProgress& progress)
{
    return BdfReader(path, catalogue).read(stop, progress);
}

} // namespace cluiedit
