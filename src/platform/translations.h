// SPDX-License-Identifier: GPL-3.0-or-later
// The program's translations: its own (quillmere_<language>.qm, built into the program) and
// Qt's (qtbase_<language>.qm where the system has them), for the languages of the locale, which
// on Linux the environment sets (LC_ALL, LC_MESSAGES, LANG). English, the program's own texts,
// needs none.
#pragma once

#include <QLocale>

class QCoreApplication;

// Installs the translators for the locale into the application (which owns them); false when
// the program has no translation for its languages.
bool InstallTranslations(QCoreApplication& app, const QLocale& locale = QLocale::system());
