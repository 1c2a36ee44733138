// How texts are found in what strangers' servers send: between markers, outside tags, and never
// longer than a text about a book can be. Which markers there are it does not know.

#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace tomely {

/// UTF-16 units that are kept of a text, and that an address may have.
inline constexpr qsizetype MostTextUnits = 4096;

/// The text of bytes that are UTF-8 throughout, without a byte-order mark in front; nothing for any
/// others.
std::optional<QString> decodedText(QByteArrayView bytes);

/// The part of `text` between the first `start` and the first `end` behind that. Null when either
/// is missing or `text` is null; a found part that is empty is not null. It lies in `text`, and
/// takes time in proportion to it.
QStringView extractValue(QStringView text, QStringView start, QStringView end);

/// The last run of text outside tags, without white space around it: "Bar" of
/// "<h1>Foo <i>Bar</i> </h1>". All of the text, trimmed, when there is no tag before that run. It
/// lies in `text`, and is null only when that is.
QStringView cleanString(QStringView text);

/// The text, cut where it is longer than MostTextUnits, but never within a character. Null stays
/// null, empty stays empty.
QString boundedText(QStringView text);

/// The address, or null when it is longer than MostTextUnits: a part of one leads somewhere else.
QString boundedAddress(QStringView address);

} // namespace tomely
