// Any bytes as a catalogue: it is read or refused with a reason, the check has the same verdict, and what was read is
// archived and found.

#include "Fuzz.h"
#include "Reports.h"

#include <batterydata/ClConfigDataArrayManager.h>
#include <check/Check.h>

#include <QJsonObject>

using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cluiconfig::check::Report;
using fuzz::require;

namespace {

void askForAll(const ClConfigDataArrayManager& arrays)
{
    for (ClConfigDataArray* array : arrays.getAll()) {
        require(arrays.getConfigDataArray(array->getName(), array->getCategory()) == array,
                "an array is found by its name and category");
        require(arrays.getConfigDataArrays(array->getName()).contains(array), "an array is found by its name");
        require(arrays.getCategories().contains(array->getCategory()), "the category of an array is listed");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text = fuzz::bytes(data, size);
    const QString path = fuzz::fileWith(text);

    ClConfigDataArrayManager arrays;
    QString error;
    const bool loads = arrays.readCatalogue(path, error);
    require(loads == error.isEmpty(), "a catalogue is read, or there is a reason why not");
    require(loads || arrays.getAll().isEmpty(), "of a catalogue that is refused nothing is kept");
    askForAll(arrays);

    cl::archive::ArchiveContext context;
    QJsonObject archived;
    QJsonObject again;
    ClConfigDataArrayManager copy;
    require(arrays.write(archived, 1, context) && copy.read(archived, 1, context) && copy.write(again, 1, context),
            "a catalogue passes through the archive");
    require(archived == again, "what came out of the archive goes into it as it is");

    const Report report = cluiconfig::check::check(path, {}, cluiconfig::check::Subject::Catalogue);
    fuzz::requireSound(report, text);
    require(report.verdict.loads == loads && report.verdict.error == error,
            "the verdict is the reader's, in its words");
    return 0;
}
