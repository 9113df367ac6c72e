#include "CommandLine.h"

#include <QFile>

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace cluiedit {

namespace {

QString path(const std::string& argument)
{
    return QFile::decodeName(QByteArray::fromStdString(argument));
}

std::optional<QSize> sizeOf(const std::string& text)
{
    const QStringList parts = QString::fromStdString(text).split(u'x');
    bool isWidth = false;
    bool isHeight = false;
    const QSize size = parts.size() == 2 ? QSize(parts.at(0).toInt(&isWidth), parts.at(1).toInt(&isHeight)) : QSize();
    return isWidth && isHeight && !size.isEmpty() ? std::optional(size) : std::nullopt;
}

} // namespace

std::optional<CommandLine> parse(int argc, const char* const* argv, int& exitCode)
{
    constexpr int ExitUsage = 2;
    std::string document;
    std::vector<std::string> data;
    std::string catalogue;
    std::string screenshot;
    std::string tab;
    std::string representation;
    std::string size;
    CLI::App program("Shows what a configuration document gives the application while it is being written, and what is "
                     "wrong with it.",
                     "cluiedit");
    program.set_version_flag("--version", "cluiedit " CLCONFIGUI_VERSION);
    program.add_option("DOCUMENT", document, "The document to open; without it, the shipped one.");
    program
        .add_option("--data", data,
                    "Measurements to plot, as CSV in the Battery Data Format; several files may follow. Without it, "
                    "those of a demonstration cell.")
        ->expected(1, -1)
        ->type_name("FILE...");
    program.add_option("--catalogue", catalogue, "The catalogue of data arrays to go by instead of the shipped one.")
        ->type_name("FILE");
    program
        .add_option(
            "--screenshot", screenshot,
            "Write a picture of the window into this file when all is read and drawn, and end. Needs no screen.")
        ->type_name("FILE.png");
    program
        .add_option("--tab", tab, "The tab to begin with: Plot, Axes, Colours, Columns, Graphs, Recipes, Units, Other.")
        ->type_name("NAME");
    program.add_option("--representation", representation, "The representation to begin with in the tab Plot.")
        ->type_name("NAME");
    program.add_option("--size", size, "The size of the window in pixels, such as 1280x800.")
        ->type_name("WxH")
        ->check([](const std::string& text) {
            return sizeOf(text) ? std::string() : "\"" + text + "\" is no size such as 1280x800";
        });
    program.footer(R"(Examples:
  cluiedit                                          the shipped document and the demonstration cell
  cluiedit my.json --data cell1.bdf.csv cell2.bdf.csv
  cluiedit my.json --tab Colours --screenshot colours.png

Exit code: 0, 2 when the command line is wrong or a file on it cannot be read or written.)");
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& stop) {
        exitCode = program.exit(stop) == 0 ? 0 : ExitUsage;
        return {};
    }
    CommandLine line{.document = path(document),
                     .data = {},
                     .catalogue = path(catalogue),
                     .screenshot = path(screenshot),
                     .tab = QString::fromStdString(tab),
                     .representation = QString::fromStdString(representation),
                     .size = size.empty() ? std::nullopt : sizeOf(size)};
    for (const std::string& file : data) {
        line.data.append(path(file));
    }
    return line;
}

} // namespace cluiedit
