#include "Commands.h"
#include "NamedSchema.h"
#include "Output.h"

#include <batterydata/RawDataCollection.h>
#include <check/Schema.h>

#include <QJsonDocument>

#include <memory>

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
    const auto hasNames = std::make_shared<bool>(false);
    CLI::App* command = program.add_subcommand("schema", "Print the JSON Schema of UIConfig.json.");
    command->add_flag("--names", *hasNames,
                      "With the names of the catalogue: editors complete data arrays and categories, too, and mark "
                      "names that there are not.");
    command->footer(
        "Editors complete keys and mark mistakes with it, and `cluiconfig check` validates with it. To use it\n"
        "in an editor, save it beside the document and let the document begin with\n"
        "  \"$schema\": \"./UIConfig.schema.json\",\n"
        "which the application ignores.\n"
        "\n"
        "Examples:\n"
        "  cluiconfig schema > UIConfig.schema.json\n"
        "  cluiconfig schema --names > UIConfig.schema.json\n"
        "  cluiconfig schema --names --catalogue mine.json > UIConfig.schema.json");
    command->callback([hasNames] { print(*hasNames ? schemaWithNames() : check::documentSchema()); });
}

} // namespace cluiconfig
