#include "Commands.h"
#include "InputFile.h"
#include "Output.h"
#include <check/Check.h>
#include <check/Reports.h>
#include <check/Suggest.h>

#include <algorithm>
#include <list>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

using check::Finding;
using check::Report;
using check::Severity;

struct CheckOptions
{
    check::Subject subject = check::Subject::Document;
    std::vector<std::string> files;
    std::string format = "text";
    bool isStrict = false;
    std::vector<std::string> rules;
    bool listsRules = false;
};

QString severityText(const check::RuleDescription& rule)
{
    return rule.mayBeError && rule.mayBeWarning ? u"error or warning"_s
                                                : toString(rule.mayBeError ? Severity::Error : Severity::Warning);
}

void listRules()
{
    QString text;
    for (const check::RuleDescription& rule : check::rules()) {
        text += rule.name.leftJustified(24) + severityText(rule).leftJustified(18) + rule.meaning + u'\n';
    }
    print(text.toUtf8());
}

/// The severities of arguments such as "unused-color=off".
check::Severities severities(const std::vector<std::string>& arguments)
{
    check::Severities result;
    for (const std::string& argument : arguments) {
        const QString text = QString::fromStdString(argument);
        const QString name = text.section(u'=', 0, 0);
        const auto rule = check::ruleFromName(name);
        const auto severity = check::severityFromString(text.section(u'=', 1));
        if (!rule) {
            QStringList names;
            for (const check::RuleDescription& each : check::rules()) {
                names.append(each.name);
            }
            throw CLI::ValidationError("--rule",
                                       QString(u"there is no rule "_s + check::quoted(name) + u'.'
                                               + check::didYouMean(name, names).text
                                               + u" --list-rules lists them all."_s)
                                           .toStdString());
        }
        if (!severity) {
            throw CLI::ValidationError("--rule", "write NAME=off, NAME=warning or NAME=error");
        }
        result.insert(*rule, *severity);
    }
    return result;
}

/// What the check says of \p file, which the command line calls \p argument, by its name.
Report reportOn(const InputFile& file, const std::string& argument, const check::Severities& severities,
                check::Subject subject)
{
    Report report = check::check(file.path(), severities, subject);
    report.file = file.name();
    report.path = isStandardInput(argument) ? file.name().toUtf8() : QByteArray::fromStdString(argument);
    report.verdict.error = file.named(report.verdict.error);
    for (Finding& finding : report.findings) {
        finding.message = file.named(finding.message);
    }
    return report;
}

int exitCode(const Report& report, bool isStrict)
{
    if (!report.couldBeRead) {
        return ExitCannotRun;
    }
    const bool fails = std::any_of(report.findings.begin(), report.findings.end(), [&](const Finding& finding) {
        return isStrict || finding.severity == Severity::Error;
    });
    return fails || !report.verdict.loads ? ExitRefused : 0;
}

/// What the help calls the files.
std::string nameOf(check::Subject subject)
{
    return subject == check::Subject::Document ? "DOCUMENT" : "CATALOGUE";
}

void runCheck(const CheckOptions& options)
{
    if (options.listsRules) {
        listRules();
        return;
    }
    if (options.files.empty()) {
        throw CLI::RequiredError(nameOf(options.subject));
    }
    const check::Severities chosen = severities(options.rules);
    int code = 0;
    QList<Report> reports;
    const std::list<InputFile> files(options.files.begin(), options.files.end()); // before anything is printed
    auto file = files.begin();
    for (const std::string& argument : options.files) {
        const Report report = reportOn(*file++, argument, chosen, options.subject);
        code = std::max(code, exitCode(report, options.isStrict));
        if (options.format == "text") {
            print(check::asText(report, {colorDepth() != ColorDepth::None, isTerminal(stdout)}));
        } else {
            reports.append(report);
        }
    }
    if (options.format != "text") {
        printJson(options.format == "json" ? check::asJson(reports) : check::asSarif(reports));
    }
    if (code != 0) {
        throw CLI::RuntimeError(code);
    }
}

CLI::App* addCommand(CLI::App& program, const std::string& name, const std::string& description, check::Subject subject)
{
    auto options = std::make_shared<CheckOptions>();
    options->subject = subject;
    CLI::App* command = program.add_subcommand(name, description);
    command->add_option(nameOf(subject), options->files, "The files to check; \"-\" is standard input.");
    command->add_option("--format", options->format, "Lines for people, or JSON or SARIF 2.1.0 for programs.")
        ->check(CLI::IsMember({"text", "json", "sarif"}))
        ->capture_default_str();
    command->add_flag("--strict", options->isStrict, "Let warnings fail as well.");
    command->add_option("--rule", options->rules, "Report the findings of a rule as errors, as warnings or not at all.")
        ->type_name("NAME=off|warning|error")
        ->allow_extra_args(false);
    command->add_flag("--list-rules", options->listsRules, "List the rules with their severities and meanings.");
    command->callback([options] { runCheck(*options); });
    return command;
}

} // namespace

void addCheckCommand(CLI::App& program)
{
    CLI::App* command = addCommand(program, "check",
                                   "Say whether the application loads a document, and everything in it that is "
                                   "refused, dropped, ignored or turned into something else, with its place.",
                                   check::Subject::Document);
    command->footer(
        "For each document the verdict comes first: it loads, or the application refuses it and says why.\n"
        "Then every finding: FILE:LINE:COLUMN: SEVERITY: MESSAGE [RULE at JSON-POINTER]. An error is what\n"
        "the application refuses, and the one that it stumbles over comes first; a warning is what it loads\n"
        "as something else than was written. After 200 findings of one rule the others are only counted.\n"
        "On a terminal, the line follows with a mark under the place; colours are used unless NO_COLOR is set.\n"
        "\n"
        "Exit code: 0 when nothing fails, 1 when a document is refused or a finding fails, 2 when a document\n"
        "could not be read or the arguments are wrong.\n"
        "\n"
        "Examples:\n"
        "  cluiconfig check UIConfig.json\n"
        "  cluiconfig check --strict --rule unused-color=off site/*.json\n"
        "  cluiconfig check --format sarif UIConfig.json > findings.sarif");
}

void addCheckCatalogueCommand(CLI::App& program)
{
    CLI::App* command = addCommand(program, "check-catalogue",
                                   "Say whether a catalogue of data arrays can be used, and everything in it that is "
                                   "refused or ignored, with its place.",
                                   check::Subject::Catalogue);
    command->footer(
        "The verdict, the findings and the exit codes are as with `cluiconfig check`, which its help explains.\n"
        "What a catalogue looks like: `cluiconfig catalogue` prints the shipped one, `cluiconfig schema catalogue`\n"
        "its JSON Schema, and `cluiconfig units` the quantities and units that it may name.\n"
        "\n"
        "Example, and then a document with the arrays of that catalogue:\n"
        "  cluiconfig check-catalogue site.json\n"
        "  cluiconfig check --catalogue site.json UIConfig.json");
}

} // namespace cluiconfig
