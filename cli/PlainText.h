// Texts of a collection made fit for a terminal or a line-by-line reader.

#pragma once

#include <QByteArray>
#include <QString>

namespace tomely {

/// UTF-8 that every reader takes: a lone surrogate becomes U+FFFD.
QByteArray wellFormedUtf8(QStringView text);

/// The text with a space for each control character and line separator: it stays on its line, and
/// what somebody typed into a title cannot steer a terminal.
QString onOneLine(QString text);

} // namespace tomely
