#pragma once

#include <QtGlobal>

#include <csv.h>

#include <cstddef>
#include <string_view>

namespace cluiedit {

/// Told what stands in a text of comma-separated values.
class CsvRows
{
public:
    virtual ~CsvRows() = default;

    /// The next cell of the row, without its quotes.
    virtual void cell(std::string_view text) = 0;
    /// The row has ended; also told for lines without cells.
    virtual void rowEnd() = 0;
};

/// Splits a text of comma-separated values, which comes in pieces, into cells.
///
/// It stands on a small C parser from the distribution: the quoting of RFC 4180, texts of any size, no memory of its
/// own but for the cell at hand.
class CsvParser
{
public:
    static constexpr std::size_t MaximumCellLength = 1 << 16;

    enum class Error {
        None,
        StrayQuote, ///< A quote where none may be.
        OpenQuote, ///< No quote at the end of a cell that begins with one.
        LongCell ///< More than MaximumCellLength bytes.
    };

    /// REQUIRES: \p rows outlives the parser.
    explicit CsvParser(CsvRows& rows);
    ~CsvParser();
    Q_DISABLE_COPY_MOVE(CsvParser)

    void setDelimiter(char delimiter);
    Error parse(std::string_view text);
    /// At the end of the text: a row without a line end ends.
    Error finish();

    /// The line, from 1, on which the row at hand begins.
    qint64 line() const { return m_line; }

private:
    static void onCell(void* text, std::size_t length, void* parser);
    static void onRowEnd(int character, void* parser);

    CsvRows& m_rows;
    csv_parser m_parser{};
    qint64 m_line = 1;
    qint64 m_linesInCells = 0; // of the row, inside quotes
    bool m_isAfterReturn = false;
};

} // namespace cluiedit
