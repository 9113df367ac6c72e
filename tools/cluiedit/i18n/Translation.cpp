#include "Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

bool install(const QLocale& language, const QString& name, const QString& directory)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(language, name, u"_"_s, directory)) {
        return false;
    }
    translator->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

void installTranslations(const QLocale& locale)
{
    const QStringList names = locale.uiLanguages();
    for (const QString& name : names) {
        const QLocale language(name);
        if (language.language() == QLocale::English) {
            return; // wanted more than what comes behind it, and what the texts are written in
        }
        if (install(language, u"cluiedit"_s, u":/i18n"_s)) {
            install(language, u"clconfigui"_s, u":/i18n"_s);
            const QString ofLibraries = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
            install(language, u"qtbase"_s, ofLibraries);
            install(language, u"qscintilla"_s, ofLibraries);
            return;
        }
    }
}

} // namespace cluiedit
