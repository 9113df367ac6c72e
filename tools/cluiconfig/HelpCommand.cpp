#include "Commands.h"
#include "NearMiss.h"
#include "Output.h"

#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

QStringList commandNames(const CLI::App& program)
{
    QStringList names;
    for (const CLI::App* command : program.get_subcommands({})) {
        names.append(QString::fromStdString(command->get_name()));
    }
    return names;
}

QStringList optionNames(const CLI::App& program)
{
    std::vector<const CLI::App*> places = {&program};
    for (const CLI::App* command : program.get_subcommands([](const CLI::App* each) { return each->parsed(); })) {
        places.push_back(command);
    }
    QStringList names;
    for (const CLI::App* place : places) {
        for (const CLI::Option* option : place->get_options()) {
            for (const std::string& name : option->get_lnames()) {
                names.append(u"--"_s + QString::fromStdString(name));
            }
        }
    }
    return names;
}

QString noCommand(const CLI::App& program, const QString& name)
{
    const QStringList names = commandNames(program);
    const QString near = didYouMean(name, names);
    return u"There is no command \"%1\"."_s.arg(name)
        + (near.isEmpty() ? u" The commands are: "_s + names.join(u", "_s) + u'.' : near);
}

void help(const CLI::App& program, const std::string& name)
{
    const CLI::App* about = &program;
    if (!name.empty()) {
        if (!commandNames(program).contains(QString::fromStdString(name))) {
            fail(noCommand(program, QString::fromStdString(name)));
        }
        about = program.get_subcommand(name);
    }
    const std::string title = (about == &program ? "" : program.get_name() + ' ') + about->get_name();
    print(QByteArray::fromStdString(about->get_formatter()->make_help(about, title, CLI::AppFormatMode::Normal)));
}

} // namespace

QString wrongArgument(const CLI::App& program)
{
    const std::vector<std::string> unexpected = program.remaining(true);
    if (unexpected.empty()) {
        return {};
    }
    const QString word = QString::fromStdString(unexpected.front());
    if (word.startsWith(u'-')) {
        const QString name = word.section(u'=', 0, 0);
        return u"There is no option \"%1\"."_s.arg(name) + didYouMean(name, optionNames(program));
    }
    return program.get_subcommands().empty() ? noCommand(program, word) : QString();
}

void addHelpCommand(CLI::App& program)
{
    auto name = std::make_shared<std::string>();
    CLI::App* command = program.add_subcommand("help", "Print the help of the program, or of a command.");
    command->add_option("COMMAND", *name, "The command to print the help of, which COMMAND --help does as well.");
    command->footer(R"(Examples:
  cluiconfig help         the commands
  cluiconfig help check   all about one of them)");
    command->callback([&program, name] { help(program, *name); });
}

} // namespace cluiconfig
