// Base64 in the standard alphabet with "=" padding: bytes to text, with lines of a given length if
// that is wanted, and back. The reader skips what is no symbol but is strict about padding, which
// is why it is not the toolkit's.

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

namespace tomely {

/// The bytes that a text stands for. Every character that is neither a symbol nor "=" is skipped;
/// the first "=" ends the text, and a group of fewer than four symbols that no "=" closes gives
/// nothing. A text with a character beyond ASCII gives no bytes at all.
QByteArray dataWithBase64EncodedString(QStringView text);

/// The text of the bytes, in one line.
QString base64Encoding(QByteArrayView data);

/// The text of the bytes with a "\n" after the first group of four characters that reaches
/// `lineLength`, also at the very end; 0 breaks no line.
QString base64EncodingWithLineLength(QByteArrayView data, quint32 lineLength);

} // namespace tomely
