#include "Commands.h"
#include "DocumentFile.h"
#include "Output.h"
#include "TableDifference.h"
#include "TableOutput.h"

#include <document/DocumentTables.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

struct DiffOptions
{
    std::string before;
    std::string after;
    std::string format = "text";
    bool isWide = false;
};

QList<Table> shownTables(const InputFile& document)
{
    uiconfig::Configuration configuration;
    QString error;
    if (!readDocument(document, configuration, error)) {
        fail(u"Cannot compare \"%1\": %2"_s.arg(document.name(), error));
    }
    return documentTables(configuration);
}

void diff(const DiffOptions& options)
{
    const InputFile old(options.before);
    const InputFile changed(options.after);
    requireReadableFile(old);
    requireReadableFile(changed);
    const QList<Table> before = shownTables(old);
    const QList<Table> after = shownTables(changed);
    const std::optional<qsizetype> room = options.isWide ? std::nullopt : terminalWidth();
    QStringList texts;
    QJsonArray tables;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const TableDifference found = difference(before.at(i), after.at(i));
        if (!found.isEmpty()) {
            texts.append(toText(before.at(i), found, room));
            tables.append(toJson(before.at(i), found));
        }
    }
    if (options.format == "json") {
        printJson(QJsonDocument(tables).toJson());
    } else {
        print(texts.join(u'\n').toUtf8());
    }
    if (!tables.isEmpty()) {
        throw CLI::RuntimeError(ExitRefused);
    }
}

} // namespace

void addDiffCommand(CLI::App& program)
{
    auto options = std::make_shared<DiffOptions>();
    CLI::App* command = program.add_subcommand(
        "diff", "What a new document gives that an old one does not, and the other way round, whatever the text.");
    command->add_option("OLD", options->before, "The document to compare with; \"-\" is standard input.")->required();
    command->add_option("NEW", options->after, "The document that may differ; \"-\" is standard input.")->required();
    command->add_option("--format", options->format, "Lines for people, or JSON for programs.")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    addWideOption(*command, options->isWide);
    command->footer(
        R"(Both documents are loaded as the application does, and what it gets is compared, table by table as "show" prints
them. The lines:
  + a row that only NEW has           - a row that only OLD has
  ~ a row with another content        > a row at another place among those that both have
Nothing is printed when both give the same.

Examples:
  cluiconfig diff old.json new.json
  git show HEAD:UIConfig.json | cluiconfig diff - UIConfig.json
  cluiconfig diff old.json new.json --format json    an array with an object for each table that differs

Exit code: 0 when both give the same, 1 when not, 2 when one cannot be read or would be refused.)");
    command->callback([options] { diff(*options); });
}

} // namespace cluiconfig
