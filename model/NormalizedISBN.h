// An ISBN without what people write between its digits, so that two ways to write one compare
// equal.

#pragma once

#include <QString>
#include <QStringView>

namespace tomely {

/// Only the ASCII digits and letters of the text, in order and in capitals:
/// "978-0-14-303943-3" is "9780143039433". Of a text of 1,024 or more bytes of UTF-8 only the first
/// 1,023 bytes count; no ISBN is nearly as long.
QString normalizedISBN(QStringView text);

} // namespace tomely
