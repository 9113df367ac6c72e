#include "Commands.h"
#include "Output.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace cluiconfig {

void addCatalogueCommand(CLI::App& program)
{
    CLI::App* command = program.add_subcommand("catalogue", "Print the shipped catalogue of data arrays.");
    command->footer("A site with data arrays of its own saves it, changes it, and has the other commands go by it.\n"
                    "\n"
                    "Example:\n"
                    "  cluiconfig catalogue > site.json\n"
                    "  cluiconfig check-catalogue site.json\n"
                    "  cluiconfig check --catalogue site.json UIConfig.json");
    command->callback([] {
        QFile file(u":/cluiconfig/DataArrays.json"_s);
        print(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    });
}

} // namespace cluiconfig
