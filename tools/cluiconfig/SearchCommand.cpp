#include "Commands.h"
#include "InputFile.h"
#include "Output.h"

#include <check/Text.h>

#include <search/FtsStrategy.h>
#include <search/TechniqueSearchStrategy.h>

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

QByteArray readFile(const std::string& path)
{
    const InputFile input(path);
    QFile file(input.path());
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        bytes = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        fail(input.name() + u": "_s + file.errorString());
    }
    return bytes;
}

/// All bytes of the file that \p options name; without one, those of standard input or, at a terminal, of the shipped
/// list.
QByteArray readInput(const SearchOptions& options)
{
    if (options.file ? isStandardInput(*options.file) : !isTerminal(stdin)) {
        return readStandardInput();
    }
    const std::string path = options.file.value_or(TechniqueList);
    if (path.empty()) {
        fail(u"the name of FILE is empty"_s);
    }
    return readFile(path);
}

/// A line ends with a line feed, which a carriage return may precede; the last one may lack it.
std::vector<std::string_view> splitLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    lines.reserve(text.size() / 32);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (end < text.size() && !line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

void printBestFirst(const std::vector<FuzzyMatch>& matches, const std::vector<std::string_view>& lines,
                    const SearchOptions& options)
{
    std::size_t count = matches.size();
    if (options.maxResults >= 0) {
        count = std::min(count, static_cast<std::size_t>(options.maxResults));
    }
    const bool isForPeople = isTerminal(stdout);
    QByteArray output;
    for (std::size_t i = 0; i < count; ++i) {
        if (options.scores) {
            output.append(QByteArray::number(matches[i].score)).append('\t');
        }
        const std::string_view line = lines[matches[i].index];
        const QByteArrayView bytes(line.data(), static_cast<qsizetype>(line.size()));
        output.append(isForPeople ? check::printable(QString::fromUtf8(bytes)).toUtf8() : bytes).append('\n');
    }
    print(output);
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

void search(const SearchOptions& options)
{
    const QByteArray bytes = readInput(options);
    const std::vector<std::string_view> lines = splitLines({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    printBestFirst(options.strategy == TextStrategy ? FtsStrategy::rank(options.query, lines)
                                                    : TechniqueSearchStrategy::rank(options.query, lines),
                   lines, options);
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
