#include "CsvParser.h"

#include <algorithm>
#include <cstdlib>

namespace cluiedit {

namespace {

/// Memory for the parser's cell at hand; null beyond the longest cell, which ends the parsing.
void* reallocateCell(void* memory, std::size_t size)
{
    return size > CsvParser::MaximumCellLength ? nullptr : std::realloc(memory, size); // NOLINT(*-no-malloc): C owns it
}

} // namespace

CsvParser::CsvParser(CsvRows& rows)
    : m_rows(rows)
{
    csv_init(&m_parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
    csv_set_realloc_func(&m_parser, reallocateCell);
    csv_set_blk_size(&m_parser, 1024);
}

CsvParser::~CsvParser()
{
    csv_free(&m_parser);
}

void CsvParser::setDelimiter(char delimiter)
{
    csv_set_delim(&m_parser, static_cast<unsigned char>(delimiter));
}

CsvParser::Error CsvParser::parse(std::string_view text)
{
    if (csv_parse(&m_parser, text.data(), text.size(), onCell, onRowEnd, this) == text.size()) {
        return Error::None;
    }
    return csv_error(&m_parser) == CSV_EPARSE ? Error::StrayQuote : Error::LongCell;
}

CsvParser::Error CsvParser::finish()
{
    return csv_fini(&m_parser, onCell, onRowEnd, this) == 0 ? Error::None : Error::OpenQuote;
}

void CsvParser::onCell(void* text, std::size_t length, void* parser)
{
    auto& self = *static_cast<CsvParser*>(parser);
    const std::string_view cell(static_cast<const char*>(text), length);
    self.m_isAfterReturn = false;
    self.m_rows.cell(cell);
    self.m_linesInCells += std::ranges::count(cell, '\n');
}

/// \p character is what ended the row, or stands on a line without cells; -1 at the end of the text. Both characters of
/// a CR LF come here.
void CsvParser::onRowEnd(int character, void* parser)
{
    auto& self = *static_cast<CsvParser*>(parser);
    self.m_rows.rowEnd();
    self.m_line += character == '\n' && self.m_isAfterReturn ? 0 : 1;
    self.m_line += self.m_linesInCells;
    self.m_linesInCells = 0;
    self.m_isAfterReturn = character == '\r';
}

} // namespace cluiedit
