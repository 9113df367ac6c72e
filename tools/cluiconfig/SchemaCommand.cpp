#include "Commands.h"
#include "Output.h"
#include <check/Schema.h>

namespace cluiconfig {

void addSchemaCommand(CLI::App& program)
{
    CLI::App* command = program.add_subcommand("schema", "Print the JSON Schema of UIConfig.json.");
    command->footer(
        "Editors complete keys and mark mistakes with it, and `cluiconfig check` validates with it. To use it\n"
        "in an editor, save it beside the document and let the document begin with\n"
        "  \"$schema\": \"./UIConfig.schema.json\",\n"
        "which the application ignores.\n"
        "\n"
        "Example:\n"
        "  cluiconfig schema > UIConfig.schema.json");
    command->callback([] { print(check::documentSchema()); });
}

} // namespace cluiconfig
