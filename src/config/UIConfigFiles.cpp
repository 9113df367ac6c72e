#include <config/UIConfig.h>

#include <QCoreApplication>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

const QString UIConfig::uiConfigJson() // NOLINT(readability-const-return-type)
{
    return u"UIConfig.json"_s;
}

const QString UIConfig::zfitConfigJson() // NOLINT(readability-const-return-type)
{
    return u"ZFitConfig.json"_s;
}

const QString UIConfig::zfitConfigJsonPath() // NOLINT(readability-const-return-type)
{
    return QCoreApplication::applicationDirPath() + u'/' + zfitConfigJson();
}

QString UIConfig::csvFileNameFilter() const
{
    return QCoreApplication::translate("ui_config", "CL-Test CSV Files (*.csv)");
}

QString UIConfig::mprFileNameFilter() const
{
    return QCoreApplication::translate("ui_config", "Cellaro\u00AE MPR Files (*.mpr)");
}

QString UIConfig::getDefaultAppDirectory()
{
    return QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0);
}
