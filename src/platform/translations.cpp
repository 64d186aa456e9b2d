// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace {
bool Install(QCoreApplication& app, const QLocale& locale, const QString& name,
             const QString& folder)
{
    auto* translator = new QTranslator(&app);
    if (translator->load(locale, name, QStringLiteral("_"), folder) &&
        QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}
} // namespace

bool InstallTranslations(QCoreApplication& app, const QLocale& locale)
{
    // Dates, numbers and clock times follow the same locale.
    QLocale::setDefault(locale);
    Install(app, locale, QStringLiteral("qtbase"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return Install(app, locale, QStringLiteral("quillmere"), QStringLiteral(":/i18n"));
}
