#include "Fuzz.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace fuzz {

QString fileWith(const QByteArray& content)
{
    static const QTemporaryDir directory;
    QFile file(directory.filePath(u"input"_s));
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "the temporary directory can be written");
    return file.fileName();
}

} // namespace fuzz
