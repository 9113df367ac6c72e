#include "Commands.h"
#include "DocumentFile.h"
#include "NearMiss.h"
#include "Output.h"
#include "TableOutput.h"

#include <config/Configuration.h>
#include <document/DocumentTables.h>

#include <QJsonArray>

#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

struct ShowOptions
{
    std::string document = ShippedDocument;
    std::string section;
    bool listsSections = false;
    TableFormat format;
};

/// The headings of the tables that \p name names, by their heading or by the key of their section.
QStringList headings(const QString& name)
{
    QStringList found;
    QStringList known;
    const QList<Table> tables = documentTables({});
    for (const Table& table : tables) {
        if (table.name.compare(name, Qt::CaseInsensitive) == 0
            || table.section.compare(name, Qt::CaseInsensitive) == 0) {
            found.append(table.name);
        }
        known << table.section << table.name;
    }
    known.removeDuplicates();
    if (found.isEmpty()) {
        const QString near = didYouMean(name, known);
        fail(u"There is no section \"%1\"."_s.arg(name)
             + (near.isEmpty() ? u" The sections are: "_s + known.join(u", "_s) : near));
    }
    return found;
}

/// The sections of the document, and where to find what they give.
Table sectionsTable()
{
    Table table{.name = u"Sections"_s,
                .columns = {u"Section"_s, u"Type"_s, u"Required"_s, u"When it is missing"_s, u"Tables"_s}};
    const QList<Table> tables = documentTables({});
    for (const uiconfig::Section& section : uiconfig::sections()) {
        QJsonArray own;
        for (const Table& each : tables) {
            if (each.section == section.key) {
                own.append(each.name);
            }
        }
        table.rows.append({section.key, section.type == uiconfig::Section::Type::Array ? u"array"_s : u"object"_s,
                           section.isRequired(), section.missing, own});
    }
    return table;
}

void show(const ShowOptions& options)
{
    if (options.listsSections) {
        options.format.print({sectionsTable()});
        return;
    }
    const QStringList wanted =
        options.section.empty() ? QStringList() : headings(QString::fromStdString(options.section));
    options.format.print(documentTables(loadDocument(options.document, needAxesCombinations(wanted)), wanted));
}

} // namespace

void addShowCommand(CLI::App& program)
{
    auto options = std::make_shared<ShowOptions>();
    CLI::App* command = program.add_subcommand(
        "show", "Load a document as the application does and print, section by section, what it gives.");
    command
        ->add_option("DOCUMENT", options->document,
                     "The document, \"-\" for standard input; the shipped one when none is named.")
        ->default_str("the shipped document");
    command->add_option("--section", options->section,
                        "Print one section only: its key in the document, or the heading of one of its tables.");
    command->add_flag("--list-sections", options->listsSections,
                      "List the sections that a document has, and the headings of their tables.");
    options->format.addTo(*command);
    command->footer(R"(On a terminal, colours are shown beside their names unless NO_COLOR is set.

Examples:
  cluiconfig show                              the shipped document
  cluiconfig show my.json --section Colors     the palette and the default colours
  cluiconfig show my.json --section Palette    the palette alone
  cluiconfig show my.json --format json        all of it, for a program

Exit code: 0, 1 when the application would not load the document, 2 when the command could not run.)");
    command->callback([options] { show(*options); });
}

} // namespace cluiconfig
