#include "app/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

const QString sourceLanguage = u"en"_s;

/// Whether that file of texts is there; if so the application is translated by it.
bool install(QCoreApplication& application, const QString& file, const QString& folder)
{
    auto* const translator = new QTranslator(&application);
    if (translator->load(file, folder))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

} // namespace

QString translateTexts(QCoreApplication& application, const QStringList& languages)
{
    for (const QString& name : languages) {
        QString language = QLocale::languageToCode(QLocale(name).language());
        if (language == sourceLanguage)
            break;
        if (!install(application, "tomely_"_L1 + language, u":/translations"_s))
            continue;
        // A desktop without the toolkit's own texts shows those in English.
        install(application, "qtbase_"_L1 + language,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return language;
    }
    return sourceLanguage;
}

} // namespace tomely
