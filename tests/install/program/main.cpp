#include <config/UIConfig.h>

#include "lean.h"

#include <CLConfigUI/axes/CombinationIndex.h>
#include <CLConfigUI/config/UIConfig.h>
#include <CLConfigUI/items/ContainerAdaptor.h>

#include <QFile>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

/// Uses what is installed: prints what the shipped document gives, and how many techniques there are.
int main()
{
    const QString data = QStringLiteral(DATA_DIR "/");
    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    QString error;
    if (!config.readUIConfiguration(data + UIConfig::uiConfigJson(), error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }

    CombinationIndex index;
    QList<AxesCombination> combinations;
    ContainerAdaptor<QList<AxesCombination>, AxesCombination> adaptor(&combinations);
    for (const AxesCombination& combination : config.getAxesCombinationManager().getAxesCombinations()) {
        index.add(combination.getConfigX().getName(), combination.getConfigY().getName(), combinations.size());
        adaptor.addElement(combination);
    }
    const QString x = index.xNames().constFirst();
    qsizetype records = 0;
    index.forEachRecord(x, [&records](qsizetype) { ++records; });

    QFile techniques(data + QStringLiteral("techniques.txt"));
    if (!techniques.open(QIODevice::ReadOnly) || scaleOf(combinations.constFirst()) != QCPAxis::stLinear) {
        return 1;
    }
#ifdef TRANSLATIONS_DIR
    QTranslator translator;
    if (!translator.load(QLocale(QLocale::German), QStringLiteral("clconfigui"), QStringLiteral("_"),
                         QStringLiteral(TRANSLATIONS_DIR))) {
        std::fputs("There is no German in " TRANSLATIONS_DIR "\n", stderr);
        return 1;
    }
#endif
    std::printf("%d wide, %d combinations, %d of them over %s, %d techniques\n", WindowConfig().width,
                static_cast<int>(combinations.size()), static_cast<int>(records), qPrintable(x),
                static_cast<int>(techniques.readAll().count('\n')));
}
