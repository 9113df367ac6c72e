#include "Commands.h"
#include "InputFile.h"
#include "LineSearch.h"
#include "Output.h"

#include <check/Text.h>

#include <search/FtsStrategy.h>
#include <search/TechniqueSearchStrategy.h>

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr auto TechniqueList = ":/cluiconfig/techniques.txt";
constexpr auto TechniqueStrategy = "technique";
constexpr auto TextStrategy = "text";

struct SearchOptions
{
    std::string query;
    std::optional<std::string> file;
    std::string strategy = TechniqueStrategy;
    int maxResults = -1;
    bool scores = false;
};

/// The lines of the file that \p options name; without one, those of standard input or, at a terminal, of the shipped
/// list.
LineSearch bestLines(const SearchOptions& options)
{
    const auto rank = [&](std::span<const std::string_view> lines) {
        return options.strategy == TextStrategy ? FtsStrategy::rank(options.query, lines)
                                                : TechniqueSearchStrategy::rank(options.query, lines);
    };
    const std::size_t most = options.maxResults < 0 ? SIZE_MAX : static_cast<std::size_t>(options.maxResults);
    if (options.file ? isStandardInput(*options.file) : !isTerminal(stdin)) {
        return {readStandardInput, rank, most};
    }
    const std::string path = options.file.value_or(TechniqueList);
    if (path.empty()) {
        fail(u"the name of FILE is empty"_s);
    }
    const InputFile input(path);
    QFile file(input.path());
    const auto require = [&](bool isDone) {
        if (!isDone) {
            fail(input.name() + u": "_s + file.errorString());
        }
    };
    require(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    const auto read = [&](char* bytes, std::size_t size) {
        const qint64 found = file.read(bytes, static_cast<qint64>(size));
        require(file.error() == QFileDevice::NoError);
        return static_cast<std::size_t>(std::max(found, qint64{0}));
    };
    return {read, rank, most};
}

/// \p lines with their scores, if these are wanted, and such that people see what is in them.
QByteArray shown(const LineSearch::Lines& lines, bool scores, bool isForPeople)
{
    const QByteArray score = scores ? QByteArray::number(lines.score) + '\t' : QByteArray();
    QByteArray output;
    for (std::string_view rest = lines.text; !rest.empty();) {
        const std::size_t end = rest.find('\n');
        const QByteArrayView line(rest.data(), static_cast<qsizetype>(end));
        output += score;
        output.append(isForPeople ? check::printable(QString::fromUtf8(line)).toUtf8() : line).append('\n');
        rest.remove_prefix(end + 1);
    }
    return output;
}

void search(const SearchOptions& options)
{
    const LineSearch search = bestLines(options);
    const bool isForPeople = isTerminal(stdout);
    for (const LineSearch::Lines& lines : search.bestFirst()) {
        print(options.scores || isForPeople
                  ? shown(lines, options.scores, isForPeople)
                  : QByteArray::fromRawData(lines.text.data(), static_cast<qsizetype>(lines.text.size())));
    }
}

/// The parser's own conversion takes 010 for eight and nothing for zero.
int wholeNumber(const std::string& option, const std::string& text)
{
    bool isNumber = false;
    const int number = QByteArray::fromStdString(text).toInt(&isNumber);
    if (!isNumber) {
        throw CLI::ValidationError(option, '"' + text + "\" is not a whole number within 32 bits");
    }
    return number;
}

} // namespace

void addSearchCommand(CLI::App& program)
{
    const auto options = std::make_shared<SearchOptions>();
    CLI::App* command = program.add_subcommand("search",
                                               "Print the lines that match a query, best first, as the "
                                               "application's search boxes do.");
    command->add_option("QUERY", options->query, "The letters to look for, in their order.")->required();
    command->add_option("FILE", options->file,
                        "The file whose lines are searched, \"-\" for standard input. Without it, standard input is; "
                        "from a terminal, a list of "
                        "electrochemical techniques.");
    command->add_option("--strategy", options->strategy, "How lines are scored: as technique names, or as other texts.")
        ->check(CLI::IsMember({TechniqueStrategy, TextStrategy}))
        ->capture_default_str();
    command
        ->add_option_function<std::string>(
            "--max", [options](const std::string& text) { options->maxResults = wholeNumber("--max", text); },
            "Print at most so many lines; negative for all.")
        ->type_name("INT");
    command->add_flag("--scores", options->scores, "Print the score and a tab before each line.");
    command->footer(R"(Examples:
  cluiconfig search cv                                 technique names for "cv"
  cluiconfig search cv names.txt --max 5 --scores      the best five lines of a file
  ls | cluiconfig search report --strategy text        in a pipe

Exit code: 0, also when nothing matches; 2 when the file cannot be read.)");
    command->callback([options] { search(*options); });
}

} // namespace cluiconfig
