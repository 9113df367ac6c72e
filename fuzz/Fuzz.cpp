#include "Fuzz.h"

#include <QFile>
#include <QTemporaryDir>

namespace fuzz {

QString fileWith(const QByteArray& content)
{
    static const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("input")));
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "the temporary directory can be written");
    return file.fileName();
}

} // namespace fuzz
