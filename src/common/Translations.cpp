#include "common/Translations.h"

#include "common/ProgramFiles.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace Translations {
namespace {

void Load(const QString& catalogue, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(), catalogue, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

void Install(const ProgramFiles& program)
{
    Load(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    Load(QStringLiteral("nightreel"), program.TranslationFolder());
}

void Install()
{
    Install(ProgramFiles::OfRunningProgram());
}

} // namespace Translations
