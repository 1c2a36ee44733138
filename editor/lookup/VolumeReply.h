// What source 1 answers: a script text that holds a volume's identifier, and the volume's record.

#pragma once

#include "editor/lookup/BookDetails.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace tomely {

/// UTF-16 units that an identifier may have; real ones have twelve.
inline constexpr qsizetype MostIdentifierUnits = 256;

/// The identifier in the script text; null when there is none. It may be empty.
QString volumeIdentifier(QStringView scriptText);

enum class Authors { All, FirstOnly };

/// Takes from the JSON record of a volume what is still empty, and the ISBN that was asked for.
/// What is not there, or not of its type, is left as it is; a record without a volume changes
/// nothing.
void fillFromVolume(
    const QByteArray& record, const QString& isbn, Authors authors, BookDetails& details);

} // namespace tomely
