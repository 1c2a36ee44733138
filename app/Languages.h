// The language of the program's texts: that of the desktop where the program knows it, else
// English. Numbers keep the desktop's own format, which may be another one.

#pragma once

#include <QStringList>

class QCoreApplication;

namespace tomely {

/// Translates the program's texts, and those that come with the toolkit, into the first of
/// `languages` (as QLocale::uiLanguages() names them, "de-AT") that the program knows. English is
/// one of those. The translators belong to `application`. Answers the language, "en" when it knows
/// none of them.
QString translateTexts(QCoreApplication& application, const QStringList& languages);

} // namespace tomely
