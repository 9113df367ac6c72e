#include "Commands.h"
#include "Output.h"

#include <batterydata/RawDataCollection.h>
#include <check/Schema.h>
#include <document/NamedSchema.h>

#include <QJsonDocument>

#include <memory>
#include <string>

namespace cluiconfig {

namespace {

QByteArray schemaWithNames()
{
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    return QJsonDocument(namedSchema(QJsonDocument::fromJson(check::documentSchema()).object(), catalogue)).toJson();
}

} // namespace

void addSchemaCommand(CLI::App& program)
{
    auto subject = std::make_shared<std::string>("document");
    CLI::App* command =
        program.add_subcommand("schema", "Print the JSON Schema of UIConfig.json, or of a catalogue of data arrays.");
    command->add_option("OF", *subject, "What the schema is of.")
        ->check(CLI::IsMember({"document", "catalogue"}))
        ->capture_default_str();
    const auto hasNames = std::make_shared<bool>(false);
    command->add_flag("--names", *hasNames,
                      "With the names of the catalogue: editors complete data arrays and categories, too, and mark "
                      "names that there are not.");
    command->footer(
        "Editors complete keys and mark mistakes with it, and `cluiconfig check` validates with it. To use it\n"
        "in an editor, save it beside the document and let the document begin with\n"
        "  \"$schema\": \"./UIConfig.schema.json\",\n"
        "which the application ignores. A catalogue does the same with its schema.\n"
        "\n"
        "Examples:\n"
        "  cluiconfig schema > UIConfig.schema.json\n"
        "  cluiconfig schema --names > UIConfig.schema.json\n"
        "  cluiconfig schema --names --catalogue mine.json > UIConfig.schema.json\n"
        "  cluiconfig schema catalogue > DataArrays.schema.json");
    command->callback([subject, hasNames] {
        if (*subject == "catalogue" && *hasNames) {
            throw CLI::ValidationError("--names", "is for the schema of the document");
        }
        if (*hasNames) {
            printJson(schemaWithNames());
        } else {
            print(*subject == "catalogue" ? check::catalogueSchema() : check::documentSchema());
        }
    });
}

} // namespace cluiconfig
