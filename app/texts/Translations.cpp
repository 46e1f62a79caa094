#include "texts/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

namespace vexel::Translations {

QString folder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/vexel/translations");
}

bool installEnglish()
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(QStringLiteral(":/translations/vexel_en.qm"))) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

bool install(const QString& folder, const QLocale& locale)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(locale, QStringLiteral("vexel"), QStringLiteral("_"), folder)) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

} // namespace vexel::Translations
