#include "Commands.h"
#include "DocumentFile.h"
#include "Output.h"

#include <document/JsonLayout.h>
#include <document/Replacement.h>

#include <QBuffer>
#include <QFile>
#include <QSaveFile>

#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

struct FormatOptions
{
    std::string document;
    bool check = false;
    bool inPlace = false;
};

/// Compares what is written to it with a text.
class Comparison : public QIODevice
{
public:
    explicit Comparison(QByteArrayView expected)
        : m_rest(expected)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    bool isEqual() const { return m_isEqual && m_rest.isEmpty(); }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        m_isEqual = m_isEqual && m_rest.startsWith(QByteArrayView(data, size));
        if (m_isEqual) {
            m_rest = m_rest.sliced(size);
        }
        return size;
    }

private:
    QByteArrayView m_rest;
    bool m_isEqual = true;
};

QByteArray readAll(const InputFile& input)
{
    requireReadableFile(input);
    QFile file(input.path());
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        fail(u"Cannot read \"%1\": %2"_s.arg(input.name(), file.errorString()));
    }
    return bytes;
}

bool hasLayout(const JsonLayout& layout, const QByteArray& text)
{
    Comparison comparison(text);
    layout.write(comparison);
    return comparison.isEqual();
}

/// Replaces the file, whose text is \p text, unless it has another one by then.
void writeInPlace(const JsonLayout& layout, const InputFile& input, const QByteArray& text)
{
    const auto failToWrite = [&](const QString& reason) {
        fail(u"Cannot write \"%1\", which stays as it is: %2"_s.arg(input.name(), reason));
    };
    // The new file takes the old one's place in one step, or not at all. Unbuffered, because commit() would not notice
    // that the rest in a buffer has no place on the disk.
    QSaveFile file(input.path());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !layout.write(file)) {
        failToWrite(file.errorString());
    }
    QString error;
    if (!prepareReplacement(file, error)) {
        failToWrite(error);
    }
    if (readAll(input) != text) {
        failToWrite(u"somebody has changed it meanwhile; format it once more"_s);
    }
    if (!commitReplacement(file, error)) {
        failToWrite(error);
    }
}

void writeToStandardOutput(const JsonLayout& layout)
{
    QBuffer output;
    output.open(QIODevice::WriteOnly);
    layout.write(output);
    print(output.data());
}

void format(const FormatOptions& options)
{
    const InputFile input(options.document);
    if (options.inPlace && !input.isInPlace()) {
        fail(isStandardInput(options.document)
                 ? u"Standard input cannot be replaced: leave --in-place out to print its document."_s
                 : u"Cannot replace \"%1\", whose name is no UTF-8: rename it, or leave --in-place out."_s.arg(
                     input.name()));
    }
    const QByteArray text = readAll(input);
    JsonLayout layout;
    QString error;
    if (!layout.read(text, error)) {
        fail(u"\"%1\" is not valid JSON: %2"_s.arg(input.name(), error));
    }
    if (options.check) {
        if (!hasLayout(layout, text)) {
            fail(u"\"%1\" has another layout; \"cluiconfig format --in-place\" gives it the usual one"_s.arg(
                     input.name()),
                 ExitRefused);
        }
    } else if (!options.inPlace) {
        writeToStandardOutput(layout);
    } else if (!hasLayout(layout, text)) {
        writeInPlace(layout, input, text);
    }
}

} // namespace

void addFormatCommand(CLI::App& program)
{
    auto options = std::make_shared<FormatOptions>();
    CLI::App* command = program.add_subcommand(
        "format", "Print a document in the one usual layout, or give it that layout. Only blanks change.");
    command->add_option("DOCUMENT", options->document, "The document, or any other JSON file; \"-\" is standard input.")
        ->required();
    CLI::Option* check =
        command->add_flag("--check", options->check, "Print no document; exit code 1 when the layout is another one.");
    command
        ->add_flag("--in-place", options->inPlace,
                   "Replace the file, in one step: whatever goes wrong, it is the old one or the new one. A file that "
                   "has the layout already is left alone.")
        ->excludes(check);
    command->footer(
        R"(Keys, their order, unknown and repeated ones included, the digits of numbers and the spelling of texts stay as
they are, so that the document means what it meant.

--in-place keeps owner, group and permissions, and leaves the file alone where it may not, where the disk fails, and
where somebody else has changed it meanwhile. Of a symbolic link, the file that it names is replaced; other hard links
keep the old one.

Examples:
  cluiconfig format my.json               see what it would look like
  cluiconfig format --in-place my.json    lay it out
  cluiconfig format --check my.json       for a commit hook

Exit code: 0, 1 when --check finds another layout, 2 when the file cannot be read, is not JSON or cannot be written.)");
    command->callback([options] { format(*options); });
}

} // namespace cluiconfig
